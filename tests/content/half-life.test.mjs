import { mistakes, table, tool } from './tables.mjs';

const { decay, ISOTOPES } = await tool('half-life/logic.js');
const { formatNumber, parseNumber } = await tool('shared/numbers.js');

table('the empty one of three is found', (halfLife, start, time, rest) => {
  const found = decay({ halfLife, start, time, rest });
  return `${found.blank} ${formatNumber(found[found.blank], found.digits)} ${formatNumber(found.halfLives, 3)}`;
}, [
  ['5730', '100', '', '25', 'time 1,15\u00A0×\u00A010⁴ 2,00'], ['8,02', '80', '24,06', '', 'rest 10,0 3,00'], ['10', '', '5,0', '100', 'start 141 0,500'],
  ['1600', '1,000', '800,0', '', 'rest 0,7071 0,500'],
]);

mistakes('wrong inputs are told', ([halfLife, start, time, rest]) => decay({ halfLife, start, time, rest }), [
  [['', '1', '1', ''], 'Γράψε τον χρόνο υποδιπλασιασμού'], [['0', '1', '1', ''], 'μεγαλύτερο από το μηδέν'], [['5', '1', '1', '1'], 'Σβήσε την τιμή που ζητάς'],
  [['5', '', '', '1'], 'Τώρα λείπουν: την αρχική ποσότητα, τον χρόνο'], [['5', '1', '', '2'], 'μικρότερη από την αρχική'], [['5', '1', '10^6', ''], 'δεν υπολογίζεται'],
]);

table('half-lives can be read', ({ halfLife }) => parseNumber(halfLife, '').digits >= 3, ISOTOPES.map(isotope => [isotope, true]));
