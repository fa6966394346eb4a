// The titration of an acid by a strong base, or of a base by a strong acid.

import { checkConcentration, checkConstant, ionisedShare, solvePh, WATER } from '../shared/acid-base.js';
import { parsePositive } from '../shared/numbers.js';

// Ranges in which indicators change colour, with the names of both colours and how they are painted.
export const INDICATORS = [
  { id: 'methyl-orange', name: 'ηλιανθίνη', from: 3.1, to: 4.4, low: 'κόκκινο', high: 'κίτρινο', colour: '#fbd9b8' },
  {
    id: 'methyl-red',
    name: 'ερυθρό του μεθυλίου',
    from: 4.4,
    to: 6.2,
    low: 'κόκκινο',
    high: 'κίτρινο',
    colour: '#fbe3b0',
  },
  {
    id: 'bromothymol-blue',
    name: 'μπλε της βρωμοθυμόλης',
    from: 6.0,
    to: 7.6,
    low: 'κίτρινο',
    high: 'μπλε',
    colour: '#cfe8cf',
  },
  {
    id: 'phenolphthalein',
    name: 'φαινολοφθαλεΐνη',
    from: 8.3,
    to: 10.0,
    low: 'άχρωμο',
    high: 'κόκκινο',
    colour: '#f7cfe0',
  },
];

const CURVE_POINTS = 160;
// An indicator will do when the volume at the middle of its change is wrong by less than this share, and those at its
// ends by less than twice as much.
const TOLERANCE = 0.01;

// The sample and the standard solution, from what was typed: concentrations in mol/L, volume in mL. Throws a Mistake.
export function readTitration({ isAcid, constant, concentration, volume, titrant }) {
  const numbers = [
    parsePositive(concentration, 'τη συγκέντρωση του δείγματος'),
    parsePositive(titrant, 'τη συγκέντρωση του πρότυπου διαλύματος'),
  ];
  numbers.forEach(checkConcentration);
  const k = constant === null ? null : parsePositive(constant, isAcid ? 'τη σταθερά Ka' : 'τη σταθερά Kb');
  if (k) checkConstant(k);
  const v = parsePositive(volume, 'τον όγκο του δείγματος');
  return {
    isAcid,
    constant: k?.value ?? null,
    concentration: numbers[0].value,
    volume: v.value,
    titrant: numbers[1].value,
  };
}

// The volume of the standard solution at the equivalence point, in mL.
export const equivalenceVolume = ({ concentration, volume, titrant }) => (concentration * volume) / titrant;

export function phAt(titration, added) {
  const { isAcid, constant, concentration, volume, titrant } = titration;
  const total = volume + added;
  return solvePh([
    { isAcid, constant, concentration: (concentration * volume) / total },
    { isAcid: !isAcid, constant: null, concentration: (titrant * added) / total },
  ]);
}

// The volume at which the solution has a pH; negative or infinite when it does not get there.
export function volumeAt(titration, pH) {
  const h = 10 ** -pH;
  const { isAcid, concentration, volume, titrant } = titration;
  const surplus = (h - WATER / h) * (isAcid ? 1 : -1);
  return (volume * (concentration * ionisedShare(titration, h) - surplus)) / (titrant + surplus);
}

// Pairs of volume and pH up to twice the volume of equivalence, close where the curve is steep.
export function curve(titration) {
  const last = 2 * equivalenceVolume(titration);
  const [start, end] = [phAt(titration, 0), phAt(titration, last)];
  const inner = Array.from({ length: CURVE_POINTS }, (_, i) => start + ((end - start) * (i + 1)) / (CURVE_POINTS + 1));
  return [[0, start], ...inner.map(pH => [volumeAt(titration, pH), pH]), [last, end]];
}

// Between which volumes an indicator changes its colour, and whether it tells the equivalence point: { from, to,
// isSuitable }.
export function judgeIndicator(titration, { from, to }) {
  const right = equivalenceVolume(titration);
  const errorAt = pH => Math.abs(volumeAt(titration, pH) - right) / right;
  const [begin, end] = titration.isAcid ? [from, to] : [to, from];
  return {
    from: volumeAt(titration, begin),
    to: volumeAt(titration, end),
    isSuitable: errorAt((from + to) / 2) <= TOLERANCE && errorAt(from) <= 2 * TOLERANCE && errorAt(to) <= 2 * TOLERANCE,
  };
}

// Which colour the indicator has.
export function colourAt({ from, to, low, high }, pH) {
  if (pH <= from) return low;
  return pH >= to ? high : `ανάμεσα σε ${low} και ${high}`;
}

// Which part of the titration a volume belongs to: 'start', 'before', 'half', 'equivalence' or 'after'.
export function stageAt(titration, added) {
  const share = added / equivalenceVolume(titration);
  if (added === 0) return 'start';
  if (Math.abs(share - 1) < 1e-6) return 'equivalence';
  if (Math.abs(share - 0.5) < 1e-6 && titration.constant !== null) return 'half';
  return share < 1 ? 'before' : 'after';
}
