// Balances an equation: one unknown for each formula, one linear equation for each element and for the charge.

import { elements } from '../shared/elements.js';
import { Fraction, gcd, lcm } from '../shared/fraction.js';
import { Mistake } from '../shared/mistake.js';
import { parseEquation } from './equation.js';

const LETTERS = 'αβγδεζηθκλμνξπρστφχψ';
const ZERO = new Fraction(0);
const ONE = new Fraction(1);

// What must be equal on both sides: { symbol, name, amounts }, with an amount for each term; '' is the charge.
function conditionsOf(terms) {
  const symbols = [...new Set(terms.flatMap(term => [...term.counts.keys()]))];
  const conditions = symbols.map(symbol => ({
    symbol,
    name: elements[symbol].name,
    amounts: terms.map(term => term.counts.get(symbol) ?? 0),
  }));
  if (terms.some(term => term.charge !== 0))
    conditions.push({ symbol: '', name: 'Φορτίο', amounts: terms.map(term => term.charge) });
  return conditions;
}

// The reduced rows of a matrix, with the column of the leading one of each.
function reduce(matrix) {
  const rows = matrix.map(row => [...row]);
  const leading = [];
  for (let column = 0; column < rows[0].length && leading.length < rows.length; ++column) {
    const top = leading.length;
    const found = rows.findIndex((row, i) => i >= top && !row[column].isZero);
    if (found < 0) continue;
    [rows[top], rows[found]] = [rows[found], rows[top]];
    const first = rows[top][column];
    rows[top] = rows[top].map(value => value.over(first));
    rows.forEach((row, i) => {
      if (i !== top && !row[column].isZero)
        rows[i] = row.map((value, j) => value.minus(row[column].times(rows[top][j])));
    });
    leading.push(column);
  }
  return { rows, leading };
}

const signed = (terms, condition) =>
  condition.amounts.map((amount, i) => new Fraction(terms[i].isLeft ? amount : -amount));

// The usual reason why nothing can be balanced.
function refuseElementsOnOneSide(terms, conditions) {
  const isOn = (side, { amounts }) => amounts.some((amount, i) => amount !== 0 && terms[i].isLeft === side);
  for (const condition of conditions.filter(({ symbol }) => symbol !== '')) {
    const [left, right] = [isOn(true, condition), isOn(false, condition)];
    if (left !== right)
      throw new Mistake(
        `Δεν ισοσταθμίζεται: το στοιχείο ${condition.name} (${condition.symbol}) υπάρχει μόνο ${left ? 'αριστερά' : 'δεξιά'}.`,
      );
  }
}

function wholeNumbers(values) {
  const factor = values.reduce((product, value) => lcm(product, value.denominator), 1n);
  const numbers = values.map(value => value.times(new Fraction(factor)).numerator);
  const divisor = numbers.reduce(gcd, 0n) * (numbers.find(number => number !== 0n) < 0n ? -1n : 1n);
  return numbers.map(number => Number(number / divisor));
}

function solve(terms, conditions) {
  refuseElementsOnOneSide(terms, conditions);
  const { rows, leading } = reduce(conditions.map(condition => signed(terms, condition)));
  const free = terms.map((_, column) => column).filter(column => !leading.includes(column));
  if (free.length === 0) {
    throw new Mistake(
      'Δεν ισοσταθμίζεται: κανένας συνδυασμός συντελεστών δεν κάνει ίσα τα άτομα και τα φορτία στα δύο μέλη. Έλεγξε τους τύπους.',
    );
  }
  if (free.length > 1) {
    throw new Mistake(
      'Οι συντελεστές δεν ορίζονται με έναν μόνο τρόπο: η εξίσωση περιγράφει περισσότερες από μία αντιδράσεις μαζί. Γράψε την καθεμία χωριστά.',
    );
  }
  const values = terms.map(() => ZERO);
  values[free[0]] = ONE;
  leading.forEach((column, i) => {
    values[column] = ZERO.minus(rows[i][free[0]]);
  });
  const numbers = wholeNumbers(values);
  const wrong = terms[numbers.findIndex(number => number <= 0)];
  if (wrong && numbers.includes(0))
    throw new Mistake(
      `Το «${terms[numbers.indexOf(0)].formula}» δεν μπορεί να συμμετέχει: ο συντελεστής του βγαίνει μηδέν.`,
    );
  if (wrong)
    throw new Mistake(
      'Δεν ισοσταθμίζεται: κάποιος τύπος βρίσκεται σε λάθος πλευρά του βέλους, γιατί ο συντελεστής του βγαίνει αρνητικός.',
    );
  return numbers;
}

// One side of a condition in letters: "2α + γ".
function sideInLetters(terms, { amounts }, isLeft) {
  const parts = amounts
    .map((amount, i) => ({ amount, letter: LETTERS[i], isLeft: terms[i].isLeft }))
    .filter(({ amount, isLeft: side }) => amount !== 0 && side === isLeft);
  if (parts.length === 0) return '0';
  return parts
    .map(({ amount, letter }, i) => {
      const sign = amount < 0 ? (i === 0 ? '\u2212' : ' \u2212 ') : i === 0 ? '' : ' + ';
      return `${sign}${Math.abs(amount) === 1 ? '' : Math.abs(amount)}${letter}`;
    })
    .join('');
}

const inLetters = (terms, condition) =>
  `${sideInLetters(terms, condition, true)} = ${sideInLetters(terms, condition, false)}`;

// The unknown that a row gives when all its others are known.
function nextKnown(rows, values) {
  for (const [row, coefficients] of rows.entries()) {
    const open = coefficients.map((c, i) => i).filter(i => !coefficients[i].isZero && values[i] === null);
    if (open.length !== 1) continue;
    const rest = coefficients.reduce((sum, c, i) => (values[i] === null ? sum : sum.minus(c.times(values[i]))), ZERO);
    return { row, column: open[0], value: rest.over(coefficients[open[0]]) };
  }
  return null;
}

// How the unknowns follow one from another when that of `start` is 1: [{ letter, value, row }]; null when they do not.
function chainFrom(start, rows) {
  const values = rows[0].map((_, i) => (i === start ? ONE : null));
  const chain = [{ letter: LETTERS[start], value: '1', row: -1 }];
  for (let next = nextKnown(rows, values); next; next = nextKnown(rows, values)) {
    values[next.column] = next.value;
    chain.push({ letter: LETTERS[next.column], value: next.value.toString(), row: next.row });
  }
  return values.includes(null)
    ? null
    : { chain, factor: Number(values.reduce((product, value) => lcm(product, value.denominator), 1n)) };
}

// The chain with the smallest numbers to multiply by; a substance of many elements is a good one to begin with.
function bestChain(terms, rows) {
  const starts = terms.map((_, i) => i).sort((a, b) => terms[b].counts.size - terms[a].counts.size);
  const chains = starts.map(start => chainFrom(start, rows)).filter(chain => chain !== null);
  return chains.sort((a, b) => a.factor - b.factor)[0] ?? { chain: [], factor: 1 };
}

// What the coefficients make of a condition on one side: { text: "2 × 3 + 1 = 7", total }.
function sideTotal(terms, { amounts }, coefficients, isLeft) {
  const products = amounts
    .map((amount, i) => [coefficients[i], amount])
    .filter(([, amount], i) => amount !== 0 && terms[i].isLeft === isLeft);
  const total = products.reduce((sum, [coefficient, amount]) => sum + coefficient * amount, 0);
  const asText = number => String(number).replace('-', '\u2212');
  const sum = products
    .map(([coefficient, amount]) => `${coefficient} × ${amount < 0 ? `(${asText(amount)})` : amount}`)
    .join(' + ');
  return { text: products.length === 0 ? '0' : `${sum} = ${asText(total)}`, total };
}

const comparison = (terms, conditions, coefficients) =>
  conditions.map(condition => {
    const [left, right] = [true, false].map(isLeft => sideTotal(terms, condition, coefficients, isLeft));
    return {
      name: condition.name,
      symbol: condition.symbol,
      left: left.text,
      right: right.text,
      isEqual: left.total === right.total,
    };
  });

// How good the coefficients are that were typed: 'none', 'right', 'multiple' or 'wrong'.
function judge(terms, conditions, right) {
  if (terms.every(term => term.given === null)) return 'none';
  const given = terms.map(term => term.given ?? 1);
  if (given.every((number, i) => number === right[i])) return 'right';
  return comparison(terms, conditions, given).every(row => row.isEqual) ? 'multiple' : 'wrong';
}

// All there is to say about a typed equation: { terms, isReversible, coefficients, conditions: [{ name, symbol, text }],
// chain, factor, rows (the comparison of both sides), verdict, givenRows }. Throws a Mistake.
export function balance(typed) {
  const { terms, isReversible } = parseEquation(typed);
  const conditions = conditionsOf(terms);
  const coefficients = solve(terms, conditions);
  return {
    terms,
    isReversible,
    coefficients,
    letters: terms.map((_, i) => LETTERS[i]),
    conditions: conditions.map(condition => ({
      name: condition.name,
      symbol: condition.symbol,
      text: inLetters(terms, condition),
    })),
    ...bestChain(
      terms,
      conditions.map(condition => signed(terms, condition)),
    ),
    rows: comparison(terms, conditions, coefficients),
    verdict: judge(terms, conditions, coefficients),
    givenRows: comparison(
      terms,
      conditions,
      terms.map(term => term.given ?? 1),
    ),
  };
}
