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

xml_text() {
    local text=${1//&/&amp;}
    text=${text//</&lt;}
    printf '%s' "${text//\"/&quot;}"
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

# msi_files FOLDER: one component for each file below it, so that a repair restores
# single files. The identifiers are always the same for a path; wixl-heat would make
# them up.
msi_files() {
    local path parent uuid components=""
    local -A folder_ids=([.]=INSTALLDIR)
    printf '<?xml version="1.0" encoding="utf-8"?>\n<Wix xmlns="http://schemas.microsoft.com/wix/2006/wi">\n<Fragment>\n'
    while read -r path; do
        parent=${folder_ids[$(dirname "$path")]}
        uuid=$(uuid_of "folder/$path")
        folder_ids[$path]="dir${uuid//-/}"
        printf '<DirectoryRef Id="%s"><Directory Id="%s" Name="%s"/></DirectoryRef>\n' \
            "$parent" "${folder_ids[$path]}" "$(xml_text "${path##*/}")"
    done < <(find "$1" -mindepth 1 -type d -printf '%P\n' | sort)
    while read -r path; do
        parent=${folder_ids[$(dirname "$path")]}
        uuid=$(uuid_of "component/$path")
        printf '<DirectoryRef Id="%s"><Component Id="cmp%s" Guid="%s" Win64="yes">' "$parent" "${uuid//-/}" "$uuid"
        printf '<File Id="fil%s" KeyPath="yes" Name="%s" Source="%s"/></Component></DirectoryRef>\n' \
            "${uuid//-/}" "$(xml_text "${path##*/}")" "$(xml_text "files/$path")"
        components+="<ComponentRef Id=\"cmp${uuid//-/}\"/>"$'\n'
    done < <(find "$1" -type f -printf '%P\n' | sort)
    components+='<ComponentRef Id="StartMenuManual"/>'$'\n'
    manual_shortcut
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
