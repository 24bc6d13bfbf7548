"use strict";
// What is shown of the chosen element.

const showChosen = (() => {
  const body = document.getElementById("chosen-body");
  const title = document.getElementById("chosen-title");
  let turn = 0; // a choice made while another is still being unpacked replaces it

  const nameOf = (element) => element.name || `${element.kindName} ${element.id}`;

  function link(key) {
    const element = elements.get(key);
    const anchor = make("a", { href: `#${key}` }, nameOf(element));
    anchor.addEventListener("click", (event) => {
      event.preventDefault();
      choose(key);
    });
    return anchor;
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

  async function linesOf(series) {
    const lines = new Map();
    for (const serie of series) {
      const key = `${serie.numbers} ${serie.begin}`;
      if (!lines.has(key))
        lines.set(key, { states: [], begin: plots.monthIndexOf(serie.begin), values: await unpack(serie.numbers) });
      lines.get(key).states.push(serie.state);
    }
    const hasStates = series.some((serie) => serie.state > 0);
    return [...lines.values()].map((line) => ({ ...line, label: hasStates ? labelOf(line.states) : "All months" }));
  }

  async function chartsOf(element) {
    const charts = new Map();
    for (const serie of element.series)
      charts.set(serie.kind, [...(charts.get(serie.kind) ?? []), serie]);
    return Promise.all([...charts.values()].map(async (series) =>
      ({ title: series[0].name, unit: series[0].unit, lines: await linesOf(series) })));
  }

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
      make("small", {}, `${element.kindName}, id ${element.id}`));
    const figures = make("dl", { className: "figures" });
    element.figures.forEach(([label, text]) => addFigure(figures, label, text));
    addNeighbours(figures, element);
    const blocks = make("div", { className: "charts" });
    body.replaceChildren(figures, blocks);
    if (problem)
      blocks.append(make("p", { className: "remark" }, problem));
    for (const { title: name, unit, lines } of charts)
      plots.addSeries(blocks, name, unit, lines);
    if (element.curve)
      plots.addCurve(blocks, element.curve);
    if (charts.length === 0 && !element.curve && !problem)
      blocks.append(make("p", { className: "remark" }, "It has no series."));
    body.dataset.key = key; // all is drawn
  };
})();
