// What someone typed wrong, told in Greek. `at` and `length` say where in `text`, when that is known.
export class Mistake extends Error {
  constructor(message, at = -1, length = 1) {
    super(message);
    this.at = at;
    this.length = length;
    this.text = '';
  }
}
