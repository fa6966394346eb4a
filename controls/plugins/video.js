'use strict';

// The player of an embedded video. Files that the engine cannot play come converted (converted-video.js).

const shapes = {
  play: 'M2 0.5 L9 5 L2 9.5 Z',
  pause: 'M1.5 0.5 H4 V9.5 H1.5 Z M6 0.5 H8.5 V9.5 H6 Z',
  sound: 'M0 3 H2.2 L5 0.6 V9.4 L2.2 7 H0 Z M6.4 2.6 Q8.3 5 6.4 7.4 L7.2 8 Q9.6 5 7.2 2 Z',
  silent: 'M0 3 H2.2 L5 0.6 V9.4 L2.2 7 H0 Z M6 3.6 L6.6 3 L10 6.4 L9.4 7 Z M9.4 3 L10 3.6 L6.6 7 L6 6.4 Z',
};
const playable = /\.(webm|mp4|m4v|ogv)$/i;
const [video, strip, play, position, time, whole, sound] =
  ['video', '#strip', '#play', '#position', '#time', '#whole', '#sound'].map(name => document.querySelector(name));
const query = new URLSearchParams(location.search);
const isOn = name => /^(true|yes|1)$/i.test(query.get(name) ?? '');
// As the reader wants it; the engine stops a film that it cannot go on with.
let isToPlay = isOn('autoplay');
let hasFailed = false;

// ---- the strip ----

function label(button, shape, text) {
  button.querySelector('path').setAttribute('d', shape);
  button.title = text;
  button.setAttribute('aria-label', text);
}

function showState() {
  label(play, video.paused ? shapes.play : shapes.pause, video.paused ? 'Αναπαραγωγή' : 'Παύση');
  label(sound, video.muted ? shapes.silent : shapes.sound, video.muted ? 'Με ήχο' : 'Χωρίς ήχο');
}

const clock = seconds => Math.floor(seconds / 60) + ':' + String(Math.floor(seconds) % 60).padStart(2, '0');

function showPosition() {
  const { duration } = video;
  const known = duration > 0 && Number.isFinite(duration);
  const share = known ? Math.min(video.currentTime / duration, 1) : 0;
  position.disabled = !known;
  position.value = share;
  position.style.setProperty('--done', share * 100 + '%');
  position.title = known ? clock(video.currentTime) + ' από ' + clock(duration) : '';
  position.setAttribute('aria-valuetext', position.title);
  time.textContent = clock(video.currentTime);
  whole.textContent = known ? ' / ' + clock(duration) : '';
}

function toggle() {
  isToPlay = video.paused;
  if (video.paused) video.play().catch(showState); else video.pause();
}

/// Arrow keys go on or back by a second, in a long film by a sixtieth of it; the strip's own steps are for the mouse.
function typed(event) {
  const direction = { ArrowRight: 1, ArrowUp: 1, ArrowLeft: -1, ArrowDown: -1 }[event.key];
  if (!direction) return;
  event.preventDefault();
  video.currentTime += direction * Math.max(1, video.duration / 60);
}

// ---- size of the picture ----

/// SCALE is a number, by which the video's own size is multiplied, ASPECT or TOFIT. The picture never gets larger
/// than the frame; without SCALE it fills the frame as far as its shape allows.
function fit() {
  const scale = query.get('scale') ?? '';
  video.classList.toggle('fill', /^tofit$/i.test(scale));
  const factor = Number(scale);
  const room = Math.min(innerWidth / video.videoWidth, (innerHeight - strip.offsetHeight) / video.videoHeight);
  const isSized = factor > 0 && factor < room;
  video.classList.toggle('sized', isSized);
  video.style.height = isSized ? video.videoHeight * factor + 'px' : '';
}

// ---- failing, and the picture for the program ----

function fail(text = 'Το βίντεο δεν μπορεί να προβληθεί.') {
  const message = document.createElement('p');
  message.textContent = text;
  document.body.replaceChildren(message);
  hasFailed = true;
}

/// What is seen of the video, without the strip.
function picture() {
  const canvas = document.createElement('canvas');
  canvas.width = innerWidth;
  canvas.height = innerHeight - strip.offsetHeight;
  const context = canvas.getContext('2d');
  context.fillRect(0, 0, canvas.width, canvas.height);
  const box = video.getBoundingClientRect();
  const isFilling = video.classList.contains('fill');
  const scale = Math.min(box.width / video.videoWidth, box.height / video.videoHeight);
  const [width, height] = isFilling ? [box.width, box.height] : [video.videoWidth * scale, video.videoHeight * scale];
  context.drawImage(video, box.left + (box.width - width) / 2, box.top + (box.height - height) / 2, width, height);
  return canvas.toDataURL();
}

addEventListener('message', ({ data, source }) => {
  if (data?.pluginPicture !== Number(query.get('plugin'))) return;
  if (!hasFailed && video.readyState < HTMLMediaElement.HAVE_CURRENT_DATA) return;
  source.postMessage({ pluginPicture: data.pluginPicture, picture: hasFailed ? 'none' : picture() }, '*');
});

play.addEventListener('click', toggle);
video.addEventListener('click', toggle);
sound.addEventListener('click', () => { video.muted = !video.muted; });
position.addEventListener('input', () => { video.currentTime = position.value * video.duration; });
position.addEventListener('keydown', typed);
for (const change of ['play', 'pause', 'ended', 'volumechange', 'loadedmetadata']) video.addEventListener(change, showState);
for (const change of ['timeupdate', 'seeked', 'durationchange']) video.addEventListener(change, showPosition);
for (const change of ['loadedmetadata', 'resize']) video.addEventListener(change, fit);
addEventListener('resize', fit);

// ---- the file ----

/// Lets the engine play it, and has it converted, once, when the engine cannot, from where it came to a stop: a name
/// does not tell what is in the file.
function playOrConvert() {
  const trial = new AbortController();
  const { signal } = trial;
  const convert = noPictures => {
    trial.abort();
    video.autoplay = isToPlay;
    playConverted(video, fail, noPictures, video.currentTime);
  };
  video.addEventListener('error', () => convert(fail), { signal });
  video.addEventListener('loadedmetadata', () => {
    if (video.videoWidth > 0) return;
    // The engine tells no error when it reads the sound alone. What does not begin to play waits for its pictures.
    video.pause();
    convert(() => { if (video.autoplay) video.play().catch(showState); });
  }, { signal });
  video.src = location.pathname + '?raw';
}

video.loop = isOn('loop');
video.autoplay = isToPlay;
if (playable.test(location.pathname)) {
  playOrConvert();
} else {
  playConverted(video, fail);
}
showState();
showPosition();
