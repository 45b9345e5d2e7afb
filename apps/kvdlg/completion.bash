# Completion of kvdlg's command line for bash.

_kvdlg_classes() { "$1" list 2>/dev/null | cut -d ' ' -f 1; }

# The class among the words so far, and the names of its inputs.
_kvdlg_inputs() {
    "$1" describe "$2" 2>/dev/null |
        sed -n '/^  "inputs": \[/,/^  \]/s/^      "name": "\(.*\)",$/\1=/p'
}

_kvdlg() {
    local program=${COMP_WORDS[0]} current=${COMP_WORDS[COMP_CWORD]} previous=
    ((COMP_CWORD > 0)) && previous=${COMP_WORDS[COMP_CWORD - 1]}
    local command=${COMP_WORDS[1]-} words=
    compopt +o nospace 2>/dev/null
    if ((COMP_CWORD == 1)); then
        words='list describe run --help --version'
    elif [[ $previous == --@(input|script|picture|record) ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
        return
    elif [[ $previous == --set ]]; then
        compopt -o nospace 2>/dev/null
        words=$(_kvdlg_inputs "$program" "${COMP_WORDS[2]}")
    elif [[ $command == @(describe|run) ]] && ((COMP_CWORD == 2)); then
        words=$(_kvdlg_classes "$program")
    elif [[ $command == run ]]; then
        words='--db --help --input --picture --print --print0 --record --script --set --trace'
    fi
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}

complete -F _kvdlg kvdlg
