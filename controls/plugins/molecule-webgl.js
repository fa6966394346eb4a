'use strict';

// Draws a molecule with 3Dmol.js, which is loaded only where there is WebGL.

const cameraHeight = 150;   // the library's own distance of the camera from the origin
const maxSmooth = 1500;    // atoms

const hasWebGl = () => {
  const canvas = document.createElement('canvas');
  return Boolean(canvas.getContext('webgl2') ?? canvas.getContext('webgl'));
};

/// Calls back with a drawing when the library is there; never when it cannot be loaded or has no WebGL.
function loadWebGlDrawing(molecule, background, ready) {
  if (!hasWebGl()) return;
  const script = document.createElement('script');
  script.src = '?resource=3Dmol-min.js';
  script.onload = () => {
    let drawing;
    try { drawing = new WebGlDrawing(molecule, background); } catch (error) { console.error(error); return; }
    ready(drawing);
  };
  document.head.append(script);
}

class WebGlDrawing {
  constructor(molecule, background) {
    this.molecule = molecule;
    this.element = document.createElement('div');
    this.element.className = 'drawing';
    document.body.append(this.element);
    // Edges are smoothed by twice as many pixels; that would make large molecules slow.
    this.viewer = $3Dmol.createViewer(this.element, {
      backgroundColor: background, nomouse: true, antialias: true, upscale: molecule.atoms.length < maxSmooth,
    });
    if (!this.viewer) { this.element.remove(); throw new Error('no viewer'); }
    this.viewer.setSlab(-molecule.fullReach - 1, 3 * molecule.fullReach);
    this.model = this.viewer.addModel();
    this.model.addAtoms(this.libraryAtoms());
  }

  libraryAtoms() {
    const atoms = this.molecule.atoms.map(({ element, at: [x, y, z] }, index) => ({
      elem: element, x, y, z, index, serial: index, bonds: [], bondOrder: [],
      color: parseInt(lookOf(element).colour.slice(1), 16),
    }));
    for (const { a, b, order } of this.molecule.bonds) {
      for (const [from, to] of [[a, b], [b, a]]) {
        atoms[from].bonds.push(to);
        atoms[from].bondOrder.push(order === aromatic ? 1.5 : order);
      }
    }
    return atoms;
  }

  resize() { this.viewer.resize(); }

  setLook(style, isShown) {
    for (const element of new Set(this.molecule.atoms.map(atom => atom.element))) {
      this.model.setStyle({ elem: element }, isShown({ element }) ? this.styleOf(style, element) : {});
    }
    this.needsModels = true;
  }

  styleOf(style, element) {
    const look = lookOf(element);
    switch (style) {
      case 'wire': return this.hasBonds(element) ? this.wire() : { cross: { radius: 0.3 } };
      case 'sticks': return { stick: { radius: stickRadius.sticks } };
      case 'spaces': return { sphere: { radius: look.space } };
      default: return { stick: { radius: stickRadius.balls }, sphere: { radius: look.ball } };
    }
  }

  /// Lines are half a pixel wide where edges are smoothed by more pixels.
  wire() { return this.molecule.atoms.length < maxSmooth ? { stick: { radius: 0.03 } } : { line: {} }; }

  hasBonds(element) {
    return this.molecule.bonds.some(({ a, b }) => [a, b].some(i => this.molecule.atoms[i].element === element));
  }

  draw(camera) {
    const view = [0, 0, 0, cameraHeight - camera.distance, ...quaternionOf(camera.turn)];
    this.viewer.setView(view, true);
    if (this.needsModels) this.viewer.render();
    this.needsModels = false;
  }

  /// The canvas, drawn anew: what it held is gone once it was shown.
  picture(camera) {
    this.draw(camera);
    return this.viewer.getCanvas();
  }
}
