'use strict';

// What is written over a molecule: labels, measures, and the legend of colours.

const maxLabels = 150;
const overlayFont = '"Liberation Sans", Arial, sans-serif';
const measureColour = '#ffd84a';

// The brackets around an ion, in pixels.
const bracketGap = 8;
const bracketHook = 9;
const chargeWidth = 40;    // room for the charge beside them
const legendHeight = 26;

const isLight = colour => { const [r, g, b] = channels(colour); return 0.3 * r + 0.59 * g + 0.11 * b > 140; };
const withComma = (value, digits) => value.toFixed(digits).replace('.', ',');

/// The distance between two atoms, the angle of three; molecules are in Å. Nothing for fewer.
function measureOf(atoms) {
  if (atoms.length === 2) return withComma(distanceOf(atoms) / 10, 3) + ' nm';
  return atoms.length === 3 ? withComma(angleOf(atoms), 1) + '°' : undefined;
}

/// A charge as formulas have it: "+", "2−".
const chargeText = charge => (Math.abs(charge) === 1 ? '' : Math.abs(charge)) + (charge > 0 ? '+' : '−');

/// What to do next in order to measure, behind so many chosen atoms.
const measureHints = ['Διάλεξε δύο άτομα για την απόστασή τους.', 'Διάλεξε ένα δεύτερο άτομο.',
                      'Ένα τρίτο άτομο δίνει τη γωνία.', 'Ένα κλικ στο κενό αρχίζει νέα μέτρηση.'];

class Overlay {
  constructor(molecule, background) {
    this.element = document.createElement('canvas');
    this.element.className = 'overlay';
    this.context = this.element.getContext('2d');
    this.molecule = molecule;
    this.background = background;
    this.ink = isLight(background) ? '#1c2733' : '#e8eef5';
    const present = new Set(molecule.atoms.map(atom => atom.element));
    this.elements = [...present].sort((a, b) => (a === 'C' ? -2 : a === 'H' ? -1 : 0) - (b === 'C' ? -2 : b === 'H' ? -1 : 0) ||
                                                a.localeCompare(b));
  }

  resize(width, height, ratio) {
    this.element.width = Math.round(width * ratio);
    this.element.height = Math.round(height * ratio);
    this.ratio = ratio;
    this.drawn = undefined;
  }

  /// `labels`: whether atoms are labelled; `measure`: whether they are measured; `picked`: the atoms chosen for that.
  draw(camera, { isShown, labels, measure, picked }) {
    // What does not turn with the molecule is drawn once; it costs as much as the molecule.
    const still = labels || picked.length > 0 ? undefined : [measure, this.elements.filter(element => isShown({ element })),
                                                             this.molecule.charge && this.edges(camera)].join();
    if (still !== undefined && still === this.drawn) return;
    this.drawn = still;
    const c = this.context;
    c.setTransform(this.ratio, 0, 0, this.ratio, 0, 0);
    c.clearRect(0, 0, camera.width, camera.height);
    c.textBaseline = 'middle';
    if (this.molecule.charge) this.brackets(camera);
    if (labels) this.labels(camera, isShown);
    this.measures(camera, picked);
    if (measure) this.hint(camera, measureHints[picked.length]);
    this.legend(camera, isShown);
  }

  text(text, x, y, colour) {
    const c = this.context;
    c.lineWidth = 3;
    c.lineJoin = 'round';
    c.strokeStyle = this.background;
    c.strokeText(text, x, y);
    c.fillStyle = colour;
    c.fillText(text, x, y);
  }

  /// Where the brackets around an ion stand: left, right, upper and lower edge.
  edges(camera) {
    const reach = camera.reach * camera.lens / camera.distance + bracketGap;
    const [x, y] = [camera.width / 2, camera.height / 2];
    return [Math.max(x - reach, bracketGap), Math.min(x + reach, camera.width - chargeWidth),
            Math.max(y - reach, bracketGap), Math.min(y + reach, camera.height - legendHeight)].map(Math.round);
  }

  /// Square brackets around an ion, with its charge at the upper right.
  brackets(camera) {
    const c = this.context;
    const [left, right, top, bottom] = this.edges(camera);
    c.strokeStyle = this.ink;
    c.lineWidth = 2;
    c.beginPath();
    for (const [edge, inwards] of [[left, 1], [right, -1]]) {
      c.moveTo(edge + inwards * bracketHook, top);
      c.lineTo(edge, top);
      c.lineTo(edge, bottom);
      c.lineTo(edge + inwards * bracketHook, bottom);
    }
    c.stroke();
    c.font = 'bold 18px ' + overlayFont;
    c.textAlign = 'left';
    this.text(chargeText(this.molecule.charge), right + 5, top + 6, this.ink);
  }

  labels(camera, isShown) {
    const project = camera.projector();
    const places = this.molecule.atoms.map((atom, i) => ({ atom, i })).filter(({ atom }) => isShown(atom))
      .map(({ atom, i }) => ({ text: atom.element + (i + 1), ...project(atom.at) }));
    this.context.font = 'bold 11px ' + overlayFont;
    this.context.textAlign = 'center';
    for (const { text, x, y } of places.sort((a, b) => a.z - b.z).slice(-maxLabels)) this.text(text, x, y, this.ink);
  }

  measures(camera, picked) {
    const c = this.context;
    const project = camera.projector();
    const places = picked.map(atom => project(atom.at));
    c.strokeStyle = measureColour;
    c.setLineDash([4, 3]);
    c.lineWidth = 1.5;
    c.beginPath();
    places.forEach(({ x, y }, i) => { if (i === 0) c.moveTo(x, y); else c.lineTo(x, y); });
    c.stroke();
    c.setLineDash([]);
    for (const { x, y } of places) {
      c.beginPath();
      c.arc(x, y, 6, 0, 2 * Math.PI);
      c.stroke();
    }
    c.font = 'bold 13px ' + overlayFont;
    c.textAlign = 'center';
    const measure = measureOf(picked);
    if (!measure) return;
    const [p, q] = places;
    const [x, y] = picked.length === 2 ? [(p.x + q.x) / 2, (p.y + q.y) / 2 - 9] : [q.x, q.y - 16];
    this.text(measure, x, y, measureColour);
  }

  hint(camera, text) {
    this.context.font = '12px ' + overlayFont;
    this.context.textAlign = 'center';
    this.text(text, camera.width / 2, 14, this.ink);
  }

  /// In rows at the bottom.
  legend(camera, isShown) {
    const c = this.context;
    c.font = '11px ' + overlayFont;
    c.textAlign = 'left';
    const rows = [[]];
    let x = 8;
    for (const element of this.elements.filter(one => isShown({ element: one }))) {
      const name = nameOf(element);
      const width = c.measureText(name).width + 24;
      if (x + width > camera.width && rows.at(-1).length > 0) { rows.push([]); x = 8; }
      rows.at(-1).push({ name, x, colour: lookOf(element).colour });
      x += width;
    }
    rows.slice(0, 4).forEach((row, i, shown) => {
      const y = camera.height - 10 - 15 * (shown.length - 1 - i);
      for (const entry of row) {
        c.beginPath();
        c.arc(entry.x + 5, y, 4.5, 0, 2 * Math.PI);
        c.fillStyle = entry.colour;
        c.fill();
        c.strokeStyle = isLight(this.background) ? '#00000060' : '#ffffff60';
        c.lineWidth = 1;
        c.stroke();
        this.text(entry.name, entry.x + 13, y, this.ink);
      }
    });
  }
}
