import { formatNumber } from '../shared/numbers.js';
import { field, form, formulaNodes, liveRegion, makeTools, part, show, textInput } from '../shared/parts.js';
import { makeSolution } from './logic.js';

const UNITS = { m: 'g', V: 'mL', c: 'mol/L' };

function build(box, { formula = 'NaCl', m = '', v = '250', c = '0,1' }) {
  const typed = textInput(formula, { class: 'formula' });
  const inputs = Object.fromEntries(
    Object.entries({ m, V: v, c }).map(([name, value]) => [
      name,
      textInput(value, { class: 'number', inputmode: 'decimal' }),
    ]),
  );
  const result = liveRegion();
  const calculate = () =>
    show(result, null, () => {
      const found = makeSolution(
        typed.value,
        Object.fromEntries(Object.entries(inputs).map(([name, input]) => [name, input.value])),
      );
      const written = name => `${formatNumber(found[name], found.digits)} ${UNITS[name]}`;
      const formulaText = formulaNodes(found.substance.pieces);
      return [
        part(
          'p',
          { class: 'equation' },
          `${found.blank} = ${written(found.blank)}`,
          part(
            'small',
            {},
            `M = ${found.substance.massText} g/mol, n = m : M = ${formatNumber(found.n, found.digits)} mol, c = n : V`,
          ),
        ),
        part(
          'p',
          {},
          `Για το διάλυμα ζυγίζεις ${written('m')} `,
          formulaText,
          `, τα διαλύεις σε λίγο νερό και συμπληρώνεις νερό ως τα ${written('V')}. Έχει συγκέντρωση ${written('c')}, δηλαδή ${formatNumber(found.percent, found.digits)} % w/v.`,
        ),
      ];
    });
  box.append(
    part('p', {}, 'Άφησε κενό το μέγεθος που ζητάς.'),
    form(
      'Υπολόγισε',
      calculate,
      field('Διαλυμένη ουσία', typed, 'Ο χημικός της τύπος, για παράδειγμα NaOH ή CuSO4·5H2O.'),
      part(
        'div',
        { class: 'row' },
        field('Μάζα m (g)', inputs.m),
        field('Όγκος διαλύματος V (mL)', inputs.V),
        field('Συγκέντρωση c (mol/L)', inputs.c),
      ),
    ),
    result,
  );
  calculate();
}

makeTools('concentration', 'Παρασκεύασε ένα διάλυμα', build);
