// The mass of one mol of a formula, and what it is made of.

import { elements } from '../shared/elements.js';
import { parseFormula } from '../shared/formula.js';
import { Mistake } from '../shared/mistake.js';
import { formatFixed } from '../shared/numbers.js';

const decimalsOf = digits => (digits.includes('.') ? digits.length - digits.indexOf('.') - 1 : 0);

// Exercises give masses with one decimal.
function atomicMass(symbol, asInExercises) {
  const { mass, isStandard } = elements[symbol];
  return asInExercises && isStandard ? Number(mass).toFixed(1) : mass;
}

function rowOf(symbol, count, asInExercises) {
  const mass = atomicMass(symbol, asInExercises);
  const decimals = decimalsOf(mass);
  const total = Number(mass) * count;
  return {
    symbol,
    name: elements[symbol].name,
    count,
    mass: mass.replace('.', ','),
    total,
    decimals,
    totalText: formatFixed(total, decimals),
    isStandard: elements[symbol].isStandard,
  };
}

// A sum is known to as many decimals as the least exact of its terms. A mass number stands for the mass of one
// isotope and has nothing to say about decimals.
function decimalsOfSum(rows) {
  const decimals = rows.filter(row => row.isStandard).map(row => row.decimals);
  return decimals.length === 0 ? 0 : Math.min(...decimals);
}

// { pieces, charge, rows: [{ symbol, name, count, mass, totalText, percent, isStandard }], mass, massText } of a
// formula; masses in g/mol. Throws a Mistake.
export function molarMass(typed, asInExercises = false) {
  const { counts, charge, pieces } = parseFormula(typed);
  if (counts.size === 0) throw new Mistake('Το ηλεκτρόνιο δεν είναι χημική ένωση.');
  const rows = [...counts].map(([symbol, count]) => rowOf(symbol, count, asInExercises));
  const mass = rows.reduce((sum, row) => sum + row.total, 0);
  const decimals = decimalsOfSum(rows);
  for (const row of rows) row.percent = formatFixed((100 * row.total) / mass, 1);
  return {
    pieces,
    charge,
    rows,
    mass,
    massText: formatFixed(mass, decimals),
    digits: formatFixed(mass, decimals).replace(/\D/g, '').length,
  };
}
