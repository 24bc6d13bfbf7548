"use strict";
// Starts the page.

/** Chooses an element: by a row, the map, a link of a neighbour, or the address. */
function choose(key) {
  if (!elements.has(key))
    return;
  if (location.hash !== `#${key}`)
    history.replaceState(null, "", `#${key}`);
  tables.mark(key);
  network.mark(key);
  showChosen(key);
  const chosen = document.getElementById("chosen");
  const top = chosen.getBoundingClientRect().top;
  if (top > innerHeight * 0.8) // else one would not see that something has changed
    (matchMedia("(min-width: 1000px)").matches ? chosen.parentNode : chosen).scrollIntoView({ behavior: "smooth" });
}

(() => {
  document.querySelector("#network .tools").hidden = false;
  document.addEventListener("click", (event) => {
    const key = event.target.closest("a")?.getAttribute("href")?.slice(1);
    if (!elements.has(key))
      return;
    event.preventDefault();
    choose(key);
  });
  addEventListener("hashchange", () => choose(location.hash.slice(1)));
  const paperWidth = 640; // pixels
  const faults = [...document.querySelectorAll(".fault.error, .fault.warning")];
  let opened = [];
  addEventListener("beforeprint", () => {
    plots.resize(paperWidth);
    opened = faults.filter((fault) => !fault.open);
    opened.forEach((fault) => (fault.open = true));
  });
  addEventListener("afterprint", () => {
    plots.resize();
    opened.forEach((fault) => (fault.open = false));
  });
  const key = location.hash.slice(1);
  const first = data.elements.find((element) => element.series.length > 0) ?? data.elements[0];
  if (elements.has(key))
    choose(key);
  else if (first) {
    tables.mark(first.key);
    network.mark(first.key);
    showChosen(first.key);
  }
})();
