"use strict";
// The tables of elements: search, sort, and the keys that walk through the rows.

const tables = (() => {
  const section = document.getElementById("elements");
  const field = section.querySelector("input");
  const status = section.querySelector("output");
  const tabs = [...section.querySelectorAll("[role=tab]")];
  const parts = tabs.map((tab) => {
    const table = document.getElementById(tab.dataset.table);
    const rows = [...table.querySelectorAll("tbody tr")];
    return { tab, table, rows, words: rows.map((row) => plain(row.textContent)), shown: rows.length };
  });
  let current = parts.find((part) => part.rows.length > 0) ?? parts[0];

  /** Without accents and capitals, so that "sao" finds "São". */
  function plain(text) {
    return text.normalize("NFD").replace(/\p{M}/gu, "").toLowerCase();
  }

  const linkOf = (row) => row.querySelector("a");
  const shownRows = () => current.rows.filter((row) => !row.hidden);

  /** Only one row can be reached by Tab: the arrow keys lead to the others. */
  function setEntry(row) {
    for (const part of parts)
      part.rows.forEach((other) => (linkOf(other).tabIndex = -1));
    if (row)
      linkOf(row).tabIndex = 0;
  }

  function showTab(part) {
    current = part;
    for (const other of parts) {
      other.table.hidden = other !== part;
      other.tab.setAttribute("aria-selected", other === part);
      other.tab.tabIndex = other === part ? 0 : -1;
    }
    setEntry(shownRows().find((row) => row.hasAttribute("aria-current")) ?? shownRows()[0]);
  }

  function search() {
    const words = plain(field.value).split(/\s+/).filter(Boolean);
    for (const part of parts) {
      part.shown = 0;
      part.rows.forEach((row, index) => {
        row.hidden = !words.every((word) => part.words[index].includes(word));
        part.shown += row.hidden ? 0 : 1;
      });
      const name = part.table.querySelector("caption").textContent;
      part.tab.textContent = `${name} ${words.length ? `${part.shown} of ${part.rows.length}` : part.rows.length}`;
    }
    if (current.shown === 0)
      current = parts.find((part) => part.shown > 0) ?? current;
    const found = parts.reduce((sum, part) => sum + part.shown, 0);
    status.textContent = words.length ? (found === 0 ? "nothing found" : `${found} found`) : "";
    showTab(current);
  }

  function valueOf(row, column, isNumber) {
    const text = row.cells[column].textContent;
    return isNumber ? (text === "" ? NaN : Number(text.replaceAll(groupSeparator, ""))) : text;
  }

  function sort(part, column, header) {
    const isNumber = header.classList.contains("number");
    const isAscending = header.getAttribute("aria-sort") !== "ascending";
    part.table.querySelectorAll("th[aria-sort]").forEach((other) => other.removeAttribute("aria-sort"));
    header.setAttribute("aria-sort", isAscending ? "ascending" : "descending");
    const compareTexts = new Intl.Collator("pt", { numeric: true }).compare;
    const keyed = part.rows.map((row, index) => ({ row, words: part.words[index], key: valueOf(row, column, isNumber) }));
    const isEmpty = ({ key }) => key === "" || Number.isNaN(key);
    keyed.sort((one, other) => {
      if (isEmpty(one) || isEmpty(other))
        return isEmpty(one) - isEmpty(other); // what has no value stands last, either way
      return (isNumber ? one.key - other.key : compareTexts(one.key, other.key)) * (isAscending ? 1 : -1);
    });
    part.rows = keyed.map(({ row }) => row);
    part.words = keyed.map(({ words }) => words);
    part.table.querySelector("tbody").append(...part.rows);
    setEntry(shownRows()[0]);
  }

  function makeSortable(part) {
    part.table.querySelectorAll("thead th").forEach((header, column) => {
      const button = make("button", { type: "button", title: "Sort" }, ...header.childNodes);
      button.addEventListener("click", () => sort(part, column, header));
      header.append(button);
    });
  }

  function walk(event) {
    const steps = { ArrowDown: 1, ArrowUp: -1, PageDown: 10, PageUp: -10, Home: -Infinity, End: Infinity };
    const row = event.target.closest("tbody tr");
    if (!row || !(event.key in steps))
      return;
    event.preventDefault();
    const rows = shownRows();
    const index = Math.min(Math.max(rows.indexOf(row) + steps[event.key], 0), rows.length - 1);
    setEntry(rows[index]);
    linkOf(rows[index]).focus();
  }

  section.querySelector(".tools").hidden = false;
  section.querySelector(".search").hidden = false;
  field.addEventListener("input", search);
  for (const part of parts) {
    part.table.setAttribute("role", "tabpanel");
    part.table.setAttribute("aria-label", part.table.querySelector("caption").textContent);
    makeSortable(part);
    part.tab.addEventListener("click", () => showTab(part));
    part.table.addEventListener("keydown", walk);
    part.table.addEventListener("click", (event) => {
      const row = event.target.closest("tbody tr");
      if (row && !event.target.closest("a")) // a link is followed as everywhere
        choose(row.dataset.key);
    });
  }
  section.querySelector("[role=tablist]").addEventListener("keydown", (event) => {
    if (event.key !== "ArrowLeft" && event.key !== "ArrowRight")
      return;
    const part = parts[(parts.indexOf(current) + 1) % parts.length];
    showTab(part);
    part.tab.focus();
  });
  search();

  return {
    mark(key) {
      section.querySelector("[aria-current]")?.removeAttribute("aria-current");
      const part = parts.find((other) => other.rows.some((row) => row.dataset.key === key));
      const row = part?.rows.find((other) => other.dataset.key === key);
      if (!row)
        return;
      row.setAttribute("aria-current", "true");
      if (row.hidden)
        return;
      showTab(part);
      const box = part.table; // scrolls by itself: the page stays where it is
      const header = box.querySelector("thead").offsetHeight;
      if (row.offsetTop - header < box.scrollTop || row.offsetTop + row.offsetHeight > box.scrollTop + box.clientHeight)
        box.scrollTop = row.offsetTop - header - 40;
    },
  };
})();
