# Nitrogen and oxygen are parted by a wall. It is drawn up, and they mix by their own motion; the graph counts the
# molecules of oxygen in the left half.

function start(    i) {
    particles = 48
    for (i = 0; i < particles; i++) {
        R[i] = 4.4
        W[i] = i < 24 ? 28 : 32
        X[i] = (i < 24 ? 38 : 178) + int(i % 24 / 4) * 21 + 4 * noise(i)
        Y[i] = 54 + i % 4 * 25 + 6 * noise(i + 100)
        warm(i, 3, 110000)
    }
}

function draw(t, u,    open, i, other, own) {
    if (t == 0) start()
    open = rise(t, 3, 4.2)
    if (open < 0.5) move_halves(1 / rate)
    else move_gas(1 / rate, 20, 40, 300, 148)
    box(20, 40, 280, 108, "#f4f8fc", "none", 0)
    for (i = 0; i < particles; i++) {
        circle(X[i], Y[i], R[i], i < 24 ? "#3f7cc4" : "#d6574e", "#ffffff", 0.6)
        if (X[i] < 160) i < 24 ? own++ : other++
    }
    path("M157.500 36H20V148H300V36H162.500", "none", "#12366b", 2)
    if (open < 1) box(158.5, 38 - 108 * open < 0 ? 0 : 38 - 108 * open, 3, (38 - 108 * open < 0 ? 146 - 108 * open : 108), "#4a5563", "none", 0)
    label(20, 20, "άζωτο N₂", 14, "start", "#2460a7", "bold")
    label(300, 20, "οξυγόνο O₂", 14, "end", "#b3332d", "bold")
    label(90, 166, sprintf("%d N₂ και %d O₂", own, other), 13, "middle", "#12366b", "normal")
    label(230, 166, sprintf("%d N₂ και %d O₂", 24 - own, 24 - other), 13, "middle", "#12366b", "normal")
    graph(t, other)
}

# While the wall stands each half is a vessel of its own.
function move_halves(dt,    i, half) {
    move_gas(dt, 20, 40, 300, 148)
    for (i = 0; i < particles; i++) {
        if (i < 24 && X[i] > 158.5 - R[i]) { X[i] = 158.5 - R[i]; VX[i] = -sqrt(VX[i] ^ 2) }
        if (i >= 24 && X[i] < 161.5 + R[i]) { X[i] = 161.5 + R[i]; VX[i] = sqrt(VX[i] ^ 2) }
    }
}

function graph(t, other) {
    curve = curve sprintf("%s%.2f %.2f", curve == "" ? "M" : "L", 100 + 8 * t, 222 - other * 2.2)
    path("M100 195.6H292", "none", "#b8c4d2", 1)
    axes(100, 222, 204, 52)
    path(curve, "none", "#d6574e", 1.6)
    label(94, 196, "O₂ στο", 12, "end", "#526070", "normal")
    label(94, 210, "αριστερό μισό", 12, "end", "#526070", "normal")
    label(304, 235, "χρόνος", 12, "end", "#526070", "normal")
    label(308, 200, "12", 12, "end", "#526070", "normal")
}

function wall_hit(i, x, y) { }
function met(i, j, speed) { return 0 }
