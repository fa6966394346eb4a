import { formatNumber } from '../shared/numbers.js';
import { field, form, liveRegion, makeTools, part, show, textInput } from '../shared/parts.js';
import { gasLaw, QUANTITIES, ZERO_CELSIUS } from './logic.js';

const SOLVED = { p: 'p = n · R · T : V', V: 'V = n · R · T : p', n: 'n = p · V : (R · T)', T: 'T = p · V : (n · R)' };

// The formula with the numbers that were typed.
function withNumbers(found) {
  const text = name => formatNumber(found[name], found.digits);
  return SOLVED[found.blank]
    .slice(SOLVED[found.blank].indexOf('='))
    .replace('R', '0,082')
    .replace(/[pVnT]/g, text);
}

function build(box, { p = '1', v = '', n = '2', t = '300' }) {
  const inputs = Object.fromEntries(
    Object.entries({ p, V: v, n, T: t }).map(([name, value]) => [
      name,
      textInput(value, { class: 'number', inputmode: 'decimal' }),
    ]),
  );
  const result = liveRegion();
  const calculate = () =>
    show(result, null, () => {
      const found = gasLaw(Object.fromEntries(Object.entries(inputs).map(([name, input]) => [name, input.value])));
      const { unit } = QUANTITIES[found.blank];
      return [
        part(
          'p',
          { class: 'equation' },
          `${found.blank} = ${formatNumber(found[found.blank], found.digits)} ${unit}`,
          part('small', {}, `${SOLVED[found.blank].split(' =')[0]} ${withNumbers(found)}`),
        ),
        part(
          'p',
          { class: 'note' },
          `R = 0,082 L·atm/(mol·K). Η θερμοκρασία είναι ${formatNumber(found.T - ZERO_CELSIUS, found.digits)} °C.`,
        ),
      ];
    });
  box.append(
    part('p', {}, 'Άφησε κενό το μέγεθος που ζητάς.'),
    form(
      'Υπολόγισε',
      calculate,
      part(
        'div',
        { class: 'row' },
        field('Πίεση p (atm)', inputs.p),
        field('Όγκος V (L)', inputs.V),
        field('Ποσότητα n (mol)', inputs.n),
        field('Θερμοκρασία T (K)', inputs.T, 'T = θ + 273'),
      ),
    ),
    result,
  );
  calculate();
}

makeTools('gas-law', 'Υπολόγισε με την καταστατική εξίσωση', build);
