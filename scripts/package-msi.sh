# Sourced by scripts/package: makes the installer for Windows. Needs root, version,
# full_version, work and at_commit.
# shellcheck shell=bash
# shellcheck disable=SC2154

# uuid_of NAME: always the same identifier for the same name.
uuid_of() {
    local hash
    hash=$(printf 'ovPreferences/%s' "$1" | sha1sum)
    hash=${hash^^}
    printf '%s-%s-5%s-A%s-%s' "${hash:0:8}" "${hash:8:4}" "${hash:13:3}" "${hash:17:3}" "${hash:20:12}"
}

# xml_id PREFIX PATH: the identifier of a path in the installer's tables.
xml_id() {
    local uuid
    uuid=$(uuid_of "$2")
    printf '%s%s' "$1" "${uuid//-/}"
}

xml_text() {
    sed -e 's/&/\&amp;/g' -e 's/</\&lt;/g' -e 's/"/\&quot;/g' <<<"$1"
}

# The folder that a path lies in, as the tables name it.
xml_parent() {
    if [ "${1%/*}" = "$1" ]; then printf 'INSTALLDIR'; else xml_id dir "${1%/*}"; fi
}

# The manual's entry in the Start menu.
manual_shortcut() {
    cat <<END
<DirectoryRef Id="ProgramMenuFolder"><Component Id="StartMenuManual" Guid="$(uuid_of component/StartMenuManual)" Win64="yes">
<RegistryValue Root="HKLM" Key="Software\\Orthoval\\Preferences" Name="StartMenuManual" Type="integer" Value="1" KeyPath="yes"/>
<Shortcut Id="ManualShortcut" Name="Orthoval Preferences Manual" Target="[INSTALLDIR]manual\\index.html"/>
</Component></DirectoryRef>
END
}

# msi_files FOLDER: one component for each file below it, always with the same
# identifiers, which wixl-heat would make up. A repair restores single files.
msi_files() {
    local path id components=""
    printf '<?xml version="1.0" encoding="utf-8"?>\n<Wix xmlns="http://schemas.microsoft.com/wix/2006/wi">\n<Fragment>\n'
    while read -r path; do
        printf '<DirectoryRef Id="%s"><Directory Id="%s" Name="%s"/></DirectoryRef>\n' \
            "$(xml_parent "$path")" "$(xml_id dir "$path")" "$(xml_text "${path##*/}")"
    done < <(find "$1" -mindepth 1 -type d -printf '%P\n' | sort)
    while read -r path; do
        id=$(xml_id cmp "$path")
        printf '<DirectoryRef Id="%s"><Component Id="%s" Guid="%s" Win64="yes">' \
            "$(xml_parent "$path")" "$id" "$(uuid_of "component/$path")"
        printf '<File Id="%s" KeyPath="yes" Name="%s" Source="%s"/></Component></DirectoryRef>\n' \
            "$(xml_id fil "$path")" "$(xml_text "${path##*/}")" "$(xml_text "files/$path")"
        components+="<ComponentRef Id=\"$id\"/>"$'\n'
    done < <(find "$1" -type f -printf '%P\n' | sort)
    if [ -f "$1/manual/index.html" ]; then
        components+='<ComponentRef Id="StartMenuManual"/>'$'\n'
        manual_shortcut
    fi
    printf '</Fragment>\n<Fragment><ComponentGroup Id="Files">\n%s</ComponentGroup></Fragment>\n</Wix>\n' "$components"
}

# path_rows: the statements for ovprefs on the PATH of the machine: behind what is
# there ("[~];"), taken away again at the end ("-").
path_rows() {
    local sequence
    # shellcheck disable=SC2016
    printf '%s\0' 'CREATE TABLE `Environment` (`Environment` CHAR(72) NOT NULL, `Name` CHAR(255) NOT NULL LOCALIZABLE, `Value` CHAR(255) LOCALIZABLE, `Component_` CHAR(72) NOT NULL PRIMARY KEY `Environment`)' \
        'INSERT INTO `Environment` (`Environment`, `Name`, `Value`, `Component_`) VALUES ('\''Path'\'', '\''=-*PATH'\'', '\''[~];[INSTALLDIR]bin'\'', '\''OnPath'\'')'
    for sequence in RemoveEnvironmentStrings:3300 WriteEnvironmentStrings:5200; do
        # shellcheck disable=SC2016
        printf 'INSERT INTO `InstallExecuteSequence` (`Action`, `Sequence`) VALUES ('\''%s'\'', %s)\0' \
            "${sequence%:*}" "${sequence#*:}"
    done
}

# make_msi FILES MSI: the installer of the files in a folder. The identifier of the
# package follows from its content: two packages that differ never share one.
make_msi() {
    local folder="$work/msi" package query queries=()
    mkdir -p "$folder"
    cp -a "$1" "$folder/files"
    cp "$root/packaging/msi/product.wxs" "$root/resources/preferences.ico" "$folder"
    msi_files "$folder/files" >"$folder/files.wxs"
    find "$folder" -exec touch --no-dereference -d "@$SOURCE_DATE_EPOCH" {} +
    package=$(uuid_of "package/$full_version/$(find "$folder" -type f -print0 | sort -z | xargs -0 sha256sum | sed "s|$work||")")
    while IFS= read -r -d '' query; do
        queries+=(-q "$query")
    done < <(path_rows)
    rm -f "$2"
    # wixl and msibuild write the time of the day.
    (cd "$folder" && at_commit wixl --arch x64 -D "Version=$version" -D "FullVersion=$full_version" \
        -D "ProductCode=$(uuid_of "product/$version")" -o "$2" product.wxs files.wxs &&
        at_commit msibuild "$2" "${queries[@]}" &&
        at_commit msibuild "$2" -s 'Orthoval Preferences' Orthoval 'x64;1033' "{$package}")
}
