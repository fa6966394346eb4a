// Dilution: the amount of the dissolved substance stays the same, c1 · V1 = c2 · V2.

import { readAllButOne } from '../shared/blank.js';
import { Mistake } from '../shared/mistake.js';

const WHAT = {
  c1: 'την αρχική συγκέντρωση',
  V1: 'τον αρχικό όγκο',
  c2: 'την τελική συγκέντρωση',
  V2: 'τον τελικό όγκο',
};

const SOLUTIONS = {
  c1: ({ V1, c2, V2 }) => (c2 * V2) / V1,
  V1: ({ c1, c2, V2 }) => (c2 * V2) / c1,
  c2: ({ c1, V1, V2 }) => (c1 * V1) / V2,
  V2: ({ c1, V1, c2 }) => (c1 * V1) / c2,
};

// Of the texts c1, V1, c2 and V2 one is empty: { c1, V1, c2, V2, added (solvent, in the unit of the volumes), blank,
// digits }. Throws a Mistake.
export function dilution(texts) {
  const known = readAllButOne(Object.entries(WHAT).map(([name, what]) => ({ name, what, text: texts[name] })));
  const all = { ...known, [known.blank]: SOLUTIONS[known.blank](known) };
  if (all.V2 < all.V1 * (1 - 1e-9)) {
    throw new Mistake(
      'Με αυτές τις τιμές ο τελικός όγκος θα ήταν μικρότερος από τον αρχικό. Στην αραίωση ο όγκος μεγαλώνει και η συγκέντρωση μικραίνει.',
    );
  }
  return { ...all, added: all.V2 - all.V1 };
}
