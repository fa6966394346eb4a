// The mass of one mol of a formula, and what it is made of.

import { elements } from '../shared/elements.js';
import { parseFormula } from '../shared/formula.js';
import { Mistake } from '../shared/mistake.js';
import { formatFixed } from '../shared/numbers.js';

// Schoolbooks round all relative atomic masses to whole numbers but these.
const SCHOOLBOOK_MASSES = { Cl: '35.5', Cu: '63.5' };

const decimalsOf = digits => (digits.includes('.') ? digits.length - digits.indexOf('.') - 1 : 0);

function atomicMass(symbol, asInSchoolbooks) {
  const { mass } = elements[symbol];
  if (!asInSchoolbooks) return mass;
  return SCHOOLBOOK_MASSES[symbol] ?? String(Math.round(Number(mass)));
}

function rowOf(symbol, count, asInSchoolbooks) {
  const mass = atomicMass(symbol, asInSchoolbooks);
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
// isotope, and a rounded mass is taken as it is: both have nothing to say about decimals.
function decimalsOfSum(rows, asInSchoolbooks) {
  const decimals = rows.filter(row => row.isStandard).map(row => row.decimals);
  if (decimals.length === 0) return 0;
  return asInSchoolbooks ? Math.max(...decimals) : Math.min(...decimals);
}

// { pieces, charge, rows: [{ symbol, name, count, mass, totalText, percent, isStandard }], mass, massText } of a
// formula; masses in g/mol. Throws a Mistake.
export function molarMass(typed, asInSchoolbooks = false) {
  const { counts, charge, pieces } = parseFormula(typed);
  if (counts.size === 0) throw new Mistake('Το ηλεκτρόνιο δεν είναι χημική ένωση.');
  const rows = [...counts].map(([symbol, count]) => rowOf(symbol, count, asInSchoolbooks));
  const mass = rows.reduce((sum, row) => sum + row.total, 0);
  const decimals = decimalsOfSum(rows, asInSchoolbooks);
  for (const row of rows) row.percent = formatFixed((100 * row.total) / mass, 1);
  return {
    pieces,
    charge,
    rows,
    mass,
    massText: formatFixed(mass, decimals),
    digits: formatFixed(mass, decimals).replace(',', '').length,
  };
}
