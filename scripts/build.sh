# Sourced by the scripts that build.
# shellcheck shell=bash

# shellcheck source=scripts/script.sh
. "${BASH_SOURCE[0]%/*}/script.sh"

# build_preset PRESET [TARGET...]: configures if necessary and builds as much as
# possible, quietly. Prints the errors and fails if there are any.
build_preset() {
    local preset="$1" log="$root/build/$1.log" target=()
    shift
    [ "$#" -eq 0 ] || target=(--target "$@")
    mkdir -p "$root/build"
    # In a fixed language, because the output is searched.
    if (export LC_ALL=C.UTF-8 && cd "$root" && { [ -e "build/$preset/build.ninja" ] || cmake --preset "$preset"; } &&
        cmake --build --preset "$preset" "${target[@]}" -- -k 0) >"$log" 2>&1; then
        return 0
    fi
    { grep -E '[Ee]rror: |CMake Error|^FAILED: |undefined reference' "$log" || tail -n 20 "$log"; } |
        awk 'NR <= 20 { print substr($0, 1, 200) }' >&2
    printf '%s: building %s failed; the whole log is %s\n' "${0##*/}" "$preset" "$log" >&2
    return 1
}
