import assert from 'node:assert/strict';
import test from 'node:test';

import { mistakes, table, tool } from './tables.mjs';

const { gasLaw } = await tool('gas-law/logic.js');
const gas = await tool('gas/logic.js');
const { dilution } = await tool('dilution/logic.js');
const { makeSolution } = await tool('concentration/logic.js');
const { formatNumber } = await tool('shared/numbers.js');

const answer = found => `${found.blank} = ${formatNumber(found[found.blank], found.digits)}`;

table('the gas law gives the empty quantity', (p, V, n, T) => answer(gasLaw({ p, V, n, T })), [
  ['1', '', '1', '273', 'V = 22,4'], ['', '24,6', '2,00', '300', 'p = 2,00'], ['2', '41', '', '500', 'n = 2,00'], ['1,00', '8,2', '0,20', '', 'T = 500'],
]);
mistakes('wrong quantities of gas are told', texts => gasLaw(texts), [
  [{ p: '1', V: '1', n: '1', T: '1' }, 'Σβήσε την τιμή'], [{ p: '1', V: '', n: '', T: '1' }, 'τον όγκο, την ποσότητα'],
  [{ p: '1', V: '', n: '1', T: '-3' }, 'Γράψε τη θερμοκρασία με αριθμό μεγαλύτερο'],
]);

table('dilution gives the empty quantity and the solvent', (c1, V1, c2, V2) => {
  const found = dilution({ c1, V1, c2, V2 });
  return [answer(found), formatNumber(found.added, found.digits)];
}, [
  ['2', '50', '0,5', '', ['V2 = 200', '150']], ['', '10', '0,1', '100', ['c1 = 1,00', '90,0']], ['12', '', '0,6', '500', ['V1 = 25,0', '475']],
  ['0,5', '20', '', '100', ['c2 = 0,100', '80,0']], ['1', '', '1', '5', ['V1 = 5,00', '0']],
]);
mistakes('what is no dilution is told', texts => dilution(texts), [
  [{ c1: '1', V1: '50', c2: '2', V2: '' }, 'Στην αραίωση ο όγκος μεγαλώνει'], [{ c1: '1', V1: '', c2: '2', V2: '' }, 'Άφησε κενό μόνο ένα πεδίο'],
]);

table('a solution is made', (formula, m, V, c) => {
  const found = makeSolution(formula, { m, V, c });
  return [answer(found), formatNumber(found.percent, found.digits)];
}, [
  ['NaCl', '', '250', '0,1', ['m = 1,46', '0,584']], ['NaOH', '4,00', '500', '', ['c = 0,200', '0,800']], ['CuSO4·5H2O', '24,97', '', '0,5000', ['V = 200,0', '12,48']],
]);
mistakes('wrong solutions are told', ([formula, m]) => makeSolution(formula, { m, V: '1', c: '1' }), [
  [['NaCL', ''], 'Μήπως εννοείς «Cl»', 'L'], [['NaCl', '1'], 'Σβήσε την τιμή'],
]);

test('particles stay in the vessel, keep their speed, and fly faster in the heat', () => {
  let seed = 1;
  const random = () => (seed = (seed * 16807) % 2147483647) / 2147483647;
  const particles = new gas.Particles(random);
  particles.setCount(200, 1.5);
  const speeds = () => particles.all.map(({ vx, vy }) => Math.hypot(vx, vy));
  const before = speeds();
  for (let i = 0; i < 500; ++i) particles.move(0.05, 1.5, 450);
  assert.ok(particles.all.every(({ x, y }) => x >= 0 && x <= 1.5 && y >= 0 && y <= 1));
  speeds().forEach((speed, i) => assert.ok(Math.abs(speed - before[i]) < 1e-9));
  particles.stretch(1.5, 0.3);
  assert.ok(particles.all.every(({ x }) => x <= 0.3));
  const [one] = particles.all;
  const way = kelvin => {
    Object.assign(one, { x: 0.15, y: 0.5, vx: 0.001, vy: 0 });
    particles.move(1, 0.3, kelvin);
    return one.x - 0.15;
  };
  assert.ok(Math.abs(way(400) / way(100) - 2) < 1e-9);
});

table('the laws of gases have their names', gas.lawOf, [
  ['V', 'p', 'Νόμος του Boyle: σε σταθερή θερμοκρασία το γινόμενο p · V μένει σταθερό.'],
  ['T', 'V', 'Νόμος του Charles: σε σταθερή πίεση ο όγκος είναι ανάλογος με την απόλυτη θερμοκρασία.'],
]);
