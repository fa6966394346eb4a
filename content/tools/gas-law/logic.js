// The ideal gas law, p · V = n · R · T, with p in atm, V in L, n in mol, T in K.

import { readAllButOne } from '../shared/blank.js';

// In L·atm/(mol·K), to the digits that schoolbooks use.
export const R = 0.082;
// 0 °C in K, as schoolbooks round it.
export const ZERO_CELSIUS = 273;

export const QUANTITIES = {
  p: { what: 'την πίεση', unit: 'atm', solve: ({ V, n, T }) => (n * R * T) / V },
  V: { what: 'τον όγκο', unit: 'L', solve: ({ p, n, T }) => (n * R * T) / p },
  n: { what: 'την ποσότητα', unit: 'mol', solve: ({ p, V, T }) => (p * V) / (R * T) },
  T: { what: 'τη θερμοκρασία', unit: 'K', solve: ({ p, V, n }) => (p * V) / (n * R) },
};

// Of the texts p, V, n and T one is empty: { p, V, n, T, blank, digits }. Throws a Mistake.
export function gasLaw(texts) {
  const known = readAllButOne(
    Object.entries(QUANTITIES).map(([name, { what }]) => ({ name, what, text: texts[name] })),
  );
  return { ...known, [known.blank]: QUANTITIES[known.blank].solve(known) };
}
