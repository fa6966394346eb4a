import { formatNumber } from '../shared/numbers.js';
import { field, form, liveRegion, makeTools, part, select, show, textInput } from '../shared/parts.js';
import { dilution } from './logic.js';

const SOLVED = { c1: ['c2', 'V2', 'V1'], V1: ['c2', 'V2', 'c1'], c2: ['c1', 'V1', 'V2'], V2: ['c1', 'V1', 'c2'] };

const symbol = name => [name.charAt(0), part('sub', {}, name.charAt(1))];

// "c2 = c1 · V1 : V2 = 0,5 · 20 : 100"
function working(found) {
  const [first, second, divisor] = SOLVED[found.blank];
  const numbers = [first, second, divisor].map(name => formatNumber(found[name], found.digits));
  return part(
    'small',
    {},
    symbol(found.blank),
    ' = ',
    symbol(first),
    ' · ',
    symbol(second),
    ' : ',
    symbol(divisor),
    ` = ${numbers[0]} · ${numbers[1]} : ${numbers[2]}`,
  );
}

function build(box, { c1 = '2', v1 = '50', c2 = '0,5', v2 = '' }) {
  const concentrationUnit = select(
    ['mol/L', '% w/v', '% v/v', 'g/L'].map(unit => [unit, unit]),
    'mol/L',
  );
  const volumeUnit = select(
    [
      ['mL', 'mL'],
      ['L', 'L'],
    ],
    'mL',
  );
  const inputs = Object.fromEntries(
    Object.entries({ c1, V1: v1, c2, V2: v2 }).map(([name, value]) => [
      name,
      textInput(value, { class: 'number', inputmode: 'decimal' }),
    ]),
  );
  const result = liveRegion();
  const calculate = () =>
    show(result, null, () => {
      const found = dilution(Object.fromEntries(Object.entries(inputs).map(([name, input]) => [name, input.value])));
      const unitOf = name => (name.startsWith('c') ? concentrationUnit.value : volumeUnit.value);
      const written = name => `${formatNumber(found[name], found.digits)} ${unitOf(name)}`;
      return [
        part('p', { class: 'equation' }, symbol(found.blank), ` = ${written(found.blank)}`, working(found)),
        part(
          'p',
          {},
          `Παίρνεις ${written('V1')} του αρχικού διαλύματος και προσθέτεις διαλύτη ώσπου ο όγκος να γίνει ${written('V2')}: περίπου ${formatNumber(found.added, found.digits)} ${volumeUnit.value}.`,
        ),
      ];
    });
  const row = (...fields) => part('div', { class: 'row' }, fields);
  box.append(
    part(
      'p',
      {},
      'Στην αραίωση η ποσότητα της διαλυμένης ουσίας δεν αλλάζει: ',
      symbol('c1'),
      ' · ',
      symbol('V1'),
      ' = ',
      symbol('c2'),
      ' · ',
      symbol('V2'),
      '. Άφησε κενό το μέγεθος που ζητάς.',
    ),
    form(
      'Υπολόγισε',
      calculate,
      row(field(['Αρχική συγκέντρωση ', symbol('c1')], inputs.c1), field(['Αρχικός όγκος ', symbol('V1')], inputs.V1)),
      row(field(['Τελική συγκέντρωση ', symbol('c2')], inputs.c2), field(['Τελικός όγκος ', symbol('V2')], inputs.V2)),
      row(field('Μονάδα συγκέντρωσης', concentrationUnit), field('Μονάδα όγκου', volumeUnit)),
    ),
    result,
  );
  calculate();
}

makeTools('dilution', 'Αραίωσε ένα διάλυμα', build);
