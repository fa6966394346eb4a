'use strict';

/// How a molecule turns by itself: calmly, in no more pictures than look smooth, and only a few times round.
class Spin {
  static speed = 0.35;      // radians a second
  static frameTime = 60;    // milliseconds between pictures
  static turns = 3;

  constructor() { this.begin(); }

  begin() {
    this.turned = 0;
    this.pause();
  }

  /// Time passes without it until the next picture.
  pause() { this.lastTime = undefined; }

  get isOver() { return this.turned >= Spin.turns * 2 * Math.PI; }

  /// The angle between the last picture and one at that time, in milliseconds; pictures that came late are no jump.
  advance(time) {
    const passed = Math.min(time - (this.lastTime ?? time), 2 * Spin.frameTime);
    this.lastTime = time;
    const angle = passed / 1000 * Spin.speed;
    this.turned += angle;
    return angle;
  }
}
