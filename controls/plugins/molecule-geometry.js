'use strict';

// Vectors are [x, y, z], matrices lists of rows. The molecule's middle is the origin, x points to the right, y upwards
// and z towards the eye.

const add = (a, b, scale = 1) => [a[0] + b[0] * scale, a[1] + b[1] * scale, a[2] + b[2] * scale];
const dot = (a, b) => a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
const cross = (a, b) => [a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]];
const length = a => Math.hypot(a[0], a[1], a[2]);
const unit = a => { const l = length(a); return l > 1e-6 ? [a[0] / l, a[1] / l, a[2] / l] : null; };
const apply = (m, v) => [dot(m[0], v), dot(m[1], v), dot(m[2], v)];
const multiply = (m, n) => m.map(row => [0, 1, 2].map(j => row[0] * n[0][j] + row[1] * n[1][j] + row[2] * n[2][j]));
const aboutX = t => [[1, 0, 0], [0, Math.cos(t), -Math.sin(t)], [0, Math.sin(t), Math.cos(t)]];
const aboutY = t => [[Math.cos(t), 0, Math.sin(t)], [0, 1, 0], [-Math.sin(t), 0, Math.cos(t)]];

/// The rotation as [x, y, z, w].
function quaternionOf(m) {
  const w = Math.sqrt(Math.max(0, 1 + m[0][0] + m[1][1] + m[2][2])) / 2;
  const part = (sum, sign) => Math.sign(sign || 1) * Math.sqrt(Math.max(0, sum)) / 2;
  return [part(1 + m[0][0] - m[1][1] - m[2][2], m[2][1] - m[1][2]),
          part(1 - m[0][0] + m[1][1] - m[2][2], m[0][2] - m[2][0]),
          part(1 - m[0][0] - m[1][1] + m[2][2], m[1][0] - m[0][1]), w];
}

/// Where the eye is: the molecule turned, and seen from a distance at which it fills the frame at zoom 1.
class Camera {
  static fieldOfView = 20;  // degrees, from the frame's top to its bottom
  static minZoom = 0.3;
  static maxZoom = 12;

  constructor(reach) {
    this.reach = reach;
    this.resize(1, 1);
    this.reset();
  }

  reset() {
    this.turn = multiply(aboutX(0.30), aboutY(-0.45));
    this.zoom = 1;
  }

  resize(width, height) {
    this.width = width;
    this.height = height;
  }

  /// Takes over how another camera is turned and zoomed; false, and changes nothing, when that cannot be.
  takeOver(turn, zoom) {
    if (!isRotation(turn) || !(zoom >= Camera.minZoom && zoom <= Camera.maxZoom)) return false;
    Object.assign(this, { turn, zoom });
    return true;
  }

  turnBy(sideways, upwards) { this.turn = multiply(multiply(aboutX(upwards), aboutY(sideways)), this.turn); }

  zoomBy(factor) { this.zoom = Math.min(Math.max(this.zoom * factor, Camera.minZoom), Camera.maxZoom); }

  /// What a place is multiplied by, divided by its distance from the eye, for pixels.
  get lens() { return this.height / 2 / Math.tan(Camera.fieldOfView * Math.PI / 360); }

  /// From the eye to the molecule's middle.
  get distance() { return this.lens / (0.44 * Math.min(this.width, this.height) / this.reach * this.zoom); }

  /// A function that gives place and scale (pixels for one ångström) of a point as seen now, and z towards the eye. What
  /// is behind the eye has the scale 0.
  projector() {
    const { turn: [right, up, near], distance, lens } = this;
    const [middleX, middleY] = [this.width / 2, this.height / 2];
    return at => {
      const z = dot(near, at), depth = distance - z;
      const scale = depth > 0.1 ? lens / depth : 0;
      return { x: middleX + dot(right, at) * scale, y: middleY - dot(up, at) * scale, z, scale };
    };
  }
}

/// Puts the molecule's middle at the origin and says how far it reaches, as a model and with the atoms' full size.
function centre(molecule) {
  const { atoms } = molecule;
  const ends = [0, 1, 2].map(i => atoms.reduce(([low, high], { at }) => [Math.min(low, at[i]), Math.max(high, at[i])],
                                               [Infinity, -Infinity]));
  const middle = ends.map(([low, high]) => (low + high) / 2);
  for (const atom of atoms) atom.at = add(atom.at, middle, -1);
  const reach = radius => atoms.reduce((far, { at, element }) => Math.max(far, length(at) + lookOf(element)[radius]), 0);
  molecule.reach = reach('ball');
  molecule.fullReach = reach('space');
  return molecule;
}

/// Whether these are rows of a rotation, however they came.
function isRotation(m) {
  const isVector = v => Array.isArray(v) && v.length === 3 && v.every(Number.isFinite);
  if (!Array.isArray(m) || m.length !== 3 || !m.every(isVector)) return false;
  const near = (value, wanted) => Math.abs(value - wanted) < 1e-3;
  return m.every(row => near(dot(row, row), 1)) && near(dot(cross(m[0], m[1]), m[2]), 1);
}

// ---- measures ----

const distanceOf = ([a, b]) => length(add(a.at, b.at, -1));

/// The angle at the second of three atoms, in degrees.
function angleOf([a, b, c]) {
  const [p, q] = [unit(add(a.at, b.at, -1)), unit(add(c.at, b.at, -1))];
  return p && q ? Math.acos(Math.min(Math.max(dot(p, q), -1), 1)) * 180 / Math.PI : 0;
}
