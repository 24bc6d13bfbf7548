"use strict";
// Plots of series and curves, with a table of what each line holds.

const plots = (() => {
  const colours = ["#2c7fb8", "#d97a1d", "#1f9e77", "#b05a9c", "#8c8a1f", "#6b7b8c"]; // fit for light and dark
  const months = ["January", "February", "March", "April", "May", "June", "July", "August", "September", "October",
    "November", "December"];
  const graphs = [];
  const pending = []; // drawings that wait until all blocks are in their places

  // Its legend would write markup with styles of its own; the tables below are the legend.
  Dygraph.PLUGINS = Dygraph.PLUGINS.filter((plugin) => plugin !== Dygraph.Plugins.Legend);

  const monthText = (index) => `${months[index % 12]} ${Math.floor(index / 12)}`;

  function dateOf(monthIndex) {
    const date = new Date(0);
    date.setUTCFullYear(Math.floor(monthIndex / 12), monthIndex % 12, 1);
    return date;
  }

  const isConstant = (line) => line.values.every((value) => Object.is(value, line.values[0]));

  /** Marks of a time axis: dygraphs by itself knows nothing between a year and ten. */
  function timeMarks(begin, end, pixels) {
    const month = (time) => new Date(time).getUTCFullYear() * 12 + new Date(time).getUTCMonth();
    const most = Math.max(pixels / 70, 1);
    const span = month(end) - month(begin);
    const step = [1, 3, 6, 12, 24, 60, 120, 240, 600, 1200].find((months) => span / months <= most) ?? 6000;
    const marks = [];
    for (let index = Math.ceil(month(begin) / step) * step; index <= month(end); index += step) {
      const year = Math.floor(index / 12);
      const label = step < 12 ? `${months[index % 12].slice(0, 3)} ${year}` : String(year);
      marks.push({ v: dateOf(index).getTime(), label });
    }
    return marks;
  }

  function draw(container, rows, labels, options) {
    const graph = new Dygraph(container, rows, {
      labels,
      colors: colours,
      legend: "never",
      labelsUTC: true,
      strokeWidth: 1.5,
      highlightCircleSize: 3,
      axisLineColor: "rgba(128,128,128,0.6)",
      gridLineColor: "rgba(128,128,128,0.22)",
      axisLabelFontSize: 12,
      animatedZooms: false,
      rangeSelectorHeight: 26,
      rangeSelectorPlotStrokeColor: "#8a97a3",
      rangeSelectorPlotFillColor: "#a9b4bd",
      rangeSelectorPlotFillGradientColor: "",
      rangeSelectorBackgroundStrokeColor: "#8a97a3",
      rangeSelectorForegroundStrokeColor: "#66727d",
      ...options,
    });
    graphs.push(graph);
  }

  const axisOptions = { axisLabelWidth: 58, axisLabelFormatter: (value) => rounded(value) };

  function swatch(index) {
    const mark = make("i", { className: "swatch" });
    mark.style.backgroundColor = colours[index % colours.length];
    return mark;
  }

  function lineTable(lines, isPlotted) {
    const cursor = make("th", { scope: "col", className: "number at" }, "At the cursor");
    const head = isPlotted ? ["Mean", "Minimum", "Maximum"] : ["In every month"];
    const body = make("tbody");
    for (const [index, line] of lines.entries()) {
      const over = (step) => line.values.reduce((result, value) => step(result, value));
      const cells = isPlotted
        ? [rounded(over((sum, value) => sum + value) / line.values.length),
          figure(over((least, value) => Math.min(least, value))), figure(over((most, value) => Math.max(most, value)))]
        : [figure(line.values[0])];
      line.cursor = make("td", { className: "number at" });
      body.append(make("tr", {},
        make("th", { scope: "row" }, ...(isPlotted ? [swatch(index)] : []), line.label),
        ...cells.map((text) => make("td", { className: "number" }, text)), ...(isPlotted ? [line.cursor] : [])));
    }
    const header = make("tr", {}, make("td"),
      ...head.map((text) => make("th", { scope: "col", className: "number" }, text)), ...(isPlotted ? [cursor] : []));
    return { table: make("table", { className: "lines" }, make("thead", {}, header), body), cursor };
  }

  /** All values as a table of years and months, made when it is first opened. */
  function valueTables(lines) {
    const details = make("details", { className: "values" }, make("summary", {}, "All values"));
    details.addEventListener("toggle", () => {
      if (details.childElementCount > 1)
        return;
      for (const line of lines)
        details.append(make("div", { className: "scroll" }, valueTable(line)));
    });
    return details;
  }

  function valueTable(line) {
    const body = make("tbody");
    const end = line.begin + line.values.length;
    for (let year = Math.floor(line.begin / 12); year * 12 < end; ++year) {
      const row = make("tr", {}, make("th", { scope: "row" }, String(year)));
      for (let index = year * 12; index < year * 12 + 12; ++index)
        row.append(make("td", { className: "number" }, figure(line.values[index - line.begin])));
      body.append(row);
    }
    const head = make("tr", {}, make("td"), ...months.map((name) =>
      make("th", { scope: "col", className: "number" }, name.slice(0, 3))));
    return make("table", {}, make("caption", {}, line.label), make("thead", {}, head), body);
  }

  function rowsOf(lines) {
    const begin = Math.min(...lines.map((line) => line.begin));
    const end = Math.max(...lines.map((line) => line.begin + line.values.length));
    return Array.from({ length: end - begin }, (_, index) =>
      [dateOf(begin + index), ...lines.map((line) => line.values[begin + index - line.begin] ?? null)]);
  }

  function drawSeries(container, lines, cursor) {
    const rows = rowsOf(lines);
    draw(container, rows, ["Month", ...lines.map((_, index) => `line ${index + 1}`)], {
      includeZero: true,
      showRangeSelector: rows.length > 36,
      drawPoints: rows.length < 3,
      axes: { x: { ticker: timeMarks }, y: axisOptions },
      highlightCallback: (event, x) => {
        const date = new Date(x);
        const month = date.getUTCFullYear() * 12 + date.getUTCMonth();
        cursor.textContent = monthText(month);
        for (const line of lines)
          line.cursor.textContent = figure(line.values[month - line.begin]);
      },
      unhighlightCallback: () => {
        cursor.textContent = "At the cursor";
        for (const line of lines)
          line.cursor.textContent = "";
      },
    });
  }

  return {
    isConstant,

    /** Lines: { label, begin: month index, values }. Appends a block; drawAll() draws its plot. */
    addSeries(container, title, unit, lines) {
      const isPlotted = !lines.every(isConstant);
      const { table, cursor } = lineTable(lines, isPlotted);
      const first = Math.min(...lines.map((line) => line.begin));
      const last = Math.max(...lines.map((line) => line.begin + line.values.length)) - 1;
      const box = make("div", { className: "plot", role: "img",
        "aria-label": `Plot of ${title}, ${monthText(first)} to ${monthText(last)}. The tables below say the same.` });
      const block = make("section", { className: isPlotted ? "series" : "series constant" },
        make("h4", {}, title, " ", make("small", {}, unit)), ...(isPlotted ? [box, table, valueTables(lines)] : [table]));
      container.append(block);
      if (isPlotted)
        pending.push(() => drawSeries(box, lines, cursor));
    },

    /** A reservoir's points of level (m), area (km²) and volume (hm³). */
    addCurve(container, points) {
      const box = make("div", { className: "plot", role: "img",
        "aria-label": "Plot of volume and area over the level. The table says the same in numbers." });
      const table = make("table", {},
        make("thead", {}, make("tr", {}, ...["Level (m)", "Area (km²)", "Volume (hm³)"].map((text, index) =>
          make("th", { scope: "col", className: "number" }, ...(index ? [swatch(index === 1 ? 1 : 0)] : []), text)))),
        make("tbody", {}, ...points.map((point) =>
          make("tr", {}, ...point.map((value) => make("td", { className: "number" }, figure(value)))))));
      container.append(make("section", { className: "series curve" },
        make("h4", {}, "Level, area and volume"), make("div", { className: "pair" }, box,
          make("div", { className: "scroll" }, table))));
      const rows = points.filter(([level]) => Number.isFinite(level)).map(([level, area, volume]) => [level, volume, area]);
      pending.push(() => draw(box, rows, ["Level", "Volume", "Area"], {
        xlabel: "Level, m",
        ylabel: "Volume, hm³",
        y2label: "Area, km²",
        series: { Area: { axis: "y2" } },
        drawPoints: true,
        pointSize: 2,
        axes: { x: { axisLabelFormatter: (value) => rounded(value) }, y: axisOptions,
          y2: { ...axisOptions, drawGrid: false, independentTicks: true } },
      }));
    },

    drawAll() {
      pending.splice(0).forEach((drawing) => drawing());
    },

    clear() {
      graphs.splice(0).forEach((graph) => graph.destroy());
    },

    /** On paper the plots are as wide as the page. */
    resize(width) {
      for (const graph of graphs)
        if (width)
          graph.resize(width, 200);
        else
          graph.resize();
    },
  };
})();
