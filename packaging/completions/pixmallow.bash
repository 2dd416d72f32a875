# SPDX-FileCopyrightText: The Pixmallow authors
# SPDX-License-Identifier: MIT
# Completes the arguments of pixmallow in bash.

_pixmallow() {
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local command='' words='' files=''
    ((COMP_CWORD > 1)) && command=${COMP_WORDS[1]}

    COMPREPLY=()
    case $previous in
    --screen | --window | --area | --search) return ;;
    --output)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        return
        ;;
    esac

    case $command in
    '' | --replace | --background)
        words='--replace --background'
        if [[ -z $command ]]; then
            words+=' --help --version capture pin edit history gallery settings quit shot list text doctor'
        fi
        ;;
    capture)
        words='--wait --json'
        [[ " ${COMP_WORDS[*]:2} " =~ ' '(region|window|screen|delayed|text)' ' ]] ||
            words+=' region window screen delayed text'
        ;;
    shot) words='--output --screen --window --area --cursor --shadow --json' ;;
    list)
        words='--json --search'
        [[ " ${COMP_WORDS[*]:2} " =~ ' '(screens|windows|history)' ' ]] ||
            words+=' screens windows history'
        ;;
    doctor) words='--online --json' ;;
    text) words='--json' files=yes ;;
    pin | edit) files=yes ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
    if [[ -n $files && $word != -* ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    fi
}

complete -F _pixmallow pixmallow
