import { raised } from '../shared/numbers.js';
import { calculator, dataTable, field, formulaNodes, makeTools, part, select, textInput } from '../shared/parts.js';
import { balance } from './logic.js';

const EXAMPLES = [
  'C3H8 + O2 -> CO2 + H2O',
  'Fe + O2 -> Fe2O3',
  'Al + HCl -> AlCl3 + H2',
  'NH3 + O2 -> NO + H2O',
  'KMnO4 + HCl -> KCl + MnCl2 + Cl2 + H2O',
  'Cu + Ag^+ -> Cu^2+ + Ag',
  'MnO4^- + Fe^2+ + H^+ -> Mn^2+ + Fe^3+ + H2O',
];

const VERDICTS = {
  right: ['right', 'Σωστά. Οι συντελεστές σου ισοσταθμίζουν την εξίσωση.'],
  multiple: [
    'right',
    'Οι συντελεστές σου ισοσταθμίζουν την εξίσωση. Συνήθως όμως τους γράφουμε με τους μικρότερους ακέραιους αριθμούς:',
  ],
  wrong: ['false', 'Οι συντελεστές σου δεν ισοσταθμίζουν ακόμη την εξίσωση. Δες πού διαφέρουν τα δύο μέλη:'],
};

const COLUMNS = [['Στοιχείο'], ['Αριστερά', 'num'], ['Δεξιά', 'num']];

// As it is printed, for a list that knows no raised and lowered text.
const printed = equation =>
  equation
    .replace('->', '→')
    .replace(/(?<=[A-Za-z)])\d+/g, digits => [...digits].map(d => '₀₁₂₃₄₅₆₇₈₉'[d]).join(''))
    .replace(
      /\^(\d*)([+-])/g,
      (_, digits, sign) => `${digits === '' ? '' : raised(digits)}${sign === '+' ? '⁺' : '⁻'}`,
    );

const nameOf = ({ name, symbol }) => (symbol ? `${name} (${symbol})` : name);

// `lead` gives what stands before the formula of a term, which is never parted from it.
function equationNodes({ terms, isReversible }, lead) {
  const nodes = terms.map((term, i) =>
    part('span', { class: 'nowrap' }, lead(i), formulaNodes(term.pieces), term.state ? `(${term.state})` : ''),
  );
  const side = isLeft =>
    nodes.filter((_, i) => terms[i].isLeft === isLeft).flatMap((node, i) => (i === 0 ? [node] : [' + ', node]));
  return [...side(true), isReversible ? ' ⇌ ' : ' → ', ...side(false)];
}

const coefficientText = number => (number === 1 ? '' : `${number} `);

function verdictParts({ verdict, givenRows }) {
  if (verdict === 'none') return [];
  const [kind, text] = VERDICTS[verdict];
  const said = part('p', { class: kind }, text);
  if (verdict !== 'wrong') return [said];
  const unequal = givenRows.filter(row => !row.isEqual);
  return [
    said,
    dataTable(
      'Με τους δικούς σου συντελεστές',
      COLUMNS,
      unequal.map(row => [nameOf(row), row.left, row.right]),
    ),
    part('p', {}, 'Η ισοσταθμισμένη εξίσωση είναι:'),
  ];
}

function chainParts({ chain, factor, conditions, letters, coefficients }) {
  const result = letters.map((letter, i) => `${letter} = ${coefficients[i]}`).join(', ');
  if (chain.length === 0)
    return [
      part('li', {}, `Λύνουμε το σύστημα των εξισώσεων. Οι μικρότεροι ακέραιοι που το επαληθεύουν είναι: ${result}.`),
    ];
  const [first, ...rest] = chain;
  const steps = rest.map(({ letter, value, row }) =>
    part(
      'li',
      {},
      `Από ${conditions[row].text} (${conditions[row].symbol || 'φορτίο'}) βρίσκουμε ${letter} = ${value}.`,
    ),
  );
  const scaled =
    factor === 1
      ? 'Όλοι οι συντελεστές βγήκαν ακέραιοι'
      : `Πολλαπλασιάζουμε όλους τους συντελεστές με ${factor}, ώστε να γίνουν ακέραιοι`;
  return [
    part(
      'li',
      {},
      `Η εξίσωση ορίζει μόνο τις αναλογίες, γι' αυτό διαλέγουμε ${first.letter} = 1 και βρίσκουμε τους άλλους:`,
      part('ul', {}, steps),
    ),
    part('li', {}, `${scaled}: ${result}.`),
  ];
}

function stepParts(found) {
  const conditions = found.conditions.map(condition => part('li', {}, `${nameOf(condition)}: ${condition.text}`));
  const hasCharge = found.conditions.some(condition => condition.symbol === '');
  return [
    part('h4', {}, 'Πώς βρέθηκαν οι συντελεστές'),
    part(
      'ol',
      {},
      part(
        'li',
        {},
        'Βάζουμε έναν άγνωστο μπροστά από κάθε τύπο: ',
        equationNodes(found, i => `${found.letters[i]} `),
      ),
      part(
        'li',
        {},
        `Για κάθε στοιχείο ${hasCharge ? 'και για το φορτίο ' : ''}τα δύο μέλη πρέπει να είναι ίσα:`,
        part('ul', {}, conditions),
      ),
      chainParts(found),
    ),
    dataTable(
      'Έλεγχος: συντελεστής × άτομα στον τύπο',
      COLUMNS,
      found.rows.map(row => [nameOf(row), row.left, row.right]),
    ),
  ];
}

function answer(typed) {
  const found = balance(typed);
  const equation = equationNodes(found, i => coefficientText(found.coefficients[i]));
  return [...verdictParts(found), part('p', { class: 'equation' }, equation), ...stepParts(found)];
}

const HINT =
  'Γράψε το βέλος ως «->» και τα φορτία μετά από «^»: Cu^2+. Αν βάλεις δικούς σου συντελεστές, θα ελεγχθούν.';

function build(box, { equation = EXAMPLES[0] }) {
  const typed = textInput(equation, { class: 'formula' });
  const examples = select([['', 'Διάλεξε…'], ...EXAMPLES.map(example => [example, printed(example)])], '');
  const fields = [field('Χημική εξίσωση', typed, HINT), field('Παραδείγματα', examples)];
  const calculate = calculator(box, {
    button: 'Ισοστάθμισε',
    fields,
    answer: () => answer(typed.value),
    control: typed,
  });
  examples.addEventListener('change', () => {
    if (examples.value === '') return;
    typed.value = examples.value;
    calculate();
  });
}

makeTools('balance', 'Ισοστάθμισε μια εξίσωση', build);
