# Sourced by scripts/package: the libraries whose code is in the programs, their
# licences and the list of them for machines. Needs root, windows, version,
# full_version, pcre2 and uuid_of.
# shellcheck shell=bash
# shellcheck disable=SC2154

# library NAME: what is known about it: its Debian package, the identifier of its
# licence, and a description.
library() {
    case "$1" in
    PCRE2) printf 'pcre2 BSD-3-Clause regular expressions' ;;
    GCC) printf 'gcc-mingw-w64-x86-64-posix-runtime GPL-3.0-or-later+WITH+GCC-exception-3.1 C++ library and compiler runtime' ;;
    mingw-w64) printf 'mingw-w64-x86-64-dev ZPL-2.1 start code of C programs, and winpthreads (MIT)' ;;
    CLI11) printf 'libcli11-dev BSD-3-Clause command-line options of ovprefs' ;;
    nlohmann-json) printf 'nlohmann-json3-dev MIT JSON output of ovprefs' ;;
    esac
}
libraries=(PCRE2 GCC mingw-w64 CLI11 nlohmann-json)

# put_notices FOLDER: a file with the licence texts for each library, and one that
# lists them.
put_notices() {
    local name package rest
    mkdir -p "$1"
    for name in "${libraries[@]}"; do
        read -r package rest < <(library "$name"; echo)
        case "$name" in
        PCRE2) cp "$pcre2/LICENCE" "$1/$name.txt" ;;
        GCC)
            # Its text refers to that of the licence.
            cat "/usr/share/doc/$package/copyright" /usr/share/common-licenses/GPL-3 >"$1/$name.txt"
            ;;
        *) cp "/usr/share/doc/$package/copyright" "$1/$name.txt" ;;
        esac
    done
    chmod 644 "$1"/*
}

# The version of a library: of Debian's package, or of PCRE2's sources.
library_version() {
    if [ "$1" = pcre2 ]; then
        printf '%s' "${pcre2##*/pcre2-}"
    else
        # shellcheck disable=SC2016
        dpkg-query -W -f '${Version}' "$1"
    fi
}

# sbom_component NAME: one entry of the list.
sbom_component() {
    local package licence description version
    read -r package licence description < <(library "$1"; echo)
    version=$(library_version "$package")
    jq -n --arg name "$1" --arg package "$package" --arg licence "${licence//+/ }" --arg version "$version" \
        --arg description "$description" '{
            type: "library", "bom-ref": $package, name: $name, version: $version, description: $description,
            licenses: [{expression: $licence}],
            purl: (if $package == "pcre2" then "pkg:generic/pcre2@" else "pkg:deb/debian/\($package)@" end
                + ($version | @uri))}'
}

# contained_in PROGRAM: the Debian packages of the libraries in it, one a line. What
# is in every program of this compiler has no names of its own to look for.
contained_in() {
    local symbols
    symbols=$(x86_64-w64-mingw32-nm "$1")
    printf 'gcc-mingw-w64-x86-64-posix-runtime\nmingw-w64-x86-64-dev\n'
    if grep -qwE 'pcre2_match_(8|16|32)' <<<"$symbols"; then printf 'pcre2\n'; fi
    if grep -q N3CLI <<<"$symbols"; then printf 'libcli11-dev\n'; fi
    if grep -q N8nlohmann <<<"$symbols"; then printf 'nlohmann-json3-dev\n'; fi
}

# sbom_dependency PROGRAM: what it contains, by the names of the entries.
sbom_dependency() {
    contained_in "$1" | jq -n -R --arg name "${1##*/}" '{ref: $name, dependsOn: [inputs]}'
}

# sbom_file FILE: an entry of a file of the package.
sbom_file() {
    jq -n --arg name "${1##*/}" --arg sum "$(sha256sum "$1" | cut -d ' ' -f 1)" --arg version "$version" '{
        type: (if $name | endswith(".dll") then "library" else "application" end),
        "bom-ref": $name, name: $name, version: $version, hashes: [{alg: "SHA-256", content: $sum}]}'
}

# make_sbom JSON PROGRAM...: a CycloneDX list of what the programs contain.
make_sbom() {
    local json="$1" name
    shift
    {
        for name in "$@"; do sbom_file "$name"; done | jq -s '{files: .}'
        for name in "${libraries[@]}"; do sbom_component "$name"; done | jq -s '{libraries: .}'
        # With their symbols, which the packed files do not have.
        for name in "$@"; do sbom_dependency "$windows/bin/${name##*/}"; done | jq -s '{contained: .}'
    } | jq -s --arg version "$version" --arg full "$full_version" \
        --arg time "$(date -u -d "@$SOURCE_DATE_EPOCH" +%FT%TZ)" --arg serial "$(uuid_of "sbom/$full_version")" '
        add | {
            bomFormat: "CycloneDX", specVersion: "1.5", serialNumber: "urn:uuid:\($serial | ascii_downcase)", version: 1,
            metadata: {
                timestamp: $time,
                component: {
                    type: "application", "bom-ref": "ovPreferences", name: "Orthoval Preferences", version: $version,
                    description: $full, components: .files}},
            components: .libraries,
            dependencies: [
                {ref: "ovPreferences", dependsOn: [.files[]["bom-ref"]]},
                .contained[]]}' >"$json"
}
