"use strict";
// What is shown of the chosen element.

const showChosen = (() => {
  const body = document.getElementById("chosen-body");
  const title = document.getElementById("chosen-title");
  let turn = 0; // a choice made while another is still being unpacked replaces it

  const kindNameOf = (element) => data.kindNames[element.kind];
  const nameOf = (element) => element.name || `${kindNameOf(element)} ${element.id}`;

  function link(key) {
    const element = elements.get(key);
    return make("a", { href: `#${key}` }, nameOf(element));
  }

  function addFigure(list, label, ...content) {
    if (content.length > 0)
      list.append(make("div", {}, make("dt", {}, label), make("dd", {}, ...content)));
  }

  const separated = (items) => items.flatMap((item, index) => (index ? [", ", item] : [item]));

  function addNeighbours(list, element) {
    const nodes = (id) => (id === undefined ? [] : [link(`node-${id}`)]);
    if (element.isTwoWay !== undefined) {
      addFigure(list, "From", ...nodes(element.upstream));
      addFigure(list, "To", ...nodes(element.downstream));
      addFigure(list, "Direction", element.isTwoWay ? "both ways" : "one way");
      return;
    }
    const links = (end) => data.elements.filter((other) => other[end] === element.id && other.isTwoWay !== undefined);
    addFigure(list, "Links in", ...separated(links("downstream").map((other) => link(other.key))));
    addFigure(list, "Links out", ...separated(links("upstream").map((other) => link(other.key))));
  }

  /** "Base", "States 1 and 2", "Base and state 3": series that hold the same are one line. */
  function labelOf(states) {
    const numbers = states.filter((state) => state > 0);
    const list = numbers.length > 2 && numbers.at(-1) - numbers[0] === numbers.length - 1
      ? `${numbers[0]} to ${numbers.at(-1)}` : numbers.join(" and ");
    const words = numbers.length === 0 ? "" : `${numbers.length === 1 ? "state" : "states"} ${list}`;
    const text = states[0] !== 0 ? words : words ? `base and ${words}` : "base";
    return text[0].toUpperCase() + text.slice(1);
  }

  /** What a chart shows: the series of one name and unit, as [label, state, begin, numbers]. */
  async function chartOf([name, unit], series) {
    const lines = new Map();
    for (const [, state, begin, numbers] of series) {
      const key = `${numbers} ${begin}`;
      if (!lines.has(key))
        lines.set(key, { states: [], begin, values: await unpack(numbers) });
      lines.get(key).states.push(state);
    }
    const hasStates = series.some(([, state]) => state > 0);
    for (const line of lines.values())
      line.label = hasStates ? labelOf(line.states) : "All months";
    return { name, unit, lines: [...lines.values()] };
  }

  function chartsOf(element) {
    const labels = [...new Set(element.series.map(([label]) => label))];
    return Promise.all(labels.map((label) =>
      chartOf(data.serieLabels[label], element.series.filter((serie) => serie[0] === label))));
  }

  /** One number says it all. */
  const isFigure = ({ lines }) => lines.length === 1 && plots.isConstant(lines[0]);

  return async (key) => {
    const mine = ++turn;
    const element = elements.get(key);
    let charts = [];
    let problem = "";
    try {
      charts = await chartsOf(element);
    } catch (error) {
      problem = `The series cannot be shown: this browser is too old to unpack them (${error.message}).`;
    }
    if (mine !== turn)
      return;
    plots.clear();
    title.replaceChildren(make("span", { className: `mark kind-${element.kind}` }, nameOf(element)), " ",
      make("small", {}, `${kindNameOf(element)}, id ${element.id}`));
    const figures = make("dl", { className: "figures" });
    element.figures.forEach(([label, text]) => addFigure(figures, label, text));
    for (const { name, unit, lines } of charts.filter(isFigure))
      addFigure(figures, name, `${figure(lines[0].values[0])} ${unit} in every month`);
    addNeighbours(figures, element);
    const blocks = make("div", { className: "charts" });
    body.replaceChildren(figures, blocks);
    if (problem)
      blocks.append(make("p", { className: "remark" }, problem));
    for (const { name, unit, lines } of charts.filter((chart) => !isFigure(chart)))
      plots.addSeries(blocks, name, unit, lines);
    if (element.curve)
      plots.addCurve(blocks, element.curve);
    if (charts.length === 0 && !element.curve && !problem)
      blocks.append(make("p", { className: "remark" }, "It has no series."));
    plots.drawAll();
    body.dataset.key = key;
  };
})();
