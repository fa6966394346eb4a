import { formatNumber } from '../shared/numbers.js';
import { calculator, field, makeTools, numberInputs, part, row, textsOf } from '../shared/parts.js';
import { gasLaw, QUANTITIES, ZERO_CELSIUS } from './logic.js';

const SOLVED = { p: 'p = n · R · T : V', V: 'V = n · R · T : p', n: 'n = p · V : (R · T)', T: 'T = p · V : (n · R)' };

// "V = n · R · T : p = 2,00 · 0,082 · 300 : 1,00"
function working(found) {
  const formula = SOLVED[found.blank];
  const numbers = formula.slice(formula.indexOf('=')).replace('R', '0,082');
  return `${formula} ${numbers.replace(/[pVnT]/g, name => formatNumber(found[name], found.digits))}`;
}

function answer(inputs) {
  const found = gasLaw(textsOf(inputs));
  const value = `${formatNumber(found[found.blank], found.digits)} ${QUANTITIES[found.blank].unit}`;
  const celsius = formatNumber(found.T - ZERO_CELSIUS, found.digits);
  return [
    part('p', { class: 'equation' }, `${found.blank} = ${value}`, part('small', {}, working(found))),
    part('p', { class: 'note' }, `R = 0,082 L·atm/(mol·K). Η θερμοκρασία είναι ${celsius} °C.`),
  ];
}

function build(box, { p = '1', v = '', n = '2', t = '300' }) {
  const inputs = numberInputs({ p, V: v, n, T: t });
  const fields = [
    part('p', {}, 'Άφησε κενό το μέγεθος που ζητάς.'),
    row(field('Πίεση p (atm)', inputs.p), field('Όγκος V (L)', inputs.V)),
    row(field('Ποσότητα n (mol)', inputs.n), field('Θερμοκρασία T (K)', inputs.T, 'T = θ + 273')),
  ];
  calculator(box, { fields, answer: () => answer(inputs) });
}

makeTools('gas-law', 'Υπολόγισε με την καταστατική εξίσωση', build);
