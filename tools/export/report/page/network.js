"use strict";
// Pan and zoom. Symbols and labels keep their size; the nearer one looks, the more labels there is room for.

const network = (() => {
  const svg = document.querySelector("svg.network");
  const world = svg.querySelector(".world");
  const bar = svg.querySelector(".scale-bar");
  const [, , width, height] = svg.getAttribute("viewBox").split(" ").map(Number);
  const kilometresPerUnit = Number(svg.dataset.kilometres);
  const room = Number(svg.dataset.room);
  const targets = new Map([...svg.querySelectorAll("[data-key]")].map((target) => [target.dataset.key, target]));
  const numOfLevels = 15;
  const usualLevel = 2;

  function showScale(pixels) {
    if (!bar)
      return;
    const most = (130 / pixels) * kilometresPerUnit;
    const decade = 10 ** Math.floor(Math.log10(most));
    const kilometres = decade * (most >= 5 * decade ? 5 : most >= 2 * decade ? 2 : 1);
    const length = (kilometres / kilometresPerUnit) * pixels;
    bar.querySelector("path").setAttribute("d", `M0-5V0H${length}V-5`);
    const text = bar.querySelector("text");
    text.setAttribute("x", length + 6);
    text.textContent = kilometres >= 1 ? `${figure(kilometres)} km` : `${figure(Math.round(kilometres * 1000))} m`;
  }

  /** Shows the map at a transform; `fit` is how many pixels wide the drawing shows one of its units. */
  function show(transform, fit) {
    const pixels = fit * transform.k;
    const level = Math.min(Math.floor(2 * Math.log2(pixels) + usualLevel + 0.1), numOfLevels - 1);
    for (let step = 0; step < numOfLevels; ++step)
      svg.classList.toggle(`at-${step}`, step <= Math.max(level, 0));
    svg.style.setProperty("--text", 1 / pixels);
    svg.style.setProperty("--mark", Math.min(Math.max(pixels * room, 0.4), 1) / pixels);
    svg.style.setProperty("--fixed", 1 / fit);
    world.setAttribute("transform", transform);
    showScale(pixels);
  }

  function refresh() {
    const matrix = svg.getScreenCTM();
    if (matrix && matrix.a > 0)
      show(d3.zoomTransform(svg), matrix.a);
  }

  const zoom = d3.zoom()
    .scaleExtent([1, 200])
    .extent([[0, 0], [width, height]])
    .translateExtent([[0, 0], [width, height]])
    // The page scrolls by the wheel and by one finger: the map takes the wheel only with Ctrl or once it has the focus.
    .filter(() => {
      const event = d3.event;
      if (event.type === "wheel")
        return event.ctrlKey || event.metaKey || document.activeElement === svg;
      return event.touches ? event.touches.length > 1 : !event.button;
    })
    .on("zoom", refresh);

  const map = d3.select(svg).call(zoom).on("dblclick.zoom", null);

  function change(action) {
    if (action === "in" || action === "out")
      map.call(zoom.scaleBy, action === "in" ? 1.6 : 1 / 1.6);
    else if (action === "all")
      map.call(zoom.transform, d3.zoomIdentity);
    else
      map.call(zoom.translateBy, ...action);
  }

  const keys = {
    "+": "in", "=": "in", "-": "out", "0": "all",
    ArrowLeft: [60, 0], ArrowRight: [-60, 0], ArrowUp: [0, 60], ArrowDown: [0, -60],
  };
  svg.setAttribute("tabindex", "0");
  svg.setAttribute("aria-keyshortcuts", "+ - 0");
  svg.addEventListener("keydown", (event) => {
    if (!(event.key in keys) || event.ctrlKey || event.metaKey || event.altKey)
      return;
    event.preventDefault();
    const step = keys[event.key];
    change(Array.isArray(step) ? step.map((length) => length / d3.zoomTransform(svg).k) : step);
  });
  document.querySelectorAll("[data-zoom]").forEach((button) => {
    button.addEventListener("click", () => change(button.dataset.zoom));
  });
  svg.addEventListener("click", (event) => {
    const target = event.target.closest(".node, .link");
    if (target)
      choose(target.dataset.key);
  });
  new ResizeObserver(refresh).observe(svg);
  addEventListener("beforeprint", () => show(d3.zoomIdentity, 1));
  addEventListener("afterprint", refresh);

  /** Brings an element into view where it is not. */
  function reveal(target) {
    const box = target.getBoundingClientRect();
    const view = svg.getBoundingClientRect();
    const x = box.left + box.width / 2;
    const y = box.top + box.height / 2;
    if (x >= view.left && x <= view.right && y >= view.top && y <= view.bottom)
      return;
    const centre = new DOMPoint(x, y).matrixTransform(world.getScreenCTM().inverse());
    map.call(zoom.translateTo, centre.x, centre.y);
  }

  return {
    mark(key) {
      svg.querySelectorAll(".chosen, .end").forEach((other) => other.classList.remove("chosen", "end"));
      const { upstream, downstream } = elements.get(key);
      for (const end of [upstream, downstream]) // a link may be too short to be seen
        targets.get(`node-${end}`)?.classList.add("end");
      const target = targets.get(key);
      if (!target)
        return;
      target.classList.add("chosen");
      if (target.classList.contains("node"))
        target.parentNode.append(target); // above its neighbours
      reveal(target);
    },
  };
})();
