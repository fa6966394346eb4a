fetch('http://@TCP@/w').catch(() => {});
new WebSocket('ws://@TCP@/');
