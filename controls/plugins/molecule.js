'use strict';

// The viewer of an embedded molecule. It draws on a plain canvas at once; where there is WebGL, 3Dmol.js takes over when
// it has been loaded. Parts of the page steer it by messages between frames:
//   {moleculeSet: {style, spin, labels, measure, hydrogens}}  sets what is named
//   {moleculeAsk: true}                                       asks for the state
//   {moleculeState: {…}}                                      what the viewer answers, and tells all after a change
// The browser tells whether the page's window is in front of the others: {pageInFront: true}.

const styles = ['wire', 'sticks', 'balls', 'spaces'];
const query = new URLSearchParams(location.search);

class Viewer {
  constructor(molecule, options) {
    this.molecule = molecule;
    this.options = options;
    this.state = { style: 'balls', spin: options.spin, labels: false, measure: false, hydrogens: true };
    this.picked = [];
    this.spin = new Spin();
    this.isSeen = this.isInFront = true;
    this.camera = new Camera(molecule.reach);
    this.overlay = new Overlay(molecule, options.background);
    this.tip = document.querySelector('#tip');
    this.drawing = new CanvasDrawing(molecule, options.background);
    this.drawing.element.classList.add('drawing');
    document.body.prepend(this.drawing.element, this.overlay.element);
    this.listen();
    this.look();
    this.resize();
    addEventListener('resize', () => this.resize());
    this.watchSight();
    this.joinOthers();
    // Only when the first picture is on the screen.
    requestAnimationFrame(() => setTimeout(() => loadWebGlDrawing(molecule, options.background, drawing => this.replace(drawing))));
  }

  replace(drawing) {
    this.drawing.element.remove();
    this.drawing = drawing;
    document.body.prepend(drawing.element);
    document.documentElement.dataset.drawing = '3d';
    this.look();
    this.resize();
  }

  isShown = ({ element }) => this.state.hydrogens || element !== 'H';

  look() {
    this.camera.reach = this.state.style === 'spaces' ? this.molecule.fullReach : this.molecule.reach;
    this.drawing.setLook(this.state.style, this.isShown);
    this.request();
  }

  // ---- messages ----

  set(wanted) {
    const known = Object.entries(wanted).filter(([name, value]) =>
      name === 'style' ? styles.includes(value) : typeof value === 'boolean' && Object.hasOwn(this.state, name));
    Object.assign(this.state, Object.fromEntries(known));
    if (wanted.spin) this.spin.begin();
    if (!this.state.measure) this.picked = [];
    this.picked = this.picked.filter(this.isShown);
    this.look();
    this.tell();
  }

  tell() {
    for (let i = 0; i < parent.length; ++i) parent[i].postMessage({ moleculeState: this.state }, '*');
  }

  /// A viewer that opens takes over what another one of the same molecule shows, so that an enlarged view goes on where
  /// the page's stands.
  joinOthers() {
    const elements = this.molecule.atoms.slice(0, 100).map(({ element }) => element).join(' ');
    const others = new BroadcastChannel(`molecule ${this.molecule.atoms.length} ${elements}`);
    others.onmessage = ({ data }) => {
      if (data?.ask) others.postMessage({ state: this.state, turn: this.camera.turn, zoom: this.camera.zoom });
      else if (this.awaits && data?.state) this.takeOver(data);
    };
    this.awaits = true;
    others.postMessage({ ask: true });
  }

  takeOver({ state, turn, zoom }) {
    // Any page can send on this channel.
    if (typeof state !== 'object' || !this.camera.takeOver(turn, zoom)) return;
    this.awaits = false;
    this.set(state);
  }

  // ---- input ----

  listen() {
    const pad = this.overlay.element;
    pad.tabIndex = 0;
    // What it is to screen readers leaves it its keys.
    pad.setAttribute('role', 'application');
    pad.setAttribute('aria-label', 'Τρισδιάστατο μοντέλο του μορίου. Βέλη για περιστροφή, + και − για μεγέθυνση, Home για ' +
                                   'επαναφορά, διάστημα για το επόμενο άτομο, Enter για μέτρηση.' +
                     (this.molecule.charge ? ` Είναι ιόν με φορτίο ${chargeText(this.molecule.charge)}.` : ''));
    pad.addEventListener('pointerdown', event => this.pressed(event));
    pad.addEventListener('pointermove', event => this.moved(event));
    pad.addEventListener('pointerup', event => this.released(event));
    pad.addEventListener('lostpointercapture', () => pad.classList.remove('held'));
    pad.addEventListener('pointerleave', () => { this.tip.hidden = true; });
    pad.addEventListener('dblclick', () => this.reset());
    pad.addEventListener('wheel', event => { event.preventDefault(); this.zoomBy(Math.exp(-event.deltaY / 600)); }, { passive: false });
    pad.addEventListener('keydown', event => this.typed(event));
  }

  pressed(event) {
    this.overlay.element.setPointerCapture(event.pointerId);
    this.overlay.element.classList.add('held');
    this.dragged = 0;
    this.tip.hidden = true;
    this.stopSpinning();
  }

  moved(event) {
    if (!this.overlay.element.hasPointerCapture(event.pointerId)) {
      return this.showTip(this.atomAt(event.offsetX, event.offsetY), event.offsetX, event.offsetY);
    }
    this.dragged += Math.abs(event.movementX) + Math.abs(event.movementY);
    const perPixel = Math.PI / Math.min(this.camera.width, this.camera.height);
    this.camera.turnBy(event.movementX * perPixel, event.movementY * perPixel);
    this.request();
  }

  released(event) {
    if (this.dragged <= 4) this.pick(this.atomAt(event.offsetX, event.offsetY));
  }

  /// Measures with one more atom; without one, begins anew.
  pick(atom) {
    if (!this.state.measure || this.picked.includes(atom)) return;
    this.picked = !atom ? [] : this.picked.length >= 3 ? [atom] : [...this.picked, atom];
    this.request();
  }

  /// Points at the atom that is so many behind the one pointed at last.
  pointOn(steps) {
    this.stopSpinning();
    const atoms = this.molecule.atoms.filter(this.isShown);
    if (atoms.length === 0) return;
    const before = Math.max(atoms.indexOf(this.pointed), steps < 0 ? 0 : -1);
    this.pointed = atoms[(before + steps + atoms.length) % atoms.length];
    this.showTipOfPointed();
  }

  pickPointed() {
    if (!this.pointed || !this.isShown(this.pointed)) return;
    this.pick(this.pointed);
    this.showTipOfPointed(measureOf(this.picked));
  }

  showTipOfPointed(measure) {
    const { x, y } = this.camera.projector()(this.pointed.at);
    this.showTip(this.pointed, x, y, measure);
  }

  typed(event) {
    const action = {
      ' ': () => this.pointOn(event.shiftKey ? -1 : 1),
      Home: () => this.reset(),
      // Else these are keys of the dialog around it.
      Enter: this.state.measure && (() => this.pickPointed()),
      Escape: this.picked.length > 0 && (() => this.pick()),
    }[event.key];
    const step = { ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, -1], ArrowDown: [0, 1] }[event.key];
    const zoom = event.ctrlKey ? undefined : { '+': 1.15, '-': 1 / 1.15 }[event.key];
    if (!action && !step && !zoom) return;
    event.preventDefault();
    this.tip.hidden = true;
    if (action) return action();
    if (zoom) return this.zoomBy(zoom);
    this.stopSpinning();
    this.camera.turnBy(step[0] * 0.12, step[1] * 0.12);
    this.request();
  }

  zoomBy(factor) {
    this.camera.zoomBy(factor);
    this.request();
  }

  stopSpinning() {
    this.awaits = false;
    if (!this.state.spin) return;
    this.state.spin = false;
    this.tell();
  }

  reset() {
    this.camera.reset();
    this.picked = [];
    this.state.spin = this.options.spin;
    this.spin.begin();
    this.look();
    this.tell();
  }

  /// The foremost atom at a place of the frame.
  atomAt(x, y) {
    const project = this.camera.projector();
    let found, nearest = -Infinity;
    for (const atom of this.molecule.atoms) {
      if (!this.isShown(atom)) continue;
      const place = project(atom.at);
      const { ball, space } = lookOf(atom.element);
      const radius = Math.max((this.state.style === 'spaces' ? space : ball) * place.scale, 5);
      if (place.z > nearest && Math.hypot(place.x - x, place.y - y) <= radius) [found, nearest] = [atom, place.z];
    }
    return found;
  }

  /// Names the atom beside a place, with a measure; hides the name when there is none.
  showTip(atom, x, y, measure) {
    this.tip.hidden = !atom;
    if (!atom) return;
    const number = this.molecule.atoms.indexOf(atom) + 1;
    this.tip.textContent = `${nameOf(atom.element)} (${atom.element}), άτομο ${number}${atom.note ? ', ' + atom.note : ''}` +
                           (measure ? ': ' + measure : '');
    this.tip.style.left = Math.max(2, Math.min(x + 12, innerWidth - this.tip.offsetWidth - 2)) + 'px';
    const below = y + 18;
    const isLow = below + this.tip.offsetHeight > innerHeight - 2;
    this.tip.style.top = (isLow ? y - this.tip.offsetHeight - 6 : below) + 'px';
  }

  // ---- drawing ----

  resize() {
    this.camera.resize(Math.max(innerWidth, 1), Math.max(innerHeight, 1));
    for (const layer of [this.drawing, this.overlay]) layer.resize(innerWidth, innerHeight, devicePixelRatio);
    this.request();
  }

  /// Whether it turns now: nobody would see it turn in a page that is scrolled away or behind a window.
  get isTurning() { return this.state.spin && this.isSeen && this.isInFront && !document.hidden; }

  watchSight() {
    new IntersectionObserver(([{ isIntersecting }]) => {
      this.isSeen = isIntersecting;
      this.request();
    }).observe(document.documentElement);
    document.addEventListener('visibilitychange', () => this.request());
  }

  setInFront(isInFront) {
    this.isInFront = isInFront;
    this.request();
  }

  request() {
    this.pending ??= requestAnimationFrame(time => { this.pending = undefined; this.step(time); });
  }

  step(time) {
    if (this.isTurning) this.turnOn(time);
    else this.spin.pause();
    this.draw();
  }

  turnOn(time) {
    this.camera.turn = multiply(aboutY(this.spin.advance(time)), this.camera.turn);
    if (this.spin.isOver) return this.stopSpinning();
    clearTimeout(this.next);
    this.next = setTimeout(() => this.request(), Spin.frameTime - 10);
  }

  draw() {
    this.drawing.draw(this.camera);
    this.overlay.draw(this.camera, { isShown: this.isShown, labels: this.state.labels, measure: this.state.measure, picked: this.picked });
  }

  picture() {
    const canvas = document.createElement('canvas');
    [canvas.width, canvas.height] = [innerWidth, innerHeight];
    const context = canvas.getContext('2d');
    for (const layer of [this.drawing.picture(this.camera), this.overlay.element]) {
      context.drawImage(layer, 0, 0, innerWidth, innerHeight);
    }
    return canvas.toDataURL();
  }
}

// ---- the page ----

function optionsOf() {
  const colour = query.get('bgcolor') ?? '';
  const still = matchMedia('(prefers-reduced-motion: reduce)').matches;
  return {
    background: /^#[0-9a-f]{6}$/i.test(colour) ? colour : '#000000',
    spin: /^(true|yes|1)$/i.test(query.get('spin') ?? '') && !still,
  };
}

function show(molecule) {
  const options = optionsOf();
  document.body.style.background = options.background;
  const viewer = new Viewer(molecule, options);
  viewer.tell();
  addEventListener('message', ({ data, source }) => {
    if (data?.moleculeSet) viewer.set(data.moleculeSet);
    if (typeof data?.pageInFront === 'boolean') viewer.setInFront(data.pageInFront);
    if (data?.moleculeAsk) source.postMessage({ moleculeState: viewer.state }, '*');
    if (data?.pluginPicture && data.pluginPicture === Number(query.get('plugin'))) {
      source.postMessage({ pluginPicture: data.pluginPicture, picture: viewer.picture() }, '*');
    }
  });
}

function fail(text) {
  const message = document.createElement('p');
  message.textContent = text;
  document.body.replaceChildren(message);
  addEventListener('message', ({ data, source }) => {
    if (data?.pluginPicture === Number(query.get('plugin'))) source.postMessage({ ...data, picture: 'none' }, '*');
  });
}

const request = new XMLHttpRequest();
request.open('GET', location.pathname + '?raw');
request.onload = () => {
  let molecule;
  try { molecule = centre(readMolecule(location.pathname, request.responseText)); } catch { return fail('Το αρχείο του μορίου δεν μπορεί να διαβαστεί.'); }
  show(molecule);
};
request.onprogress = ({ loaded }) => {
  if (loaded <= maxFileLength) return;
  request.abort();
  fail('Το αρχείο του μορίου είναι πολύ μεγάλο.');
};
request.onerror = () => fail('Το αρχείο του μορίου δεν βρέθηκε.');
request.send();
