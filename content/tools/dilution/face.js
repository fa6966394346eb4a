import { formatNumber } from '../shared/numbers.js';
import { calculator, field, makeTools, numberInputs, part, row, select, textsOf } from '../shared/parts.js';
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

function answer(inputs, units) {
  const found = dilution(textsOf(inputs));
  const unitOf = name => units[name.charAt(0)].value;
  const written = name => `${formatNumber(found[name], found.digits)} ${unitOf(name)}`;
  const added = `${formatNumber(found.added, found.digits)} ${unitOf('V')}`;
  return [
    part('p', { class: 'equation' }, symbol(found.blank), ` = ${written(found.blank)}`, working(found)),
    part(
      'p',
      {},
      `Παίρνεις ${written('V1')} του αρχικού διαλύματος και προσθέτεις διαλύτη ώσπου ο όγκος να γίνει `,
      `${written('V2')}: περίπου ${added}.`,
    ),
  ];
}

const same = () => [symbol('c1'), ' · ', symbol('V1'), ' = ', symbol('c2'), ' · ', symbol('V2')];
const options = texts => texts.map(text => [text, text]);

function build(box, { c1 = '2', v1 = '50', c2 = '0,5', v2 = '' }) {
  const units = {
    c: select(options(['mol/L', '% w/v', '% v/v', 'g/L']), 'mol/L'),
    V: select(options(['mL', 'L']), 'mL'),
  };
  const inputs = numberInputs({ c1, V1: v1, c2, V2: v2 });
  const fields = [
    part(
      'p',
      {},
      'Στην αραίωση η ποσότητα της διαλυμένης ουσίας δεν αλλάζει: ',
      same(),
      ', όπου c είναι η συγκέντρωση ή η περιεκτικότητα. Άφησε κενό το μέγεθος που ζητάς.',
    ),
    row(field([symbol('c1'), ' στην αρχή'], inputs.c1), field([symbol('V1'), ' στην αρχή'], inputs.V1)),
    row(field([symbol('c2'), ' στο τέλος'], inputs.c2), field([symbol('V2'), ' στο τέλος'], inputs.V2)),
    row(field('Μονάδα του c', units.c), field('Μονάδα του V', units.V)),
  ];
  calculator(box, { fields, answer: () => answer(inputs, units) });
}

makeTools('dilution', 'Αραίωσε ένα διάλυμα', build);
