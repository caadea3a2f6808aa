# Sourced by scripts that take pictures of the dialog with the samples open. The
# first argument is a Windows build, which also contains the other programs.
# shellcheck shell=bash

# shellcheck source=scripts/script.sh
. "${BASH_SOURCE[0]%/*}/script.sh"
# shellcheck source=scripts/wine-session.sh
. "$scripts/wine-session.sh"
# shellcheck source=scripts/dialog.sh
. "$scripts/dialog.sh"

# begin_pictures BUILD: starts a display and a prefix. Wine needs absolute paths.
begin_pictures() {
    local build
    build=$(realpath -- "$1")
    bin="$build/bin"
    [ -f "$bin/ovPreferencesHost.exe" ] || fail "no Windows build: $1"
    folder=$(mktemp -d)
    trap 'end_session; rm -rf "$folder"' EXIT
    # The pictures show only the dialog. A theme's many shades fit into 64 colours
    # without a visible difference.
    # shellcheck disable=SC2034 # used by take_screenshot
    picture_options=(-trim +repage -strip +dither -colors 64 -define png:compression-level=9)
    start_display
    use_prefix "${WINEPREFIX:-$build/wine}"
}

# Copies the samples to a folder as in an office, because the pictures show the path.
copy_samples() {
    local standards="$WINEPREFIX/drive_c/Standards"
    mkdir -p "$standards"
    cp "$root/samples/office.cfg" "$root/samples/defaults.cfg" "$standards"
}

# open_samples [WIDTH HEIGHT]: opens the dialog on copies of the samples, with
# that outer size in pixels.
open_samples() {
    copy_samples
    drive start "$(windows_path "$bin/ovPreferencesHost.exe")" 'DEFAULT:C:\Standards\defaults.cfg' \
        'CURRENT:C:\Standards\office.cfg' "USER:J. Whitfield" >/dev/null
    [ "$#" -eq 0 ] || drive size "$1" "$2" >/dev/null
}

# show_page TITLE: shows the page of that category, with the help of its first control.
show_page() {
    drive select "$1"
    drive focus
}
