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
    figure: "Figura",
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
    figure: "Figure",
    locale: "en-GB",
    separators: ".,",
  },
};

const asGiven = -1;
const unlimited = 1e9;
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

/** What a cell shows. */
function content(value, digits) {
  if (value === null || value === undefined) return "–";
  if (typeof value === "number") return numberText(value, digits);
  if (typeof value === "boolean") return value ? words[language].yes : words[language].no;
  if (isBoth(value)) return value[language];
  if (typeof value === "object" && "verdict" in value) {
    return value.verdict === null ? "–" : verdict(value.verdict);
  }
  return String(value);
}

const withUnit = (label, unit) => (unit ? `${label} [${unit}]` : label);

function table(block) {
  const numeric = (column) => column.digits >= asGiven;
  const head = element("tr", {}, ...block.columns.map((column) =>
    element("th", {class: numeric(column) ? "number" : "", scope: "col"},
      withUnit(inLanguage(column.label), column.unit))));
  const rows = block.rows.map((row) => element("tr", {}, ...row.map((cell, i) => {
    const column = block.columns[i];
    const attributes = {class: numeric(column) ? "number" : ""};
    const shown = content(cell, column.digits);
    return i === 0 ? element("th", {...attributes, scope: "row"}, shown) : element("td", attributes, shown);
  })));
  return element("div", {class: "table", id: block.id},
    element("h4", {}, inLanguage(block.caption)),
    element("div", {class: "scroll"},
      element("table", {}, element("thead", {}, head), element("tbody", {}, ...rows))));
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
  return element("figure", {class: "drawing"}, sheet,
    element("figcaption", {}, inLanguage(block.caption)));
}

function figures(block) {
  const cells = block.figures.map((id) => {
    const figure = report.figures[id];
    return element("figure", {class: figure.wide ? "plot wide" : "plot"},
      element("div", {class: "canvas", id}), element("figcaption", {}, inLanguage(figure.caption)));
  });
  return element("div", {class: "plots"}, ...cells);
}

const builders = {
  table, facts, drawing, figures,
  note: (block) => element("p", {class: "note"}, inLanguage(block.text)),
  heading: (block) => element("h3", {id: block.id}, inLanguage(block.text)),
  messages: (block) => element("ul", {class: "messages"},
    ...block.items.map((item) => element("li", {class: item.severity},
      element("strong", {}, inLanguage(item.label)), ` ${inLanguage(item.text)}`))),
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
      height: figure.wide ? Math.min(560, Math.round(canvas.clientWidth * 0.95)) : 400,
    });
    await Plotly.newPlot(canvas, plot.data, plot.layout, {displayModeBar: false, responsive: false});
    letScale(canvas, plot.layout);
    await new Promise((resume) => setTimeout(resume));
    if (round !== drawingRound) return;
  }
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
let shownWidth = window.innerWidth;
window.addEventListener("resize", () => {
  if (window.innerWidth === shownWidth) return;  // a phone's address bar changes the height alone
  shownWidth = window.innerWidth;
  drawFigures();
});
show();
