# Water is split by the electric current: twice as much hydrogen (cathode) as oxygen (anode) gathers in the tubes.

function draw(t, u,    on, gas, oxygen) {
    on = t > 1.5
    gas = clamp((t - 2) / 17)
    oxygen = int(100 * gas + 0.5) / 10
    path("M84 162H236V188H84Z", "#cfe5f7", "none", 0)
    tube(100, 40 + 34 * gas, on, t, 4, 11)
    tube(220, 40 + 68 * gas, on, t, 8, 60)
    reservoir(92 - 54 * gas)
    path("M84 160V188H236V160M116 162H154M166 162H204", "none", "#12366b", 2)
    path("M100 188V216H140M220 188V216H180", "none", "#4a5563", 2)
    if (on) electrons(t - 1.5)
    box(140, 204, 40, 24, on ? "#fff4d6" : "#ffffff", "#12366b", 1.5)
    label(151, 222, "+", 17, "middle", "#d6574e", "bold")
    label(169, 222, "−", 17, "middle", "#3f7cc4", "bold")
    label(40, 62, "οξυγόνο", 14, "middle", "#12366b", "bold")
    label(40, 80, "O₂", 14, "middle", "#526070", "normal")
    volume(40, oxygen)
    label(280, 62, "υδρογόνο", 14, "middle", "#12366b", "bold")
    label(280, 80, "H₂", 14, "middle", "#526070", "normal")
    volume(280, 2 * oxygen)
    label(42, 166, "άνοδος", 13, "middle", "#d6574e", "normal")
    label(278, 166, "κάθοδος", 13, "middle", "#3f7cc4", "normal")
    label(160, 20, "2 H₂O → 2 H₂ + O₂", 15, "middle", "#12366b", "bold")
}

# The volume of a gas: the lines of the tubes are 5 mL apart.
function volume(x, millilitres,    text) {
    text = sprintf("%.1f mL", millilitres)
    sub(/\./, ",", text)
    label(x, 100, text, 14, "middle", "#12366b", "bold")
}

# Electrons in both wires: from the anode to the source, and from the source to the cathode.
function electrons(t,    i, p) {
    for (i = 0; i < 4; i++) {
        p = (12 * t + 17 * i) % 68
        electron(p < 28 ? 100 : 72 + p, p < 28 ? 188 + p : 216)
        electron(p < 40 ? 180 + p : 220, p < 40 ? 216 : 256 - p)
    }
    label(112, 236, "e⁻", 13, "middle", "#2460a7", "bold")
    label(208, 236, "e⁻", 13, "middle", "#2460a7", "bold")
}

function electron(x, y) {
    circle(x, y, 4.5, "#2460a7", "#ffffff", 0.8)
    label(x, y + 2.5, "−", 8, "middle", "#ffffff", "bold")
}

# The water pushed out by the gases rises into the open vessel in the middle.
function reservoir(level) {
    path(sprintf("M154 164V96H130V%.2fH190V96H166V164Z", level), "#cfe5f7", "none", 0)
    path(sprintf("M130 %.2fH190", level), "none", "#6fa8d6", 1.5)
    path("M154 162V96H130V34M190 34V96H166V162", "none", "#12366b", 2)
}

# A graduated tube with the gas above `level`, its electrode and `number` bubbles on their way up.
function tube(x, level, on, t, number, seed,    i, phase, y, mark) {
    path(sprintf("M%d 188V%.2fH%dV188Z", x - 16, level, x + 16), "#cfe5f7", "none", 0)
    path(sprintf("M%d %.2fH%d", x - 16, level, x + 16), "none", "#6fa8d6", 1.5)
    for (mark = 1; mark <= 4; mark++)
        path(sprintf("M%d %dh7", x + 9, 40 + 17 * mark), "none", "#9fb3c8", 1)
    if (on)
        for (i = 0; i < number; i++) {
            phase = (t - 1.5) * (0.5 + 0.25 * noise(seed + i)) + noise(seed + 20 + i)
            y = 176 - (176 - level - 4) * (phase - floor(phase))
            if (phase >= 1 || noise(seed + 20 + i) < (t - 1.5) * 0.6)
                circle(x + 22 * (noise(seed + 40 + i) - 0.5) + 1.5 * sin(7 * t + i), y, 2.6 + 0.8 * noise(seed + 60 + i),
                       "#ffffff", "#6fa8d6", 1)
        }
    box(x - 4, 142, 8, 46, "#4a5563", "none", 0)
    path(sprintf("M%d 160V40H%dV162", x - 16, x + 16), "none", "#12366b", 2)
}
