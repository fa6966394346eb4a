// A vessel with an ideal gas: its law, and particles that fly through it without meeting each other.

// In L·atm/(mol·K).
const R = 0.082;

// What the sliders may be set to.
export const RANGES = {
  p: { from: 0.5, to: 5, step: 0.1, unit: 'atm' },
  V: { from: 6, to: 60, step: 1, unit: 'L' },
  n: { from: 0.5, to: 2, step: 0.1, unit: 'mol' },
  T: { from: 150, to: 450, step: 10, unit: 'K' },
};

export const pressure = ({ V, n, T }) => (n * R * T) / V;
export const volume = ({ p, n, T }) => (n * R * T) / p;

// The law that a change of one quantity shows while `adapted` follows it.
const LAWS = {
  'V p': 'Νόμος του Boyle: σε σταθερή θερμοκρασία το γινόμενο p · V μένει σταθερό.',
  'p V': 'Νόμος του Boyle: σε σταθερή θερμοκρασία το γινόμενο p · V μένει σταθερό.',
  'T p': 'Νόμος του Gay-Lussac: σε σταθερό όγκο η πίεση είναι ανάλογη με την απόλυτη θερμοκρασία.',
  'T V': 'Νόμος του Charles: σε σταθερή πίεση ο όγκος είναι ανάλογος με την απόλυτη θερμοκρασία.',
  'n p': 'Σε σταθερό όγκο και θερμοκρασία η πίεση είναι ανάλογη με την ποσότητα του αερίου.',
  'n V': 'Υπόθεση του Avogadro: σε σταθερή πίεση και θερμοκρασία ο όγκος είναι ανάλογος με την ποσότητα του αερίου.',
};
export const lawOf = (changed, adapted) => LAWS[`${changed} ${adapted}`];

const PARTICLES_PER_MOL = 60;
export const particleCount = n => Math.round(n * PARTICLES_PER_MOL);

// Two numbers of the normal distribution from two of (0, 1].
function normalPair(random) {
  const length = Math.sqrt(-2 * Math.log(1 - random()));
  const angle = 2 * Math.PI * random();
  return [length * Math.cos(angle), length * Math.sin(angle)];
}

// Particles in a vessel whose height is 1 and whose width changes. Speeds are those at 1 K, in heights a second, so
// that the temperature comes in when they move.
export class Particles {
  constructor(random = Math.random) {
    this.random = random;
    this.all = [];
  }

  setCount(count, width) {
    while (this.all.length < count) {
      const [vx, vy] = normalPair(this.random);
      this.all.push({ x: this.random() * width, y: this.random(), vx: vx * SPEED, vy: vy * SPEED });
    }
    this.all.length = count;
  }

  // When the piston moves, the gas fills the vessel evenly again.
  stretch(from, to) {
    for (const particle of this.all) particle.x *= to / from;
  }

  move(seconds, width, kelvin) {
    const factor = Math.sqrt(kelvin) * seconds;
    for (const particle of this.all) {
      [particle.x, particle.vx] = reflected(particle.x + particle.vx * factor, particle.vx, width);
      [particle.y, particle.vy] = reflected(particle.y + particle.vy * factor, particle.vy, 1);
    }
  }
}

// At 300 K a particle flies about half of the vessel's height in a second.
const SPEED = 0.02;

// Where a particle is that flew to `place` between walls at 0 and `length`, and how fast it flies then.
function reflected(place, speed, length) {
  const round = ((place % (2 * length)) + 2 * length) % (2 * length);
  const walls = Math.floor(place / length);
  return [round > length ? 2 * length - round : round, walls % 2 === 0 ? speed : -speed];
}
