// Exact fractions of whole numbers.

const abs = n => (n < 0n ? -n : n);
export const gcd = (a, b) => (b === 0n ? abs(a) : gcd(b, a % b));
export const lcm = (a, b) => abs(a * b) / gcd(a, b);

export class Fraction {
  constructor(numerator, denominator = 1n) {
    const divisor = gcd(BigInt(numerator), BigInt(denominator)) * (BigInt(denominator) < 0n ? -1n : 1n);
    this.numerator = BigInt(numerator) / divisor;
    this.denominator = BigInt(denominator) / divisor;
  }

  minus({ numerator, denominator }) {
    return new Fraction(this.numerator * denominator - numerator * this.denominator, this.denominator * denominator);
  }

  times({ numerator, denominator }) {
    return new Fraction(this.numerator * numerator, this.denominator * denominator);
  }

  over({ numerator, denominator }) {
    return new Fraction(this.numerator * denominator, this.denominator * numerator);
  }

  get isZero() {
    return this.numerator === 0n;
  }

  toString() {
    return this.denominator === 1n ? `${this.numerator}` : `${this.numerator}/${this.denominator}`;
  }
}
