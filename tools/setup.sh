# What run, test, .ci/run and packaging share: installing packages and building a preset. Sourced by bash.

# To build the program and its content. All names are those of real packages on each release of Debian that is
# supported: what is only provided by another package would be asked for again and again.
PACKAGES=(
    g++ cmake ninja-build ccache
    qt6-base-dev qt6-webengine-dev qt6-svg-dev qt6-charts-dev
    nlohmann-json3-dev libpng-dev libstemmer-dev libcmark-gfm-dev libcmark-gfm-extensions-dev
    fonts-liberation librsvg2-bin ffmpeg bodr
)
# npm fetches a library of the molecule viewer; one that is there already will do, from wherever it came.
command -v npm >/dev/null || PACKAGES+=(npm)
# To test besides, to check what is written and how fast it runs, and to make the package.
TEST_PACKAGES=(libgtest-dev poppler-utils python3)
# node runs the tests of the tools in pages.
command -v node >/dev/null || TEST_PACKAGES+=(nodejs)
CHECK_PACKAGES=(git clang-19 clang-format-19 clang-tidy-19 libclang-rt-19-dev libbenchmark-dev hunspell hunspell-el)
PACKAGE_PACKAGES=(dpkg-dev file lintian desktop-file-utils appstream)

say() { printf '\n== %s\n' "$*"; }

as_root() {
    if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi
}

# install_packages PACKAGE…: asks for root and the network only when one is missing.
install_packages() {
    local installed missing
    # It ends with an error when it does not know one of them, as on a new machine.
    installed=$(dpkg-query -W -f='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null | sed -n 's/ installed$//p') || true
    mapfile -t missing < <(printf '%s\n' "$@" | grep -vxF "$installed")
    if [ ${#missing[@]} = 0 ]; then return; fi
    say "Installing ${missing[*]}"
    as_root apt-get update -q
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# build PRESET [TARGET…]: configures where that has not been done or the presets have changed since; what else the
# configuration depends on, the build looks at by itself.
build() {
    local preset=$1
    shift
    say "Building ($preset)"
    if [ ! build/$preset/build.ninja -nt CMakePresets.json ]; then cmake --preset "$preset" --log-level=WARNING; fi
    cmake --build --preset "$preset" ${@:+--target "$@"}
}
