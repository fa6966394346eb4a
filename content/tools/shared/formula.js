// Chemical formulas: H2O, Ca(OH)2, CuSO4·5H2O, SO4^2-, e^-; small digits and the Greek capitals that look like Latin
// ones may stand for the plain ones.

import { elements } from './elements.js';
import { Mistake } from './mistake.js';

const LOOKALIKES = {
  Α: 'A',
  Β: 'B',
  Ε: 'E',
  Ζ: 'Z',
  Η: 'H',
  Ι: 'I',
  Κ: 'K',
  Μ: 'M',
  Ν: 'N',
  Ο: 'O',
  Ρ: 'P',
  Τ: 'T',
  Υ: 'Y',
  Χ: 'X',
  ο: 'o',
  α: 'a',
  ι: 'i',
  '•': '·',
  '∙': '·',
  '*': '·',
  '.': '·',
  '−': '-',
  '–': '-',
};
const LOWERED = '₀₁₂₃₄₅₆₇₈₉';
const RAISED = '⁰¹²³⁴⁵⁶⁷⁸⁹';
const CLOSING = { '(': ')', '[': ']', '{': '}' };
const CLOSINGS = Object.values(CLOSING);
const LARGEST_INDEX = 9999;
const DEEPEST_NESTING = 20;

// The text in plain characters.
function plainFormula(text) {
  const plain = [...text].map(c => (LOWERED.includes(c) ? LOWERED.indexOf(c) : (LOOKALIKES[c] ?? c))).join('');
  return plain.replace(/[⁰¹²³⁴⁵⁶⁷⁸⁹]*[⁺⁻]/g, raisedCharge).replace(/\s/g, '');
}

const raisedCharge = charge => `^${[...charge].map(c => ({ '⁺': '+', '⁻': '-' })[c] ?? RAISED.indexOf(c)).join('')}`;

// The symbol that someone meant who typed `run`: "NaCL", "h2o", "cl".
function meantSymbol(before, run) {
  const capital = run.charAt(0).toUpperCase();
  const candidates = [
    /[A-Z]/.test(before) ? before + run.charAt(0).toLowerCase() : '',
    capital + run.slice(1, 2).toLowerCase(),
    capital,
  ];
  return candidates.find(symbol => symbol in elements);
}

function unknownSymbol(text, at) {
  const run = /^[A-Za-z]?[a-z]*/.exec(text.slice(at))[0];
  if (run === '') return new Mistake(`Το «${text.charAt(at)}» δεν ανήκει σε χημικό τύπο.`, at);
  const meant = meantSymbol(text.charAt(at - 1), run);
  const hint = meant
    ? ` Μήπως εννοείς «${meant}»; Το πρώτο γράμμα ενός συμβόλου είναι κεφαλαίο και το δεύτερο, αν υπάρχει, μικρό.`
    : '';
  return new Mistake(`Κανένα στοιχείο δεν έχει το σύμβολο «${run}».${hint}`, at, run.length);
}

class Parser {
  constructor(text) {
    this.text = text;
    this.at = 0;
    // Pieces of the formula as it is printed: { text, kind }, of kind 'sub', 'sup' or ''.
    this.pieces = [];
  }

  parse() {
    const isElectron = /^e\^?-$/.test(this.text);
    if (isElectron) return { counts: new Map(), charge: -1, pieces: [piece('e'), piece('−', 'sup')], state: '' };
    const counts = this.hydrate();
    const charge = this.charge();
    const state = this.state();
    if (this.at < this.text.length) throw this.stray();
    return { counts, charge, pieces: this.pieces, state };
  }

  // Parts between dots, each with a number before it.
  hydrate() {
    const counts = new Map();
    do {
      const factor = this.pieces.length > 0 ? this.index('') : 1;
      add(counts, this.sequence('', 0), factor);
    } while (this.take('·'));
    return counts;
  }

  sequence(closing, depth) {
    const counts = new Map();
    const start = this.at;
    while (this.at < this.text.length && !this.isEnd(closing)) this.unit(counts, depth);
    if (this.at === start) throw this.missing();
    return counts;
  }

  isEnd(closing) {
    const c = this.text.charAt(this.at);
    return c === closing || '·^+-'.includes(c) || /^\((s|l|g|aq)\)$/.test(this.text.slice(this.at));
  }

  unit(counts, depth) {
    const c = this.text.charAt(this.at);
    if (CLOSINGS.includes(c) || /\d/.test(c)) throw this.stray();
    if (c in CLOSING) {
      add(counts, this.group(c, depth), this.index('sub'));
    } else {
      const symbol = this.symbol();
      add(counts, new Map([[symbol, 1]]), this.index('sub'));
    }
  }

  group(open, depth) {
    const start = this.at;
    if (depth === DEEPEST_NESTING) throw new Mistake('Πάρα πολλές παρενθέσεις, η μία μέσα στην άλλη.', start);
    this.take(open);
    const counts = this.sequence(CLOSING[open], depth + 1);
    if (!this.take(CLOSING[open])) throw new Mistake(`Η παρένθεση «${open}» δεν κλείνει.`, start);
    return counts;
  }

  symbol() {
    const [two, one] = [this.text.substr(this.at, 2), this.text.charAt(this.at)];
    const symbol = two in elements && two.length === 2 ? two : one in elements ? one : '';
    const next = this.text.charAt(this.at + symbol.length);
    if (!symbol || /[a-z]/.test(next)) throw unknownSymbol(this.text, this.at);
    this.at += symbol.length;
    this.pieces.push(piece(symbol));
    return symbol;
  }

  index(kind) {
    const digits = /^\d*/.exec(this.text.slice(this.at))[0];
    if (digits === '') return 1;
    if (Number(digits) === 0)
      throw new Mistake('Ο αριθμός των ατόμων δεν μπορεί να είναι μηδέν.', this.at, digits.length);
    if (Number(digits) > LARGEST_INDEX)
      throw new Mistake(`Ο αριθμός ${digits} είναι πολύ μεγάλος.`, this.at, digits.length);
    this.at += digits.length;
    this.pieces.push(piece(digits, kind));
    return Number(digits);
  }

  charge() {
    const match = /^(\^?)(\d*)([+-])/.exec(this.text.slice(this.at));
    if (!match) return 0;
    if (!match[1]) this.refuseUnclearCharge();
    this.at += match[0].length;
    this.pieces.push(piece(`${match[2]}${match[3] === '-' ? '−' : '+'}`, 'sup'));
    return Number(match[2] || 1) * (match[3] === '-' ? -1 : 1);
  }

  // In "Fe3+" and "SO42-" nobody can tell the index from the charge; "NO3-" is clear.
  refuseUnclearCharge() {
    const before = this.text.slice(0, this.at);
    if (!/(^[A-Z][a-z]?\d+|\d\d)$/.test(before)) return;
    throw new Mistake('Γράψε το φορτίο μετά από «^», ώστε να ξεχωρίζει από τον δείκτη: Fe^3+, SO4^2-.', this.at - 1, 2);
  }

  state() {
    const state = /^\((s|l|g|aq)\)$/.exec(this.text.slice(this.at));
    if (!state) return '';
    this.at = this.text.length;
    return state[1];
  }

  take(c) {
    if (this.text.charAt(this.at) !== c || c === '') return false;
    ++this.at;
    this.pieces.push(piece(c));
    return true;
  }

  missing() {
    const c = this.text.charAt(this.at);
    if (c === '') return new Mistake('Ο τύπος τελειώνει πριν από την ώρα του.', this.at - 1);
    if (CLOSINGS.includes(c)) return new Mistake('Η παρένθεση δεν περιέχει τίποτα.', this.at);
    return this.stray();
  }

  stray() {
    const c = this.text.charAt(this.at);
    if (CLOSINGS.includes(c)) return new Mistake(`Η παρένθεση «${c}» δεν έχει ανοίξει.`, this.at);
    if (/\d/.test(c)) return new Mistake('Ο αριθμός των ατόμων γράφεται μετά το σύμβολο, όχι πριν.', this.at);
    return unknownSymbol(this.text, this.at);
  }
}

const piece = (text, kind = '') => ({ text, kind });

function add(counts, more, factor) {
  for (const [symbol, count] of more) counts.set(symbol, (counts.get(symbol) ?? 0) + count * factor);
}

// { counts: Map from symbol to atoms, charge, pieces, state }. Throws a Mistake that tells its place in the text.
export function parseFormula(typed) {
  const text = plainFormula(typed);
  if (text === '') throw new Mistake('Γράψε έναν χημικό τύπο.');
  try {
    return new Parser(text).parse();
  } catch (mistake) {
    mistake.text = text;
    throw mistake;
  }
}
