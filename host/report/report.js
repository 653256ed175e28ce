// SPDX-License-Identifier: Apache-2.0
// Turns the data of a report into its page, in one of two languages.
"use strict";

const report = JSON.parse(document.getElementById("data").textContent);

const words = {
  it: {
    contents: "Indice",
    language: "English",
    themeDark: "Tema scuro",
    themeLight: "Tema chiaro",
    print: "Stampa",
    yes: "sì",
    no: "no",
    holds: "verificata",
    fails: "non verificata",
    noFigures: "Questo programma è stato costruito senza le figure interattive.",
    allHold: "Tutte le verifiche sono soddisfatte.",
    someFail: (failing, count) => `${failing} di ${count} verifiche delle combinazioni non sono soddisfatte.`,
    governs: "Governa",
    smallestFactor: "fattore minimo",
    more: (count) => `Altri ${count}`,
    largest: "▸ il valore massimo di ogni colonna",
    locale: "it-IT",
    separators: ",.",
  },
  en: {
    contents: "Contents",
    language: "Italiano",
    themeDark: "Dark theme",
    themeLight: "Light theme",
    print: "Print",
    yes: "yes",
    no: "no",
    holds: "satisfied",
    fails: "not satisfied",
    noFigures: "This program was built without the interactive figures.",
    allHold: "All verifications made are satisfied.",
    someFail: (failing, count) => `${failing} of ${count} verifications of the combinations are not satisfied.`,
    governs: "Governs",
    smallestFactor: "smallest factor",
    more: (count) => `${count} more`,
    largest: "▸ the largest value of each column",
    locale: "en-GB",
    separators: ".,",
  },
};

const asGiven = -1;
const unlimited = 1e9;
const shownMessages = 8;
const unfoldedRows = 12;
let language = report.language;

const isBoth = (value) =>
  value !== null && typeof value === "object" && Object.keys(value).length === 2 &&
  "it" in value && "en" in value;

/** A value with the text of the language in view for each text in both languages. */
function inLanguage(value) {
  if (isBoth(value)) return value[language];
  if (Array.isArray(value)) return value.map(inLanguage);
  if (value !== null && typeof value === "object") {
    return Object.fromEntries(Object.entries(value).map(([key, part]) => [key, inLanguage(part)]));
  }
  return value;
}

function numberText(value, digits) {
  if (Math.abs(value) >= unlimited) return "∞";
  const locale = words[language].locale;
  if (digits !== asGiven) {
    const rounded = Number(value.toFixed(digits));
    const text = (rounded === 0 ? 0 : rounded).toLocaleString(locale, {
      minimumFractionDigits: digits, maximumFractionDigits: digits});
    return text.replace("-", "−");
  }
  const small = value !== 0 && Math.abs(value) < 1e-3;
  if (!small) return value.toLocaleString(locale, {maximumSignificantDigits: 8}).replace("-", "−");
  const [mantissa, exponent] = value.toExponential().split("e");
  const digitsAbove = [...exponent.replace("+", "")].map((sign) => "⁻⁰¹²³⁴⁵⁶⁷⁸⁹"["-0123456789".indexOf(sign)]);
  return `${Number(mantissa).toLocaleString(locale)}·10${digitsAbove.join("")}`;
}

function element(tag, attributes = {}, ...children) {
  const made = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes)) {
    if (value !== undefined && value !== "") made.setAttribute(name, value);
  }
  made.append(...children);
  return made;
}

function verdict(holds) {
  const text = holds ? `✓ ${words[language].holds}` : `✗ ${words[language].fails}`;
  return element("span", {class: holds ? "verdict holds" : "verdict fails"}, text);
}

const isVerdict = (value) => value !== null && typeof value === "object" && "verdict" in value;

/** What a cell shows. */
function content(value, digits) {
  if (value === null || value === undefined) return "–";
  if (typeof value === "number") return numberText(value, digits);
  if (typeof value === "boolean") return value ? words[language].yes : words[language].no;
  if (isBoth(value)) return value[language];
  if (isVerdict(value)) return value.verdict === null ? "–" : verdict(value.verdict);
  if ("pair" in Object(value)) return value.pair.map((part) => numberText(part, asGiven)).join(" / ");
  return String(value);
}

const withUnit = (label, unit) => (unit ? `${label} [${unit}]` : label);

/** The largest size in a column that asks for it, else undefined; none of equal ones. */
function largestIn(block, place) {
  if (!block.columns[place].largest || block.rows.length < 2) return undefined;
  const sizes = block.rows.map((row) => Math.abs(row[place])).filter(Number.isFinite);
  return new Set(sizes).size > 1 ? Math.max(...sizes) : undefined;
}

function tableElement(block) {
  const numeric = (column) => column.digits >= asGiven;
  const titles = block.columns.map((column) => withUnit(inLanguage(column.label), column.unit));
  const largest = block.columns.map((_, i) => largestIn(block, i));
  const head = element("tr", {}, ...block.columns.map((column, i) =>
    element("th", {class: numeric(column) ? "number" : "", scope: "col"}, titles[i])));
  const rows = block.rows.map((row) => element("tr", {}, ...row.map((cell, i) => {
    const column = block.columns[i];
    const shown = content(cell, column.digits);
    if (i === 0) return element("th", {class: numeric(column) ? "number" : "", scope: "row"}, shown);
    const empty = shown === "–" ? "none" : "";
    const marked = largest[i] !== undefined && Math.abs(cell) === largest[i] ? "largest" : "";
    return element("td", {class: `${numeric(column) ? "number" : ""} ${marked} ${empty}`.trim(),
      "data-label": titles[i]}, shown);
  })));
  // A phone shows rows with an outcome one below the other.
  const cards = block.rows.some((row) => row.some(isVerdict));
  return element("div", {class: "scroll"},
    element("table", {class: cards ? "cards" : ""},
      element("thead", {}, head), element("tbody", {}, ...rows)));
}

function table(block) {
  const caption = inLanguage(block.caption);
  const parts = [tableElement(block)];
  if (block.columns.some((_, i) => largestIn(block, i) !== undefined)) {
    parts.push(element("p", {class: "note"}, words[language].largest));
  }
  if (!block.folded) return element("div", {class: "table", id: block.id}, element("h4", {}, caption), ...parts);
  const fold = element("details", {class: "table", id: block.id},
    element("summary", {}, `${caption} (${block.rows.length})`), ...parts);
  fold.open = block.rows.length <= unfoldedRows;
  return fold;
}

/** Whether all is satisfied, and what governs. */
function overallVerdict(block) {
  const said = words[language];
  const where = inLanguage(block.place);
  const factor = block.factor === null ? "?" : numberText(block.factor, 2);
  return element("p", {class: block.holds ? "overall holds" : "overall fails"},
    element("strong", {}, block.holds ? `✓ ${said.allHold}` : `✗ ${said.someFail(block.failing, block.count)}`),
    element("span", {}, ` ${said.governs}: ${inLanguage(block.check)}, ${block.combination}`
      + `${where ? `, ${where}` : ""} (${said.smallestFactor} ${factor}).`));
}

function messages(block) {
  const item = (one) => element("li", {class: one.severity},
    element("strong", {}, inLanguage(one.label)), ` ${inLanguage(one.text)}`);
  const list = (items) => element("ul", {class: "messages"}, ...items.map(item));
  const first = list(block.items.slice(0, shownMessages));
  const rest = block.items.slice(shownMessages);
  if (rest.length === 0) return first;
  return element("div", {}, first, element("details", {},
    element("summary", {}, words[language].more(rest.length)), list(rest)));
}

function facts(block) {
  const rows = block.rows.map((row) => element("div", {class: "fact"},
    element("dt", {}, inLanguage(row.label)),
    element("dd", {}, content(row.value, row.digits),
      row.unit ? element("span", {class: "unit"}, ` ${row.unit}`) : "")));
  return element("div", {class: "facts"},
    element("h4", {}, inLanguage(block.caption)), element("dl", {}, ...rows));
}

function drawing(block) {
  const sheet = element("div", {class: "sheet", id: block.id});
  sheet.innerHTML = block.svg;
  sheet.firstElementChild.setAttribute("aria-label", sheet.firstElementChild.dataset[language]);
  return element("figure", {class: "drawing"}, sheet,
    element("figcaption", {}, inLanguage(block.caption)));
}

/** Lines and marks of a figure that have a name: what a legend tells of them. */
function keysOf(plot) {
  if (plot.layout.showlegend === false) return [];
  return plot.data.map((trace, place) => ({trace, place}))
    .filter(({trace}) => trace.showlegend !== false)
    .map(({trace, place}) => ({place, name: inLanguage(trace.name), mark: trace.mode === "markers",
      colour: (trace.mode === "markers" ? trace.marker : trace.line).color, dash: trace.line.dash}));
}

const dashes = {dash: "5 3", dot: "2 2"};

/** A legend; what is pressed in it is hidden in the figures, or shown again. */
function legend(keys, ids) {
  const entries = keys.map(({name, colour, dash, mark, place}) => {
    const sample = element("span", {class: "sample", "aria-hidden": "true"});
    sample.innerHTML = `<svg width="26" height="10">${mark ? '<circle cx="13" cy="5" r="4"/>' : '<path d="M0 5H26"/>'}</svg>`;
    const line = sample.querySelector("circle, path");
    line.setAttribute("stroke", colour);
    line.setAttribute("stroke-dasharray", dashes[dash] ?? "none");
    const key = element("button", {type: "button", class: "key", "aria-pressed": "true"}, sample, name);
    key.addEventListener("click", () => {
      const visible = key.getAttribute("aria-pressed") === "false";
      key.setAttribute("aria-pressed", String(visible));
      for (const id of ids) Plotly.restyle(canvasOf(id), {visible}, [place]);
    });
    return key;
  });
  return element("div", {class: "legend-keys"}, ...entries);
}

// A canvas stays when the page is built anew: what is drawn on it is changed faster than drawn.
const canvases = new Map();
function canvasOf(id) {
  if (!canvases.has(id)) canvases.set(id, element("div", {class: "canvas", id}));
  return canvases.get(id);
}

function figures(block) {
  const keys = block.figures.map((id) => keysOf(report.figures[id].plot));
  const shared = keys.length > 1 && keys[0].length > 0
    && keys.every((list) => JSON.stringify(list) === JSON.stringify(keys[0]));
  const cells = block.figures.map((id, i) => {
    const figure = report.figures[id];
    const drawn = element("figure", {class: figure.wide ? "plot wide" : "plot"}, canvasOf(id));
    if (!shared && keys[i].length > 0) drawn.append(legend(keys[i], [id]));
    drawn.append(element("figcaption", {}, inLanguage(figure.caption)));
    return drawn;
  });
  const plots = element("div", {class: "plots"}, ...cells);
  return shared ? element("div", {}, legend(keys[0], block.figures), plots) : plots;
}

const builders = {
  table, facts, drawing, figures, messages, verdict: overallVerdict,
  note: (block) => element("p", {class: "note"}, inLanguage(block.text)),
  heading: (block) => element("h3", {id: block.id}, inLanguage(block.text)),
};

function chapter(part, number) {
  const section = element("section", {id: part.id},
    element("h2", {}, element("span", {class: "ordinal"}, `${number}`), ` ${inLanguage(part.title)}`));
  let group = null;
  for (const block of part.blocks) {
    const built = builders[block.kind](block);
    // Facts stand side by side where there is room.
    if (block.kind === "facts") {
      if (group === null) section.append(group = element("div", {class: "fact-groups"}));
      group.append(built);
    } else {
      group = null;
      section.append(built);
    }
  }
  return section;
}

/** Lets the page show a figure smaller than it was drawn, as it does on paper. */
function letScale(canvas, {width, height}) {
  canvas.style.setProperty("--ratio", `${width} / ${height}`);
  for (const svg of canvas.querySelectorAll(".main-svg")) {
    svg.setAttribute("viewBox", `0 0 ${width} ${height}`);
  }
}

let drawingRound = 0;

/** Draws all figures one after the other, and gives the page time between them. */
async function drawFigures() {
  const round = ++drawingRound;
  delete document.documentElement.dataset.ready;
  for (const canvas of document.querySelectorAll(".canvas")) {
    if (typeof Plotly === "undefined") {
      canvas.textContent = words[language].noFigures;
      continue;
    }
    const figure = report.figures[canvas.id];
    const plot = inLanguage(figure.plot);
    Object.assign(plot.layout, {
      separators: words[language].separators,
      width: canvas.clientWidth,
      height: figure.wide ? Math.min(560, Math.round(canvas.clientWidth * 0.95)) : 360,
      showlegend: false,
    });
    const draw = canvas.data === undefined ? Plotly.newPlot : Plotly.react;
    await draw(canvas, plot.data, plot.layout, {displayModeBar: false, responsive: false});
    letScale(canvas, plot.layout);
    await new Promise((resume) => setTimeout(resume));
    if (round !== drawingRound) return;
  }
  document.documentElement.dataset.width = String(window.innerWidth);
  document.documentElement.dataset.ready = "yes";
}

const isDark = () => document.documentElement.dataset.theme
  ? document.documentElement.dataset.theme === "dark"
  : matchMedia("(prefers-color-scheme: dark)").matches;

function labelTools() {
  document.getElementById("language").textContent = words[language].language;
  document.getElementById("language").lang = language === "it" ? "en" : "it";
  document.getElementById("theme").textContent =
    isDark() ? words[language].themeLight : words[language].themeDark;
  document.getElementById("print").textContent = words[language].print;
}

function show() {
  document.documentElement.lang = language;
  document.getElementById("name").textContent = report.name;
  document.getElementById("description").textContent = report.description;
  document.getElementById("footer").textContent = report.program;
  labelTools();
  const links = report.chapters.map((part, i) => element("li", {},
    element("a", {href: `#${part.id}`}, element("span", {class: "ordinal"}, `${i + 1}`),
      ` ${inLanguage(part.title)}`)));
  document.getElementById("contents").replaceChildren(
    element("h2", {}, words[language].contents), element("ol", {}, ...links));
  document.getElementById("report").replaceChildren(
    ...report.chapters.map((part, i) => chapter(part, i + 1)));
  drawFigures();
}

document.getElementById("language").addEventListener("click", () => {
  const place = window.scrollY;
  language = language === "it" ? "en" : "it";
  show();
  window.scrollTo(0, place);
});
document.getElementById("theme").addEventListener("click", () => {
  document.documentElement.dataset.theme = isDark() ? "light" : "dark";
  labelTools();
});
document.getElementById("print").addEventListener("click", () => window.print());
// Paper shows what is folded.
const folds = () => document.querySelectorAll("details:not([open])");
let unfolded = [];
window.addEventListener("beforeprint", () => {
  unfolded = [...folds()];
  for (const fold of unfolded) fold.open = true;
});
window.addEventListener("afterprint", () => {
  for (const fold of unfolded) fold.open = false;
});

let shownWidth = window.innerWidth;
window.addEventListener("resize", () => {
  if (window.innerWidth === shownWidth) return;  // a phone's address bar changes the height alone
  shownWidth = window.innerWidth;
  drawFigures();
});
show();
