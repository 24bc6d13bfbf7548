"use strict";
// The project's data, and the numbers of its series (PackedNumbers.h tells how they are packed).

const data = JSON.parse(document.getElementById("data").textContent);
const elements = new Map(data.elements.map((element) => [element.key, element]));

const unpack = (() => {
  let text = null;

  function bytesOf(offset, length) {
    text = text ?? document.getElementById("numbers").textContent;
    const binary = atob(text.slice(offset, offset + length));
    return Uint8Array.from(binary, (character) => character.charCodeAt(0));
  }

  async function inflate(bytes) {
    const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream("deflate"));
    return new Uint8Array(await new Response(stream).arrayBuffer());
  }

  function doublesOf(planes, values) {
    const view = new DataView(new ArrayBuffer(8));
    return values.map((_, index) => {
      for (let plane = 0; plane < 8; ++plane)
        view.setUint8(plane, planes[plane * values.length + index]);
      return view.getFloat64(0, true);
    });
  }

  function decimalsOf(planes, values, width, least, power) {
    return values.map((_, index) => {
      let whole = 0;
      for (let plane = width - 1; plane >= 0; --plane)
        whole = whole * 256 + planes[plane * values.length + index];
      return (least + whole) / power;
    });
  }

  /** The values of a series, by the index of its numbers. */
  return async (index) => {
    const [offset, length, count, width, scale, least] = data.numbers[index];
    const values = new Float64Array(count);
    const power = Number("1e" + scale);
    if (width === 0)
      return values.fill(least / power);
    const planes = await inflate(bytesOf(offset, length));
    return scale < 0 ? doublesOf(planes, values) : decimalsOf(planes, values, width, least, power);
  };
})();

const groupSeparator = "\u202f";

/** All digits of a number, in groups of three before the point. */
function figure(value) {
  if (!Number.isFinite(value))
    return "";
  const [whole, rest] = String(value).split(".");
  if (whole.includes("e") || whole.replace("-", "").length <= 4)
    return String(value);
  const grouped = whole.replace(/\B(?=(\d{3})+$)/g, groupSeparator);
  return rest === undefined ? grouped : grouped + "." + rest;
}

/** A computed number, with four significant digits. */
function rounded(value) {
  const digits = Math.max(4, Math.floor(Math.log10(Math.abs(value))) + 1);
  return Number.isFinite(value) && value !== 0 ? figure(Number(value.toPrecision(Math.min(digits, 21)))) : figure(value);
}

/** Makes an element: text stays text. */
function make(name, properties = {}, ...children) {
  const element = document.createElement(name);
  for (const [key, value] of Object.entries(properties))
    if (key in element)
      element[key] = value;
    else
      element.setAttribute(key, value);
  element.append(...children);
  return element;
}
