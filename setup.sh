# What ./run and ./test share: the packages they need and the build. Sourced, not started.

top=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

die() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# need COMMAND-OR-FILE PACKAGE ...: pairs of what must be there and the Debian package that brings it.
need() {
    local missing=()
    while [ $# -ge 2 ]; do
        case $1 in
            /*) compgen -G "$1" >/dev/null || missing+=("$2") ;;
            *) command -v "$1" >/dev/null || missing+=("$2") ;;
        esac
        shift 2
    done
    [ ${#missing[@]} -eq 0 ] && return
    command -v apt-get >/dev/null ||
        die "needed and not found here: ${missing[*]} (Debian's package names). Please install them."
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || die "needed: ${missing[*]}. Please install them as root with apt-get."
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]} ..."
    local log
    log=$(mktemp)
    if ! { "${as_root[@]}" apt-get -o DPkg::Lock::Timeout=300 update &&
        DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get -o DPkg::Lock::Timeout=300 install -y \
            --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
        tail -5 "$log" >&2
        die "apt-get could not install ${missing[*]}; its last words stand above."
    fi
    rm -f "$log"
}

need_build_tools() {
    need c++ g++ cmake cmake ninja ninja-build \
        '/usr/lib/*/cmake/Qt6Widgets/Qt6WidgetsConfig.cmake' qt6-base-dev \
        '/usr/include/GL/gl.h' libgl-dev '/usr/include/minizip/unzip.h' libminizip-dev '/usr/include/zlib.h' zlib1g-dev
}

# build PRESET OPTIONS TARGET ...: configures where that hasn't been done with these OPTIONS (one word,
# empty for any), and builds what has changed. Quiet unless it fails.
build() {
    local preset=$1 options=$2
    shift 2
    local tree="$top/build/$preset" log="$top/build/$preset.log"
    configure "$preset" "$options"
    ninja -C "$tree" "$@" >"$log" 2>&1 || {
        grep -E 'error|FAILED' "$log" | head -20 >&2
        die "the build failed; the whole story is in build/$preset.log"
    }
}

# configure PRESET OPTIONS: where that hasn't been done with these OPTIONS.
configure() {
    local preset=$1 options=${2:-}
    local tree="$top/build/$preset" log="$top/build/$preset.log" done_with="$top/build/$preset.options"
    mkdir -p "$top/build"
    if [ ! -f "$tree/build.ninja" ] || { [ -n "$options" ] && [ "$(cat "$done_with" 2>/dev/null)" != "$options" ]; }; then
        # shellcheck disable=SC2086 # one word, or none
        (cd "$top" && cmake --preset "$preset" $options) >"$log" 2>&1 || {
            tail -20 "$log" >&2
            die "the build could not be configured; the whole story is in build/$preset.log"
        }
        echo "$options" >"$done_with"
    fi
}
