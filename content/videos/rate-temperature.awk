# The same gas at a lower and at a higher temperature. All collisions are counted, and those in which the speed along the
# line between the two is enough to react (here shown with a flash; nothing is changed by them, so that both stay comparable).
# The curves are those of a gas at the two temperatures.

function start(    i) {
    particles = 60
    for (i = 0; i < particles; i++) {
        hot[i] = i >= 30
        R[i] = 4.2
        W[i] = 1
        X[i] = 24 + (hot[i] ? 148 : 0) + i % 6 * 20 + 5 * noise(i)
        Y[i] = 52 + int(i % 30 / 6) * 15 + 4 * noise(i + 100)
        warm(i, 90, hot[i] ? 2600 : 2000)
    }
    settle(0, 2000)
    settle(30, 2600)
}

# Gives the thirty from `first` on exactly the mean energy of their temperature.
function settle(first, heat,    i, sum) {
    for (i = first; i < first + 30; i++) sum += VX[i] ^ 2 + VY[i] ^ 2
    for (i = first; i < first + 30; i++) {
        VX[i] *= sqrt(60 * heat / sum)
        VY[i] *= sqrt(60 * heat / sum)
    }
}

function draw(t, u,    i) {
    if (t == 0) start()
    now = t
    half(0)
    half(30)
    box(18, 42, 132, 84, "#eef5fb", "#12366b", 2)
    box(170, 42, 132, 84, "#fdf0ea", "#12366b", 2)
    for (i = 0; i < particles; i++) circle(X[i], Y[i], R[i], i % 2 ? "#3f7cc4" : "#5aa96b", "#ffffff", 0.6)
    flashes()
    label(84, 20, "300 K", 17, "middle", "#2460a7", "bold")
    label(236, 20, "390 K", 17, "middle", "#b3332d", "bold")
    label(18, 143, "συγκρούσεις: " all[0] + 0, 13, "start", "#526070", "normal")
    label(18, 159, "με αρκετή ενέργεια: " strong[0] + 0, 13, "start", "#2460a7", "bold")
    label(170, 143, "συγκρούσεις: " all[1] + 0, 13, "start", "#526070", "normal")
    label(170, 159, "με αρκετή ενέργεια: " strong[1] + 0, 13, "start", "#b3332d", "bold")
    graph(t)
}

# Moves the thirty of one vessel by themselves.
function half(first,    i, k) {
    for (i = 0; i < 30; i++) { k = first + i; swap(i, k) }
    particles = 30
    side = first ? 1 : 0
    move_gas(1 / rate, first ? 170 : 18, 42, first ? 302 : 150, 126)
    particles = 60
    for (i = 0; i < 30; i++) { k = first + i; swap(i, k) }
}

function swap(i, k,    h) {
    if (i == k) return
    h = X[i]; X[i] = X[k]; X[k] = h
    h = Y[i]; Y[i] = Y[k]; Y[k] = h
    h = VX[i]; VX[i] = VX[k]; VX[k] = h
    h = VY[i]; VY[i] = VY[k]; VY[k] = h
}

# A collision: the speed along the line between the two decides.
function met(i, j, speed) {
    all[side]++
    if (speed > limit()) {
        strong[side]++
        flash_at[++flash_number] = now
        flash_x[flash_number] = (X[i] + X[j]) / 2
        flash_y[flash_number] = (Y[i] + Y[j]) / 2
    }
    return 0
}

# Enough is an energy of 4.4 kT at the lower temperature: as many collisions as e^-4.4 reach it, some 1 in 80.
function limit() { return sqrt(2 * 2 * 2000 * 4.4) }

function flashes(    i, age, a) {
    for (i = flash_number; i > 0 && now - flash_at[i] < 0.8; i--) {
        age = (now - flash_at[i]) / 0.8
        path(star(flash_x[i], flash_y[i], 7 + 4 * age), age < 0.4 ? "#ffd84a" : "none", "#e0a526", 1.4 * (1 - age) + 0.3)
    }
}

function star(x, y, r,    a, d) {
    for (a = 0; a < 16; a++)
        d = d sprintf("%s%.2f %.2f", a ? "L" : "M", x + (a % 2 ? r * 0.5 : r) * cos(a * pi / 8), y + (a % 2 ? r * 0.5 : r) * sin(a * pi / 8))
    return d "Z"
}

function wall_hit(i, x, y) { }

# How the energies are spread, sqrt(E) e^(-E/kT), with E in units of the lower kT.
function share(e, heat) { return 2 / sqrt(pi) * sqrt(e / heat) * exp(-e / heat) / heat }

function graph(t,    e, low, high, tail, tail2) {
    axes(44, 224, 258, 58)
    for (e = 0; e <= 7.3; e += 0.1) {
        low = low sprintf("%s%.2f %.2f", e ? "L" : "M", 44 + 34 * e, 224 - 106 * share(e, 1))
        high = high sprintf("%s%.2f %.2f", e ? "L" : "M", 44 + 34 * e, 224 - 106 * share(e, 1.3))
        if (e >= 4.35) {
            tail = tail sprintf("L%.2f %.2f", 44 + 34 * e, 224 - 106 * share(e, 1))
            tail2 = tail2 sprintf("L%.2f %.2f", 44 + 34 * e, 224 - 106 * share(e, 1.3))
        }
    }
    path("M193.600 224" tail2 "V224Z", "#eda79c", "none", 0)
    path("M193.600 224" tail "V224Z", "#8db6e2", "none", 0)
    path(low, "none", "#2460a7", 1.6)
    path(high, "none", "#b3332d", 1.6)
    path("M193.600 224V188", "none", "#4a5563", 1.2)
    label(306, 184, "ενέργεια ενεργοποίησης", 12, "end", "#4a5563", "normal")
    label(304, 237, "ενέργεια", 12, "end", "#526070", "normal")
    label(38, 182, "μόρια", 12, "end", "#526070", "normal")
}
