# A radical opens the double bond of a molecule of ethene and joins it; the free electron is then at the end of the chain,
# where the next molecule comes. The atoms and bonds are those of the structural formula; bond lengths are not to scale.

function draw(t, u,    i, x) {
    for (i = 0; i < 8; i++) monomer(i, t)
    x = place(-1, t)
    radical(x, t)
    label(160, 22, t < 2 ? "αιθένιο CH₂=CH₂ και μια ρίζα R•" : joined(t) < 8 ? "ο διπλός δεσμός ανοίγει" : "πολυαιθένιο (πολυαιθυλένιο)", 15, "middle", "#12366b", "bold")
    legend(joined(t))
}

# How many have joined.
function joined(t,    n) {
    n = floor((t - 2 - 1.6) / 2.4) + 1
    return n < 0 ? 0 : n > 8 ? 8 : n
}

# 0 before the i-th begins to come, 1 when its bond stands.
function progress(i, t) { return rise(t, 2 + 2.4 * i, 2 + 2.4 * i + 1.6) }

# The chain moves to the left while it grows, so that its end stays in the middle.
function place(i, t,    shift, k) {
    for (k = 3; k < 8; k++) shift += 56 * progress(k, t)
    return 34 + (i + 1) * 56 - shift
}

function radical(x, t,    k) {
    k = progress(0, t)
    circle(x, 118, 13, "#f3d9a8", "#12366b", 1.2)
    label(x, 123, "R", 14, "middle", "#12366b", "bold")
    if (k < 1) electron(x + 18, 118)
    else path(sprintf("M%.2f 118H%.2f", x + 13, x + 39), "none", "#12366b", 2.4)
}

function electron(x, y) { circle(x, y, 3.2, "#d6574e", "#ffffff", 0.6) }

# The i-th molecule: waits below or above, then turns into its place at the end of the chain.
function monomer(i, t,    k, x, y, homeX, homeY, a, open, aside, down) {
    k = progress(i, t)
    aside = rise(k, 0, 0.6)
    down = rise(k, 0.5, 1)
    homeX = 44 + 78 * int(i / 2) + 3 * sin(t * 0.9 + i)
    homeY = (i % 2 ? 62 : 176) + 3 * cos(t * 1.1 + 2 * i)
    x = homeX + (place(i, t) + 6 - homeX) * aside
    y = homeY + (118 - homeY) * down
    a = (1 - down) * (0.4 * sin(0.8 * t + 2 * i))
    open = rise(k, 0.85, 1)
    unit(x, y, a, open)
    if (k >= 1) {
        if (i < 7 && progress(i + 1, t) < 1) electron(x + 31, y)
        else if (i < 7) path(sprintf("M%.2f %.2fH%.2f", x + 23, y, x + 33), "none", "#12366b", 2.4)
        else electron(x + 31, y)
    }
}

# A unit CH2 CH2 in the middle of x, y, turned by a; `open` is 1 when only one bond is left between the carbons.
function unit(x, y, a, open,    s, c, n, cx, cy, h, tilt) {
    c = cos(a); n = sin(a)
    s = 2.6
    if (open < 0.5) {
        line(x - 14 * c - s * n, y - 14 * n + s * c, x + 14 * c - s * n, y + 14 * n + s * c)
        line(x - 14 * c + s * n, y - 14 * n - s * c, x + 14 * c + s * n, y + 14 * n - s * c)
    } else line(x - 14 * c, y - 14 * n, x + 14 * c, y + 14 * n)
    for (s = -1; s <= 1; s += 2) {
        cx = x + s * 14 * c; cy = y + s * 14 * n
        # The hydrogens stand at 120 degrees, in the chain straight up and down.
        for (h = -1; h <= 1; h += 2) {
            tilt = a + h * (pi / 2 - s * (1 - open) * 0.52)
            line(cx, cy, cx + 20 * cos(tilt), cy + 20 * sin(tilt))
            circle(cx + 20 * cos(tilt), cy + 20 * sin(tilt), 6.5, "#ffffff", "#4a5563", 1)
            label(cx + 20 * cos(tilt), cy + 20 * sin(tilt) + 3.4, "H", 9, "middle", "#4a5563", "bold")
        }
        circle(cx, cy, 9, "#4a5563", "#12366b", 1)
        label(cx, cy + 4, "C", 11, "middle", "#ffffff", "bold")
    }
}

function line(x, y, x2, y2) { path(sprintf("M%.2f %.2fL%.2f %.2f", x, y, x2, y2), "none", "#12366b", 2.2) }

function legend(n) {
    label(14, 234, "μονομερή στην αλυσίδα: " n, 14, "start", "#2460a7", "bold")
    electron(222, 229)
    label(230, 234, "ηλεκτρόνιο μόνο", 12, "start", "#526070", "normal")
}
