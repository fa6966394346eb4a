# A piston presses a gas to half its volume and to a third, slowly, so that the temperature stays. The particles do not
# grow faster, but they hit the end of the vessel more often; the point on the graph goes along the hyperbola.

function start(    i) {
    particles = 30
    for (i = 0; i < particles; i++) {
        R[i] = 2.6
        W[i] = 1
        X[i] = 30 + int(i / 5) * 24 + 6 * noise(i)
        Y[i] = 50 + i % 5 * 16 + 6 * noise(i + 100)
        warm(i, 40, 5000)
    }
}

# The volume in mL at the second t.
function volume(t) {
    return 60 - 30 * rise(t, 4, 8) - 10 * rise(t, 12, 15) + 40 * rise(t, 18, 22.5)
}

function draw(t, u,    v, end, i) {
    if (t == 0) start()
    v = volume(t)
    end = 24 + 2.7 * v
    now = t
    piston_speed = t == 0 ? 0 : (end - piston) * rate
    piston = end
    move_gas(1 / rate, 24, 44, end, 132)
    keep_warm()
    box(24, 44, end - 24, 88, "#f4f8fc", "none", 0)
    for (i = 0; i < particles; i++) circle(X[i], Y[i], R[i], "#3f7cc4", "#ffffff", 0.6)
    flashes()
    path("M200 42H24V134H200", "none", "#12366b", 2)
    box(end, 45, 8, 86, "#8fa3ba", "#12366b", 1.2)
    box(end + 8, 83, 154, 10, "#b8c4d2", "#12366b", 1)
    label(24, 26, "V = " decimal(v, 0) " mL", 16, "start", "#2460a7", "bold")
    label(124, 26, "p = " decimal(60 / v, 1) " atm", 16, "start", "#b3332d", "bold")
    label(232, 26, "θ = 20 °C", 14, "start", "#526070", "normal")
    hits_label(t)
    graph(v)
}

# Pressing is slow: the walls keep the temperature, so that the mean square of the velocities stays.
function keep_warm(    i, sum, k) {
    for (i = 0; i < particles; i++) sum += VX[i] ^ 2 + VY[i] ^ 2
    k = sqrt(particles * 10000 / sum)
    for (i = 0; i < particles; i++) { VX[i] *= k; VY[i] *= k }
}

function wall_hit(i, x, y) {
    if (x == piston && x != 24) VX[i] += 2 * piston_speed
    if (x != 24) return
    hits++
    hit_at[hits] = now
    hit_y[hits] = y
}

function flashes(    i, age) {
    for (i = hits; i > 0 && now - hit_at[i] < 0.5; i--) {
        age = (now - hit_at[i]) / 0.5
        path(sprintf("M24 %.2fL%.2f %.2fM24 %.2fL%.2f %.2fM24 %.2fH%.2f", hit_y[i] - 2, 24 - 8, hit_y[i] - 7,
                     hit_y[i] + 2, 24 - 8, hit_y[i] + 7, hit_y[i], 24 - 10), "none", age < 0.5 ? "#d6574e" : "#f0b5b0", 1.6)
    }
}

# Hits on the end of the vessel in the last four seconds, while the piston rests.
function hits_label(t,    i, number) {
    for (i = hits; i > 0 && t - hit_at[i] <= 4; i--) number++
    if (t >= 4) label(24, 152, sprintf("κρούσεις αριστερά σε 4 s: %d", number), 13, "start", "#b3332d", "normal")
}

function graph(v,    x, d) {
    axes(46, 222, 156, 58)
    for (x = 18; x <= 66; x++) d = d sprintf("%s%.2f %.2f", d == "" ? "M" : "L", 46 + 2.1 * x, 222 - 15.5 * 60 / x)
    path(d, "none", "#3f7cc4", 1.6)
    path(sprintf("M46 %.2fH%.2fV222", 222 - 15.5 * 60 / v, 46 + 2.1 * v), "none", "#b8c4d2", 1)
    circle(46 + 2.1 * v, 222 - 15.5 * 60 / v, 4, "#d6574e", "#ffffff", 1)
    label(40, 176, "p", 14, "end", "#b3332d", "bold")
    label(208, 227, "V", 14, "start", "#2460a7", "bold")
    label(226, 192, "p · V σταθερό:", 13, "start", "#12366b", "bold")
    label(226, 210, "60 atm · mL", 13, "start", "#12366b", "normal")
}

function met(i, j, speed) { return 0 }
