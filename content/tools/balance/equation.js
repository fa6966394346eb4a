// Reads a chemical equation as it is typed: 2 H2 + O2 -> 2 H2O.

import { parseFormula } from '../shared/formula.js';
import { Mistake } from '../shared/mistake.js';

const ARROW = /<=>|<->|->|=>|→|⇌|=/g;
const STATE = /^\s*\((s|l|g|aq)\)/;
const MOST_TERMS = 20;
const MOST_DIGITS = 6;

// Whether a plus sign is the charge of the formula before it, as in "Na+ + Cl-", and does not join two formulas.
function isCharge(before, behind) {
  if (/\^\d*$/.test(before)) return true;
  return /\S$/.test(before) && (/^\s*(\+|$)/.test(behind) || STATE.test(behind));
}

function splitTerms(side) {
  const terms = [''];
  for (let i = 0; i < side.length; ++i) {
    const joins = side[i] === '+' && !isCharge(terms.at(-1), side.slice(i + 1));
    if (joins) terms.push('');
    else terms[terms.length - 1] += side[i];
  }
  return terms.map(term => term.trim());
}

function readTerm(text, isLeft) {
  if (text === '') throw new Mistake('Λείπει ένας χημικός τύπος δίπλα σε «+» ή σε βέλος.');
  const [, digits, formula] = /^(\d*)\s*(.*)$/.exec(text);
  if (digits.length > MOST_DIGITS || Number(digits || 1) === 0)
    throw new Mistake(`Το «${digits}» δεν μπορεί να είναι συντελεστής.`);
  return { ...parseFormula(formula), formula, given: digits === '' ? null : Number(digits), isLeft };
}

function refuseTwins(terms) {
  const seen = new Set();
  for (const term of terms) {
    const name = JSON.stringify([term.pieces, term.state]);
    if (seen.has(name))
      throw new Mistake(`Ο τύπος «${term.formula}» υπάρχει δύο φορές. Κράτησέ τον στη μία πλευρά, μία φορά.`);
    seen.add(name);
  }
}

// { terms, isReversible }; a term is a formula with `given`, the coefficient that was typed or null, and `isLeft`.
// Throws a Mistake.
export function parseEquation(typed) {
  if (typed.trim() === '') throw new Mistake('Γράψε μια χημική εξίσωση.');
  const arrows = typed.match(ARROW) ?? [];
  if (arrows.length === 0) throw new Mistake('Βάλε ένα βέλος «->» ανάμεσα στα αντιδρώντα και στα προϊόντα.');
  if (arrows.length > 1) throw new Mistake('Η εξίσωση έχει περισσότερα από ένα βέλη. Κράτησε ένα.');
  const [left, right] = typed.split(arrows[0]);
  const terms = [
    ...splitTerms(left).map(term => readTerm(term, true)),
    ...splitTerms(right).map(term => readTerm(term, false)),
  ];
  if (terms.length > MOST_TERMS) throw new Mistake('Η εξίσωση έχει πάρα πολλούς τύπους.');
  refuseTwins(terms);
  return { terms, isReversible: /^(<=>|<->|⇌)$/.test(arrows[0]) };
}
