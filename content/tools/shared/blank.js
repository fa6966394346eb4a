// Quantities that a formula ties together: all but one are typed, and that one is calculated.

import { Mistake } from './mistake.js';
import { digitsOf, parsePositive } from './numbers.js';

// `fields`: { name, text, what } each, where `what` names the quantity with its article. The result has the numbers by
// name, the name of the empty field, and the digits that its value deserves. Throws a Mistake.
export function readAllButOne(fields) {
  const empty = fields.filter(({ text }) => text.trim() === '');
  if (empty.length === 0) throw new Mistake('Σβήσε την τιμή που ζητάς: το πεδίο της πρέπει να είναι κενό.');
  if (empty.length > 1) {
    throw new Mistake(`Άφησε κενό μόνο ένα πεδίο. Τώρα λείπουν: ${empty.map(({ what }) => what).join(', ')}.`);
  }
  const numbers = fields
    .filter(field => field !== empty[0])
    .map(({ name, text, what }) => [name, parsePositive(text, what)]);
  return {
    ...Object.fromEntries(numbers.map(([name, { value }]) => [name, value])),
    blank: empty[0].name,
    digits: digitsOf(...numbers.map(([, number]) => number)),
  };
}
