#!/bin/sh
# Renders one animation: render.sh NAME OUT.webm
# NAME.json holds title, seconds and framesPerSecond; NAME.awk draws frame after frame as SVG (320 x 240).
# Needs awk, rsvg-convert, ffmpeg and the Liberation fonts. The same input gives the same file.
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

LC_ALL=C awk -v folder="$frames" -v count=$((seconds * rate)) -v rate="$rate" \
    -f "$sources/drawing.awk" -f "$sources/$name.awk"

for frame in "$frames"/*.svg; do
    rsvg-convert -o "${frame%.svg}.png" "$frame"
done

ffmpeg -nostdin -loglevel error -y -framerate "$rate" -i "$frames/%03d.png" \
    -c:v libvpx -deadline good -cpu-used 2 -threads 1 -b:v 500k -crf 12 -g "$rate" -pix_fmt yuv420p \
    -map_metadata -1 -fflags +bitexact -flags:v +bitexact -f webm "$output"
