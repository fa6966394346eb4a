# From hydrogen to argon: with each element the nucleus has one proton more and one electron more stands in a shell, while
# the place in the periodic table moves on.

function start() {
    split("H He Li Be B C N O F Ne Na Mg Al Si P S Cl Ar", symbol, " ")
    split("υδρογόνο ήλιο λίθιο βηρύλλιο βόριο άνθρακας άζωτο οξυγόνο φθόριο νέο νάτριο μαγνήσιο αργίλιο πυρίτιο φωσφόρος θείο χλώριο αργό", name, " ")
}

function draw(t, u,    z, k, i, words) {
    if (t == 0) start()
    z = int(t / 1.5) + 1
    if (z > 18) z = 18
    k = rise(t - 1.5 * (z - 1), 0, 0.7)
    for (i = 1; i <= 3; i++)
        if (z > before(i)) path(ring(104, 132, radius(i)), "none", "#a9bdd3", 1.2)
    for (i = 1; i <= z; i++) electron(i, z, i == z ? k : 1)
    circle(104, 132, 17, "#f3d9a8", "#12366b", 1.2)
    label(104, 137, z "+", 14, "middle", "#12366b", "bold")
    label(14, 24, name[z], 18, "start", "#12366b", "bold")
    words = z <= 2 ? z : z <= 10 ? "2, " (z - 2) : "2, 8, " (z - 10)
    label(306, 24, "K L M:  " words, 15, "end", "#12366b", "bold")
    table(z)
    remark(z)
}

function ring(x, y, r) {
    return sprintf("M%.2f %.2fa%.2f %.2f 0 1 0 %.2f 0a%.2f %.2f 0 1 0 %.2f 0Z", x - r, y, r, r, 2 * r, r, r, -2 * r)
}

function radius(shell) { return 8 + 28 * shell }

function before(shell) { return shell == 1 ? 0 : shell == 2 ? 2 : 10 }

# The i-th electron; it comes from outside while k goes from 0 to 1. The first four of a shell stand alone, then pairs.
function electron(i, z, k,    shell, n, a, r, outer) {
    shell = i <= 2 ? 1 : i <= 10 ? 2 : 3
    n = i - before(shell)
    outer = z <= before(shell) + (shell == 1 ? 2 : 8)
    if (shell == 1) a = -pi / 2 + (n - 1) * pi
    else a = -pi / 2 + ((n - 1) % 4) * pi / 2 + (n > 4 ? 0.11 : z - before(shell) >= n + 4 ? -0.11 : 0)
    if (shell > 1 && n <= 4 && i + 4 == z) a = -pi / 2 + (n - 1) * pi / 2 - 0.11 * k
    r = radius(shell) + 24 * (1 - k)
    circle(104 + r * cos(a), 132 + r * sin(a), 5, outer ? "#d6574e" : "#3f7cc4", "#ffffff", 0.9)
}

function table(z,    i, column, row, x, y) {
    for (i = 1; i <= 18; i++) {
        row = i <= 2 ? 0 : i <= 10 ? 1 : 2
        column = i == 1 ? 0 : i == 2 ? 7 : i - before(row + 1) - 1
        x = 216 + column * 12
        y = 60 + row * 16
        box(x, y, 12, 16, i == z ? "#ffd84a" : i < z ? "#dfe6ec" : "#ffffff", "#4a5563", 0.7)
        label(x + 6, y + 11, symbol[i], i == z ? 9 : 8, "middle", i <= z ? "#12366b" : "#b8c4d2", i == z ? "bold" : "normal")
    }
    label(264, 50, "περίοδοι 1, 2, 3", 12, "middle", "#526070", "normal")
}

# What is special about some of them.
function remark(z,    one, two, n) {
    if (z == 2 || z == 10 || z == 18) { one = "ευγενές αέριο:"; two = z == 2 ? "η K γέμισε" : z == 10 ? "η L γέμισε" : "8 στην M" }
    else if (z == 3 || z == 11) { one = "νέα στιβάδα,"; two = "νέα περίοδος" }
    else { n = z == 1 ? 1 : z < 11 ? z - 2 : z - 10; one = "ηλεκτρόνια"; two = "σθένους: " n }
    label(264, 150, one, 14, "middle", "#b3332d", "bold")
    label(264, 168, two, 14, "middle", "#b3332d", "bold")
    circle(222, 204, 5, "#d6574e", "#ffffff", 0.9)
    label(232, 208, "εξωτερικά", 12, "start", "#526070", "normal")
    circle(222, 222, 5, "#3f7cc4", "#ffffff", 0.9)
    label(232, 226, "εσωτερικά", 12, "start", "#526070", "normal")
}
