// Tables of cases for the tests of the tools.

import assert from 'node:assert/strict';
import test from 'node:test';

// The exports of a tool's script.
export const tool = path => import(`${process.env.TOOLS}/${path}`);

// One test for a table: what `act` makes of the arguments of each row is its last cell.
export function table(name, act, rows) {
  test(name, () => {
    for (const row of rows) assert.deepEqual(act(...row.slice(0, -1)), row.at(-1), JSON.stringify(row));
  });
}

// One test for a table of wrong inputs: the message holds the last cell of the row; a text before it is the part that
// is marked as wrong.
export function mistakes(name, act, rows) {
  test(name, () => {
    for (const [typed, message, marked] of rows) {
      assert.throws(() => act(typed), mistake => {
        assert.ok(mistake.message.includes(message), `${typed}: ${mistake.message}`);
        if (marked) assert.equal(mistake.text.substr(mistake.at, mistake.length), marked, typed);
        return true;
      });
    }
  });
}
