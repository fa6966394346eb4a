# A crystal of sodium chloride in water: the molecules of water turn to the ions, take them away from its edge one by one
# and stay round them. Water and ions drift as little discs that push each other; near an ion that has left, water is drawn
# to it and turns its oxygen to sodium, its hydrogens to chloride.

function start(    i, row, column) {
    ions = 0
    for (row = 0; row < 3; row++)
        for (column = 0; column < 6; column++) {
            i = ions++
            positive[i] = (row + column) % 2
            homeX[i] = 108 + column * 21
            homeY[i] = 219 - row * 21
            X[i] = homeX[i]; Y[i] = homeY[i]
            R[i] = positive[i] ? 7 : 12
            leaves[i] = 1000
        }
    # Corners and edges first.
    leave(17, 0, 284, 142)
    leave(12, 1, 44, 122)
    leave(16, 2, 232, 68)
    leave(13, 3, 90, 72)
    leave(15, 4, 190, 116)
    leave(14, 5, 142, 72)
    leave(6, 6, 94, 134)
    leave(11, 7, 282, 68)
    waters = 0
    for (row = 0; row < 8; row++)
        for (column = 0; column < 13; column++) {
            if (row > 4 && column > 2 && column < 10) continue
            i = ions + waters++
            X[i] = 24 + column * 22 + (row % 2) * 9 + 4 * noise(i)
            Y[i] = 52 + row * 23 + 3 * noise(i + 300)
            R[i] = 7.2
            angle[i] = 6.28 * noise(i + 77)
        }
}

function leave(i, order, x, y) {
    leaves[i] = 2.5 + order * 2.4
    goalX[i] = x
    goalY[i] = y
}

function draw(t, u,    i, free) {
    if (t == 0) { start(); for (i = 0; i < 60; i++) drift((i - 60) / rate, 1 / rate) }
    drift(t, 1 / rate)
    path("M14 40H306V232H14Z", "#eef5fb", "none", 0)
    for (i = ions; i < ions + waters; i++) water(X[i], Y[i], angle[i])
    for (i = 0; i < ions; i++) {
        if (positive[i]) ion(X[i], Y[i], 7, "#f3d9a8", "Na⁺", 7)
        else ion(X[i], Y[i], 12, "#c3e3c8", "Cl⁻", 9)
        if (t > leaves[i] + 1) free++
    }
    path("M14 34V232H306V34", "none", "#12366b", 2)
    label(14, 22, "NaCl → Na⁺ + Cl⁻", 16, "start", "#12366b", "bold")
    label(306, 22, free ? "ελεύθερα ιόντα: " free : t > 2.5 ? "" : "κρύσταλλος στο νερό", 13, "end", "#526070", "normal")
}

function water(x, y, a,    s) {
    for (s = -1; s <= 1; s += 2)
        circle(x + 4.6 * cos(a + s * 0.91), y + 4.6 * sin(a + s * 0.91), 2.6, "#ffffff", "#7d8b9a", 0.7)
    circle(x, y, 4.2, "#d6574e", "#8c2f28", 0.7)
}

# One step: the ions that have left go to their places, water wanders, all keep apart.
function drift(t, dt,    i, j, k, dx, dy, d, pass, push, near, best, turn) {
    for (i = 0; i < ions; i++) {
        if (t < leaves[i]) { X[i] = homeX[i] + 0.7 * sin(9 * t + 5 * i); Y[i] = homeY[i] + 0.7 * cos(8 * t + 3 * i); continue }
        dx = goalX[i] - X[i]; dy = goalY[i] - Y[i]
        d = sqrt(dx * dx + dy * dy) + 0.01
        push = 24 * dt * (d > 30 ? 1 : d / 30)
        X[i] += dx / d * push + 4 * dt * sin(2 * t + i)
        Y[i] += dy / d * push + 4 * dt * cos(1.7 * t + 2 * i)
    }
    for (i = ions; i < ions + waters; i++) {
        if (i == ions) count_shells()
        k = i - ions
        X[i] += 16 * dt * sin(t * (1 + noise(i)) + 6.28 * noise(i + 11) + 2 * sin(0.7 * t + k))
        Y[i] += 16 * dt * cos(t * (1 + noise(i + 5)) + 6.28 * noise(i + 13) + 2 * sin(0.6 * t + 2 * k))
        near = 34; best = -1
        for (j = 0; j < ions; j++) {
            dx = X[j] - X[i]; dy = Y[j] - Y[i]
            d = sqrt(dx * dx + dy * dy)
            if (d - R[j] < near) { near = d - R[j]; best = j }
        }
        if (best >= 0 && near < 24) {
            dx = X[best] - X[i]; dy = Y[best] - Y[i]
            d = sqrt(dx * dx + dy * dy)
            if (t >= leaves[best] - 1 && (near < 10 || shell[best] < (positive[best] ? 6 : 8))) { X[i] += dx / d * 40 * dt; Y[i] += dy / d * 40 * dt }
            # The angle tells where the hydrogens point: away from sodium, one of them to chloride.
            turn = atan2(dy, dx) + (positive[best] ? pi : 0.91 * (noise(i) < 0.5 ? 1 : -1)) - angle[i]
            turn -= 2 * pi * floor(turn / (2 * pi) + 0.5)
            angle[i] += turn * (4 * dt > 1 ? 1 : 4 * dt)
        } else angle[i] += dt * 2.4 * sin(1.3 * t + 6.28 * noise(i + 17))
    }
    for (pass = 0; pass < 5; pass++) {
        for (i = ions; i < ions + waters; i++)
            for (j = 0; j < i; j++) apart(i, j)
        for (i = ions; i < ions + waters; i++) {
            if (X[i] < 23) X[i] = 23
            if (X[i] > 297) X[i] = 297
            if (Y[i] < 48) Y[i] = 48
            if (Y[i] > 223) Y[i] = 223
        }
    }
}

# How many molecules of water touch each ion: there is room for a few only.
function count_shells(    i, j) {
    for (j = 0; j < ions; j++) {
        shell[j] = 0
        for (i = ions; i < ions + waters; i++)
            if ((X[i] - X[j]) ^ 2 + (Y[i] - Y[j]) ^ 2 < (R[j] + 10) ^ 2) shell[j]++
    }
}

# Only water gives way to ions.
function apart(i, j,    dx, dy, least, d, push) {
    dx = X[i] - X[j]
    least = R[i] + R[j] + (j < ions ? -1 : 0)
    if (dx > 22 || dx < -22) return
    dy = Y[i] - Y[j]
    if (dy > 22 || dy < -22) return
    d = sqrt(dx * dx + dy * dy)
    if (d == 0) return
    # Water spreads over the room that there is.
    if (d >= least && j >= ions && d < 22) {
        X[i] += dx / d * 0.06; Y[i] += dy / d * 0.06
        X[j] -= dx / d * 0.06; Y[j] -= dy / d * 0.06
    }
    if (d >= least) return
    push = (least - d) / d
    if (j < ions) { X[i] += dx * push; Y[i] += dy * push; return }
    X[i] += dx * push / 2; Y[i] += dy * push / 2
    X[j] -= dx * push / 2; Y[j] -= dy * push / 2
}
