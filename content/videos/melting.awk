# A solid is heated: its particles shake more and more, leave their places and flow over the bottom of the vessel.

function draw(t, u,    hot, melt, row, column, i, shake, home, x, y, goal, reach, depth) {
    hot = rise(u, 0, 0.9)
    melt = rise(u, 0.38, 0.82)

    path("M40 44V196H224V44", "none", "#12366b", 2)
    for (row = 0; row < 6; row++) {
        for (column = 0; column < 7; column++) {
            i = row * 7 + column
            shake = 0.6 + 2.2 * hot
            home = 69 + column * 21
            # In the liquid the same 42 particles lie in five loose rows, each in the gaps of the one below; the six
            # of the uppermost are spread over it.
            depth = int(i / 9)
            goal = 54 + (i % 9) * (depth < 4 ? 18.8 : 31) + (depth % 2) * 9
            reach = clamp(melt * 1.8 - 0.8 * (5 - row) / 5)
            x[i] = home + (goal - home) * reach + shake * sin(2 * pi * (1.3 + noise(i)) * t + 6 * noise(i + 50)) \
                + melt * 4 * sin(2 * pi * (0.22 + 0.2 * noise(i + 90)) * t + 6 * noise(i + 7))
            y[i] = 186 - row * 20 + ((186 - depth * 17) - (186 - row * 20)) * reach \
                + shake * cos(2 * pi * (1.2 + noise(i + 20)) * t + 6 * noise(i + 70))
        }
    }
    keep_apart(x, y, 42, 18.4)
    for (i = 0; i < 42; i++) circle(x[i], y[i], 9, "#3f7cc4", "#ffffff", 1)
    burner(t, 132)
    thermometer(u, 252)
    label(132, 28, u < 0.38 ? "στερεό" : u < 0.82 ? "τήξη" : "υγρό", 18, "middle", "#12366b", "bold")
}

# Pushes particles that are nearer to each other than `least` apart, within the vessel.
function keep_apart(x, y, count, least,    pass, i, j, dx, dy, distance, push) {
    for (pass = 0; pass < 24; pass++) {
        for (i = 0; i < count; i++) {
            for (j = 0; j < i; j++) {
                dx = x[i] - x[j]
                dy = y[i] - y[j]
                distance = sqrt(dx * dx + dy * dy)
                if (distance >= least || distance == 0) continue
                push = (least - distance) / distance / 2
                x[i] += dx * push; y[i] += dy * push
                x[j] -= dx * push; y[j] -= dy * push
            }
        }
        for (i = 0; i < count; i++) {
            if (x[i] < 51) x[i] = 51
            if (x[i] > 213) x[i] = 213
            if (y[i] > 186) y[i] = 186
        }
    }
}

function burner(t, x,    h) {
    h = 18 + 2 * sin(2 * pi * 2 * t)
    path(sprintf("M%d 232C%d 226 %d 218 %d %.1fC%d 218 %d 226 %d 232Z", x, x - 13, x - 7, x, 226 - h, x + 7, x + 13, x),
         "#e8923a", "none", 0)
    box(x - 34, 232, 68, 4, "#4a5563", "none", 0)
}

# The reading stands still while the solid melts.
function thermometer(u, x,    level) {
    level = 40 * rise(u, 0, 0.36) + 40 * rise(u, 0.84, 1)
    path(sprintf("M%d 60a6 6 0 0 1 12 0V166a13 13 0 1 1 -12 0Z", x - 6), "#ffffff", "#12366b", 1.5)
    circle(x, 177, 9, "#d6574e", "none", 0)
    box(x - 2.5, 150 - level, 5, 27 + level, "#d6574e", "none", 0)
    path(sprintf("M%d 110h9", x + 8), "none", "#526070", 1)
    label(x + 20, 106, "σημείο", 12, "start", "#526070", level > 39 && level < 41 ? "bold" : "normal")
    label(x + 20, 120, "τήξης", 12, "start", "#526070", level > 39 && level < 41 ? "bold" : "normal")
    label(x + 4, 210, "θερμοκρασία", 12, "middle", "#526070", "normal")
}
