# Sourced by the scripts that build.
# shellcheck shell=bash

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# build_preset PRESET [TARGET...]: configures where necessary and builds,
# quietly; prints the end of the log and fails when the build does.
build_preset() {
    local preset="$1" log="$root/build/$1.log" target=()
    shift
    [ "$#" -eq 0 ] || target=(--target "$@")
    mkdir -p "$root/build"
    if (cd "$root" && { [ -e "build/$preset/build.ninja" ] || cmake --preset "$preset"; } &&
        cmake --build --preset "$preset" "${target[@]}") >"$log" 2>&1; then
        return 0
    fi
    grep -m 20 -E 'error|FAILED|undefined reference' "$log" >&2 || tail -n 20 "$log" >&2
    printf '%s: building %s failed; the whole log is %s\n' "${0##*/}" "$preset" "$log" >&2
    return 1
}
