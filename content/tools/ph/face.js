import { formatFixed, formatNumber } from '../shared/numbers.js';
import { calculator, dataTable, field, makeTools, numberInput, part, row } from '../shared/parts.js';
import { substanceFields } from '../shared/substances.js';
import { solution } from './logic.js';

// The colours of the page's picture of the scale, from 0 to 14.
const SCALE = [
  '#c93a34',
  '#d8523a',
  '#e46e3c',
  '#ec8b3e',
  '#f1a744',
  '#f2c14e',
  '#d8cf56',
  '#6fb36c',
  '#4da388',
  '#3f95a3',
  '#3c82b5',
  '#456bb3',
  '#5457a6',
  '#644898',
  '#6f3c8a',
];

function character(pH) {
  if (Math.abs(pH - 7) < 0.005) return 'ουδέτερο';
  return pH < 7 ? 'όξινο' : 'βασικό';
}

function scale(pH) {
  const place = Math.min(SCALE.length - 1, Math.max(0, pH));
  const cells = SCALE.map((colour, i) => part('span', {}, part('i', { style: `background:${colour}` }), String(i)));
  const pointer = part('span', { class: 'pointer', style: `left:${((place + 0.5) / SCALE.length) * 100}%` }, '▼');
  return part('div', { class: 'ph-scale', 'aria-hidden': 'true' }, pointer, part('div', { class: 'cells' }, cells));
}

const hydronium = () => ['[H', part('sub', {}, '3'), 'O', part('sup', {}, '+'), ']'];
const hydroxide = () => ['[OH', part('sup', {}, '−'), ']'];

function explanation(found) {
  const ofMain = found.isAcid ? hydronium() : hydroxide();
  if (found.isDilute)
    return [
      "Το διάλυμα είναι τόσο αραιό, που μετρούν και τα ιόντα του ίδιου του νερού. Γι' αυτό το pH μένει κοντά στο 7.",
    ];
  if (found.isStrong)
    return [
      found.isAcid ? 'Το ισχυρό οξύ ιοντίζεται πλήρως: ' : 'Η ισχυρή βάση διίσταται πλήρως: ',
      ...ofMain,
      ' = c.',
    ];
  return [
    `${found.isAcid ? 'Το ασθενές οξύ ιοντίζεται' : 'Η ασθενής βάση ιοντίζεται'} μόνο εν μέρει: ο βαθμός ιοντισμού α είναι ${formatNumber(found.share)}, δηλαδή ${formatNumber(100 * found.share)} %.`,
  ];
}

function approximation(found) {
  if (found.approximatePh === null) return [];
  const [ofMain, constant] = found.isAcid ? [hydronium(), 'a'] : [hydroxide(), 'b'];
  return [
    part(
      'p',
      {},
      'Η προσέγγιση του σχολικού βιβλίου, ',
      ofMain,
      ' = √(K',
      part('sub', {}, constant),
      ` · c), δίνει pH = ${formatFixed(found.approximatePh, 2)}.`,
    ),
  ];
}

function ionTable(found) {
  const ion = (name, value) => [part('span', {}, name), `${formatNumber(value)} mol/L`];
  const rows = [ion(hydronium(), found.h), ion(hydroxide(), found.oh)];
  return dataTable('Τα ιόντα του νερού στο διάλυμα (25 °C)', [['Ιόν'], ['Συγκέντρωση', 'num']], rows);
}

function answer(solute, concentration) {
  const found = solution({ ...solute, concentration });
  const more = `Το διάλυμα είναι ${character(found.pH)}. pOH = ${formatFixed(found.pOH, 2)}`;
  return [
    part('p', { class: 'equation' }, `pH = ${formatFixed(found.pH, 2)}`, part('small', {}, more)),
    scale(found.pH),
    part('p', {}, explanation(found)),
    ...approximation(found),
    ionTable(found),
  ];
}

function build(box, { substance = 'CH3COOH', concentration = '0,1' }) {
  const solute = substanceFields(substance);
  const typed = numberInput(concentration);
  const fields = [solute.choice, row(solute.constant, field('Συγκέντρωση c (mol/L)', typed))];
  calculator(box, { fields, answer: () => answer(solute.read(), typed.value) });
}

makeTools('ph', 'Υπολόγισε το pH', build);
