# The Windows package tried under Wine. Sourced by ./test.

need_wine() {
    need wine wine /usr/lib/wine/wine64 wine64 Xvfb xvfb xauth xauth import imagemagick xdotool xdotool unzip unzip \
        '/usr/share/wine/fonts/*' fonts-wine '/usr/share/fonts/truetype/liberation*' fonts-liberation
    export WINEPREFIX="$top/build/wine" WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES='mscoree=;mshtml='
    [ -f "$WINEPREFIX/complete" ] && return
    rm -rf "$WINEPREFIX"
    mkdir -p "$top/build"
    {
        xvfb-run -a wineboot -i
        xvfb-run -a wine regedit /S "$top/packaging/windows/wine.reg"
        wineserver -w
    } >"$top/build/wine.log" 2>&1 || die "Wine could not be set up; the whole story is in build/wine.log"
    touch "$WINEPREFIX/complete"
}

# Each test program of the core; no window, and none that needs what only Linux has.
run_core_under_wine() {
    local tests
    cd "$top/build/windows/bin"
    for tests in test_*.exe; do
        echo "$tests"
        wine "$tests" --gtest_brief=1 || die "$tests is red under Wine"
    done
}

# same_bytes FILE FILE WHAT
same_bytes() { cmp -s "$1" "$2" || die "$3 differs from Linux: $1"; }

# The command line gives the same bytes as on Linux, in a folder with a Cyrillic name.
try_command_line() {
    local linux="$top/build/release/bin/talmir-cli"
    cp samples/frost_witch.xdb "Снежная ведьма.xdb"
    printf 'menu mnuOpen Снежная ведьма.xdb\nset txtHealth 77\npress cmdCalc\nmenu mnuSave Новая.xdb\nstate\n' >play.txt
    "$linux" calc "Снежная ведьма.xdb" нет.xdb >linux.out 2>&1 || true
    wine talmir-cli.exe calc "Снежная ведьма.xdb" нет.xdb >wine.out 2>&1 || true
    same_bytes wine.out linux.out "what calc prints"
    "$linux" run play.txt --lang RU >linux.out && mv Новая.xdb linux.xdb
    wine talmir-cli.exe run play.txt --lang RU >wine.out
    same_bytes wine.out linux.out "what run prints"
    same_bytes Новая.xdb linux.xdb "a saved creature"
}

# What is told of set, apply, table and check for the shell of Linux, with the Windows program in place of its own.
play_sessions() {
    local programs="$top/build/windows/for-linux" program
    program=$PWD/talmir-cli.exe
    mkdir -p "$programs"
    printf '#!/bin/sh\nexec wine "%s" "$@"\n' "$program" >"$programs/talmir-cli"
    chmod +x "$programs/talmir-cli"
    for _ in 1 2 3; do # Wine itself was seen to fail at the end of a program
        TALMIR_PROGRAMS=$programs "$top/build/release/bin/test_cli" --gtest_brief=1 \
            --gtest_filter='*.GoesAsTold:*HelpWorkFromTheTop' && return
    done
    die "what the command line gives differs from what is told of it"
}

# wait_for SECONDS WHAT CONDITION: until the command CONDITION succeeds.
wait_for() {
    local tries=$((5 * $1))
    until eval "$3"; do
        [ $((tries--)) -gt 0 ] || die "$2"
        sleep 0.2
    done
}

# The window opens a creature, calculates another health, and saves under another name, as a user does. It is pictured,
# and its title and file must be those that the command line gives on Linux.
try_window() {
    local window title
    title=$("$top/build/release/bin/talmir-cli" run - <<<'menu mnuOpen Снежная ведьма.xdb
set txtHealth 77
press cmdCalc
menu mnuSave linux.xdb
state' | sed -n 's/.*"title":"\([^"]*\)".*/\1/p')
    wineserver -k || true # it has no display
    wineserver -w
    wine explorer /desktop=talmir,1280x1024 talmir.exe "Снежная ведьма.xdb" &
    wait_for 60 "the window did not come up with the creature" \
        'window=$(xdotool search --onlyvisible --name "TALMIR.*Frost_witch" 2>/dev/null) && [ -n "$window" ]'
    sleep 2
    import -window root "$top/build/windows/window.png"
    xdotool mousemove 63 227 click 1 key ctrl+a type 77 # Health
    xdotool mousemove 60 679 click 1                   # Calculate
    wait_for 10 "the window calculated something else than: $title" \
        '[ "$(xdotool getwindowname "$window")" = "$title" ]'
    xdotool windowfocus "$window" key ctrl+s
    sleep 3
    xdotool key ctrl+a type --delay 30 'saved.xdb'
    xdotool key Return
    wait_for 30 "the window saved nothing" '[ -s saved.xdb ]'
    wineserver -k
    same_bytes saved.xdb linux.xdb "a creature saved from the window"
    [ "$(cat lang.ini)" = EN ] || die "lang.ini does not lie beside the program"
    echo "A picture of the window: build/windows/window.png"
}

run_under_wine() {
    local place="$top/build/windows/Мои игры" folder
    need_windows_tools
    need_windows_gtest
    build release -DTALMIR_TESTS=ON talmir-cli test_cli
    "$top/package" windows
    need_wine
    folder="talmir-$(cat "$top/build/windows/version.txt")-windows-x64"
    rm -rf "$place"
    mkdir -p "$place"
    (cd "$place" && unzip -q "$top/dist/$folder.zip")
    (
        cd "$place/$folder"
        try_command_line
        play_sessions
        export top # xvfb-run hands on no functions
        xvfb-run -a -s '-screen 0 1280x1024x24' bash -euo pipefail -c \
            'source "$top/setup.sh"; source "$top/packaging/windows/under_wine.sh"; try_window'
    )
    build_for_windows -DTALMIR_TESTS=ON
    (run_core_under_wine)
    echo "Under Wine: all green."
}
