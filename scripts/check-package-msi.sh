# Sourced by scripts/check-package: checks the installer in the Wine prefix in use.
# Needs folder, checks.sh and wine-session.sh.
# shellcheck shell=bash
# shellcheck disable=SC2154

msi_home='drive_c/Program Files/Orthoval Preferences'

# run_msiexec OPTION MSI [PROPERTY...]: silently, as an administrator does from afar.
# Through a file: Wine's own processes keep the writing end of a pipe open.
run_msiexec() {
    local option="$1" msi="$2" code=0
    shift 2
    wine msiexec "$option" "$(windows_path "$msi")" /qn /l\*v "$(windows_path "$folder/msi.log")" "$@" \
        >"$folder/msi.out" 2>&1 || code=$?
    [ "$code" -eq 0 ] || printf 'msiexec ended with exit code %d\n' "$code"
    return "$code"
}

# registry KEY: a key with all below it, in UTF-8.
registry() {
    wine reg export "$1" "$(windows_path "$folder/export.reg")" /y >/dev/null 2>&1 &&
        iconv -f UTF-16 -t UTF-8 "$folder/export.reg" | tr -d '\r'
}

# The keys that the installer service creates for its first product and that every
# Windows has. What is below them counts.
msi_own_keys() {
    printf '[HKEY_LOCAL_MACHINE\\Software\\%s]\n' 'Classes\Installer'{,'\Features','\Products','\UpgradeCodes'} \
        'Microsoft\Windows\CurrentVersion\Installer'{'\UpgradeCodes','\UserData'} \
        'Microsoft\Windows\CurrentVersion\Installer\UserData\S-1-5-18'{,'\Components','\Products'}
}

# without_wine_keys: the registry on standard input without the keys that Wine
# creates for the session when a program first asks for colours or metrics.
without_wine_keys() {
    awk '/^\[/ { own = index($0, "[HKEY_CURRENT_USER\\Software\\Wine\\Temporary System Parameters") == 1 } !own'
}

# machine_state FILE: the files and the registry, except what Windows itself keeps
# about its own work: temporary files, and empty folders and keys of the installer.
# Wine leaves the semicolon of a removed entry at the end of the PATH.
machine_state() {
    find "$WINEPREFIX/drive_c" -printf '%P %y\n' | grep -vE '^(users/[^/]*/Temp|windows/temp|users/[^/]*/AppData/Local/Temp)/|^windows/Installer d$' |
        sort >"$1"
    local key
    for key in 'HKLM\Software' 'HKLM\System\CurrentControlSet\Control\Session Manager\Environment' 'HKCU\Software' 'HKCU\Environment'; do
        registry "$key" | without_wine_keys | sed '/^"PATH"=/I,/[^\]$/d' | grep -v '^$' | grep -vxFf <(msi_own_keys)
    done >>"$1"
    machine_path | sed 's/;*$/\n/' >>"$1"
}

# machine_path: the PATH of all users.
machine_path() {
    registry 'HKLM\System\CurrentControlSet\Control\Session Manager\Environment' | sed -n '/^"PATH"=/I,/[^\\]$/p' |
        sed -e 's/^"PATH"=hex(2)://I' -e 's/\\$//' | tr -d ' \n,' | xxd -r -p | iconv -f UTF-16LE -t UTF-8 | tr -d '\0'
}

is_on_path() {
    [[ $(machine_path) == *'C:\Program Files\Orthoval Preferences\bin'* ]]
}

is_not_on_path() {
    ! is_on_path
}

# The menu of .cfg files gets an entry; what opens them stays what it was.
context_menu_is_added() {
    local key='HKLM\Software\Classes\SystemFileAssociations\.cfg\shell\OrthovalPreferences'
    registry "$key" >"$folder/menu" || return
    # shellcheck disable=SC2016
    diff <(printf '%s\n' '@="Edit with Orthoval Preferences"' \
        '"Icon"="C:\\Program Files\\Orthoval Preferences\\bin\\ovPreferencesHost.exe"' '"NeverDefault"=""' \
        '@="\"C:\\Program Files\\Orthoval Preferences\\bin\\ovPreferencesHost.exe\" \"%1\""') \
        <(grep '^[@"]' "$folder/menu") && ! registry 'HKLM\Software\Classes\.cfg'
}

start_menu_has_entries() {
    diff <(printf '%s\n' 'Orthoval Preferences Manual.lnk' 'Orthoval Preferences.lnk') \
        <(find "$WINEPREFIX/drive_c" -name 'Orthoval*.lnk' -printf '%f\n' | sort)
}

# What is installed is what the zip file holds, without the files for hosts.
installed_files_are_complete() {
    diff -r "$zip_tree" "$WINEPREFIX/$msi_home" | grep -vxE \
        "Only in $zip_tree: (README\.txt|examples|include|lib)" >"$folder/differences" || true
    [ ! -s "$folder/differences" ] || { cat "$folder/differences" && false; }
}

installed_program_runs() {
    [[ $(wine 'C:\Program Files\Orthoval Preferences\bin\ovprefs.exe' --version) == "ovprefs "* ]]
}

# One file is missing, another one is damaged. By the properties that "/fa" stands
# for, because Wine's msiexec does not have that option.
repairs() {
    rm "$WINEPREFIX/$msi_home/bin/ovprefs.exe"
    printf 'damaged\n' >"$WINEPREFIX/$msi_home/samples/office.cfg"
    run_msiexec /i "$1" REINSTALL=ALL REINSTALLMODE=a && installed_files_are_complete
}

# One product, the newer one.
is_upgraded() {
    registry 'HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall' |
        grep -A 30 '"DisplayName"="Orthoval Preferences"' | grep '^"DisplayVersion"=' >"$folder/versions"
    diff <(printf '"DisplayVersion"="99.0.0"\n') "$folder/versions" && installed_files_are_complete
}

refuses_downgrade() {
    ! run_msiexec /i "$1" && is_upgraded
}

nothing_is_left() {
    machine_state "$folder/after"
    diff "$folder/before" "$folder/after"
}

# What Wine cannot show, for it has no 32-bit Windows here: the installer is one
# for x64, and asks for a 64-bit Windows besides.
refuses_32_bits() {
    msiinfo suminfo "$1" | grep -qx 'Template: x64;1033' &&
        msiinfo export "$1" LaunchCondition | grep -q '^VersionNT64	.*64-bit Windows'
}

# check_msi MSI LATER-MSI
check_msi() {
    check 'the installer is one for 64 bits' refuses_32_bits "$1"
    machine_state "$folder/before"
    check 'install without the PATH' run_msiexec /i "$1" ADDLOCAL=Program
    check 'the installed files' installed_files_are_complete
    check 'the installed ovprefs.exe runs' installed_program_runs
    check 'the PATH is left out' is_not_on_path
    check 'the context menu of .cfg files' context_menu_is_added
    check 'the Start menu' start_menu_has_entries
    check 'repair' repairs "$1"
    check 'uninstall' run_msiexec /x "$1"
    check 'nothing is left' nothing_is_left
    check 'install' run_msiexec /i "$1"
    check 'ovprefs is on the PATH' is_on_path
    check 'upgrade' run_msiexec /i "$2"
    check 'the upgrade replaces the older version' is_upgraded
    check 'ovprefs is still on the PATH' is_on_path
    check 'an older version over a newer one' refuses_downgrade "$1"
    check 'uninstall the upgrade' run_msiexec /x "$2"
    check 'nothing is left of the upgrade' nothing_is_left
}
