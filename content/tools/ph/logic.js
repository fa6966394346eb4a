// The pH of a solution of one acid or base.

import { checkConcentration, checkConstant, ionisedShare, solvePh, WATER } from '../shared/acid-base.js';
import { parsePositive } from '../shared/numbers.js';

// Below this concentration the ions of the water itself count.
const DILUTE = 1e-6;
// Up to this ratio of constant and concentration schoolbooks leave out the ionised part: [H3O+] = √(Ka·c).
const NEGLIGIBLE_RATIO = 1e-2;

// `constant` and `concentration` as typed; no constant is that of a strong acid or base. { pH, pOH, h, oh, share
// (ionised), approximatePh (null where schoolbooks would not use it), isDilute, isAcid, isStrong }. Throws a Mistake.
export function solution({ isAcid, constant, concentration }) {
  const c = parsePositive(concentration, 'τη συγκέντρωση');
  checkConcentration(c);
  const isStrong = constant === null;
  const k = isStrong ? null : parsePositive(constant, isAcid ? 'τη σταθερά Ka' : 'τη σταθερά Kb');
  if (k) checkConstant(k);
  const solute = { isAcid, constant: k?.value ?? null, concentration: c.value };
  const pH = solvePh([solute]);
  const h = 10 ** -pH;
  const canApproximate = k !== null && k.value / c.value <= NEGLIGIBLE_RATIO && c.value >= DILUTE;
  const ofMain = canApproximate ? -Math.log10(Math.sqrt(k.value * c.value)) : 0;
  return {
    pH,
    pOH: 14 - pH,
    h,
    oh: WATER / h,
    share: ionisedShare(solute, h),
    isAcid,
    isStrong,
    isDilute: c.value < DILUTE,
    approximatePh: canApproximate ? (isAcid ? ofMain : 14 - ofMain) : null,
  };
}
