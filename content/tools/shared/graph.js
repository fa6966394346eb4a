// Graphs as SVG, which screen readers take as one picture with a description.

import { formatNumber } from './numbers.js';

const NAMESPACE = 'http://www.w3.org/2000/svg';
const FRAME = { left: 58, right: 14, top: 14, bottom: 44 };
const SIZE = { width: 560, height: 320 };

function shape(tag, attributes, ...children) {
  const node = document.createElementNS(NAMESPACE, tag);
  for (const [name, value] of Object.entries(attributes)) node.setAttribute(name, value);
  node.append(...children);
  return node;
}

// A step of 1, 2 or 5 times a power of ten that divides the range into five parts or a few more.
export function niceStep(range) {
  const rough = range / 5;
  const power = 10 ** Math.floor(Math.log10(rough));
  return power * [5, 2, 1].find(factor => factor * power <= rough * (1 + 1e-9));
}

function ticksOf({ from, to, step = niceStep(to - from) }) {
  const count = Math.floor((to - from) / step + 1e-9);
  return Array.from({ length: count + 1 }, (_, i) => from + i * step);
}

const tickText = value =>
  formatNumber(Number(value.toPrecision(6)), 6)
    .replace(/(,\d*?)0+(?=\D|$)/, '$1')
    .replace(/,(?=\D|$)/, '');

class Graph {
  constructor(x, y) {
    this.x = x;
    this.y = y;
  }

  atX = value =>
    FRAME.left + ((value - this.x.from) / (this.x.to - this.x.from)) * (SIZE.width - FRAME.left - FRAME.right);

  atY = value =>
    SIZE.height -
    FRAME.bottom -
    ((value - this.y.from) / (this.y.to - this.y.from)) * (SIZE.height - FRAME.top - FRAME.bottom);

  get right() {
    return SIZE.width - FRAME.right;
  }

  get bottom() {
    return SIZE.height - FRAME.bottom;
  }

  axes() {
    const across = ticksOf(this.x).flatMap(value => [
      shape('line', { class: 'grid', x1: this.atX(value), x2: this.atX(value), y1: FRAME.top, y2: this.bottom }),
      shape('text', { x: this.atX(value), y: this.bottom + 18, 'text-anchor': 'middle' }, tickText(value)),
    ]);
    const up = ticksOf(this.y).flatMap(value => [
      shape('line', { class: 'grid', x1: FRAME.left, x2: this.right, y1: this.atY(value), y2: this.atY(value) }),
      shape('text', { x: FRAME.left - 7, y: this.atY(value) + 5, 'text-anchor': 'end' }, tickText(value)),
    ]);
    return [
      ...across,
      ...up,
      shape('path', { class: 'axis', d: `M${FRAME.left} ${FRAME.top}V${this.bottom}H${this.right}` }),
      shape('text', { class: 'label', x: this.right, y: SIZE.height - 6, 'text-anchor': 'end' }, this.x.label),
      shape(
        'text',
        { class: 'label', x: 15, y: FRAME.top, 'text-anchor': 'end', transform: `rotate(-90 15 ${FRAME.top})` },
        this.y.label,
      ),
    ];
  }

  band({ from, to, colour, label }) {
    return [
      shape('rect', {
        x: FRAME.left,
        width: this.right - FRAME.left,
        y: this.atY(to),
        height: this.atY(from) - this.atY(to),
        fill: colour,
      }),
      shape('text', { x: this.right - 6, y: (this.atY(from) + this.atY(to)) / 2 + 5, 'text-anchor': 'end' }, label),
    ];
  }

  curve(points) {
    const d = points
      .map(([x, y], i) => `${i === 0 ? 'M' : 'L'}${this.atX(x).toFixed(1)} ${this.atY(y).toFixed(1)}`)
      .join('');
    return shape('path', { class: 'curve', d });
  }

  mark({ x, y, label = '', isChosen = false }) {
    const isRight = this.atX(x) > SIZE.width * 0.7;
    return [
      shape('circle', {
        class: isChosen ? 'chosen' : 'mark',
        cx: this.atX(x),
        cy: this.atY(y),
        r: isChosen ? 6 : 4.5,
      }),
      shape(
        'text',
        { x: this.atX(x) + (isRight ? -10 : 10), y: this.atY(y) - 8, 'text-anchor': isRight ? 'end' : 'start' },
        label,
      ),
    ];
  }
}

// `x`, `y`: { label, from, to, step }; `curve`: pairs; `marks`: { x, y, label, isChosen }; `bands`: { from, to, colour,
// label } across the picture. `description` is what screen readers say.
export function graph({ x, y, curve, marks = [], bands = [], description }) {
  const drawn = new Graph(x, y);
  return shape(
    'svg',
    { class: 'graph', viewBox: `0 0 ${SIZE.width} ${SIZE.height}`, role: 'img', 'aria-label': description },
    ...bands.flatMap(band => drawn.band(band)),
    ...drawn.axes(),
    drawn.curve(curve),
    ...marks.flatMap(mark => drawn.mark(mark)),
  );
}
