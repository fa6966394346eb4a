import { formatNumber } from '../shared/numbers.js';
import {
  calculator,
  field,
  formulaNodes,
  makeTools,
  numberInputs,
  part,
  row,
  textInput,
  textsOf,
} from '../shared/parts.js';
import { makeSolution } from './logic.js';

const UNITS = { m: 'g', V: 'mL', c: 'mol/L' };

// What the reader does to make the solution.
function recipe(found, written) {
  return part(
    'p',
    {},
    `Για το διάλυμα ζυγίζεις ${written('m')} `,
    formulaNodes(found.substance.pieces),
    `, τα διαλύεις σε λίγο νερό και συμπληρώνεις νερό ως τα ${written('V')}. `,
    `Η συγκέντρωση είναι ${written('c')} και η περιεκτικότητα ${formatNumber(found.percent, found.digits)} % w/v.`,
  );
}

function answer(formula, inputs) {
  const found = makeSolution(formula, textsOf(inputs));
  const written = name => `${formatNumber(found[name], found.digits)} ${UNITS[name]}`;
  const amount = formatNumber(found.n, found.digits);
  const working = `M = ${found.substance.massText} g/mol, n = m : M = ${amount} mol, c = n : V`;
  return [
    part('p', { class: 'equation' }, `${found.blank} = ${written(found.blank)}`, part('small', {}, working)),
    recipe(found, written),
  ];
}

function build(box, { formula = 'NaCl', m = '', v = '250', c = '0,1' }) {
  const typed = textInput(formula, { class: 'formula' });
  const inputs = numberInputs({ m, V: v, c });
  const fields = [
    part('p', {}, 'Άφησε κενό το μέγεθος που ζητάς.'),
    field('Διαλυμένη ουσία', typed, 'Ο χημικός της τύπος, για παράδειγμα NaOH ή CuSO4·5H2O.'),
    row(field('Μάζα m (g)', inputs.m), field('Όγκος V (mL)', inputs.V), field('Συγκέντρωση c (mol/L)', inputs.c)),
  ];
  calculator(box, { fields, answer: () => answer(typed.value, inputs) });
}

makeTools('concentration', 'Παρασκεύασε ένα διάλυμα', build);
