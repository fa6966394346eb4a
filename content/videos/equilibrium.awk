# N2O4 splits into NO2, two NO2 join when they meet. After some time the numbers stay about the same, while the molecules
# go on to split and to join: one atom is marked. TYPE: 1 a molecule of NO2, 2 the first and 0 the second of two that are
# joined to N2O4 (a disc that does not move by itself).

function start(    i) {
    particles = 26
    for (i = 0; i < particles; i++) {
        kind[i] = 2
        R[i] = 6.8
        W[i] = 92
        mark[i] = i == 3 ? 1 : 0
        X[i] = 34 + i % 7 * 24 + 6 * noise(i)
        Y[i] = 54 + int(i / 7) * 26 + 5 * noise(i + 60)
        turn[i] = 6.28 * noise(i + 9)
        warm(i, 70, 160000)
        life[i] = 1.5 + lifetime()
    }
}

# The time after which a molecule of N2O4 splits: the same chance in each moment, 14 s on average.
function lifetime() {
    return -14 * log(1 - noise(++asked * 7.31))
}

function draw(t, u,    i, brown, pairs, singles) {
    if (t == 0) start()
    now = t
    joining = 0
    move_gas(1 / rate, 22.6, 42.6, 193.4, 149.4)
    part(t)
    for (i = 0; i < particles; i++) kind[i] == 2 ? pairs++ : singles++
    brown = singles / 52
    box(20, 40, 176, 112, sprintf("rgb(%d,%d,%d)", 255 - 30 * brown, 252 - 72 * brown, 246 - 140 * brown), "#12366b", 2)
    for (i = 0; i < particles; i++) molecule(i, t)
    label(20, 24, "N₂O₄ ⇌ 2 NO₂", 17, "start", "#12366b", "bold")
    label(206, 52, sprintf("N₂O₄: %d", pairs), 15, "start", "#2460a7", "bold")
    label(206, 70, sprintf("NO₂: %d", singles), 15, "start", "#a8641c", "bold")
    label(206, 92, "μέσα σε 4 s", 12, "start", "#526070", "normal")
    label(206, 107, sprintf("διασπάσεις: %d", recent(splits, split_number, t)), 12, "start", "#12366b", "normal")
    label(206, 122, sprintf("ενώσεις: %d", recent(joins, join_number, t)), 12, "start", "#12366b", "normal")
    circle(211, 138, 4, "#ffd84a", "#12366b", 0.8)
    label(219, 142, "το ίδιο άτομο", 12, "start", "#526070", "normal")
    if (t > 14) label(176, 24, "ισορροπία", 15, "start", "#3c8a4e", "bold")
    graph(t, pairs, singles)
}

# How many of the times lie in the last four seconds.
function recent(times, number, t,    i) {
    for (i = number; i > 0 && t - times[i] <= 4; i--) { }
    return number - i
}

function molecule(i, t,    a, dx, dy) {
    a = turn[i] + 0.8 * t * (noise(i + 33) - 0.5) * 2
    dx = cos(a); dy = sin(a)
    if (kind[i] == 2) {
        nitro(X[i] + 3.4 * dx, Y[i] + 3.4 * dy, a, mark[i] > 0)
        nitro(X[i] - 3.4 * dx, Y[i] - 3.4 * dy, a + pi, mark[i] > 1)
    } else nitro(X[i], Y[i], a, mark[i] > 0)
}

# A group NO2: the oxygens stand away on the side of the angle a.
function nitro(x, y, a, marked,    s) {
    for (s = -1; s <= 1; s += 2)
        circle(x + 4 * cos(a + s * 1.1), y + 4 * sin(a + s * 1.1), 3.1, "#d6574e", "#7a2a24", 0.7)
    circle(x, y, 3.3, marked ? "#ffd84a" : "#3f7cc4", "#12366b", 0.8)
}

# Those whose time is over part into two molecules that fly away from each other.
function part(t,    i, last, a, s) {
    last = particles
    for (i = 0; i < last; i++) {
        if (kind[i] != 2 || t < life[i]) continue
        a = turn[i] + 0.8 * t * (noise(i + 33) - 0.5) * 2
        s = particles++
        kind[i] = kind[s] = 1
        splits[++split_number] = t
        R[i] = R[s] = 5
        W[i] = W[s] = 46
        mark[s] = mark[i] > 1 ? 1 : 0
        mark[i] = mark[i] > 0 ? 1 : 0
        X[s] = X[i] - 5.1 * cos(a); Y[s] = Y[i] - 5.1 * sin(a)
        X[i] += 5.1 * cos(a); Y[i] += 5.1 * sin(a)
        VX[s] = VX[i] - 40 * cos(a); VY[s] = VY[i] - 40 * sin(a)
        VX[i] += 40 * cos(a); VY[i] += 40 * sin(a)
        turn[i] = a; turn[s] = a + pi
        born[i] = born[s] = t
    }
}

# Two molecules of NO2 that meet join now and then; where one is taken away the last takes its place.
function met(i, j, speed,    last) {
    if (kind[i] != 1 || kind[j] != 1 || joining) return 0
    if (now - born[i] < 1 || now - born[j] < 1 || noise(++tried * 3.77) > 0.15) return 0
    joining = 1
    turn[j] = atan2(Y[i] - Y[j], X[i] - X[j]) - 0.8 * now * (noise(j + 33) - 0.5) * 2
    kind[j] = 2
    R[j] = 6.8
    joins[++join_number] = now
    W[j] = 92
    # The group with the mark stands first.
    if (mark[j] && !mark[i]) turn[j] += pi
    mark[j] = mark[i] + mark[j]
    X[j] = (X[i] + X[j]) / 2; Y[j] = (Y[i] + Y[j]) / 2
    VX[j] = (VX[i] + VX[j]) / 2; VY[j] = (VY[i] + VY[j]) / 2
    life[j] = now + lifetime()
    last = --particles
    kind[i] = kind[last]; R[i] = R[last]; W[i] = W[last]; mark[i] = mark[last]; turn[i] = turn[last]
    X[i] = X[last]; Y[i] = Y[last]; VX[i] = VX[last]; VY[i] = VY[last]; life[i] = life[last]; born[i] = born[last]
    return 1
}

function wall_hit(i, x, y) { }

function graph(t, pairs, singles) {
    pairs_curve = pairs_curve sprintf("%s%.2f %.2f", t == 0 ? "M" : "L", 56 + 8.2 * t, 222 - pairs * 2)
    singles_curve = singles_curve sprintf("%s%.2f %.2f", t == 0 ? "M" : "L", 56 + 8.2 * t, 222 - singles * 2)
    axes(56, 222, 248, 60)
    path(pairs_curve, "none", "#2460a7", 1.6)
    path(singles_curve, "none", "#a8641c", 1.6)
    label(50, 176, "πλήθος", 12, "end", "#526070", "normal")
    label(304, 235, "χρόνος", 12, "end", "#526070", "normal")
}
