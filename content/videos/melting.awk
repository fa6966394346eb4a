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
            # In the liquid the same 42 particles lie in four loose rows of ten or eleven.
            depth = int(i / 11)
            goal = 54 + (i % 11) * 15.6 + (depth % 2) * 3
            reach = clamp(melt * 1.8 - 0.8 * (5 - row) / 5)
            x = home + (goal - home) * reach + shake * sin(2 * pi * (1.3 + noise(i)) * t + 6 * noise(i + 50)) \
                + melt * 4 * sin(2 * pi * (0.22 + 0.2 * noise(i + 90)) * t + 6 * noise(i + 7))
            y = 186 - row * 20 + ((186 - depth * 19) - (186 - row * 20)) * reach \
                + shake * cos(2 * pi * (1.2 + noise(i + 20)) * t + 6 * noise(i + 70))
            if (x < 51) x = 51
            if (x > 213) x = 213
            if (y > 186) y = 186
            circle(x, y, 9, "#3f7cc4", "#ffffff", 1)
        }
    }
    burner(t, 132)
    thermometer(u, 252)
    label(132, 28, u < 0.38 ? "στερεό" : u < 0.82 ? "τήξη" : "υγρό", 18, "middle", "#12366b", "bold")
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
