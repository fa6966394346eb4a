# A cell of zinc and copper lights a lamp: every four seconds an atom of zinc goes into the solution as an ion, two
# electrons go along the wire, an ion of copper becomes an atom, and of the bridge two ions of chloride and two of potassium
# make up for the charges. The charges that are shown add up to nothing on either side, at the beginning and at the end.

# Places in a half, as from the left: x and y in turn.
function start() {
    split("58 138 78 146 58 186 98 138 74 170", zinc_place, " ")
    split("52 134 70 150 50 152 54 168 74 186", copper_place, " ")
    split("92 138 72 134 74 166 54 186 92 190", sulfate_place, " ")
    split("122 196 110 196 106 184 118 184 106 172 118 172 94 166 106 158 118 160 92 154", salt_place, " ")
}

function draw(t, u,    n, on, k) {
    if (t == 0) start()
    on = t > 1.5
    k = clamp((t - 5) / 18)
    beakers(k)
    wire(on)
    ion(58 + sway(t, 1), 162 + sway(t, 2), 7, "#d6dee0", "Zn²⁺", 6)
    ion(90 + sway(t, 3), 190 + sway(t, 4), 8, "#fae0b4", "SO₄²⁻", 5.5)
    for (n = 0; n < 5; n++)
        ion(320 - sulfate_place[2 * n + 1] + sway(t, n), sulfate_place[2 * n + 2] + sway(t, n + 7), 8, "#fae0b4", "SO₄²⁻", 5.5)
    for (n = 0; n < 5; n++) turn(n, t - 1.5 - 4 * n, t)
    label(160, 236, on ? "Zn + Cu²⁺ → Zn²⁺ + Cu" : "ανοιχτό κύκλωμα", 14, "middle", "#12366b", "bold")
}

function sway(t, n) { return 1.2 * sin(t * (0.8 + 0.5 * noise(n)) + 6 * noise(n + 40)) }

function beakers(k,    zinc, copper) {
    zinc = 16 - 5 * k
    copper = 16 + 5 * k
    path("M10 122H148V206H10Z", "#eaf1f6", "none", 0)
    path("M172 122H310V206H172Z", sprintf("rgb(%d,%d,%d)", 180 + 42 * k, 211 + 20 * k, 242 + 3 * k), "none", 0)
    path("M10 122H148M172 122H310", "none", "#6fa8d6", 1.2)
    # The bridge dips into both.
    path("M126 176V104Q126 90 140 90H180Q194 90 194 104V176H182V108Q182 102 176 102H144Q138 102 138 108V176Z",
         "#f5e9c6", "#12366b", 1.2)
    plate(26, zinc, "#b9c0c8", "#4a5563")
    plate(294, copper, "#d08a4e", "#7a4a1e")
    path("M10 108V206H148V108M172 108V206H310V108", "none", "#12366b", 2)
    label(40, 94, "Zn", 14, "start", "#12366b", "bold")
    label(280, 94, "Cu", 14, "end", "#12366b", "bold")
    label(10, 220, "άνοδος (−): οξείδωση", 12, "start", "#b3332d", "normal")
    label(310, 220, "κάθοδος (+): αναγωγή", 12, "end", "#2460a7", "normal")
    label(160, 84, "γέφυρα άλατος", 12, "middle", "#526070", "normal")
}

# A plate that changes its width only below the surface.
function plate(x, width, fill, line) {
    path(sprintf("M%.2f 76H%.2fV126H%.2fV190H%.2fV126H%.2fZ", x - 8, x + 8, x + width / 2, x - width / 2, x - 8), fill, line, 1)
}

function wire(on,    i) {
    path("M26 76V34H146M174 34H294V76", "none", "#4a5563", 2)
    if (on)
        for (i = 0; i < 8; i++)
            path(sprintf("M%.2f %.2fL%.2f %.2f", 160 + 17 * cos(i * pi / 4), 34 + 17 * sin(i * pi / 4),
                         160 + 22 * cos(i * pi / 4), 34 + 22 * sin(i * pi / 4)), "none", "#e0a526", 1.6)
    circle(160, 34, 14, on ? "#ffe27a" : "#ffffff", "#12366b", 1.5)
    path("M150.200 24.200L169.800 43.800M169.800 24.200L150.200 43.800", "none", "#12366b", 1.2)
}

# What happens in the n-th turn, `s` seconds after it begins.
function turn(n, s, t,    k, x, y, e, goal) {
    # Copper waits, then goes to its plate.
    x = 320 - copper_place[2 * n + 1]
    y = copper_place[2 * n + 2]
    k = rise(s, 1.8, 4.4)
    if (s < 5.2) ion(x + (280 - x) * k + sway(t, n + 3) * (1 - k), y, 7, s > 4.5 ? "#d08a4e" : "#9cc6f2", s > 4.5 ? "Cu" : "Cu²⁺", 6)
    if (s < 0) return
    # Zinc: from the plate into the solution, where it stays.
    k = rise(s, 0.6, 3)
    x = 34 + (zinc_place[2 * n + 1] - 34) * k
    y = zinc_place[2 * n + 2]
    ion(x + sway(t, n + 9) * k, y, 7, s < 0.6 ? "#b9c0c8" : "#d6dee0", s < 0.6 ? "Zn" : "Zn²⁺", 6)
    for (e = 0; e < 2; e++) electron((s - 0.6) * 120 - e * 14, y)
    for (e = 0; e < 2; e++) {
        goal = 2 * (2 * n + e)
        salt(s - 0.8 - 0.5 * e, salt_place[goal + 1], salt_place[goal + 2], t)
    }
}

# A pair of ions of the bridge, `s` seconds after they begin to move: chloride to the zinc, potassium to the copper.
function salt(s, goalX, goalY, t,    p, x, y, k) {
    if (s < 0) return
    p = s * 42
    if (p < 22) { x = 154 - p; y = 96 }
    else if (p < 108) { x = 132; y = 96 + p - 22 }
    else {
        k = rise(p, 108, 150)
        x = 132 + (goalX - 132) * k + sway(t, goalX) * k
        y = 182 + (goalY - 182) * k
    }
    ion(x, y, 5, "#f7cfcb", "Cl⁻", 5)
    ion(320 - x, y, 5, "#e4d0ee", "K⁺", 5)
}

# An electron, `p` units from where it was left behind: up the zinc, along the wire, through the lamp, down the copper.
function electron(p, from,    up, x, y) {
    if (p < 0) return
    up = from - 34
    if (p < up) { x = 26; y = from - p }
    else if (p < up + 268) { x = 26 + p - up; y = 34 }
    else if (p < up + 268 + 120) { x = 294; y = 34 + p - up - 268 }
    else return
    circle(x, y, 4.5, "#2460a7", "#ffffff", 0.8)
    label(x, y + 2.5, "−", 8, "middle", "#ffffff", "bold")
}
