# Sourced by scripts/package: makes the Debian package of ovprefs. Needs root,
# scripts, version, full_version, native, maintainer, work and put_notices.
# shellcheck shell=bash
# shellcheck disable=SC2154

deb_changelog() {
    printf 'ovprefs (%s) stable; urgency=medium\n\n' "$version"
    printf '  * CHANGELOG.md beside this file lists the changes.\n\n'
    printf ' -- %s  %s\n' "$maintainer" "$(date -u -R -d "@$SOURCE_DATE_EPOCH")"
}

deb_copyright() {
    printf 'Orthoval Preferences %s\n\n' "$full_version"
    printf 'Copyright: the authors of Orthoval Preferences. All rights reserved.\n\n'
    printf 'The program contains parts of the following libraries.\n'
    local notice
    for notice in PCRE2 CLI11 nlohmann-json; do
        printf '\n%s\n%s\n\n' "$notice" "$(printf '%*s' "${#notice}" '' | tr ' ' =)"
        cat "$1/$notice.txt"
    done
}

# deb_depends PROGRAM: the libraries that it needs, with the versions that have
# its symbols.
deb_depends() {
    local folder="$work/shlibdeps"
    mkdir -p "$folder/debian"
    printf 'Source: ovprefs\n\nPackage: ovprefs\nArchitecture: amd64\n' >"$folder/debian/control"
    (cd "$folder" && dpkg-shlibdeps -O "$1" 2>/dev/null) | sed -n 's/^shlibs:Depends=//p'
}

deb_control() {
    cat <<END
Package: ovprefs
Version: $version
Architecture: amd64
Maintainer: $maintainer
Installed-Size: $(du -sk --apparent-size "$1" | cut -f 1)
Depends: $(deb_depends "$1/usr/bin/ovprefs")
Section: utils
Priority: optional
Description: check, show and edit files of Orthoval Preferences
 An office steers the checking of its CAD standards by a text file of
 NAME = value lines. This program reports what is wrong with such files,
 shows what the dialog Orthoval Preferences would make of them, edits
 single variables without changing other lines, and compares and merges
 versions of a file.
END
}

# make_deb DEB
make_deb() {
    local tree="$work/deb" doc="$work/deb/usr/share/doc/ovprefs"
    mkdir -p "$tree/DEBIAN" "$doc/examples" "$tree/usr/bin" "$tree/usr/share/man/man1" \
        "$tree/usr/share/bash-completion/completions" "$tree/usr/share/zsh/vendor-completions"
    strip --remove-section=.comment --remove-section=.note -o "$tree/usr/bin/ovprefs" "$native"
    chmod 755 "$tree/usr/bin/ovprefs"
    "$scripts/make-man" "$native" "$(date -u -d "@$SOURCE_DATE_EPOCH" +%F)" | gzip -9n >"$tree/usr/share/man/man1/ovprefs.1.gz"
    cp "$root/packaging/completions/ovprefs.bash" "$tree/usr/share/bash-completion/completions/ovprefs"
    cp "$root/packaging/completions/_ovprefs" "$tree/usr/share/zsh/vendor-completions/_ovprefs"
    cp "$root"/samples/*.cfg "$doc/examples"
    deb_changelog | gzip -9n >"$doc/changelog.gz"
    gzip -9n <"$root/CHANGELOG.md" >"$doc/CHANGELOG.md.gz"
    put_notices "$work/notices"
    deb_copyright "$work/notices" >"$doc/copyright"
    chmod -R u=rwX,go=rX "$tree"
    deb_control "$tree" >"$tree/DEBIAN/control"
    (cd "$tree" && find usr -type f -print0 | sort -z | xargs -0 md5sum) >"$tree/DEBIAN/md5sums"
    chmod 644 "$tree"/DEBIAN/*
    find "$tree" -exec touch -d "@$SOURCE_DATE_EPOCH" {} +
    dpkg-deb --root-owner-group -Zxz --build "$tree" "$1" >/dev/null
}
