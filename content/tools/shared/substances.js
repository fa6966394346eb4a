// The fields in which the reader chooses an acid or a base.

import { SUBSTANCES } from './acid-base.js';
import { field, part, textInput } from './parts.js';

const OTHERS = [
  ['acid', 'άλλο ασθενές οξύ'],
  ['base', 'άλλη ασθενής βάση'],
];

const groupOf = ({ isAcid, constant }) =>
  `${constant === null ? (isAcid ? 'Ισχυρά' : 'Ισχυρές') : isAcid ? 'Ασθενή' : 'Ασθενείς'} ${isAcid ? 'οξέα' : 'βάσεις'}`;

function substanceSelect(chosen) {
  const options = list => list.map(([value, text]) => part('option', { value, selected: value === chosen }, text));
  const group = label =>
    part(
      'optgroup',
      { label },
      options(SUBSTANCES.filter(substance => groupOf(substance) === label).map(({ id, name }) => [id, name])),
    );
  const labels = new Set(SUBSTANCES.map(groupOf));
  return part('select', {}, [...labels].map(group), part('optgroup', { label: 'Άλλη ουσία' }, options(OTHERS)));
}

// The fields `choice` and `constant`, and `read`, which gives { isAcid, constant } with the constant as typed or null.
export function substanceFields(chosen) {
  const substance = substanceSelect(chosen);
  const constant = textInput('', { class: 'number' });
  const constantField = field('', constant);
  const known = () => SUBSTANCES.find(({ id }) => id === substance.value);
  const isAcid = () => known()?.isAcid ?? substance.value === 'acid';
  const take = () => {
    constantField.hidden = known()?.constant === null;
    constantField.querySelector('label').textContent = isAcid() ? 'Σταθερά Ka (25 °C)' : 'Σταθερά Kb (25 °C)';
    constant.value = known()?.constant ?? '';
  };
  substance.addEventListener('change', take);
  take();
  return {
    choice: field('Οξύ ή βάση', substance),
    constant: constantField,
    read: () => ({ isAcid: isAcid(), constant: constantField.hidden ? null : constant.value }),
  };
}
