'use strict';

// Plays a video that the engine cannot read: it is converted in parts of some seconds, a little ahead of where it
// plays, and each part is a film of its own that is put in its place.

const firstPart = 2;    // seconds; short, so that it begins soon
const laterPart = 8;
const ahead = 12;       // seconds that are kept ready before the place on show
const behind = 30;      // and behind it

// The engine lets requests for the same address wait for each other, and a page may show a video twice.
const frameOfPage = 'plugin=' + new URLSearchParams(location.search).get('plugin');

const kindsIn = description => (description.streams ?? []).map(stream => stream.codec_type);

class ConvertedVideo {
  constructor(video, description, fail, from) {
    this.video = video;
    this.fail = fail;
    this.next = from;
    this.duration = Number(description.format?.duration);
    this.type = kindsIn(description).includes('audio') ? 'video/webm; codecs="vp8,vorbis"' : 'video/webm; codecs="vp8"';
    this.media = new MediaSource();
    this.media.addEventListener('sourceopen', () => this.opened(), { once: true });
    video.src = URL.createObjectURL(this.media);
    video.currentTime = from;
  }

  opened() {
    if (this.duration > 0) this.media.duration = this.duration;
    this.buffer = this.media.addSourceBuffer(this.type);
    this.buffer.addEventListener('updateend', () => this.goOn());
    this.video.addEventListener('timeupdate', () => this.goOn());
    this.video.addEventListener('seeking', () => this.moved());
    this.video.addEventListener('error', () => this.fail());
    this.goOn();
  }

  isReady(second) {
    const { buffered } = this.buffer;
    for (let i = 0; i < buffered.length; ++i) {
      if (second >= buffered.start(i) - 0.05 && second < buffered.end(i)) return true;
    }
    return false;
  }

  /// The film is on show at another place. Converting goes on from there, or behind what has been converted there.
  moved() {
    // Its end is told while it is aborted, and must not count.
    const { request } = this;
    this.request = undefined;
    request?.abort();
    const { buffered } = this.buffer;
    let from = this.video.currentTime;
    for (let i = 0; i < buffered.length; ++i) {
      if (from >= buffered.start(i) - 0.05 && from < buffered.end(i)) from = buffered.end(i);
    }
    this.next = from;
    this.complete = this.duration > 0 && from >= this.duration - 0.1;
    this.goOn();
  }

  goOn() {
    const { buffer, video } = this;
    if (this.request || buffer.updating) return;
    if (buffer.buffered.length > 0 && video.currentTime - buffer.buffered.start(0) > 2 * behind) {
      return buffer.remove(0, video.currentTime - behind);
    }
    if (this.complete) {
      if (this.media.readyState === 'open') this.media.endOfStream();
    } else if (this.next - video.currentTime < ahead) {
      this.ask(this.next, this.isReady(video.currentTime) ? laterPart : firstPart);
    }
  }

  ask(from, length) {
    const request = new XMLHttpRequest();
    this.request = request;
    request.open('GET', `${location.pathname}?from=${from}&length=${length}&${frameOfPage}`);
    request.responseType = 'arraybuffer';
    request.onloadend = () => {
      if (this.request !== request) return;
      this.request = undefined;
      this.came(request.response, from, length);
    };
    request.send();
  }

  came(part, from, length) {
    const isEmpty = !(part?.byteLength > 0);
    if (isEmpty && from === 0) return this.fail();
    this.next = from + length;
    this.complete = isEmpty || this.next >= this.duration;
    if (isEmpty) return this.goOn();
    this.buffer.timestampOffset = from;
    this.buffer.appendBuffer(part);
  }
}

/// Plays the file of this frame in the video element; calls `fail` when it cannot be played, with a text of its own
/// when there is no file, and `noPictures` when there is no video in it. `from` is the second that it begins at.
function playConverted(video, fail, noPictures = fail, from = 0) {
  const request = new XMLHttpRequest();
  request.open('GET', location.pathname + '?describe&' + frameOfPage);
  request.onerror = () => fail('Το βίντεο δεν βρέθηκε.');
  request.onload = () => {
    let description;
    try { description = JSON.parse(request.responseText); } catch { return fail(); }
    if (!kindsIn(description).includes('video')) return noPictures();
    new ConvertedVideo(video, description, fail, from);
  };
  request.send();
}
