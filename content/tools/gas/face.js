import { formatNumber } from '../shared/numbers.js';
import { field, liveRegion, makeTools, part, row, select } from '../shared/parts.js';
import { lawOf, particleCount, Particles, pressure, RANGES, volume } from './logic.js';

const LABELS = { p: 'Πίεση p', V: 'Όγκος V', n: 'Ποσότητα n', T: 'Θερμοκρασία T' };
const HEIGHT = 180;
// Widths of the vessel in heights, for the largest volume.
const WIDEST = 3;
const RADIUS = 0.02;
const LONGEST_STEP = 0.05;
const TRAIL_SECONDS = 0.12;
const DIGITS = 3;

const withUnit = (name, value) => `${formatNumber(value, DIGITS)}\u00A0${RANGES[name].unit}`;

// Draws the vessel on a canvas as wide as the page allows.
class Vessel {
  constructor() {
    this.canvas = part('canvas', { role: 'img', class: 'vessel' });
    this.particles = new Particles();
    this.width = 1;
  }

  set({ V, n, T }) {
    const width = (V / RANGES.V.to) * WIDEST;
    this.particles.stretch(this.width, width);
    this.particles.setCount(particleCount(n), width);
    Object.assign(this, { width, kelvin: T });
    this.canvas.setAttribute(
      'aria-label',
      `Δοχείο με έμβολο. ${this.particles.all.length} σωματίδια σε ${withUnit('V', V)}, στους ${withUnit('T', T)}.`,
    );
    this.draw();
  }

  move(seconds) {
    this.particles.move(Math.min(seconds, LONGEST_STEP), this.width, this.kelvin);
    this.draw();
  }

  draw() {
    const ratio = window.devicePixelRatio;
    const scale = Math.min(HEIGHT, this.canvas.clientWidth / (WIDEST + 0.15));
    this.canvas.width = Math.round(this.canvas.clientWidth * ratio);
    this.canvas.height = Math.round((scale + 8) * ratio);
    this.canvas.style.height = `${scale + 8}px`;
    const context = this.canvas.getContext('2d');
    context.setTransform(scale * ratio, 0, 0, scale * ratio, 4 * ratio, 4 * ratio);
    this.drawWalls(context);
    this.drawParticles(context);
  }

  drawWalls(context) {
    context.fillStyle = '#ffffff';
    context.fillRect(0, 0, this.width, 1);
    context.fillStyle = '#9aa8b8';
    context.fillRect(this.width, 0, 0.06, 1);
    context.fillRect(this.width, 0.46, WIDEST + 0.1 - this.width, 0.08);
    context.strokeStyle = '#526070';
    context.lineWidth = 0.02;
    context.beginPath();
    context.moveTo(WIDEST, 0);
    context.lineTo(0, 0);
    context.lineTo(0, 1);
    context.lineTo(WIDEST, 1);
    context.stroke();
  }

  // The trail of a particle is as long as it is fast. Particles touch the walls with their edges.
  drawParticles(context) {
    const trail = Math.sqrt(this.kelvin) * TRAIL_SECONDS;
    const atX = x => RADIUS + (x * (this.width - 2 * RADIUS)) / this.width;
    const atY = y => RADIUS + y * (1 - 2 * RADIUS);
    context.save();
    context.beginPath();
    context.rect(0, 0, this.width, 1);
    context.clip();
    context.strokeStyle = '#9db7dc';
    context.lineWidth = 0.012;
    for (const { x, y, vx, vy } of this.particles.all) {
      context.beginPath();
      context.moveTo(atX(x - vx * trail), atY(y - vy * trail));
      context.lineTo(atX(x), atY(y));
      context.stroke();
    }
    context.fillStyle = '#12366b';
    for (const { x, y } of this.particles.all) {
      context.beginPath();
      context.arc(atX(x), atY(y), RADIUS, 0, 2 * Math.PI);
      context.fill();
    }
    context.restore();
  }
}

// The button that starts and stops the movement. Nothing moves for readers who have asked their system for stillness.
function motionButton(vessel) {
  const still = matchMedia('(prefers-reduced-motion: reduce)');
  const button = part('button', { type: 'button', class: 'quiet', 'aria-pressed': 'false' }, 'Κίνηση');
  let before = null;
  const isMoving = () => button.getAttribute('aria-pressed') === 'true';
  const frame = now => {
    if (!isMoving()) return;
    if (before !== null) vessel.move((now - before) / 1000);
    before = now;
    requestAnimationFrame(frame);
  };
  const turn = moves => {
    button.setAttribute('aria-pressed', String(moves));
    button.textContent = moves ? 'Παύση' : 'Κίνηση';
    before = null;
    if (moves) requestAnimationFrame(frame);
  };
  button.addEventListener('click', () => turn(!isMoving()));
  const obey = () => {
    button.disabled = still.matches;
    if (still.matches) turn(false);
  };
  still.addEventListener('change', obey);
  obey();
  return button;
}

const slider = (name, value) =>
  part('input', { type: 'range', min: RANGES[name].from, max: RANGES[name].to, step: RANGES[name].step, value });

function build(box) {
  const state = { p: 1, V: 24.6, n: 1, T: 300 };
  const adapted = select(
    [
      ['p', 'Η πίεση (έμβολο σταθερό)'],
      ['V', 'Ο όγκος (έμβολο ελεύθερο)'],
    ],
    'p',
  );
  const vessel = new Vessel();
  const readout = part('p', { class: 'equation' });
  const law = liveRegion();
  const sliders = Object.fromEntries(Object.keys(RANGES).map(name => [name, slider(name, state[name])]));
  const fields = Object.fromEntries(Object.keys(RANGES).map(name => [name, field(LABELS[name], sliders[name])]));

  const showState = () => {
    vessel.set(state);
    readout.textContent = Object.keys(RANGES)
      .map(name => `${name}\u00A0=\u00A0${withUnit(name, state[name])}`)
      .join(', ');
    for (const name of Object.keys(RANGES)) {
      sliders[name].value = state[name];
      sliders[name].setAttribute('aria-valuetext', withUnit(name, state[name]));
      fields[name].hidden = name === adapted.value;
    }
  };
  // A quantity stops where the one that follows it would leave its range.
  const change = name => {
    const follower = adapted.value;
    const next = { ...state, [name]: Number(sliders[name].value) };
    next[follower] = follower === 'p' ? pressure(next) : volume(next);
    const { from, to } = RANGES[follower];
    const fits = next[follower] >= from * 0.999 && next[follower] <= to * 1.001;
    if (fits) Object.assign(state, next);
    law.replaceChildren(
      part(
        'p',
        {},
        fits
          ? lawOf(name, follower)
          : `Ως εδώ: ${follower === 'p' ? 'η πίεση θα έβγαινε' : 'ο όγκος θα έβγαινε'} από τα όρια του δοχείου.`,
      ),
    );
    showState();
  };
  for (const name of Object.keys(RANGES)) sliders[name].addEventListener('input', () => change(name));
  adapted.addEventListener('change', showState);
  box.append(
    part(
      'p',
      {},
      'Άλλαξε ένα μέγεθος και παρατήρησε ποιο το ακολουθεί. Η ουρά κάθε σωματιδίου δείχνει πόσο γρήγορα κινείται.',
    ),
    vessel.canvas,
    part('p', { class: 'buttons' }, motionButton(vessel)),
    readout,
    law,
    field('Τι προσαρμόζεται;', adapted),
    row(...Object.values(fields)),
  );
  showState();
  new ResizeObserver(() => vessel.draw()).observe(box);
}

makeTools('gas', 'Δοκίμασε τους νόμους των αερίων', build);
