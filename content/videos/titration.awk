# 20 mL of hydrochloric acid 0.10 mol/L get sodium hydroxide 0.10 mol/L from a burette, drop by drop near the end. The curve
# is computed from the amounts; phenolphthalein becomes pink between pH 8.2 and 10.

# What has run out of the burette, in mL: fast, slower, in drops of 0.05 mL from 19.8 to 20.2, and on.
function added(t) {
    if (t < 1.5) return 0
    if (t < 8) return 17 * (t - 1.5) / 6.5
    if (t < 12) return 17 + 2.8 * (t - 8) / 4
    if (t < 20) return 19.8 + 0.05 * int(t - 12)
    if (t < 21) return 20.2
    return 20.2 + 6 * clamp((t - 21) / 4)
}

function ph(v,    d) {
    d = (20 - v) * 0.1 / (20 + v)
    # [H+] - [OH-] = d, with the product 1e-14.
    if (d > 0) return -log((d + sqrt(d * d + 4e-14)) / 2) / log(10)
    return 14 + log((-d + sqrt(d * d + 4e-14)) / 2) / log(10)
}

function draw(t, u,    v, p, pink) {
    v = added(t)
    p = ph(v)
    pink = clamp((p - 8.2) / 1.8)
    burette(v)
    flask(v, pink, t)
    drops(t)
    label(64, 20, decimal(v, 2) " mL", 16, "start", "#2460a7", "bold")
    label(200, 20, "pH = " decimal(p, 1), 16, "start", "#b3332d", "bold")
    graph(v, p)
}

function burette(v,    top, mark) {
    top = 26 + 2.6 * v
    path(sprintf("M38 %.2fH52V118H38Z", top), "#dcebf8", "none", 0)
    path(sprintf("M38 %.2fH52", top), "none", "#6fa8d6", 1.4)
    path("M38 12V118L43 126V140H47V126L52 118V12", "none", "#12366b", 1.6)
    for (mark = 0; mark <= 30; mark += 5) path(sprintf("M38 %.2fh%d", 26 + 2.6 * mark, mark % 10 ? 5 : 8), "none", "#4a5563", 1)
    for (mark = 0; mark <= 30; mark += 10) label(34, 30 + 2.6 * mark, mark, 11, "end", "#526070", "normal")
    box(38, 128, 14, 5, "#4a5563", "none", 0)
    label(60, 60, "NaOH", 13, "start", "#12366b", "bold")
    label(60, 75, "0,10 mol/L", 12, "start", "#526070", "normal")
}

function flask(v, pink, t,    level, half) {
    level = 219 - 0.62 * (20 + v)
    half = 32 - (219 - level) * 0.385
    path(sprintf("M%.2f %.2fH%.2fL77 219Q77 222 73 222H17Q13 222 13 219Z", 45 - half, level, 45 + half),
         sprintf("rgb(%d,%d,%d)", 228 + 17 * pink, 240 - 100 * pink, 249 - 49 * pink), "none", 0)
    path(sprintf("M%.2f %.2fH%.2f", 45 - half, level, 45 + half), "none", "#6fa8d6", 1.2)
    path("M37 148V160L13 218Q12 223 17 223H73Q78 223 77 218L53 160V148M34 148H56", "none", "#12366b", 1.8)
    label(45, 236, "20 mL", 12, "middle", "#526070", "normal")
    label(80, 186, "HCl", 13, "start", "#12366b", "bold")
    label(80, 201, "0,10 mol/L", 12, "start", "#526070", "normal")
}

function drops(t,    s) {
    s = t < 1.5 || t > 25 || (t > 20 && t < 21) ? -1 : t < 8 ? t * 3 : t < 12 ? t * 2 : t < 20 ? t : t * 3
    if (s < 0) return
    s -= floor(s)
    if (s < 0.9) circle(45, 143 + 54 * s * s, 2.2, "#bcd6f2", "#6fa8d6", 0.8)
}

function graph(v, p,    x, d) {
    # Where the indicator changes.
    box(150, 222 - 10 * 12, 152, 1.8 * 12, "#fbe3ef", "none", 0)
    label(155, 117, "φαινολοφθαλεΐνη", 11, "start", "#b0457c", "normal")
    path("M150 138H302", "none", "#dfe6ec", 1)
    axes(150, 222, 158, 184)
    for (x = 0; x <= v + 0.001; x += x > 19 && x < 21 ? 0.01 : 0.1)
        d = d sprintf("%s%.2f %.2f", d == "" ? "M" : "L", 150 + 5.2 * x, 222 - 12 * ph(x))
    d = d sprintf("L%.2f %.2f", 150 + 5.2 * v, 222 - 12 * p)
    if (v >= 20) path("M254 222V60", "none", "#8fa3ba", 1)
    if (v >= 20) label(250, 62, "ισοδύναμο σημείο", 11, "end", "#526070", "normal")
    path(d, "none", "#12366b", 1.8)
    circle(150 + 5.2 * v, 222 - 12 * p, 4, "#d6574e", "#ffffff", 1)
    for (x = 10; x <= 20; x += 10) {
        path(sprintf("M%.2f 222v4", 150 + 5.2 * x), "none", "#4a5563", 1)
        label(150 + 5.2 * x, 236, x, 11, "middle", "#526070", "normal")
    }
    label(308, 236, "mL", 11, "end", "#526070", "normal")
    label(144, 142, "7", 12, "end", "#526070", "normal")
    label(144, 226, "0", 12, "end", "#526070", "normal")
    label(144, 58, "14", 12, "end", "#526070", "normal")
    label(144, 42, "pH", 12, "end", "#b3332d", "bold")
}
