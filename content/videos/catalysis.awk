# Oxygen and carbon monoxide on platinum: a molecule of oxygen parts into atoms that stay on the metal, carbon monoxide is
# held near them and takes one, carbon dioxide leaves, and the metal is as it was. Below, the energy along the way without
# and with the metal.

function draw(t, u,    s) {
    metal()
    # Two rounds of 11 s, each from one O2 and two CO to two CO2.
    s = t < 1 ? 0 : t - 1
    if (s >= 22) s = 21.99
    round_(s - 11 * int(s / 11))
    label(160, 20, "2 CO + O₂ → 2 CO₂", 16, "middle", "#12366b", "bold")
    label(160, 38, caption(s - 11 * int(s / 11), t), 13, "middle", "#b3332d", "normal")
    label(5, 136, "Pt", 13, "start", "#4a5563", "bold")
    profile(s - 11 * int(s / 11))
}

function caption(s, t) {
    if (t < 1) return "λευκόχρυσος, οξυγόνο και μονοξείδιο του άνθρακα"
    if (s < 2) return "το O₂ πλησιάζει την επιφάνεια"
    if (s < 4) return "ο δεσμός του O₂ σπάζει επάνω στο μέταλλο"
    if (s < 5.6) return "δύο CO κάθονται δίπλα στα άτομα O"
    if (s < 7.4) return "κάθε CO παίρνει ένα O"
    return "τα CO₂ φεύγουν, το μέταλλο μένει ίδιο"
}

function metal(    i) {
    for (i = 0; i < 15; i++) atom(34 + i * 18, 132, 9.6, "#b9c0c8")
    for (i = 0; i < 14; i++) atom(43 + i * 18, 147, 9.6, "#aab3bd")
}

function atom(x, y, r, fill) { circle(x, y, r, fill, "#4a5563", 0.9) }

function oxygen(x, y) { circle(x, y, 8, "#d6574e", "#7a2a24", 1) }

function carbon(x, y) { circle(x, y, 8.4, "#4a5563", "#1c2733", 1) }

# One round; everything is laid out round x = 160.
function round_(s,    down, apart, come, take, go, y, x, k, side, a, carbon_x, carbon_y, tilt, lift, out, first_x, first_y, second_x, second_y) {
    down = rise(s, 0, 2)
    apart = rise(s, 2.2, 3.8)
    come = rise(s, 3.6, 5.4)
    take = rise(s, 5.8, 7.2)
    go = rise(s, 7.6, 10.4)
    for (k = 0; k < 2; k++) {
        side = k ? 1 : -1
        # The oxygen atoms: 12 apart in the molecule, then 54.
        x = 160 + side * (6.5 + 29.5 * apart)
        y = 56 + 58 * down + 2 * apart
        # The monoxide comes from the side and stands upright, its carbon on the metal.
        carbon_x = 160 + side * (116 - 54 * come)
        carbon_y = 70 + 45 * come
        tilt = side * (1 - come) * 0.9
        if (take > 0) {
            # Carbon goes to its oxygen; both oxygens turn into one line with it.
            carbon_x += -side * 10 * take
            carbon_y -= 6 * take
        }
        lift = 50 * go
        out = side * 20 * go
        if (take > 0) {
            # The taken one stands level, the other swings from above to the far side.
            first_x = x + (carbon_x - side * 11.6 - x) * take
            first_y = y + (carbon_y - y) * take
            a = -pi / 2 + side * (pi / 2) * take
            second_x = carbon_x + 11.6 * cos(a)
            second_y = carbon_y + 11.6 * sin(a)
            oxygen(first_x + out, first_y - lift)
            oxygen(second_x + out, second_y - lift)
            carbon(carbon_x + out, carbon_y - lift)
        } else {
            oxygen(carbon_x + 11.6 * sin(tilt), carbon_y - 11.6 * cos(tilt))
            carbon(carbon_x, carbon_y)
            oxygen(x, y)
        }
    }
}

# The energy along the way: a dashed line with one high top, a full one with two lower ones and a hollow between.
function profile(s,    k, x) {
    axes(34, 230, 272, 64)
    path("M44 196C90 196 96 170 124 170C152 170 176 216 216 216H290", "none", "#8fa3ba", 1.4)
    path("M44 196C66 196 74 186 88 186C106 186 112 208 138 208C158 208 160 196 176 196C194 196 200 216 222 216H290", "none", "#3c8a4e", 2)
    k = s < 2 ? 0 : s < 3.8 ? rise(s, 2, 3.8) * 0.5 : s < 5.8 ? 0.5 : s < 7.6 ? 0.5 + 0.5 * rise(s, 5.8, 7.6) : 1
    x = 50 + 190 * k
    circle(x, height(x), 4.5, "#d6574e", "#ffffff", 1)
    label(164, 180, "χωρίς καταλύτη", 12, "start", "#6c7f94", "normal")
    label(228, 206, "με καταλύτη", 12, "start", "#3c8a4e", "bold")
    label(28, 176, "E", 13, "end", "#526070", "bold")
}

# The height of the full line at x: its pieces are cubic curves with level ends.
function height(x) {
    if (x < 88) return 196 - 10 * rise(x, 44, 88)
    if (x < 138) return 186 + 22 * rise(x, 88, 138)
    if (x < 176) return 208 - 12 * rise(x, 138, 176)
    return 196 + 20 * rise(x, 176, 222)
}
