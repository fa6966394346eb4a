import { graph } from '../shared/graph.js';
import { formatFixed, formatNumber } from '../shared/numbers.js';
import { calculator, dataTable, field, makeTools, numberInputs, part, row, select, textsOf } from '../shared/parts.js';
import { substanceFields } from '../shared/substances.js';
import {
  colourAt,
  curve,
  equivalenceVolume,
  INDICATORS,
  judgeIndicator,
  phAt,
  readTitration,
  stageAt,
} from './logic.js';

// The slider goes to twice the volume of equivalence in so many steps.
const STEPS = 200;
const TABLE_SHARES = [0, 0.5, 0.9, 0.99, 1, 1.01, 1.1, 2];

const stageTexts = {
  start: () => 'Δεν έχει προστεθεί ακόμη πρότυπο διάλυμα.',
  before: ({ isAcid, constant }) =>
    constant === null
      ? `Περισσεύει ${isAcid ? 'οξύ' : 'βάση'}.`
      : 'Υπάρχουν μαζί το συζυγές ζεύγος οξέος και βάσης: ρυθμιστικό διάλυμα.',
  half: ({ isAcid }) => `Μισή εξουδετέρωση: ${isAcid ? 'pH = pKa' : 'pOH = pKb'}.`,
  equivalence: () => 'Ισοδύναμο σημείο: οξύ και βάση έχουν αντιδράσει ακριβώς.',
  after: ({ isAcid }) => `Περισσεύει πρότυπο διάλυμα: ${isAcid ? 'ισχυρή βάση' : 'ισχυρό οξύ'}.`,
};

const millilitres = volume => `${formatNumber(volume)}\u00A0mL`;

function changeText({ from, to }, right) {
  if (!(to > 0) || !Number.isFinite(to)) return 'Το χρώμα του δεν αλλάζει κατά την ογκομέτρηση.';
  return `Το χρώμα του αλλάζει από τα ${millilitres(Math.max(0, from))} ως τα ${millilitres(to)}, ενώ το ισοδύναμο σημείο είναι στα ${millilitres(right)}.`;
}

function indicatorText(titration, indicator) {
  const judged = judgeIndicator(titration, indicator);
  const range = `${indicator.name} (pH ${formatFixed(indicator.from, 1)} – ${formatFixed(indicator.to, 1)}). `;
  if (judged.isSuitable)
    return part(
      'p',
      {},
      part('b', { class: 'right' }, 'Κατάλληλος δείκτης: '),
      range,
      'Το χρώμα του αλλάζει στο απότομο μέρος της καμπύλης.',
    );
  return part(
    'p',
    {},
    part('b', { class: 'false' }, 'Ακατάλληλος δείκτης: '),
    range,
    changeText(judged, equivalenceVolume(titration)),
  );
}

function drawing(titration, added, indicator) {
  const right = equivalenceVolume(titration);
  return graph({
    x: { label: 'όγκος πρότυπου διαλύματος (mL)', from: 0, to: 2 * right },
    y: { label: 'pH', from: 0, to: 14, step: 2 },
    curve: curve(titration),
    bands: indicator ? [{ ...indicator, label: indicator.name }] : [],
    marks: [
      { x: right, y: phAt(titration, right), label: 'Ι.Σ.' },
      { x: added, y: phAt(titration, added), isChosen: true },
    ],
    description: `Καμπύλη ογκομέτρησης. Ισοδύναμο σημείο στα ${millilitres(right)}, με pH ${formatFixed(phAt(titration, right), 2)}.`,
  });
}

function valuesTable(titration) {
  const right = equivalenceVolume(titration);
  return part(
    'details',
    {},
    part('summary', {}, 'Η καμπύλη σε πίνακα'),
    dataTable(
      '',
      [
        ['Προστέθηκαν (mL)', 'num'],
        ['% του Ι.Σ.', 'num'],
        ['pH', 'num'],
      ],
      TABLE_SHARES.map(share => [
        formatNumber(share * right, 4),
        formatNumber(100 * share),
        formatFixed(phAt(titration, share * right), 2),
      ]),
    ),
  );
}

// The part of the tool that follows the slider.
function makeBurette(indicator) {
  const slider = part('input', { type: 'range', min: '0', max: String(STEPS), step: '1', value: '0' });
  const picture = part('div', {});
  const said = part('div', { class: 'result' });
  const values = part('div', {});
  let titration = null;
  const move = () => {
    if (!titration) return;
    const added = (2 * equivalenceVolume(titration) * Number(slider.value)) / STEPS;
    const pH = phAt(titration, added);
    const chosen = INDICATORS.find(({ id }) => id === indicator.value);
    slider.setAttribute('aria-valuetext', `${millilitres(added)}, pH ${formatFixed(pH, 2)}`);
    picture.replaceChildren(drawing(titration, added, chosen));
    said.replaceChildren(
      part(
        'p',
        { class: 'equation' },
        `${millilitres(added)} → pH = ${formatFixed(pH, 2)}`,
        part('small', {}, stageTexts[stageAt(titration, added)](titration)),
      ),
      ...(chosen
        ? [part('p', {}, `Χρώμα του διαλύματος: ${colourAt(chosen, pH)}.`), indicatorText(titration, chosen)]
        : []),
    );
  };
  slider.addEventListener('input', move);
  indicator.addEventListener('change', move);
  const node = part(
    'div',
    { hidden: true },
    picture,
    field('Όγκος που προστέθηκε από την προχοΐδα', slider, 'Με τα βέλη του πληκτρολογίου προσθέτεις λίγο λίγο.'),
    said,
    values,
  );
  const pour = next => {
    titration = next;
    node.hidden = next === null;
    if (next) values.replaceChildren(valuesTable(next));
    move();
  };
  return { node, pour };
}

// The sample and where its equivalence point is.
function equivalenceText(titration) {
  const right = equivalenceVolume(titration);
  const standard = titration.isAcid ? 'ισχυρής βάσης (NaOH)' : 'ισχυρού οξέος (HCl)';
  const pH = formatFixed(phAt(titration, right), 2);
  return `Ισοδύναμο σημείο (Ι.Σ.): ${millilitres(right)} πρότυπου διαλύματος ${standard}, με pH ${pH}.`;
}

function build(box, { substance = 'CH3COOH', concentration = '0,1', volume = '25', titrant = '0,1' }) {
  const solute = substanceFields(substance);
  const inputs = numberInputs({ concentration, volume, titrant });
  const indicator = select([['', 'χωρίς δείκτη'], ...INDICATORS.map(({ id, name }) => [id, name])], '');
  const burette = makeBurette(indicator);
  const answer = () => {
    burette.pour(null);
    const titration = readTitration({ ...solute.read(), ...textsOf(inputs) });
    burette.pour(titration);
    return part('p', {}, equivalenceText(titration));
  };
  const fields = [
    solute.choice,
    row(
      solute.constant,
      field('Συγκέντρωση (mol/L)', inputs.concentration),
      field('Όγκος (mL)', inputs.volume),
      field('Πρότυπο διάλυμα (mol/L)', inputs.titrant),
    ),
    field('Δείκτης', indicator),
  ];
  calculator(box, { button: 'Σχεδίασε την καμπύλη', fields, answer });
  box.append(burette.node);
}

makeTools('titration', 'Παρακολούθησε μια ογκομέτρηση', build);
