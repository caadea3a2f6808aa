# Completion of ovprefs for PowerShell. To use it, add this line to your profile:
#
#     . "C:\Program Files\Orthoval Preferences\completions\ovprefs.ps1"
#
# Commands, options and the words that an option takes come from the help of the
# program itself.
Register-ArgumentCompleter -Native -CommandName ovprefs, ovprefs.exe -ScriptBlock {
    param($wordToComplete, $commandAst, $cursorPosition)

    $words = @($commandAst.CommandElements | ForEach-Object { $_.ToString() })
    $program = $words[0]
    # The words before the one that is completed.
    $before = @($words | Select-Object -Skip 1)
    if ($wordToComplete -ne '' -and $before.Count -gt 0) {
        $before = @($before | Select-Object -SkipLast 1)
    }

    $candidates = @()
    if ($before.Count -eq 0) {
        $candidates = @('--help', '--version')
        $isCommand = $false
        foreach ($line in & $program --help) {
            if ($line -eq 'Commands:') { $isCommand = $true }
            elseif ($line -eq '') { $isCommand = $false }
            elseif ($isCommand -and $line -match '^  ([a-z]+) ') { $candidates += $Matches[1] }
        }
    }
    else {
        $help = @(& $program $before[0] --help)
        $last = $before[-1]
        $takesValue = $false
        if ($last.StartsWith('-')) {
            foreach ($line in $help) {
                # The placeholder ends at the default or at the explanation.
                if ($line -match ('^  ' + [regex]::Escape($last) + ' ([^ =]+)')) {
                    $takesValue = $true
                    if ($Matches[1].Contains('|')) { $candidates = $Matches[1].Split('|') }
                }
            }
        }
        if (-not $takesValue -and $wordToComplete.StartsWith('-')) {
            $candidates = @($help | Where-Object { $_ -match '^  (--[a-z-]+)' } | ForEach-Object { $Matches[1] })
        }
    }
    # Without a candidate PowerShell completes names of files.
    $candidates | Where-Object { $_.StartsWith($wordToComplete) } | ForEach-Object {
        [System.Management.Automation.CompletionResult]::new($_, $_, 'ParameterValue', $_)
    }
}
