# Sourced by the scripts that run Windows programs: a Wine prefix of the
# project's own, and a display where there is none. Call end_session from the
# caller's exit trap.
# shellcheck shell=bash

session_display_pids=()
session_work=""
session_own_display=false

session_fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    return 1
}

# Polls until the command succeeds; gives up after the given seconds.
await() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.05
    done
}

# Whether DISPLAY names a display that answers.
has_display() {
    [ -n "${DISPLAY:-}" ] && xdpyinfo >/dev/null 2>&1
}

# A virtual display of its own with a window manager, both ended by
# end_session. The server itself picks a free display number. In a subshell the
# session is another one: ending it leaves the outer one's display.
start_display() {
    session_display_pids=()
    session_work=$(mktemp -d)
    session_own_display=true
    unset XAUTHORITY WAYLAND_DISPLAY
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp \
        3>"$session_work/display" >"$session_work/xvfb.log" 2>&1 &
    session_display_pids+=($!)
    await 20 test -s "$session_work/display" ||
        session_fail "the virtual display did not start: $(tail -n 1 "$session_work/xvfb.log")" || return
    DISPLAY=":$(<"$session_work/display")"
    export DISPLAY
    # Without a window manager each top-level window takes seconds to go.
    openbox --sm-disable >"$session_work/openbox.log" 2>&1 &
    session_display_pids+=($!)
    await 20 has_window_manager ||
        session_fail "the window manager did not start: $(tail -n 1 "$session_work/openbox.log")"
}

has_window_manager() {
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'
}

# use_prefix FOLDER [MODEL]: makes the Wine prefix once, quickly as a copy of
# another one in which nothing may be running. The copies share the system's
# files, 700 MB, by hard links; only the registry is written to later. No
# questions about Mono and Gecko: nothing here needs them.
use_prefix() {
    export WINEPREFIX="$1" WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml="
    [ -e "$WINEPREFIX/.complete" ] && return 0
    rm -rf "$WINEPREFIX" "$WINEPREFIX.part"
    if [ -n "${2:-}" ]; then
        cp -al "$2" "$WINEPREFIX.part" && cp -a --remove-destination "$2"/*.reg "$WINEPREFIX.part" &&
            mv "$WINEPREFIX.part" "$WINEPREFIX"
        return
    fi
    mkdir -p "$WINEPREFIX"
    if ! { wineboot -i && wineserver -w; } >"$WINEPREFIX/wineboot.log" 2>&1; then
        session_fail "Wine cannot be set up: $(tail -n 1 "$WINEPREFIX/wineboot.log")$(missing_from_wine)"
        return 1
    fi
    # Wine does not look into the folder that its own fonts are packaged in.
    # Without Tahoma every dialog would be a sixth too wide.
    ln -sf /usr/share/wine/fonts/* "$WINEPREFIX/drive_c/windows/Fonts/"
    wineserver -k || true
    wineserver -w
    touch "$WINEPREFIX/.complete"
}

# The most frequent reason, which Wine does not name.
missing_from_wine() {
    local missing
    missing=$(dpkg --verify libwine wine64 2>/dev/null | grep '^missing' | head -n 3) || return 0
    printf '\n%s' "$missing"
}

# use_resolution DPI: of all programs that begin in the prefix from now on.
use_resolution() {
    wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f >/dev/null 2>&1
    wineserver -k || true
    wineserver -w
}

# The path as Windows programs know it.
windows_path() {
    local path
    path=$(realpath -m -- "$1")
    printf 'Z:%s' "${path//\//\\}"
}

# Ends what this session has started, its Wine processes too when they are on
# the session's own display.
end_session() {
    local pid
    if [ "$session_own_display" = true ] && [ -n "${WINEPREFIX:-}" ]; then
        wineserver -k 2>/dev/null || true
    fi
    for pid in "${session_display_pids[@]}"; do
        kill "$pid" 2>/dev/null || true
        wait "$pid" 2>/dev/null || true
    done
    session_display_pids=()
    [ -z "$session_work" ] || rm -rf "$session_work"
    session_work=""
}
