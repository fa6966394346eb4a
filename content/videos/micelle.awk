# A drop of fat lies on cloth in water. Ions of soap come with their tails into the fat, the drop draws together, comes off
# and drifts away in a shell of charged heads. Two drops push each other away.

function draw(t, u,    pull, lift, i, x, y, w, h) {
    path("M10 40H310V214H10Z", "#eef5fb", "none", 0)
    pull = rise(t, 8, 13)
    lift = rise(t, 13, 19)
    # The drop: a flat cap at first, a ball then.
    x = 150 + 10 * lift
    w = 56 - 22 * pull
    h = 22 + 12 * pull
    y = 206 - h * pull - 74 * lift + 2 * sin(1.3 * t) * lift
    drop(x, y, w, h, pull)
    for (i = 0; i < 18; i++) soap(i, t, x, y, w, h, pull)
    cloth()
    other(t)
    box(310.5, 30, 10, 190, "#ffffff", "none", 0)
    legend()
    label(160, 22, caption(t), 15, "middle", "#12366b", "bold")
}

function caption(t) {
    if (t < 2.5) return "λίπος επάνω σε ύφασμα, μέσα σε νερό"
    if (t < 8) return "οι ουρές βυθίζονται στο λίπος"
    if (t < 13) return "η σταγόνα μαζεύεται"
    if (t < 18) return "η σταγόνα ξεκολλά"
    return "σταγόνες με όμοια φορτία απωθούνται"
}

function cloth(    i, d) {
    box(10, 206, 300, 12, "#d9c7a0", "#a8916c", 1)
    for (i = 0; i < 30; i++) d = d sprintf("M%d 206l5 12", 12 + 10 * i)
    path(d, "none", "#a8916c", 1)
}

# The fat: the upper half of an ellipse that closes below while pull goes to 1.
function drop(x, y, w, h, pull) {
    path(sprintf("M%.2f %.2fA%.2f %.2f 0 0 1 %.2f %.2fA%.2f %.2f 0 0 1 %.2f %.2fZ", x - w, y, w, h, x + w, y, w,
                 h * pull + 0.01, x - w, y), "#f0d079", "#b08a2e", 1.2)
}

# The i-th ion of soap comes from the water to its place round the drop; those of the lower side come when there is room.
function soap(i, t, x, y, w, h, pull,    k, from, a, gx, gy, nx, ny, d, sx, sy, turn, goal) {
    from = i < 10 ? 2.5 + 0.45 * i : 11 + 0.5 * (i - 10)
    k = rise(t, from, from + 3)
    # Places: ten on the upper half, eight on the lower one.
    a = i < 10 ? -pi + pi * (i * 7 % 10 + 0.5) / 10 : pi * ((i - 10) * 3 % 8 + 0.5) / 8
    gx = x + w * cos(a)
    gy = y + (i < 10 ? h : h * pull) * sin(a)
    nx = cos(a) / w
    ny = sin(a) / (i < 10 ? h : h * pull + 0.01)
    d = sqrt(nx * nx + ny * ny)
    goal = atan2(ny / d, nx / d)
    sx = 30 + (i * 97) % 262 + 6 * sin(0.8 * t + i)
    sy = 68 + (i * 41) % 60 + 5 * cos(0.9 * t + 2 * i)
    turn = goal + (1 - k) * (2.6 * sin(0.35 * t + i * 1.7))
    ion_of_soap(sx + (gx + 5 * cos(goal) - sx) * k, sy + (gy + 5 * sin(goal) - sy) * k, turn, 5)
}

# The head is at x, y, the tail of `links` links on the other side of the angle a.
function ion_of_soap(x, y, a, links,    n, d) {
    for (n = 0; n <= links; n++)
        d = d sprintf("%s%.2f %.2f", n ? "L" : "M", x - (5 + 4 * n) * cos(a) - (n % 2 ? 2 : -2) * sin(a),
                      y - (5 + 4 * n) * sin(a) + (n % 2 ? 2 : -2) * cos(a))
    path(d, "none", "#7a6a3a", 2)
    circle(x, y, 5, "#3f7cc4", "#12366b", 0.8)
    label(x, y + 3, "−", 9, "middle", "#ffffff", "bold")
}

# A drop that came off earlier: it comes near and turns back.
function other(t,    k, x, y, i, a) {
    if (t < 17) return
    k = rise(t, 17, 20) - 0.5 * rise(t, 20.6, 23.6)
    x = 340 - 92 * k
    y = 92
    circle(x, y, 20, "#f0d079", "#b08a2e", 1.2)
    for (i = 0; i < 12; i++) {
        a = 2 * pi * i / 12 + 0.2
        ion_of_soap(x + 25 * cos(a), y + 25 * sin(a), a, 4)
    }
}

function legend() {
    ion_of_soap(42, 230, pi, 5)
    label(84, 234, "κεφάλι −COO⁻ και μακριά ουρά", 12, "start", "#526070", "normal")
}
