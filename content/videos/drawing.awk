# Shapes shared by the animations. An animation defines draw(t, u): t = seconds from the start, u = 0 at the first
# and 1 at the last frame; its shapes are collected in `svg`. No random numbers: noise(i) gives a fixed number per i.

BEGIN {
    pi = atan2(0, -1)
    for (frame = 0; frame < count; frame++) {
        svg = ""
        draw(frame / rate, frame / (count - 1))
        file = sprintf("%s/%03d.svg", folder, frame)
        print "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"320\" height=\"240\" viewBox=\"0 0 320 240\"" \
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
    svg = svg sprintf("<text x=\"%.2f\" y=\"%.2f\" font-size=\"%d\" text-anchor=\"%s\" fill=\"%s\" font-weight=\"%s\">%s</text>\n",
                      x, y, size, anchor, fill, weight, words)
}
