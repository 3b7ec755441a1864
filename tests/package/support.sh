# shellcheck shell=bash
# What the tests of the installer share: a world with a fresh Wine prefix, checks, and looks at what
# is installed. Sourced, never run.

# shellcheck source=script/lib/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../script/lib/common.sh"

package=$1  # the folder of the installer and the archive
pictures=${LUMIKEY_PICTURES:-} # where pictures of what is on the display go, when somebody wants them
version=$(sed -n 's/^project(Lumikey VERSION \([0-9.]*\) .*/\1/p' "$root/CMakeLists.txt")
setup=$package/Lumikey-$version-setup.exe
program_folder='C:\Program Files\Lumikey'
uninstall_key='HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\Lumikey'
run_key='HKCU\Software\Microsoft\Windows\CurrentVersion\Run'
veto_key='HKCU\Software\Microsoft\Windows\CurrentVersion\Explorer\StartupApproved\Run'

failures=0
finished=false

check() { # what, command...
    local what=$1
    shift
    if "$@"; then
        printf 'ok      %s\n' "$what"
    else
        printf 'FAILED  %s\n' "$what"
        failures=$((failures + 1))
    fi
}

# Ends the test: green when nothing failed.
finish() {
    finished=true
    printf '%d checks failed\n' "$failures"
    [ "$failures" -eq 0 ]
}

# within SECONDS COMMAND...: whether the command succeeds before the time is over.
within() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.2
    done
}

not() { ! "$@"; }
is() { [ "$1" = "$2" ] || { printf '        %q, not %q\n' "$1" "$2"; return 1; }; }

# A user, a display and a Wine prefix that nobody has used.
make_world() {
    make_scratch
    enter_world
}
# The same where there is a scratch folder.
enter_world() {
    throw_away_home
    export TMPDIR=$scratch/tmp
    mkdir -p "$TMPDIR" "$HOME/Documents"
    start_display
    start_wine
    trap 'tell_early_end "$BASH_COMMAND"; wineserver -k 2>/dev/null || true; clean_up' EXIT
}

# A command that fails outside a check ends the test, and may say nothing itself.
tell_early_end() { # the command
    $finished || printf 'error: the test ended early, at: %s\n' "$1" >&2
}

# The path here of a path there.
here() { winepath -u "$1" 2>/dev/null; }

# Prints a value of the registry, nothing when there is none.
registry() { # key, value
    wine reg query "$1" /v "$2" 2>/dev/null | tr -d '\r' \
        | sed -n "s/^ *$2  *REG_[A-Z]*  *//p"
}

is_registered() { wine reg query "$uninstall_key" >/dev/null 2>&1; }

set_autostart() { # path
    wine reg add "$run_key" /v Lumikey /d "$1" /f >/dev/null
    # As Task Manager notes that it is switched off.
    wine reg add "$veto_key" /v Lumikey /t REG_BINARY /d 030000000000000000000000 /f >/dev/null
}

# Runs an installer or uninstaller and leaves its exit code in $code.
silently() { # program, arguments...
    local program=$1
    shift
    code=0
    wine "$program" /S "$@" || code=$?
}

# Whether all programs of the prefix end in time.
everything_ends() { timeout 60 wineserver -w; }

# An uninstaller goes on as a copy of itself after it has returned, and its exit code says no more
# than that the copy was started. $1 is the program's folder.
uninstall_silently() {
    silently "$1\\Uninstall.exe"
    check 'the uninstaller starts' is "$code" 0
    check 'nothing is registered any more' within 60 not is_registered
    check "the uninstaller's copy ends" everything_ends
}

# The same without a copy: the exit code tells how it went, but the uninstaller itself stays.
uninstall_without_copy() {
    local arguments
    read -ra arguments <<<"_?=$1" # it wants blanks without quotes
    silently "$1\\Uninstall.exe" "${arguments[@]}"
}

# --- the program ---------------------------------------------------------------------------------

settings_file() { echo "$HOME/Documents/Corvane/Lumikey/lumikey.ini"; }

setting() { sed -n "s/^$1=//p" "$(settings_file)" 2>/dev/null | tr -d '\r'; }

# Settings whose colours an agent knows again.
write_settings() {
    mkdir -p "$(dirname "$(settings_file)")"
    printf '%s\r\n' '[settings]' backlight_on=true brightlevel=100 'Zone1Color=255 85 0' \
        'Zone2Color=0 255 0' 'Zone3Color=0 0 255' >"$(settings_file)"
}

# Prints the line that an agent is given: after the length and the length of the text, UTF-16.
answer() {
    (exec 3<>/dev/tcp/127.0.0.9/52316 && timeout 5 cat <&3) 2>/dev/null | tail -c +7 \
        | iconv -f UTF-16BE -t UTF-8
}

is_served() { [ -n "$(answer)" ]; }
is_gone() { ! (exec 3<>/dev/tcp/127.0.0.9/52316) 2>/dev/null; }
# The left zone's word of these settings: its code, no blue, 255 red, 85 green.
answers_with_colours() { [[ $(answer) == *4026597205* ]]; }

# Starts the program as the Start menu does.
start_from_menu() {
    wine start 'C:\ProgramData\Microsoft\Windows\Start Menu\Programs\Lumikey.lnk'
}

# --- tools of Windows ------------------------------------------------------------------------------

# stand_in NAME...: from now on, tools of the system folder only note how they were called.
stand_in() {
    local tool
    export LUMIKEY_RECORD="Z:${scratch//\//\\}\\calls"
    for tool in "$@"; do
        cp "$root/build/windows/tests/support/recorder.exe" \
            "$WINEPREFIX/drive_c/windows/system32/$tool.exe"
        WINEDLLOVERRIDES+=";$tool.exe=n" # or Wine would run its own all the same
    done
}

# The calls since the last question, a line each; those of one tool, where one is named.
calls() {
    cut -f 2- "$scratch/calls" 2>/dev/null | tr '\t' ' ' | grep "^${1:-}"
}
forget_calls() { rm -f "$scratch/calls"; }

# --- looks at the whole prefix -------------------------------------------------------------------

# Every file of the prefix and of the user, with what tells a changed one.
list_files() {
    (cd "$WINEPREFIX" && find drive_c -type d -printf '%p/\n' -o -printf '%p %s %T@\n')
    (cd "$HOME" && find . -type d -printf '%p/\n' -o -printf '%p %s %T@\n')
}

list_registry() {
    local hive
    for hive in HKLM HKU; do
        wine reg export "$hive" "Z:${scratch//\//\\}\\$hive.reg" /y >/dev/null \
            || fail "the registry cannot be read: $hive"
        # With each value goes the key that it is of.
        iconv -f UTF-16 -t UTF-8 "$scratch/$hive.reg" | tr -d '\r' \
            | awk '/^\[/ { key = $0; print; next } NF { print key " " $0 }'
    done
}

# look NAME: keeps what there is under this name.
look() {
    check "all has ended before the look: $1" everything_ends
    list_files | sort >"$scratch/$1.files"
    list_registry | sort >"$scratch/$1.registry"
}

# Prints what differs between two looks.
differences() { # files or registry, one look, the other
    diff "$scratch/$2.$1" "$scratch/$3.$1" | grep '^[<>]'
}

# --- the display ---------------------------------------------------------------------------------

window() { xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1; }
is_shown() { [ -n "$(window "$1")" ]; }

# all_wait: whether no program of this prefix has anything to do; each is asleep for half a second.
all_wait() {
    local look programs
    programs=$(grep -lsz "^WINEPREFIX=$WINEPREFIX\$" /proc/[0-9]*/environ | tr -dc '0-9\n' | paste -sd,)
    for look in $(seq 10); do
        ! ps -L -o state= -p "$programs" | grep -q '[RD]' || return 1
        sleep 0.05
    done
}

# Gives what is shown time to change and to be painted, on a machine that is kept from working, too.
settle() {
    sleep 0.7
    within 60 all_wait || fail "the programs do not come to rest"
}

# Waits for a window and until it is painted.
await_window() {
    within 60 is_shown "$1" || { picture missing; fail "no window is shown: $1"; }
    settle
}

picture() { # name
    [ -z "$pictures" ] || import -window root "$pictures/$1.png"
}

# keys KEY...: types into the window that has the focus.
keys() {
    xdotool key --delay 50 "$@"
    settle
}
