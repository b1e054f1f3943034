# Completion of talmir for bash.

_talmir() {
    local cur prev words cword
    _init_completion || return
    case $cur in
        -*) mapfile -t COMPREPLY < <(compgen -W '--help --version' -- "$cur") ;;
        *) _filedir xdb ;;
    esac
}

complete -F _talmir talmir
