import { digitsOf, formatNumber, parsePositive } from '../shared/numbers.js';
import {
  calculator,
  dataTable,
  field,
  formulaNodes,
  makeTools,
  numberInput,
  part,
  textInput,
} from '../shared/parts.js';
import { molarMass } from './logic.js';

const AVOGADRO = 6.02214076e23;

function massTable({ rows }) {
  const columns = [['Στοιχείο'], ['Άτομα', 'num'], ['Ar', 'num'], ['Μάζα (g)', 'num'], ['% της μάζας', 'num']];
  return dataTable(
    'Από τι αποτελείται 1 mol',
    columns,
    rows.map(row => [`${row.name} (${row.symbol})`, String(row.count), row.mass, row.totalText, row.percent]),
  );
}

function sampleLines(result, text) {
  if (text.trim() === '') return [];
  const sample = parsePositive(text, 'τη μάζα του δείγματος');
  const digits = digitsOf(sample, result);
  const amount = sample.value / result.mass;
  return [
    part(
      'p',
      { class: 'equation' },
      `n = m : M = ${text.trim().replace('.', ',')} g : ${result.massText} g/mol = ${formatNumber(amount, digits)} mol`,
    ),
    part('p', {}, `Το δείγμα έχει ${formatNumber(amount * AVOGADRO, digits)} σωματίδια με αυτόν τον τύπο.`),
  ];
}

const isotopeNote = rows =>
  rows
    .filter(row => !row.isStandard)
    .map(row =>
      part(
        'p',
        { class: 'note' },
        `Το στοιχείο ${row.name} δεν έχει σταθερά ισότοπα. Στη θέση του Ar μπαίνει ο μαζικός αριθμός του πιο μακρόβιου ισοτόπου του.`,
      ),
    );

function answer(formula, mass, rounds) {
  const found = molarMass(formula, rounds);
  const result = part('p', { class: 'equation' }, 'M (', formulaNodes(found.pieces), `) = ${found.massText} g/mol`);
  return [result, massTable(found), ...isotopeNote(found.rows), ...sampleLines(found, mass)];
}

function build(box, { formula = 'H2SO4', mass = '' }) {
  const typed = textInput(formula, { class: 'formula' });
  const sample = numberInput(mass);
  const rounds = part('input', { type: 'checkbox' });
  const fields = [
    field('Χημικός τύπος', typed, 'Γράψε τους δείκτες ως απλούς αριθμούς: Ca(OH)2, CuSO4·5H2O.'),
    field('Μάζα δείγματος σε g (προαιρετικά)', sample),
    part('p', { class: 'choice' }, part('label', {}, rounds, ' Ar με ένα δεκαδικό, όπως στις ασκήσεις')),
  ];
  const calculate = calculator(box, {
    fields,
    answer: () => answer(typed.value, sample.value, rounds.checked),
    control: typed,
  });
  rounds.addEventListener('change', calculate);
}

makeTools('molar-mass', 'Υπολόγισε τη μάζα ενός mol', build);
