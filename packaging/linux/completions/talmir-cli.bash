# Completion of talmir-cli for bash.

_talmir_cli() {
    local cur prev words cword
    _init_completion || return
    case $cword,${words[1]},$prev,$cur in
        1,*) mapfile -t COMPREPLY < <(compgen -W 'calc set run find texts --help --version' -- "$cur") ;;
        *,calc,*,-*) mapfile -t COMPREPLY < <(compgen -W '--json --help --version' -- "$cur") ;;
        *,calc,*) _filedir xdb ;;
        *,set,--scale-of,*) _filedir xdb ;;
        *,set,*,-*) mapfile -t COMPREPLY < <(compgen -W '--write --diff --json --any-word --scale-of --help --version' -- "$cur") ;;
        *,set,*) _filedir xdb ;;
        *,run,--lang,*) mapfile -t COMPREPLY < <(compgen -W 'EN RU' -- "$cur") ;;
        *,run,*,-*) mapfile -t COMPREPLY < <(compgen -W '--keep-going --lang --help --version' -- "$cur") ;;
        *,run,*) _filedir ;;
        *,find,--lang,*) mapfile -t COMPREPLY < <(compgen -W 'EN RU' -- "$cur") ;;
        *,find,*,-*) mapfile -t COMPREPLY < <(compgen -W '--lang --json --help --version' -- "$cur") ;;
        *,texts,--lang,*) mapfile -t COMPREPLY < <(compgen -W 'EN RU' -- "$cur") ;;
        *,texts,*,-*) mapfile -t COMPREPLY < <(compgen -W '--lang --help --version' -- "$cur") ;;
        *,texts,*) _filedir pak ;;
    esac
}

complete -F _talmir_cli talmir-cli
