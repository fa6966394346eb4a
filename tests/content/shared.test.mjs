import { mistakes, table, tool } from './tables.mjs';

const { formatFixed, formatNumber, parseNumber } = await tool('shared/numbers.js');
const { parseFormula } = await tool('shared/formula.js');

table('numbers are read with their significant digits', text => Object.values(parseNumber(text, 'x')), [
  ['0,250', 0.25, 3], ['.5', 0.5, 1], ['-5', -5, 1], ['\u22125,0', -5, 2], ['0.250', 0.25, 3], ['1200', 1200, 4],
  ['1,8·10^-5', 1.8e-5, 2], ['1.8e-5', 1.8e-5, 2], ['2 × 10³', 2000, 1], ['10^-7', 1e-7, 1], ['0', 0, 1], ['0,00', 0, 1],
].map(([text, ...number]) => [text, number]));

mistakes('what is no number is told', text => parseNumber(text, 'τον όγκο'), [
  ['', 'Γράψε τον όγκο.'], ['δύο', '«δύο» δεν είναι αριθμός'], ['1,2,3', 'δεν είναι αριθμός'], [',', 'δεν είναι αριθμός'],
  ['1.000', 'διαβάζεται με δύο τρόπους. Γράψε «1000»'], ['1.234.567,8', '«1234567,8»'],
]);

table('numbers are written as schoolbooks do', formatNumber, [
  [18.015, 3, '18,0'], [0, 3, '0'], [0.05, 3, '0,0500'], [1.8e-5, 2, '1,8\u00A0×\u00A010⁻⁵'], [6.022e23, 4, '6,022\u00A0×\u00A010²³'],
  [1234, 3, '1,23\u00A0×\u00A010³'], [1234, 4, '1234'], [999.96, 3, '1,00\u00A0×\u00A010³'], [0.99996, 4, '1,000'],
  [-2.5, 2, '\u22122,5'], [123456, 6, '123\u00A0456'], [12345.6, 6, '12\u00A0345,6'], [0.0001234567, 7, '0,0001234567'], [1234567, 7, '1,234567\u00A0×\u00A010⁶'],
]);
table('numbers are written with so many decimals', formatFixed, [[2.345, 1, '2,3'], [-1, 2, '\u22121,00']]);

const atoms = text => Object.fromEntries(parseFormula(text).counts);
table('formulas are taken apart', atoms, [
  ['H2SO4', { H: 2, S: 1, O: 4 }], ['Ca(OH)2', { Ca: 1, O: 2, H: 2 }], ['K4[Fe(CN)6]', { K: 4, Fe: 1, C: 6, N: 6 }],
  ['CuSO4·5H2O', { Cu: 1, S: 1, O: 9, H: 10 }], ['CuSO4.5 H2O', { Cu: 1, S: 1, O: 9, H: 10 }], ['CO', { C: 1, O: 1 }],
  ['Co', { Co: 1 }], ['CH3COOH', { C: 2, H: 4, O: 2 }], ['H₂O', { H: 2, O: 1 }], ['Η2Ο', { H: 2, O: 1 }],
  ['NaCl(aq)', { Na: 1, Cl: 1 }], ['(NH4)2Cr2O7', { N: 2, H: 8, Cr: 2, O: 7 }],
]);

table('charges are read', text => [parseFormula(text).charge, parseFormula(text).pieces.map(p => p.kind + p.text).join('|')], [
  ['Na+', [1, 'Na|sup+']], ['NO3-', [-1, 'N|O|sub3|sup−']], ['SO4^2-', [-2, 'S|O|sub4|sup2−']], ['Fe³⁺', [3, 'Fe|sup3+']],
  ['e^-', [-1, 'e|sup−']], ['OH-(aq)', [-1, 'O|H|sup−']],
]);

mistakes('mistakes in formulas are told with their place', parseFormula, [
  ['', 'Γράψε έναν χημικό τύπο'], ['NaCL', 'Μήπως εννοείς «Cl»', 'L'], ['h2o', 'Μήπως εννοείς «H»', 'h'], ['NACL', '«Na»', 'A'],
  ['Xx2', 'Κανένα στοιχείο δεν έχει το σύμβολο «Xx»', 'Xx'], ['Caa', '«Caa»', 'Caa'], ['H2ψ', '«ψ» δεν ανήκει', 'ψ'],
  ['Ca(OH2', '«(» δεν κλείνει', '('], ['CaOH)2', '«)» δεν έχει ανοίξει', ')'], ['Ca[OH)2', '«)» δεν έχει ανοίξει', ')'],
  ['Ca()2', 'δεν περιέχει τίποτα', ')'], ['H0', 'μηδέν', '0'], ['H99999', 'πολύ μεγάλος', '99999'], ['2H2', 'μετά το σύμβολο', '2'],
  ['CuSO4·', 'τελειώνει πριν'], ['Fe3+', 'Γράψε το φορτίο μετά από «^»', '3+'], ['SO42-', 'Γράψε το φορτίο', '2-'],
  ['('.repeat(30) + 'H' + ')'.repeat(30), 'Πάρα πολλές παρενθέσεις'], ['H2O^2', '«^» δεν ανήκει', '^'],
]);
