// Radioactive decay: N = N0 · (1/2)^(t / T).

import { readAllButOne } from '../shared/blank.js';
import { Mistake } from '../shared/mistake.js';
import { digitsOf, parsePositive } from '../shared/numbers.js';

// Half-lives in their usual units, to three digits (Blue Obelisk data repository, technetium-99m: common value).
export const ISOTOPES = [
  ['C-14', 'άνθρακας-14', '5730', 'y'],
  ['I-131', 'ιώδιο-131', '8,02', 'd'],
  ['Tc-99m', 'τεχνήτιο-99m', '6,01', 'h'],
  ['F-18', 'φθόριο-18', '110', 'min'],
  ['P-32', 'φωσφόρος-32', '14,3', 'd'],
  ['Rn-222', 'ραδόνιο-222', '3,82', 'd'],
  ['Po-210', 'πολώνιο-210', '138', 'd'],
  ['Co-60', 'κοβάλτιο-60', '5,27', 'y'],
  ['H-3', 'τρίτιο (υδρογόνο-3)', '12,3', 'y'],
  ['Sr-90', 'στρόντιο-90', '28,8', 'y'],
  ['Cs-137', 'καίσιο-137', '30,1', 'y'],
  ['Ra-226', 'ράδιο-226', '1600', 'y'],
  ['Pu-239', 'πλουτώνιο-239', '24100', 'y'],
  ['U-235', 'ουράνιο-235', '7,04·10^8', 'y'],
  ['U-238', 'ουράνιο-238', '4,47·10^9', 'y'],
].map(([symbol, name, halfLife, unit]) => ({ symbol, name, halfLife, unit }));

export const UNITS = { min: 'λεπτά', h: 'ώρες', d: 'ημέρες', y: 'έτη' };

export const remainingShare = halfLives => 0.5 ** halfLives;

const SOLUTIONS = {
  rest: ({ start, time }, halfLife) => start * remainingShare(time / halfLife),
  start: ({ rest, time }, halfLife) => rest / remainingShare(time / halfLife),
  time: ({ start, rest }, halfLife) => halfLife * Math.log2(start / rest),
};

// Of the amount at the start, the time and the rest one is empty. { start, rest, time, halfLife, halfLives, blank,
// digits, halfDigits }, the last two for the result and the half-life. Throws a Mistake.
export function decay({ halfLife, start, time, rest }) {
  const half = parsePositive(halfLife, 'τον χρόνο υποδιπλασιασμού');
  const known = readAllButOne([
    { name: 'start', text: start, what: 'την αρχική ποσότητα' },
    { name: 'time', text: time, what: 'τον χρόνο' },
    { name: 'rest', text: rest, what: 'την ποσότητα που απομένει' },
  ]);
  if (known.blank === 'time' && known.rest >= known.start)
    throw new Mistake('Η ποσότητα που απομένει είναι μικρότερη από την αρχική.');
  const all = { ...known, halfLife: half.value };
  all[known.blank] = SOLUTIONS[known.blank](known, half.value);
  if (!Number.isFinite(all[known.blank]) || all[known.blank] === 0) {
    throw new Mistake(
      'Το αποτέλεσμα είναι τόσο μακριά από τις άλλες τιμές, που δεν υπολογίζεται. Διάλεξε μικρότερο χρόνο.',
    );
  }
  return {
    ...all,
    halfLives: all.time / all.halfLife,
    halfDigits: digitsOf(half),
    digits: Math.min(known.digits, digitsOf(half)),
  };
}
