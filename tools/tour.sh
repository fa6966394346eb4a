#!/usr/bin/env bash
# Walks through the program by itself and saves pictures of what it shows, on three screens, without a display.
# tour.sh BUILD OUT: BUILD is a build folder with kalyxo-drive and the content; the pictures go to OUT.
set -euo pipefail

if [ $# -ne 2 ]; then
    echo "usage: tour.sh BUILD OUT" >&2
    exit 2
fi
tools=$(cd "$(dirname "$0")" && pwd)
mkdir -p "$2"
build=$(cd "$1" && pwd)
out=$(cd "$2" && pwd)
drive=$build/bin/kalyxo-drive
# Molecules stand still, so that each tour gives the same pictures.
export QTWEBENGINE_CHROMIUM_FLAGS="${QTWEBENGINE_CHROMIUM_FLAGS:+$QTWEBENGINE_CHROMIUM_FLAGS }--force-prefers-reduced-motion"
machines=$(mktemp -d)
trap 'rm -rf "$machines"' EXIT

# Centres of the main menu's areas, measured from the corner of its picture of 628 x 384 pixels.
areas=("69 265" "69 187" "68 110" "195 46" "314 46" "424 46" "559 110" "558 187" "558 265")
names=(react struct elemcomp uses source history concept periodic analyser)
# What the frame takes off the screen: borders of 2 pixels, and the menu bar.
border=4
menu=22
bar=50

# Points at each area of the main menu in turn; WIDTH and HEIGHT of the frame.
main_menu() {
    local left=$((($1 - border - 628) / 2)) top=$((($2 - border - menu - 384 - bar) / 2 + bar)) item
    if [ $top -lt $bar ]; then top=$bar; fi
    echo "picture main-menu.png frame"
    for item in "${!areas[@]}"; do
        read -r x y <<<"${areas[$item]}"
        echo "mouse move $((left + x)) $((top + y))"
        echo "picture main-menu-${names[$item]}.png frame"
    done
}

# The whole tour; WIDTH and HEIGHT of the screen, which the window fills.
tour() {
    echo "start"
    echo "maximize"
    main_menu "$1" "$2"
    cat "$tools/tour.kys"
}

for screen in 640x480 1024x768 1920x1080; do
    width=${screen%x*} height=${screen#*x}
    machine=$machines/$screen
    "$drive" --new-machine "$machine" --data "$build/content/data"
    sed -i "s/\"width\": [0-9]*/\"width\": $width/; s/\"height\": [0-9]*/\"height\": $height/" "$machine/machine.json"
    mkdir -p "$out/$screen"
    tour "$width" "$height" >"$machine/tour.kys"
    (cd "$out/$screen" && "$drive" --machine "$machine" "$machine/tour.kys") >"$machine/answers"
    if grep '"ok":false' "$machine/answers"; then
        echo "tour.sh: on $screen something could not be done" >&2
        exit 1
    fi
done
