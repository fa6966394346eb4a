#!/bin/sh
# Renders one animation: render.sh NAME OUT.webm
# NAME.json holds title, seconds and framesPerSecond; NAME.awk draws frame after frame as SVG: places are given in
# 320 x 240, the frames have twice that size. ffmpeg reads all of them in one go, which takes about a third of the time that
# a program for each frame takes. Needs awk, an ffmpeg that reads SVG (as in Debian and Ubuntu) and the Liberation fonts.
# The same input gives the same file.
set -eu

if [ $# -ne 2 ]; then
    echo "usage: render.sh NAME OUT.webm" >&2
    exit 2
fi

name=$1
output=$2
sources=$(dirname "$0")
frames=$(mktemp -d)
trap 'rm -rf "$frames"' EXIT
trap 'exit 1' HUP INT TERM

number() {
    sed -n 's/.*"'"$1"'"[[:space:]]*:[[:space:]]*\([0-9][0-9]*\).*/\1/p' "$sources/$name.json"
}

seconds=$(number seconds)
rate=$(number framesPerSecond)
if [ -z "$seconds" ] || [ -z "$rate" ]; then
    echo "render.sh: $name.json: seconds or framesPerSecond missing" >&2
    exit 1
fi

# The files with functions that the animation uses.
set -- -f "$sources/drawing.awk"
if grep -q move_gas "$sources/$name.awk"; then
    set -- "$@" -f "$sources/gas.awk"
fi

LC_ALL=C awk -v folder="$frames" -v count=$((seconds * rate)) -v rate="$rate" \
    "$@" -f "$sources/$name.awk"

ffmpeg -nostdin -loglevel error -y -threads 1 -framerate "$rate" -i "$frames/%03d.svg" \
    -c:v libvpx -deadline good -cpu-used 5 -threads 1 -b:v 450k -crf 18 -g $((2 * rate)) -pix_fmt yuv420p \
    -map_metadata -1 -fflags +bitexact -flags:v +bitexact -f webm "$output"
