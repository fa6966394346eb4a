# 200 nuclei of iodine-131 decay to xenon-131, each at a moment of its own that nothing foretells; half of those that are
# left decay in each 8 days. Six seconds of the film are a half-life.

function start(    i) {
    for (i = 0; i < 200; i++) ends[i] = -6 * log(1 - noise(i * 7.73 + 0.3)) / log(2)
}

function draw(t, u,    i, left, s, x, y, days) {
    if (t == 0) start()
    s = t < 1 ? 0 : t > 25 ? 24 : t - 1
    for (i = 0; i < 200; i++) {
        x = 18 + i % 20 * 9
        y = 50 + int(i / 20) * 9.6
        if (s < ends[i]) { left++; circle(x, y, 3.8, "#8e5bb0", "#ffffff", 0.5) }
        else {
            if (s - ends[i] < 0.5) flash(x, y, (s - ends[i]) / 0.5, i)
            circle(x, y, 3.8, s - ends[i] < 0.3 ? "#ffd84a" : "#c9d3dc", "#ffffff", 0.5)
        }
    }
    days = s / 6 * 8
    label(14, 24, decimal(days, 1) " ημέρες", 16, "start", "#12366b", "bold")
    circle(216, 58, 5, "#8e5bb0", "#ffffff", 0.5)
    label(226, 62, "ιώδιο-131: " left + 0, 13, "start", "#6f3c8a", "bold")
    circle(216, 80, 5, "#c9d3dc", "#ffffff", 0.5)
    label(226, 84, "ξένο-131: " 200 - left, 13, "start", "#526070", "bold")
    label(212, 110, "χρόνος", 12, "start", "#526070", "normal")
    label(212, 124, "υποδιπλασιασμού", 12, "start", "#526070", "normal")
    label(212, 140, "8,0 ημέρες", 13, "start", "#12366b", "bold")
    graph(s, left)
}

# The electron that leaves the nucleus.
function flash(x, y, k, i,    a) {
    a = 6.28 * noise(i + 400)
    circle(x + 16 * k * cos(a), y + 16 * k * sin(a), 1.6, "#3f7cc4", "none", 0)
}

function graph(s, left,    h, d, x) {
    axes(48, 222, 250, 72)
    for (h = 0; h <= 4; h++) {
        path(sprintf("M%.2f 222V%.2fH48", 48 + 57 * h, 222 - 62 / 2 ^ h), "none", "#dfe6ec", 1)
        label(48 + 57 * h, 235, h * 8, 11, "middle", "#526070", "normal")
        if (h < 3) label(44, 226 - 62 / 2 ^ h, 200 / 2 ^ h, 11, "end", "#526070", "normal")
    }
    for (x = 0; x <= 24; x += 0.5) d = d sprintf("%s%.2f %.2f", d == "" ? "M" : "L", 48 + 9.5 * x, 222 - 62 / 2 ^ (x / 6))
    path(d, "none", "#8fa3ba", 1)
    steps = steps sprintf("%s%.2f %.2f", steps == "" ? "M" : "L", 48 + 9.5 * s, 222 - 62 * left / 200)
    path(steps, "none", "#8e5bb0", 2)
    circle(48 + 9.5 * s, 222 - 62 * left / 200, 3.4, "#d6574e", "#ffffff", 0.8)
    label(320, 214, "ημέρες", 11, "end", "#526070", "normal")
}
