# What run, test and .ci/run share: installing packages and building a preset. Sourced by bash.

PACKAGES=(
    g++ cmake ninja-build ccache
    qt6-base-dev qt6-webengine-dev libqt6svg6-dev libqt6opengl6-dev libqt6charts6-dev
    nlohmann-json3-dev libpng-dev libstemmer-dev libgtest-dev libgmock-dev libbenchmark-dev
    fonts-liberation librsvg2-bin poppler-utils ffmpeg bodr clang-format python3
    dpkg-dev file lintian desktop-file-utils appstream
)
# npm fetches a library of the molecule viewer; one that is there already will do, from wherever it came.
command -v npm >/dev/null || PACKAGES+=(npm)
# node runs the tests of the tools in pages.
command -v node >/dev/null || PACKAGES+=(nodejs)

say() { printf '\n== %s\n' "$*"; }

as_root() {
    if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi
}

install_packages() {
    local missing=()
    for package in "${PACKAGES[@]}"; do
        dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
    done
    if [ ${#missing[@]} = 0 ]; then return; fi
    say "Installing ${missing[*]}"
    as_root apt-get update -q
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# build PRESET [TARGET…]
build() {
    local preset=$1
    shift
    say "Building ($preset)"
    cmake --preset "$preset" --log-level=WARNING
    cmake --build --preset "$preset" ${@:+--target "$@"}
}
