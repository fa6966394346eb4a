# Water in an open vessel is heated. At first molecules leave from the surface only; at the boiling point bubbles of vapour
# grow inside. STATE of a particle: 0 in the liquid, 1 in a bubble, 2 in the air.

function start(    i) {
    particles = 98
    for (i = 0; i < particles; i++) {
        X[i] = 48 + i % 14 * 13 + (int(i / 14) % 2) * 5
        Y[i] = 189 - int(i / 14) * 11.4
        state[i] = 0
    }
    next_leave = 1.6
    next_bubble = 11.4
}

# Room temperature at first, 100 degrees from the tenth second on.
function degrees(t) { return t < 2 ? 20 : t < 10.5 ? 20 + 80 * (t - 2) / 8.5 : 100 }

function draw(t, u,    i, pass, air, liquid) {
    if (t == 0) { start(); for (pass = 0; pass < 15; pass++) liquid_step(-1 + pass / 15, 1 / rate) }
    if (t > next_leave) { evaporate(t); next_leave = t + (t < 5 ? 1.8 : t < 10.5 ? 1 : 0.8) }
    if (t > next_bubble && t < 24) { bubble(t); next_bubble = t + 2 }
    liquid_step(t, 1 / rate)
    for (i = 0; i < particles; i++) {
        if (state[i] == 2) { X[i] += VX[i] / rate; Y[i] += VY[i] / rate; air++ }
        if (state[i] == 2 && Y[i] > 40) bounce_in_vessel(i)
    }
    path("M40 60V198H232V60", "none", "#12366b", 2)
    for (i = 0; i < bubbles; i++)
        if (bubble_on[i]) circle(bubble_x[i], bubble_y[i], bubble_r[i], "#f4f8fc", "#6fa8d6", 1.2)
    for (i = 0; i < particles; i++)
        circle(X[i], Y[i], 5.4, state[i] ? "#e8923a" : "#3f7cc4", "#ffffff", 0.8)
    flame(t, 136)
    thermometer(degrees(t))
    box(0, 0, 320, 52, "#ffffff", "none", 0)
    label(14, 24, t < 10.5 ? "εξάτμιση: μόνο από την επιφάνεια" : "βρασμός: φυσαλίδες σε όλο το υγρό", 15, "start", "#12366b", "bold")
    circle(20, 42, 5, "#e8923a", "#ffffff", 0.8)
    label(30, 46, "μόρια ατμού", 12, "start", "#526070", "normal")
}

# The uppermost one leaves.
function evaporate(t,    i, best) {
    best = -1
    for (i = 0; i < particles; i++)
        if (!state[i] && X[i] > 56 && X[i] < 216 && (best < 0 || Y[i] - 9 * noise(i + int(t * 3)) < Y[best] - 9 * noise(best + int(t * 3)))) best = i
    free(best, -26 - 14 * noise(int(t * 10)), 24 * (noise(int(t * 7)) - 0.5))
}

function free(i, vy, vx) { state[i] = 2; VX[i] = vx; VY[i] = vy }

function bounce_in_vessel(i) {
    if (X[i] < 46 && VX[i] < 0 && Y[i] > 60) VX[i] = -VX[i]
    if (X[i] > 226 && VX[i] > 0 && Y[i] > 60) VX[i] = -VX[i]
}

# A bubble begins at the bottom: the four molecules that are nearest become vapour.
function bubble(t,    b, n, i, best, x) {
    b = bubbles++
    x = 70 + 132 * noise(b * 5.3 + 2)
    bubble_on[b] = 1
    bubble_x[b] = x; bubble_y[b] = 188; bubble_r[b] = 5; bubble_from[b] = t
    for (n = 0; n < 4; n++) {
        best = -1
        for (i = 0; i < particles; i++)
            if (!state[i] && (best < 0 || (X[i] - x) ^ 2 + (Y[i] - 188) ^ 2 < (X[best] - x) ^ 2 + (Y[best] - 188) ^ 2)) best = i
        state[best] = 1
        inside[best] = b
        seat[best] = n
    }
}

function surface(    i, n, sum) {
    # The height of the liquid, from the number of particles that are left in it.
    for (i = 0; i < particles; i++) if (state[i] != 2) n++
    return 195 - n / 14.6 * 11.2
}

function liquid_step(t, dt,    i, j, b, top, hot, pass, dx, dy, d, a, r) {
    hot = (degrees(t) - 20) / 80
    top = surface()
    for (b = 0; b < bubbles; b++) {
        if (!bubble_on[b]) continue
        bubble_r[b] = 5 + 13 * rise(t - bubble_from[b], 0, 1.6)
        if (t - bubble_from[b] > 0.6) bubble_y[b] -= 30 * dt * rise(t - bubble_from[b], 0.6, 2)
        if (bubble_y[b] + bubble_r[b] > 196) bubble_y[b] = 196 - bubble_r[b]
        if (bubble_y[b] - bubble_r[b] < top - 4) {
            bubble_on[b] = 0
            for (i = 0; i < particles; i++)
                if (state[i] == 1 && inside[i] == b) free(i, -30 - 16 * noise(i), 40 * (noise(i + 60) - 0.5))
        }
    }
    for (i = 0; i < particles; i++) {
        if (state[i] == 1) {
            b = inside[i]
            a = seat[i] * pi / 2 + 1.5 * t
            r = (bubble_r[b] - 6) * (0.55 + 0.45 * sin(5 * t + 2 * seat[i]))
            if (r < 0) r = 0
            dx = bubble_x[b] + r * cos(a) - X[i]; dy = bubble_y[b] + r * sin(a) - Y[i]
            X[i] += dx * 0.5; Y[i] += dy * 0.5
        } else if (!state[i]) {
            X[i] += (18 + 34 * hot) * dt * sin(t * (3 + 4 * noise(i)) + 6.28 * noise(i + 30))
            Y[i] += (18 + 34 * hot) * dt * cos(t * (3 + 4 * noise(i + 9)) + 6.28 * noise(i + 50)) + 26 * dt
        }
    }
    for (pass = 0; pass < 8; pass++) {
        for (i = 0; i < particles; i++) {
            if (state[i]) continue
            for (j = 0; j < i; j++) {
                if (state[j]) continue
                dx = X[i] - X[j]; dy = Y[i] - Y[j]
                if (dx > 12 || dx < -12 || dy > 12 || dy < -12) continue
                d = sqrt(dx * dx + dy * dy)
                if (d >= 12 || d == 0) continue
                d = (12 - d) / d / 2
                X[i] += dx * d; Y[i] += dy * d
                X[j] -= dx * d; Y[j] -= dy * d
            }
            for (b = 0; b < bubbles; b++) {
                if (!bubble_on[b]) continue
                dx = X[i] - bubble_x[b]; dy = Y[i] - bubble_y[b]
                d = sqrt(dx * dx + dy * dy)
                if (d >= bubble_r[b] + 5.6 || d == 0) continue
                d = (bubble_r[b] + 5.6 - d) / d
                X[i] += dx * d; Y[i] += dy * d
            }
            if (X[i] < 46.600) X[i] = 46.6
            if (X[i] > 225.400) X[i] = 225.4
            if (Y[i] > 191.400) Y[i] = 191.4
        }
    }
}

function flame(t, x,    h) {
    if (t < 2) return
    h = 18 + 2 * sin(2 * pi * 2 * t)
    path(sprintf("M%d 232C%d 226 %d 218 %d %.1fC%d 218 %d 226 %d 232Z", x, x - 13, x - 7, x, 226 - h, x + 7, x + 13, x), "#e8923a", "none", 0)
    box(x - 34, 232, 68, 4, "#4a5563", "none", 0)
}

function thermometer(c,    level) {
    level = 100 * (c - 20) / 100
    path("M264 62a6 6 0 0 1 12 0V178a13 13 0 1 1 -12 0Z", "#ffffff", "#12366b", 1.5)
    circle(270, 189, 9, "#d6574e", "none", 0)
    box(267.5, 164 - level, 5, 27 + level, "#d6574e", "none", 0)
    path("M278 84h8M278 164h8", "none", "#526070", 1)
    label(290, 88, "100", 12, "start", "#526070", c >= 100 ? "bold" : "normal")
    label(290, 168, "20", 12, "start", "#526070", "normal")
    label(272, 222, sprintf("%d °C", c), 16, "middle", "#b3332d", "bold")
}
