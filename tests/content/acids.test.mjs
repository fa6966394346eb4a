import assert from 'node:assert/strict';
import test from 'node:test';

import { mistakes, table, tool } from './tables.mjs';

const { solution } = await tool('ph/logic.js');
const { curve, equivalenceVolume, INDICATORS, judgeIndicator, phAt, readTitration, stageAt, volumeAt } = await tool('titration/logic.js');

// Reference values: exact solutions by hand (quadratic equation; cubic for the dilute ones).
table('pH of one acid or base', (isAcid, constant, concentration) => solution({ isAcid, constant, concentration }).pH.toFixed(2), [
  [true, null, '0,1', '1.00'], [true, null, '10^-8', '6.98'], [false, null, '0,01', '12.00'], [true, '1,8·10^-5', '0,1', '2.88'],
  [false, '1,8·10^-5', '0,1', '11.12'], [true, '1,8·10^-4', '0,001', '3.46'], [true, '6,2·10^-10', '0,1', '5.10'], [true, '10^-5', '1e-9', '7.00'],
]);

table('the approximation of schoolbooks stands where they use it', (constant, concentration) => {
  const { approximatePh, share } = solution({ isAcid: true, constant, concentration });
  return [approximatePh?.toFixed(2), share.toFixed(4)];
}, [['1,8·10^-5', '0,1', ['2.87', '0.0133']], ['1,8·10^-4', '0,001', [undefined, '0.3437']]]);

mistakes('what has no pH here is told', input => solution({ isAcid: true, constant: null, ...input }), [
  [{ concentration: '' }, 'Γράψε τη συγκέντρωση'], [{ concentration: '12' }, '10 mol/L'], [{ concentration: '-1' }, 'μεγαλύτερο από το μηδέν'],
  [{ concentration: '1', constant: '2' }, 'ισχυρό ηλεκτρολύτη'], [{ concentration: '1', constant: '' }, 'Γράψε τη σταθερά Ka'],
]);

const titration = (isAcid, constant) => readTitration({ isAcid, constant, concentration: '0,1', volume: '25', titrant: '0,1' });
const kinds = { strongAcid: titration(true, null), weakAcid: titration(true, '1,8·10^-5'), strongBase: titration(false, null), weakBase: titration(false, '1,8·10^-5') };

table('pH on the way', (kind, added) => phAt(kinds[kind], added).toFixed(2), [
  ['strongAcid', 0, '1.00'], ['strongAcid', 25, '7.00'], ['strongAcid', 50, '12.52'], ['weakAcid', 0, '2.88'], ['weakAcid', 12.5, '4.75'],
  ['weakAcid', 25, '8.72'], ['weakBase', 12.5, '9.25'], ['weakBase', 25, '5.28'], ['strongBase', 24, '11.31'],
]);

test('the curve is where the pH is, and rises or falls all the way', () => {
  for (const [kind, one] of Object.entries(kinds)) {
    const points = curve(one);
    assert.equal(points.at(-1)[0], 2 * equivalenceVolume(one));
    for (const [i, [volume, pH]] of points.entries()) {
      assert.ok(Math.abs(phAt(one, volume) - pH) < 1e-3, `${kind} ${volume}`);
      assert.ok(i === 0 || volume >= points[i - 1][0] - 1e-9, `${kind} ${i}`);
    }
    assert.ok(Math.abs(volumeAt(one, phAt(one, 10)) - 10) < 1e-6, kind);
  }
});

table('indicators that will do', kind => INDICATORS.filter(indicator => judgeIndicator(kinds[kind], indicator).isSuitable).map(({ id }) => id), [
  ['strongAcid', ['methyl-orange', 'methyl-red', 'bromothymol-blue', 'phenolphthalein']], ['weakAcid', ['phenolphthalein']],
  ['strongBase', ['methyl-orange', 'methyl-red', 'bromothymol-blue', 'phenolphthalein']], ['weakBase', ['methyl-orange', 'methyl-red']],
]);

table('stages', (kind, added) => stageAt(kinds[kind], added), [
  ['weakAcid', 0, 'start'], ['weakAcid', 12.5, 'half'], ['strongAcid', 12.5, 'before'], ['weakAcid', 25, 'equivalence'], ['weakBase', 26, 'after'],
]);
