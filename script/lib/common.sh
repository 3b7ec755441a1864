# shellcheck shell=bash
# What the scripts share: saying what they do, installing what is missing, building, and a virtual
# display. Sourced, never run.

set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
export LC_ALL=C.UTF-8

build_packages=(cmake ninja-build g++ pkg-config qtbase5-dev qttools5-dev-tools libxcb-xinput-dev)
# The last font has the Chinese, Japanese and Korean letters that the first lacks: one file, and no rules
# that would change what other letters look like.
display_packages=(xvfb openbox x11-utils imagemagick fonts-dejavu-core fonts-droid-fallback)
screen_reader_packages=(dbus at-spi2-core gir1.2-atspi-2.0 python3-gi)

# Progress goes to standard error, so that a script's result stays alone on standard output.
step() {
    [ -n "${quiet:-}" ] || printf '\n== %s\n' "$*" >&2
}

fail() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        fail "root or sudo is needed to run: $*"
    fi
}

# lock NAME: waits until no other script has the lock of that name, and keeps it until unlock. Scripts
# that run beside each other share the packages, the build folders and the processors: one at a time
# computes ("building") and one runs tests ("testing"), which wait more than they compute.
lock() {
    mkdir -p "$root/build"
    exec {lock_file}>"$root/build/.$1.lock"
    flock "$lock_file"
}

unlock() {
    flock --unlock "$lock_file" # also where somebody who was started meanwhile lives on
    exec {lock_file}>&-
}

# ensure_packages NAME...: installs the Debian packages that are missing.
ensure_packages() {
    local missing=() name
    for name in "$@"; do
        dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null | grep -qx installed \
            || missing+=("$name")
    done
    if [ ${#missing[@]} -eq 0 ]; then
        return
    fi
    step "Installing Debian packages: ${missing[*]}"
    lock packages
    as_root apt-get -q update >&2
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get -q -y --no-install-recommends install "${missing[@]}" >&2
    unlock
}

# build PRESET [TARGET...]
build() {
    local preset=$1
    shift
    step "Building ($preset)"
    cd "$root"
    lock building
    cmake --preset "$preset" >"$root/build/$preset.log" 2>&1 \
        || { cat "$root/build/$preset.log"; exit 1; }
    rm -f "$root/build/$preset.log"
    local targets=()
    if [ $# -gt 0 ]; then
        targets=(--target "$@")
    fi
    # Whatever runs beside it goes first: tests wait for real times.
    nice -n 19 cmake --build --preset "$preset" "${targets[@]}"
    unlock
}

# fix_dates: gives everything that is made from these sources the date of their last change, so
# that the same sources make the same files.
fix_dates() {
    if [ -z "${SOURCE_DATE_EPOCH:-}" ]; then
        SOURCE_DATE_EPOCH=$(git -C "$root" log -1 --format=%ct) \
            || fail "the date of the sources is unknown: set SOURCE_DATE_EPOCH"
    fi
    export SOURCE_DATE_EPOCH
}

children=()
scratch=

# Ends whatever the script started, last first, and removes its scratch folder.
clean_up() {
    local i
    for ((i = ${#children[@]} - 1; i >= 0; i--)); do
        kill "${children[i]}" 2>/dev/null || true
        wait "${children[i]}" 2>/dev/null || true
    done
    if [ -n "$scratch" ]; then
        rm -rf "$scratch"
    fi
}
trap clean_up EXIT

make_scratch() {
    scratch=$(mktemp -d "${TMPDIR:-/tmp}/lumikey.XXXXXX")
}

# set_apart: sets `apart` to what starts a command in a world of its own (script/lib/apart); to
# nothing where the system does not part worlds.
set_apart() {
    apart=(unshare --net --ipc --mount)
    if [ "$(id -u)" -ne 0 ]; then
        apart+=(--user --map-root-user)
    fi
    apart+=("$root/script/lib/apart")
    if ! "${apart[@]}" true 2>/dev/null; then
        apart=()
    fi
}

# start_display [WIDTHxHEIGHT]: a virtual display of 96 DPI with a window manager; sets DISPLAY.
start_display() {
    local number_file=$scratch/display
    step "Starting a virtual display"
    # With -noreset: else it starts anew when its only client leaves, which may be the question
    # below, and refuses the window manager meanwhile. And with -ac, because tests start programs
    # as other users, too.
    Xvfb -displayfd 3 -screen 0 "${1:-1600x1280}x24" -dpi 96 -nolisten tcp -noreset -ac \
        3>"$number_file" 2>"$scratch/xvfb.log" &
    children+=($!)
    for _ in $(seq 100); do
        [ -s "$number_file" ] && break
        sleep 0.1
    done
    [ -s "$number_file" ] || { cat "$scratch/xvfb.log"; fail "the virtual display did not start"; }
    DISPLAY=:$(cat "$number_file")
    export DISPLAY
    unset WAYLAND_DISPLAY XAUTHORITY
    export QT_QPA_PLATFORM=xcb
    HOME=$scratch openbox >"$scratch/openbox.log" 2>&1 &
    children+=($!)
    for _ in $(seq 100); do
        xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && return
        sleep 0.1
    done
    cat "$scratch/openbox.log"
    fail "the window manager did not start"
}

# throw_away_home: points the person's folders into the scratch folder.
throw_away_home() {
    export HOME=$scratch/home
    export XDG_CONFIG_HOME=$HOME/.config XDG_CACHE_HOME=$HOME/.cache XDG_DATA_HOME=$HOME/.local/share
    export XDG_RUNTIME_DIR=$scratch/runtime
    mkdir -p "$HOME" "$XDG_RUNTIME_DIR"
    chmod 700 "$XDG_RUNTIME_DIR"
}

# start_wine: a Wine prefix that nobody has used, in the scratch folder; sets WINEPREFIX. Programs
# that start there offer no web engines, and a crash ends them.
start_wine() {
    step "Making a Wine prefix"
    unset QT_QPA_PLATFORM # names a platform of this system
    export WINEPREFIX=$scratch/wine WINEDEBUG=-all
    export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe,winedbg.exe=d"
    # Not --init, which Wine has done by then: a second time was seen to leave two of some of its
    # services, and with them whole runs in which each program took twenty seconds longer.
    wineboot --update >"$scratch/wineboot.log" 2>&1
    timeout 60 wineserver -w
}
