// Numbers as schoolbooks write them: decimal comma, a true minus, powers of ten.

import { Mistake } from './mistake.js';

const MINUS = '\u2212';
const TIMES = '\u00A0\u00D7\u00A0';
const RAISED = '⁰¹²³⁴⁵⁶⁷⁸⁹';
// Numbers with more digits before the comma are written with a power of ten, and so are those below 0,0001.
const LARGEST_PLAIN_EXPONENT = 5;
const SMALLEST_PLAIN_EXPONENT = -4;
// Pupils write 2 L and mean it exactly: a result has at least so many digits.
const FEWEST_DIGITS = 3;

const NUMBER = /^([+-]?)(?:(\d+)(?:[.,](\d*))?|[.,](\d+))(?:(?:e|[*·×x]10\^?)([+-]?\d+))?$/i;
const POWER_OF_TEN = /^([+-]?)10\^([+-]?\d+)$/;
const THOUSANDS = /^[1-9]\d{0,2}(\.\d{3})+(,\d+)?$/;

const unraised = text => text.replace(/[⁰¹²³⁴⁵⁶⁷⁸⁹]/g, digit => RAISED.indexOf(digit)).replace(/⁻/g, '-');
const plain = text =>
  unraised(text)
    .replace(/[\u2212\u2013]/g, '-')
    .replace(/\s/g, '');

// The number in a text, as { value, digits }, where `digits` counts those that are significant. `what` names the
// quantity in messages, with its article.
export function parseNumber(text, what) {
  const typed = plain(text);
  if (typed === '') throw new Mistake(`Γράψε ${what}.`);
  if (THOUSANDS.test(typed)) {
    const asThousands = typed.replace(/\./g, '');
    throw new Mistake(
      `Το «${typed}» διαβάζεται με δύο τρόπους. Γράψε «${asThousands}», χωρίς τελεία, ή βάλε κόμμα αν εννοείς δεκαδικά.`,
    );
  }
  const power = POWER_OF_TEN.exec(typed);
  if (power) return { value: Number(`${power[1]}1e${power[2]}`), digits: 1 };
  const match = NUMBER.exec(typed);
  if (!match) throw new Mistake(`Το «${text.trim()}» δεν είναι αριθμός. Γράψε ${what} όπως «0,25» ή «2,5·10^-3».`);
  const [, sign, whole = '', decimals = '', onlyDecimals = '', exponent = '0'] = match;
  const fraction = decimals || onlyDecimals;
  const digits = (whole + fraction).replace(/^0+/, '').length;
  return { value: Number(`${sign}${whole || 0}.${fraction || 0}e${exponent}`), digits: Math.max(digits, 1) };
}

// As parseNumber, for quantities that are greater than zero.
export function parsePositive(text, what) {
  const number = parseNumber(text, what);
  if (!(number.value > 0) || !Number.isFinite(number.value)) {
    throw new Mistake(`Γράψε ${what} με αριθμό μεγαλύτερο από το μηδέν.`);
  }
  return number;
}

// How many digits a result deserves that was calculated from these numbers.
export const digitsOf = (...numbers) => Math.max(FEWEST_DIGITS, Math.min(...numbers.map(number => number.digits)));

const withComma = text => text.replace('.', ',').replace('-', MINUS);

// From five digits on, thousands stand apart.
const withThousands = text => text.replace(/^-?\d{5,}/, digits => digits.replace(/\B(?=(\d{3})+$)/g, '\u00A0'));

// With so many decimals.
export const formatFixed = (value, decimals) => withComma(withThousands(value.toFixed(decimals)));

export const raised = exponent => [...String(exponent)].map(c => (c === '-' ? '⁻' : RAISED[c])).join('');

// With so many significant digits.
export function formatNumber(value, digits = FEWEST_DIGITS) {
  if (value === 0) return '0';
  const [mantissa, power] = value.toExponential(digits - 1).split('e');
  const exponent = Number(power);
  const isPlain = exponent >= SMALLEST_PLAIN_EXPONENT && exponent <= LARGEST_PLAIN_EXPONENT && exponent < digits;
  if (isPlain) return formatFixed(Number(value.toExponential(digits - 1)), digits - 1 - exponent);
  return `${withComma(mantissa)}${TIMES}10${raised(exponent)}`;
}
