'use strict';
// What the pages of this folder share: they say what became of each attempt, and then have the title "done".

function say(what, outcome) {
  const line = document.createElement('p');
  line.textContent = what + ': ' + outcome;
  document.body.append(line);
}

const done = () => { document.title = 'done'; };

/// What is read from an address, or "refused".
const read = address => new Promise(resolve => {
  const request = new XMLHttpRequest();
  request.open('GET', address);
  request.onload = () => resolve(request.responseText);
  request.onerror = () => resolve('refused');
  request.send();
});
