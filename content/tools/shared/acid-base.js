// Acids and bases with one proton to give or to take, in water of 25 °C.

import { Mistake } from './mistake.js';

export const WATER = 1e-14;

// `constant` is Ka or Kb, null of strong ones: the pKa of the data set of acids and bases, as a constant of two digits. So 4.756 of
// ethanoic acid becomes 1.8·10^-5. Of methylamine it is that of schoolbooks.
export const SUBSTANCES = [
  { id: 'HCl', name: 'υδροχλωρικό οξύ, HCl', isAcid: true, constant: null },
  { id: 'HNO3', name: 'νιτρικό οξύ, HNO₃', isAcid: true, constant: null },
  { id: 'HCOOH', name: 'μεθανικό οξύ, HCOOH', isAcid: true, constant: '1,8·10^-4' },
  { id: 'CH3COOH', name: 'αιθανικό (οξικό) οξύ, CH₃COOH', isAcid: true, constant: '1,8·10^-5' },
  { id: 'HCN', name: 'υδροκυάνιο, HCN', isAcid: true, constant: '6,2·10^-10' },
  { id: 'NaOH', name: 'υδροξείδιο του νατρίου, NaOH', isAcid: false, constant: null },
  { id: 'KOH', name: 'υδροξείδιο του καλίου, KOH', isAcid: false, constant: null },
  { id: 'NH3', name: 'αμμωνία, NH₃', isAcid: false, constant: '1,8·10^-5' },
  { id: 'CH3NH2', name: 'μεθυλαμίνη, CH₃NH₂', isAcid: false, constant: '4,4·10^-4' },
];

const LOWEST_PH = -2;
const HIGHEST_PH = 16;
const HALVINGS = 60;
const HIGHEST_CONCENTRATION = 10;
const STRONGEST_WEAK = 1;

export function checkConcentration({ value }) {
  if (value > HIGHEST_CONCENTRATION)
    throw new Mistake('Για διαλύματα πυκνότερα από 10 mol/L ο υπολογισμός δεν ισχύει.');
}

export function checkConstant({ value }) {
  if (value >= STRONGEST_WEAK) throw new Mistake('Μια σταθερά ιοντισμού 1 ή μεγαλύτερη ανήκει σε ισχυρό ηλεκτρολύτη.');
}

// Which share of a substance is ionised where [H3O+] is `h`.
export function ionisedShare({ isAcid, constant }, h) {
  if (constant === null) return 1;
  const partner = isAcid ? h : WATER / h;
  return constant / (constant + partner);
}

// The pH at which the charges of all ions add up to zero. `solutes`: { isAcid, constant (number or null),
// concentration } each.
export function solvePh(solutes) {
  const charge = h =>
    solutes.reduce(
      (sum, solute) => sum + (solute.isAcid ? -1 : 1) * solute.concentration * ionisedShare(solute, h),
      h - WATER / h,
    );
  let [low, high] = [LOWEST_PH, HIGHEST_PH];
  for (let i = 0; i < HALVINGS; ++i) {
    const middle = (low + high) / 2;
    if (charge(10 ** -middle) > 0) low = middle;
    else high = middle;
  }
  return (low + high) / 2;
}
