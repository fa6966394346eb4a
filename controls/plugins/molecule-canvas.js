'use strict';

// Draws a molecule on a plain canvas, farthest things first. Large molecules get flat balls and lines.

const stickRadius = { sticks: 0.16, balls: 0.10 };
const sideBySide = 0.19;    // distance of a multiple bond's sticks from the line between the atoms
const light = [-0.42, -0.48];
const aromatic = 4;
const maxShaded = 700;      // atoms; more are drawn flat

const channels = colour => [1, 3, 5].map(i => parseInt(colour.slice(i, i + 2), 16));

function mix(colour, target, share) {
  const to = channels(target);
  return '#' + channels(colour).map((part, i) => Math.round(part + (to[i] - part) * share).toString(16).padStart(2, '0')).join('');
}

/// A direction beside the bond, in the plane of a neighbour where there is one.
function besideBond({ atoms }, bond, neighbours) {
  const along = unit(add(atoms[bond.b].at, atoms[bond.a].at, -1));
  if (!along) return [0, 0, 0];
  for (const shared of [bond.a, bond.b]) {
    // The first few will do: others may lie in the bond's line.
    for (const end of neighbours[shared].slice(0, 8)) {
      if (end === bond.a || end === bond.b) continue;
      const normal = unit(cross(along, add(atoms[end].at, atoms[shared].at, -1)));
      if (normal) return cross(normal, along);
    }
  }
  return unit(cross(along, Math.abs(along[1]) < 0.9 ? [0, 1, 0] : [1, 0, 0]));
}

/// Places of a bond's sticks beside its line, and their thickness.
function sticksOf(order) {
  if (order === 2) return [[-1, 0.8], [1, 0.8]];
  if (order === 3) return [[-1.5, 0.7], [0, 0.7], [1.5, 0.7]];
  if (order === aromatic) return [[-1, 0.8], [1, 0.4]];
  return [[0, 1]];
}

class CanvasDrawing {
  constructor(molecule, background) {
    this.element = document.createElement('canvas');
    this.context = this.element.getContext('2d', { alpha: false });
    this.molecule = molecule;
    this.background = background;
    this.isFlat = molecule.atoms.length > maxShaded;
    this.mixed = new Map();
    this.neighbours = molecule.atoms.map(() => []);
    for (const { a, b } of molecule.bonds) { this.neighbours[a].push(b); this.neighbours[b].push(a); }
    for (const bond of molecule.bonds) bond.beside = besideBond(molecule, bond, this.neighbours);
  }

  resize(width, height, ratio) {
    this.element.width = Math.round(width * ratio);
    this.element.height = Math.round(height * ratio);
    this.ratio = ratio;
  }

  /// Which model: "wire", "sticks", "balls" or "spaces", and which atoms.
  setLook(style, isShown) {
    this.style = style;
    this.isShown = isShown;
  }

  radiusOf(atom) {
    if (this.style === 'spaces') return lookOf(atom.element).space;
    return this.style === 'balls' ? lookOf(atom.element).ball : this.style === 'sticks' ? stickRadius.sticks : 0;
  }

  draw(camera) {
    const { context, molecule } = this;
    context.setTransform(this.ratio, 0, 0, this.ratio, 0, 0);
    context.fillStyle = this.background;
    context.fillRect(0, 0, camera.width, camera.height);
    this.project = camera.projector();
    for (const atom of molecule.atoms) atom.place = this.project(atom.at);
    const parts = this.isFlat ? this.flatParts() : this.shadedParts();
    for (const part of parts.sort((a, b) => a.z - b.z)) part.draw();
  }

  shadedParts() {
    const { style, molecule: { atoms, bonds } } = this;
    const parts = [];
    if (style === 'wire') parts.push(...this.lone());
    else for (const atom of atoms) if (this.isShown(atom)) parts.push({ z: atom.place.z, draw: () => this.ball(atom) });
    if (style === 'spaces') return parts;
    for (const bond of bonds) {
      const [a, b] = [atoms[bond.a], atoms[bond.b]];
      if (this.isShown(a) && this.isShown(b)) parts.push(...this.bond(bond, a, b));
    }
    return parts;
  }

  /// An atom with the halves of its bonds is one thing here.
  flatParts() {
    const { style, molecule: { atoms } } = this;
    return atoms.flatMap((atom, i) => this.isShown(atom) ? [{ z: atom.place.z, draw: () => {
      if (style !== 'spaces') this.flatBonds(atom, this.neighbours[i]);
      if (style !== 'wire') this.flatBall(atom);
    } }] : []);
  }

  flatBonds(atom, others) {
    const c = this.context, { x, y, z, scale } = atom.place;
    c.strokeStyle = this.shade(lookOf(atom.element).colour, z);
    c.lineWidth = this.style === 'wire' ? 1 : Math.max(stickRadius[this.style] * 2 * scale, 1);
    c.beginPath();
    for (const j of others) {
      const other = this.molecule.atoms[j];
      if (!this.isShown(other)) continue;
      c.moveTo(x, y);
      c.lineTo((x + other.place.x) / 2, (y + other.place.y) / 2);
    }
    c.stroke();
  }

  flatBall(atom) {
    const c = this.context, { x, y, z, scale } = atom.place;
    const radius = this.radiusOf(atom) * scale;
    c.beginPath();
    c.arc(x, y, radius, 0, 2 * Math.PI);
    c.fillStyle = this.shade(lookOf(atom.element).colour, z);
    c.fill();
    if (radius < 3) return;
    c.strokeStyle = this.mix(c.fillStyle, '#000000', 0.5);
    c.lineWidth = 1;
    c.stroke();
  }

  /// The colour as seen at a depth: what lies behind pales into the background. In steps, so that few colours are mixed.
  shade(colour, z) {
    const step = Math.round(8 * (0.5 - 0.5 * z / this.molecule.reach));
    return this.mix(colour, this.background, Math.min(Math.max(step, 0), 8) * 0.04);
  }

  mix(colour, target, share) {
    const key = colour + target + share;
    let found = this.mixed.get(key);
    if (!found) this.mixed.set(key, found = mix(colour, target, share));
    return found;
  }

  ball(atom) {
    const c = this.context, { x, y, z, scale } = atom.place;
    const radius = this.radiusOf(atom) * scale;
    const colour = this.shade(lookOf(atom.element).colour, z);
    const fill = c.createRadialGradient(x + light[0] * radius, y + light[1] * radius, radius * 0.05,
                                        x + light[0] * radius * 0.3, y + light[1] * radius * 0.3, radius * 1.15);
    fill.addColorStop(0, this.mix(colour, '#ffffff', 0.85));
    fill.addColorStop(0.25, this.mix(colour, '#ffffff', 0.25));
    fill.addColorStop(0.6, colour);
    fill.addColorStop(1, this.mix(colour, '#000000', 0.62));
    c.fillStyle = fill;
    c.beginPath();
    c.arc(x, y, radius, 0, 2 * Math.PI);
    c.fill();
  }

  /// The halves of a bond's sticks, each in its atom's colour.
  bond(bond, a, b) {
    const middle = add(a.at, b.at).map(v => v / 2);
    return sticksOf(bond.order).flatMap(([place, thickness]) => [a, b].map(atom => {
      const aside = place * sideBySide / 2;
      const along = unit(add(middle, atom.at, -1)) ?? [0, 0, 0];
      const surface = this.style === 'balls' ? Math.sqrt(Math.max(this.radiusOf(atom) ** 2 - aside ** 2, 0)) * 0.97 : 0;
      const start = add(atom.at, along, Math.min(surface, length(add(middle, atom.at, -1))));
      const [from, to] = [start, middle].map(point => this.project(add(point, bond.beside, aside)));
      const { colour } = lookOf(atom.element);
      if (this.style === 'wire') return this.line(from, to, colour);
      return this.stick(from, to, length(add(middle, start, -1)), stickRadius[this.style] * thickness, colour);
    }));
  }

  line(from, to, colour) {
    const z = (from.z + to.z) / 2;
    return { z, draw: () => {
      const c = this.context;
      c.strokeStyle = this.shade(colour, z);
      c.lineWidth = 2;
      c.beginPath();
      c.moveTo(from.x, from.y);
      c.lineTo(to.x, to.y);
      c.stroke();
    } };
  }

  /// A round stick; of its two ends one sees the rim of the farther one.
  stick(from, to, run, radius, colour) {
    const [near, far] = from.z > to.z ? [from, to] : [to, from];
    const z = (near.z + far.z) / 2;
    const slope = run > 0 ? Math.min((near.z - far.z) / run, 1) : 1;
    return { z, draw: () => {
      const c = this.context;
      const [dx, dy] = [far.x - near.x, far.y - near.y];
      const seen = Math.hypot(dx, dy);
      if (seen < 0.01) return;
      const [nx, ny] = [-dy / seen, dx / seen];
      const [r1, r2] = [radius * near.scale, radius * far.scale];
      const fill = c.createLinearGradient(near.x - nx * r1, near.y - ny * r1, near.x + nx * r1, near.y + ny * r1);
      const shown = this.shade(colour, z);
      fill.addColorStop(0, this.mix(shown, '#000000', 0.6));
      fill.addColorStop(0.5 + (nx * light[0] + ny * light[1]) * 0.35, this.mix(shown, '#ffffff', 0.3));
      fill.addColorStop(1, this.mix(shown, '#000000', 0.6));
      c.fillStyle = fill;
      c.beginPath();
      c.moveTo(near.x + nx * r1, near.y + ny * r1);
      c.lineTo(near.x - nx * r1, near.y - ny * r1);
      c.ellipse(far.x, far.y, Math.max(r2 * slope, 0.5), r2, Math.atan2(dy, dx), -Math.PI / 2, Math.PI / 2);
      c.closePath();
      c.fill();
    } };
  }

  /// Atoms without a bond are crosses in the wire model, which would not show them.
  lone() {
    return this.molecule.atoms.flatMap((atom, i) => {
      if (this.neighbours[i].length > 0 || !this.isShown(atom)) return [];
      const { x, y, z } = atom.place, { colour } = lookOf(atom.element);
      return [[4, 0], [0, 4]].map(([dx, dy]) => this.line({ x: x - dx, y: y - dy, z }, { x: x + dx, y: y + dy, z }, colour));
    });
  }

  picture() { return this.element; }
}
