// What the faces of the tools are made of.

import { Mistake } from './mistake.js';

let ids = 0;

// A number and its unit stay on one line.
const unbroken = text => text.replace(/(\d) (?=(?:%|°C|g|mol|mL|L|atm|K)(?![\wά-ώ]))/g, '$1\u00A0');

// An element with attributes (a function is a listener, `false` and `undefined` leave one out) and children, texts
// or nodes.
export function part(tag, attributes = {}, ...children) {
  const node = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes)) setAttribute(node, name, value);
  const given = children.flat(Infinity).filter(child => child !== undefined && child !== null);
  node.append(...given.map(child => (typeof child === 'string' ? unbroken(child) : child)));
  return node;
}

function setAttribute(node, name, value) {
  if (typeof value === 'function') node.addEventListener(name, value);
  else if (value !== false && value !== undefined) node.setAttribute(name, value === true ? '' : value);
}

const newId = () => `tool-part-${++ids}`;

// Makes each box of a tool on the page: `build(box, settings)`. A box has the tool's title for screen readers.
export function makeTools(name, title, build) {
  for (const box of document.querySelectorAll(`.tool[data-tool="${name}"]`)) {
    const heading = part('h3', { id: newId() }, title);
    box.lang = 'el';
    box.setAttribute('role', 'group');
    box.setAttribute('aria-labelledby', heading.id);
    box.prepend(heading);
    build(box, box.dataset);
  }
}

// A field with its label; `hint` stands below and is read with it.
export function field(label, control, hint) {
  control.id ||= newId();
  const below = hint ? part('span', { class: 'hint', id: newId() }, hint) : null;
  if (below) control.setAttribute('aria-describedby', below.id);
  return part('p', { class: 'field' }, part('label', { for: control.id }, label), control, below);
}

export const textInput = (value = '', attributes = {}) =>
  part('input', { type: 'text', autocomplete: 'off', spellcheck: 'false', value, ...attributes });

export const numberInput = (value = '') => textInput(value, { class: 'number', inputmode: 'decimal' });

const mapped = (object, change) =>
  Object.fromEntries(Object.entries(object).map(([name, value]) => [name, change(value)]));

// Inputs for numbers, by the names of what they hold at first; and what they hold.
export const numberInputs = values => mapped(values, numberInput);
export const textsOf = inputs => mapped(inputs, input => input.value);

// Fields side by side, as far as there is room.
export const row = (...fields) => part('div', { class: 'row' }, fields);

// `options`: [value, text] each.
export const select = (options, chosen) =>
  part(
    'select',
    {},
    options.map(([value, text]) => part('option', { value, selected: value === chosen }, text)),
  );

// What changes by what the reader does; screen readers tell of it.
export const liveRegion = (attributes = {}) => part('div', { class: 'result', role: 'status', ...attributes });

// Pieces of a formula (shared/formula.js) as nodes.
export const formulaNodes = pieces => pieces.map(({ text, kind }) => (kind ? part(kind, {}, text) : text));

// Rows of cells; those of a column named 'num' are aligned as numbers.
export function dataTable(caption, columns, rows) {
  const kinds = columns.map(([, kind]) => (kind ? { class: kind } : {}));
  const head = part(
    'tr',
    {},
    columns.map(([text], i) => part('th', { scope: 'col', ...kinds[i] }, text)),
  );
  const body = rows.map(row =>
    part(
      'tr',
      {},
      row.map((cell, i) => part('td', kinds[i], cell)),
    ),
  );
  return part(
    'table',
    { class: 'data' },
    part('caption', {}, caption),
    part('thead', {}, head),
    part('tbody', {}, body),
  );
}

// The text with the wrong part marked.
const markedText = ({ text, at, length }) =>
  part(
    'p',
    { class: 'marked' },
    text.slice(0, at),
    part('mark', {}, text.slice(at, at + length)),
    text.slice(at + length),
  );

// Fills `result` with what `make` returns. A mistake in what was typed is told there instead, and `control` is
// marked as wrong.
export function show(result, control, make) {
  control?.removeAttribute('aria-invalid');
  result.classList.remove('wrong');
  try {
    result.replaceChildren(...[make()].flat());
  } catch (mistake) {
    if (!(mistake instanceof Mistake)) throw mistake;
    control?.setAttribute('aria-invalid', 'true');
    result.classList.add('wrong');
    result.replaceChildren(part('p', {}, mistake.message));
    if (mistake.at >= 0) result.append(markedText(mistake));
  }
}

// A form that does something by Enter or by its button.
export const form = (button, act, ...children) =>
  part(
    'form',
    {
      novalidate: true,
      submit: event => {
        event.preventDefault();
        act();
      },
    },
    ...children,
    part('p', { class: 'buttons' }, part('button', { type: 'submit' }, button)),
  );

// Most tools: a form, and below it what `answer` makes of it, at first and whenever it is sent. `control` is the field
// that is marked when there is a mistake. The result calculates once more.
export function calculator(box, { button = 'Υπολόγισε', fields, answer, control = null }) {
  const result = liveRegion();
  const calculate = () => show(result, control, answer);
  box.append(form(button, calculate, ...fields), result);
  calculate();
  return calculate;
}
