# An electron goes from a sodium atom to a chlorine atom, the two ions attract each other, and many of them build a crystal.
# The ions of the crystal are to scale: Na+ 102 pm, Cl- 181 pm.

function draw(t, u) {
    if (t < 10) atoms(t)
    else crystal(t)
}

function atoms(t,    give, x1, x2, k) {
    give = rise(t, 3, 6)
    k = rise(t, 7, 9)
    x1 = 92 + 14 * k
    x2 = 236 - 14 * k
    # The last shell of sodium goes away with its electron, chlorine's grows by one.
    shell(x1, 118, 20, 2, 0.3 * t, "#3f7cc4")
    shell(x1, 118, 35, 8, 0.2 * t, "#3f7cc4")
    if (give < 1) path(ring(x1, 118, 52), "none", give > 0.3 ? "#dfe6ec" : "#a9bdd3", 1)
    shell(x2, 118, 20, 2, 0.3 * t, "#3f7cc4")
    shell(x2, 118, 35, 8, 0.2 * t, "#3f7cc4")
    path(ring(x2, 118, 52), "none", "#a9bdd3", 1)
    seven(x2, 118, 52)
    circle(x1, 118, 13, "#f3d9a8", "#12366b", 1.2)
    label(x1, 122, "11+", 11, "middle", "#12366b", "bold")
    circle(x2, 118, 13, "#c3e3c8", "#12366b", 1.2)
    label(x2, 122, "17+", 11, "middle", "#12366b", "bold")
    # The electron.
    circle(x1 + 52 + (x2 - x1 - 104) * give, 118 - 22 * sin(pi * give), 5, "#d6574e", "#ffffff", 1)
    label(x1, 46, give < 0.6 ? "άτομο Na" : "ιόν Na⁺", 16, "middle", "#12366b", "bold")
    label(x2, 46, give < 0.6 ? "άτομο Cl" : "ιόν Cl⁻", 16, "middle", "#12366b", "bold")
    label(x1, 194, give < 0.6 ? "2, 8, 1" : "2, 8", 14, "middle", "#526070", "normal")
    label(x2, 194, give < 0.6 ? "2, 8, 7" : "2, 8, 8", 14, "middle", "#526070", "normal")
    label(x1, 212, give < 0.6 ? "11 − 11 = 0" : "11 − 10 = +1", 14, "middle", "#b3332d", "normal")
    label(x2, 212, give < 0.6 ? "17 − 17 = 0" : "17 − 18 = −1", 14, "middle", "#2460a7", "normal")
    label(164, 20, t < 3 ? "δύο άτομα" : t < 6.2 ? "ένα ηλεκτρόνιο περνά από το Na στο Cl" : "τα αντίθετα φορτία έλκονται", 14, "middle", "#526070", "normal")
    if (t > 7) {
        arrow(x1 + 42, 118, x1 + 42 + 14, 118, "#d6574e", 2.4)
        arrow(x2 - 56, 118, x2 - 56 - 12, 118, "#d6574e", 2.4)
    }
}

function ring(x, y, r) {
    return sprintf("M%.2f %.2fa%.2f %.2f 0 1 0 %.2f 0a%.2f %.2f 0 1 0 %.2f 0Z", x - r, y, r, r, 2 * r, r, r, -2 * r)
}

function shell(x, y, r, number, turn, fill,    i) {
    path(ring(x, y, r), "none", "#a9bdd3", 1)
    for (i = 0; i < number; i++)
        circle(x + r * cos(turn + 2 * pi * i / number), y + r * sin(turn + 2 * pi * i / number), 3.4, fill, "#ffffff", 0.7)
}

# Seven electrons with a gap on the left, where the eighth comes.
function seven(x, y, r,    i) {
    for (i = 1; i < 8; i++)
        circle(x + r * cos(pi + 2 * pi * i / 8), y + r * sin(pi + 2 * pi * i / 8), 3.4, "#3f7cc4", "#ffffff", 0.7)
}

# Ions come from all sides to their places in the lattice, the nearest places first.
function crystal(t,    n, row, column, x, y, k, from, positive, shake) {
    for (row = 0; row < 5; row++)
        for (column = 0; column < 7; column++) {
            n = row * 7 + column
            positive = (row + column) % 2
            from = 9.2 + 0.9 * (sqrt((row - 2) ^ 2 + (column - 3) ^ 2)) + 1.2 * noise(n)
            k = rise(t, from, from + 3)
            if (t < from) continue
            x = 160 + (column - 3) * 34
            y = 124 + (row - 2) * 34
            shake = 0.8 * k
            x += (x - 160 + (column - 3 ? 0 : 20 * (noise(n + 5) - 0.5))) * 2.4 * (1 - k) + shake * sin(7 * t + 3 * n)
            y += (y - 124 + (row - 2 ? 0 : 10)) * 2.4 * (1 - k) + shake * cos(6 * t + 5 * n)
            if (positive) ion(x, y, 12, "#f3d9a8", "Na⁺", 10)
            else ion(x, y, 21.3, "#c3e3c8", "Cl⁻", 12)
        }
    box(0, 0, 320, 28, "#ffffff", "none", 0)
    box(0, 220, 320, 20, "#ffffff", "none", 0)
    label(160, 19, "τα ιόντα χτίζουν έναν κρύσταλλο", 14, "middle", "#526070", "normal")
    if (t > 17) label(160, 235, "κάθε ιόν έχει γύρω του αντίθετα ιόντα", 14, "middle", "#12366b", "bold")
}
