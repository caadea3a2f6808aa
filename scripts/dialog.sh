# Sourced by scripts that operate the dialog. Needs script.sh, wine-session.sh,
# bin (the folder of the Windows programs) and folder (for temporary files).
# shellcheck shell=bash
# shellcheck disable=SC2154

# Options of convert for every screenshot.
picture_options=()

# drive COMMAND...: prints the output of ovDrive. Through a file, because Wine's own
# processes keep the writing end of a pipe open.
drive() {
    local code=0
    wine "$bin/ovDrive.exe" "$@" >"$folder/answer" || code=$?
    tr -d '\r' <"$folder/answer"
    rm -f "$folder/answer"
    return "$code"
}

# control_id NAME: prints the number of a resource id.
control_id() {
    local number
    number=$(sed -n "s/^#define $1 //p" "$root/resources/ids.h" "$root"/pages/*/ids.h)
    [ -n "$number" ] || fail "no such control: $1"
    printf '%s\n' "$number"
}

# take_screenshot FILE [CAPTION]: captures the screen, or the window with that
# caption, until two pictures in a row are equal, which means that painting has finished.
take_screenshot() {
    local picture="$1" tries window=(-window root)
    [ "$#" -eq 1 ] || window=(-frame -window "$2")
    for tries in 1 2 3 4 5 6 7 8 9 10; do
        import "${window[@]}" "$folder/screen-$((tries % 2)).ppm"
        [ "$tries" = 1 ] || ! cmp -s "$folder/screen-0.ppm" "$folder/screen-1.ppm" || break
    done
    mkdir -p "$(dirname "$picture")"
    convert "$folder/screen-$((tries % 2)).ppm" "${picture_options[@]}" "$picture"
    rm -f "$folder"/screen-?.ppm
}
