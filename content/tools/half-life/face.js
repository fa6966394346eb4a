import { graph } from '../shared/graph.js';
import { formatNumber } from '../shared/numbers.js';
import { calculator, dataTable, field, makeTools, numberInputs, part, row, select, textsOf } from '../shared/parts.js';
import { decay, ISOTOPES, remainingShare, UNITS } from './logic.js';

const FEWEST_HALF_LIVES_SHOWN = 5;
const MOST_HALF_LIVES_SHOWN = 10;
const CURVE_POINTS = 120;

const sentences = {
  rest: (found, unit) => `Μετά από ${found.time} ${unit} απομένουν ${found.rest} από τα ${found.start}.`,
  start: (found, unit) => `Πριν από ${found.time} ${unit} υπήρχαν ${found.start}.`,
  time: (found, unit) => `Πέρασαν ${found.time} ${unit} ώσπου τα ${found.start} να γίνουν ${found.rest}.`,
};

function inWords(found, unit) {
  const written = Object.fromEntries(
    ['start', 'time', 'rest'].map(name => [name, formatNumber(found[name], found.digits)]),
  );
  return sentences[found.blank](written, unit);
}

function decayGraph(found, unit) {
  const shown = Math.min(MOST_HALF_LIVES_SHOWN, Math.max(FEWEST_HALF_LIVES_SHOWN, Math.ceil(found.halfLives)));
  const curve = Array.from({ length: CURVE_POINTS + 1 }, (_, i) => (i / CURVE_POINTS) * shown);
  const marks = Array.from({ length: shown }, (_, i) => ({ x: i + 1, y: 100 * remainingShare(i + 1) }));
  if (found.halfLives <= shown)
    marks.push({
      x: found.halfLives,
      y: 100 * remainingShare(found.halfLives),
      isChosen: true,
      label: `${formatNumber(100 * remainingShare(found.halfLives))} %`,
    });
  return graph({
    x: { label: 'χρόνος σε χρόνους υποδιπλασιασμού (t : T)', from: 0, to: shown, step: 1 },
    y: { label: '% που απομένει', from: 0, to: 100, step: 20 },
    curve: curve.map(n => [n, 100 * remainingShare(n)]),
    marks,
    description: `Καμπύλη της διάσπασης: σε κάθε χρόνο υποδιπλασιασμού, που είναι ${formatNumber(found.halfLife, found.halfDigits)} ${unit}, απομένει το μισό.`,
  });
}

const halvesTable = (found, unit) =>
  dataTable(
    'Τι απομένει μετά από κάθε χρόνο υποδιπλασιασμού',
    [
      ['t : T', 'num'],
      [`Χρόνος (${unit})`, 'num'],
      ['Απομένει', 'num'],
      ['%', 'num'],
    ],
    Array.from({ length: 5 }, (_, n) => [
      String(n),
      formatNumber(n * found.halfLife, found.halfDigits),
      formatNumber(found.start * remainingShare(n), found.digits),
      formatNumber(100 * remainingShare(n)),
    ]),
  );

const law = found =>
  part(
    'p',
    {},
    'N = N',
    part('sub', {}, '0'),
    ' · (1/2)',
    part('sup', {}, 't : T'),
    `, όπου t : T = ${formatNumber(found.halfLives, found.digits)}.`,
  );

function answer(inputs, unit) {
  const found = decay(textsOf(inputs));
  return [
    part('p', { class: 'equation' }, inWords(found, unit)),
    law(found),
    decayGraph(found, unit),
    halvesTable(found, unit),
  ];
}

// The choice of an isotope, which fills in its half-life.
function isotopeSelect(chosen, halfLife, unit) {
  const choice = select([...ISOTOPES.map(({ symbol, name }) => [symbol, name]), ['', 'άλλο ισότοπο']], chosen);
  const take = () => {
    const isotope = ISOTOPES.find(({ symbol }) => symbol === choice.value);
    if (isotope) [halfLife.value, unit.value] = [isotope.halfLife, isotope.unit];
    else halfLife.focus();
  };
  choice.addEventListener('change', take);
  take();
  return choice;
}

function build(box, { isotope = 'C-14', start = '100', time = '', rest = '25' }) {
  const unit = select(Object.entries(UNITS), 'y');
  const inputs = numberInputs({ halfLife: '', start, time, rest });
  const fields = [
    part('p', {}, 'Σε κάθε χρόνο υποδιπλασιασμού διασπώνται οι μισοί από τους πυρήνες που είχαν απομείνει.'),
    field('Ισότοπο', isotopeSelect(isotope, inputs.halfLife, unit)),
    row(field('Χρόνος υποδιπλασιασμού T', inputs.halfLife), field('Μονάδα του χρόνου', unit)),
    part(
      'p',
      { class: 'note' },
      'Άφησε κενό εκείνο που ζητάς. Οι ποσότητες γράφονται στην ίδια μονάδα: g, mol, Bq ή %.',
    ),
    row(field('Αρχική ποσότητα N₀', inputs.start), field('Χρόνος t', inputs.time), field('Απομένει N', inputs.rest)),
  ];
  calculator(box, { fields, answer: () => answer(inputs, UNITS[unit.value]) });
}

makeTools('half-life', 'Υπολόγισε μια ραδιενεργό διάσπαση', build);
