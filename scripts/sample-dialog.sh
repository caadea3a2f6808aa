# Sourced by the scripts that take pictures of the dialog with the samples open.
# Needs wine-session.sh, bin (the folder of the Windows programs) and folder (one
# for temporary files).
# shellcheck shell=bash
# shellcheck disable=SC2154

# Through a file: Wine's own processes keep the writing end of a pipe open.
drive() {
    wine "$bin/ovDrive.exe" "$@" >"$folder/answer" || {
        cat "$folder/answer" >&2
        return 1
    }
}

# take_picture FILE [CAPTION]: takes the screen, or the window of that caption,
# until two pictures in a row are alike: then it is painted. Around the dialog
# there is nothing. What a theme paints in many shades takes 64
# colours without a visible difference.
take_picture() {
    local tries window=(-window root)
    [ "$#" -eq 1 ] || window=(-frame -window "$2")
    for tries in 1 2 3 4 5 6 7 8 9 10; do
        import "${window[@]}" "$folder/screen-$((tries % 2)).ppm"
        [ "$tries" = 1 ] || ! cmp -s "$folder/screen-0.ppm" "$folder/screen-1.ppm" || break
    done
    convert "$folder/screen-$((tries % 2)).ppm" -trim +repage -strip +dither -colors 64 \
        -define png:compression-level=9 "$1"
}

# open_samples [WIDTH HEIGHT]: the dialog on copies of the samples, with that
# outer size in pixels. They lie where an office would keep them, since the
# pictures show the path.
open_samples() {
    local samples standards="$WINEPREFIX/drive_c/Standards"
    samples="$(dirname "${BASH_SOURCE[0]}")/../samples"
    mkdir -p "$standards"
    cp "$samples/office.cfg" "$samples/defaults.cfg" "$standards"
    drive start "$(windows_path "$bin/ovPreferencesHost.exe")" 'DEFAULT:C:\Standards\defaults.cfg' \
        'CURRENT:C:\Standards\office.cfg' "USER:J. Whitfield"
    [ "$#" -eq 0 ] || drive size "$1" "$2"
}

# show_page TITLE: the page of that category, its first control explained below.
show_page() {
    drive select "$1"
    drive focus
}
