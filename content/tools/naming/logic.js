// Practice in names and formulas.

import { parseFormula } from '../shared/formula.js';
import { raised } from '../shared/numbers.js';
import { COMPOUNDS } from './compounds.js';

// A compound of the levels up to `level`, other than the one before.
export function pick(level, before, random = Math.random) {
  const choices = COMPOUNDS.filter(compound => compound.level <= level && compound !== before);
  return choices[Math.floor(random() * choices.length)];
}

const ROMAN = { 1: 'ι', 2: 'ιι', 3: 'ιιι' };

// Names are alike without accents, letter case and blanks, and whichever way the oxidation number is typed.
const plainName = name =>
  name
    .normalize('NFD')
    .replace(/\p{M}/gu, '')
    .toLowerCase()
    .replace(/ς/g, 'σ')
    .replace(/i/g, 'ι')
    .replace(/[123]/g, digit => ROMAN[digit])
    .replace(/\s+/g, ' ')
    .replace(/ ?\( ?/g, '(')
    .replace(/ ?\)/g, ')')
    .trim();

const withoutNumber = name => name.replace(/\(ι+\)$/, '');

// 'right', 'number' when just the oxidation number is missing or wrong, 'empty' or 'wrong'.
export function checkName({ names }, typed) {
  const name = plainName(typed);
  if (name === '') return 'empty';
  const right = names.map(plainName);
  if (right.includes(name)) return 'right';
  return right.some(one => one !== withoutNumber(one) && withoutNumber(one) === withoutNumber(name))
    ? 'number'
    : 'wrong';
}

const atoms = ({ counts }) => JSON.stringify([...counts].sort());
const printed = ({ pieces }) => pieces.map(({ text }) => text).join('');

// 'right', 'order' when the atoms are right and the way of writing is not, or 'wrong'. Throws a Mistake when it is no formula.
export function checkFormula({ formula }, typed) {
  const [given, right] = [parseFormula(typed), parseFormula(formula)];
  if (printed(given) === printed(right)) return 'right';
  return atoms(given) === atoms(right) && given.charge === 0 ? 'order' : 'wrong';
}

const sign = isCation => (isCation ? '⁺' : '⁻');
const lowered = formula => formula.replace(/\d/g, digit => '₀₁₂₃₄₅₆₇₈₉'[digit]);
const ion = ({ formula, charge }, isCation) =>
  `${lowered(formula)}${charge === 1 ? '' : raised(charge)}${sign(isCation)}`;

// Why the formula is what it is; empty for compounds that are not made of ions.
export function reason({ cation, anion, counts }) {
  if (!cation) return '';
  const [m, n] = counts;
  const needed = `${m === 1 ? 'ένα' : m} ${ion(cation, true)} και ${n === 1 ? 'ένα' : n} ${ion(anion, false)}`;
  const number = cation.number
    ? ` Ο αριθμός στην παρένθεση είναι ο αριθμός οξείδωσης του μετάλλου (${cation.formula}): +${cation.charge}.`
    : '';
  return `Για να είναι το συνολικό φορτίο μηδέν, χρειάζονται ${needed}.${number}`;
}
