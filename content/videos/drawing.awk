# Shapes shared by the animations. An animation defines draw(t, u): t = seconds from the start, u = 0 at the first
# and 1 at the last frame; its shapes are collected in `svg`. The frames are drawn in order, so that an animation may
# keep what moves from one to the next. No random numbers: noise(i) gives a fixed number per i.

BEGIN {
    pi = atan2(0, -1)
    for (frame = 0; frame < count; frame++) {
        svg = ""
        draw(frame / rate, frame / (count - 1))
        file = sprintf("%s/%03d.svg", folder, frame)
        print "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"640\" height=\"480\" viewBox=\"0 0 320 240\"" \
              " font-family=\"Liberation Sans\">" > file
        print "<rect width=\"320\" height=\"240\" fill=\"#ffffff\"/>" svg "</svg>" > file
        close(file)
    }
}

# A number from 0 up to 1 that depends on i alone.
function noise(i,    x) {
    x = sin(i * 12.9898 + 4.1414) * 43758.5453
    return x - floor(x)
}

function floor(x,    n) {
    n = int(x)
    return n > x ? n - 1 : n
}

function clamp(x) {
    return x < 0 ? 0 : x > 1 ? 1 : x
}

# 0 before `from`, 1 after `to`, a soft rise between.
function rise(x, from, to,    k) {
    k = clamp((x - from) / (to - from))
    return k * k * (3 - 2 * k)
}

function circle(x, y, r, fill, line, width) {
    svg = svg sprintf("<circle cx=\"%.2f\" cy=\"%.2f\" r=\"%.2f\" fill=\"%s\" stroke=\"%s\" stroke-width=\"%.2f\"/>\n",
                      x, y, r, fill, line, width)
}

function box(x, y, w, h, fill, line, width) {
    svg = svg sprintf("<rect x=\"%.2f\" y=\"%.2f\" width=\"%.2f\" height=\"%.2f\" fill=\"%s\" stroke=\"%s\"" \
                      " stroke-width=\"%.2f\"/>\n", x, y, w, h, fill, line, width)
}

function path(d, fill, line, width) {
    svg = svg sprintf("<path d=\"%s\" fill=\"%s\" stroke=\"%s\" stroke-width=\"%.2f\" stroke-linejoin=\"round\"" \
                      " stroke-linecap=\"round\"/>\n", d, fill, line, width)
}

function label(x, y, words, size, anchor, fill, weight) {
    svg = svg sprintf("<text x=\"%.2f\" y=\"%.2f\" font-size=\"%.1f\" text-anchor=\"%s\" fill=\"%s\" font-weight=\"%s\">%s</text>\n",
                      x, y, size, anchor, fill, weight, words)
}

# A decimal number as it is written in Greek.
function decimal(x, digits,    words) {
    words = sprintf("%.*f", digits, x)
    sub(/\./, ",", words)
    return words
}

# The arrow from one place to another.
function arrow(x, y, x2, y2, line, width,    length_, dx, dy) {
    length_ = sqrt((x2 - x) ^ 2 + (y2 - y) ^ 2)
    if (length_ == 0) return
    dx = (x2 - x) / length_
    dy = (y2 - y) / length_
    path(sprintf("M%.2f %.2fL%.2f %.2f", x, y, x2 - 4 * dx, y2 - 4 * dy), "none", line, width)
    path(sprintf("M%.2f %.2fL%.2f %.2fL%.2f %.2fZ", x2, y2, x2 - 6 * dx + 3 * dy, y2 - 6 * dy - 3 * dx,
                 x2 - 6 * dx - 3 * dy, y2 - 6 * dy + 3 * dx), line, "none", 0)
}

# The two axes of a graph with its corner at (x, y).
function axes(x, y, w, h) {
    arrow(x, y, x + w, y, "#4a5563", 1.2)
    arrow(x, y, x, y - h, "#4a5563", 1.2)
}

# An ion with its symbol.
function ion(x, y, r, fill, symbol, size) {
    circle(x, y, r, fill, "#12366b", 1)
    label(x, y + size * 0.35, symbol, size, "middle", "#12366b", "bold")
}
