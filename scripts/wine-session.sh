# Sourced by scripts that run Windows programs. Provides a Wine prefix for the
# project, and a display if there is none. Call end_session from the caller's exit
# trap.
# shellcheck shell=bash

session_display_pids=()
session_work=""
session_failure=""
session_own_display=false

session_fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    return 1
}

# Polls until the command succeeds; gives up after the given number of seconds.
await() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.05
    done
}

# True if the display in DISPLAY responds.
has_display() {
    [ -n "${DISPLAY:-}" ] && xdpyinfo >/dev/null 2>&1
}

# Starts a separate virtual display with a window manager; end_session ends both.
# A subshell has its own session: ending it does not affect the display of the outer one.
start_display() {
    session_display_pids=()
    session_work=$(mktemp -d)
    session_own_display=true
    unset XAUTHORITY WAYLAND_DISPLAY
    local _
    for _ in 1 2 3; do
        if start_display_server && start_window_manager; then
            return
        fi
        end_display
    done
    session_fail "$session_failure"
}

# The server chooses a free display number. By default it resets when its last client
# leaves, and refuses whoever connects meanwhile: has_window_manager leaving would
# make the window manager fail.
start_display_server() {
    Xvfb -displayfd 3 -noreset -screen 0 1280x1024x24 -nolisten tcp \
        3>"$session_work/display" >"$session_work/xvfb.log" 2>&1 &
    session_display_pids=($!)
    session_failure="the virtual display did not start"
    if await 20 ended_or "$!" test -s "$session_work/display"; then
        DISPLAY=":$(<"$session_work/display")"
        export DISPLAY
        await 20 ended_or "${session_display_pids[0]}" has_display
        has_display && kill -0 "${session_display_pids[0]}" 2>/dev/null && return
    fi
    session_failure+=": $(tail -n 1 "$session_work/xvfb.log")"
    return 1
}

# Without a window manager each top-level window takes seconds to close.
start_window_manager() {
    openbox --sm-disable >"$session_work/openbox.log" 2>&1 &
    session_display_pids+=($!)
    await 20 ended_or "$!" has_window_manager
    has_window_manager && return
    session_failure="the window manager did not start: $(tail -n 1 "$session_work/openbox.log")"
    return 1
}

# ended_or PID COMMAND...: true if the process has ended or the command succeeds.
ended_or() {
    ! kill -0 "$1" 2>/dev/null || "${@:2}"
}

end_display() {
    local pid
    for pid in "${session_display_pids[@]}"; do
        kill "$pid" 2>/dev/null || true
        wait "$pid" 2>/dev/null || true
    done
    session_display_pids=()
}

has_window_manager() {
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'
}

# use_prefix FOLDER [MODEL]: creates the Wine prefix once. With MODEL, another
# prefix without running programs, it is a fast copy: the 700 MB of system files
# are shared by hard links, because only the registry is written later. Prevents
# Wine's questions about Mono and Gecko, which are not needed, and entries in the
# menus of the user's desktop.
use_prefix() {
    export WINEPREFIX="$1" WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe="
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
    # Wine does not search the folder in which its own fonts are packaged.
    # Without Tahoma every dialog would be a sixth too wide.
    ln -sf /usr/share/wine/fonts/* "$WINEPREFIX/drive_c/windows/Fonts/"
    wineserver -k || true
    wineserver -w
    touch "$WINEPREFIX/.complete"
}

# The most frequent reason, which Wine does not report.
missing_from_wine() {
    local missing
    missing=$(dpkg --verify libwine wine64 2>/dev/null | grep '^missing' | head -n 3) || return 0
    printf '\n%s' "$missing"
}

# use_resolution DPI: sets the resolution for all programs started in the prefix later.
use_resolution() {
    wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f >/dev/null 2>&1
    wineserver -k || true
    wineserver -w
}

# The path in Windows notation.
windows_path() {
    local path
    path=$(realpath -m -- "$1")
    printf 'Z:%s' "${path//\//\\}"
}

# Ends everything that this session has started, including its Wine processes if
# they are on the session's own display.
end_session() {
    if [ "$session_own_display" = true ] && [ -n "${WINEPREFIX:-}" ]; then
        wineserver -k 2>/dev/null || true
    fi
    end_display
    [ -z "$session_work" ] || rm -rf "$session_work"
    session_work=""
}
