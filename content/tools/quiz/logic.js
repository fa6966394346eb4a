// Keeps what was answered in a quiz. A question counts as found when the first answer to it was right.

export class Score {
  constructor(questions) {
    // For each question: null before its first answer, then whether that was right.
    this.first = Array(questions).fill(null);
    this.isSolved = Array(questions).fill(false);
  }

  answer(question, isRight) {
    this.first[question] ??= isRight;
    this.isSolved[question] ||= isRight;
  }

  get isComplete() {
    return this.isSolved.every(solved => solved);
  }

  get found() {
    return this.first.filter(right => right).length;
  }

  // What to tell the reader at the end.
  get summary() {
    const all = this.first.length;
    if (this.found === all)
      return all === 1 ? 'Τη βρήκες με την πρώτη.' : `Βρήκες και τις ${all} ερωτήσεις με την πρώτη.`;
    if (this.found === 0)
      return 'Απάντησες σε όλες, καμία όμως με την πρώτη. Διάβασε ξανά τις εξηγήσεις και ξαναδοκίμασε.';
    return `Βρήκες με την πρώτη ${this.found} από τις ${all} ερωτήσεις.`;
  }
}
