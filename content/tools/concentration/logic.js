// Making a solution: c = n : V, where n = m : M.

import { molarMass } from '../molar-mass/logic.js';
import { readAllButOne } from '../shared/blank.js';

const ML_PER_L = 1000;
const WHAT = { m: 'τη μάζα', V: 'τον όγκο', c: 'τη συγκέντρωση' };

const SOLUTIONS = {
  m: ({ V, c }, M) => ((c * V) / ML_PER_L) * M,
  V: ({ m, c }, M) => ((m / M) * ML_PER_L) / c,
  c: ({ m, V }, M) => ((m / M) * ML_PER_L) / V,
};

// Of the texts m (g), V (mL) and c (mol/L) one is empty: { m, V, c, n (mol), percent (% w/v), blank, digits, substance
// (as molarMass tells it) }. Throws a Mistake.
export function makeSolution(formula, texts) {
  const substance = molarMass(formula);
  const known = readAllButOne(Object.entries(WHAT).map(([name, what]) => ({ name, what, text: texts[name] })));
  const all = { ...known, [known.blank]: SOLUTIONS[known.blank](known, substance.mass), substance };
  return { ...all, n: all.m / substance.mass, percent: (100 * all.m) / all.V };
}
