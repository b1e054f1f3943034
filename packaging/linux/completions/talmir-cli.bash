# Completion of talmir-cli for bash.

_talmir_cli() {
    local cur prev words cword
    local columns='file name town CreatureTier Upgrade AttackSkill DefenceSkill MinDamage MaxDamage Health Speed Initiative Shots SpellPoints Range Power Exp WeeklyGrowth Gold Abilities rolvane.Power rolvane.Exp rolvane.WeeklyGrowth rolvane.Gold hesperin.Power hesperin.Exp hesperin.WeeklyGrowth hesperin.Gold average.Power average.Exp average.WeeklyGrowth average.Gold product advised scale deviation problem'
    _init_completion || return
    case $cword,${words[1]},$prev,$cur in
        1,*) mapfile -t COMPREPLY < <(compgen -W 'calc set table apply check explain solve find run texts --help --version' -- "$cur") ;;
        *,calc,*,-*) mapfile -t COMPREPLY < <(compgen -W '--json --help --version' -- "$cur") ;;
        *,calc,*) _filedir xdb ;;
        *,explain,--lang,* | *,solve,--lang,*) mapfile -t COMPREPLY < <(compgen -W 'EN RU' -- "$cur") ;;
        *,explain,*,-*) mapfile -t COMPREPLY < <(compgen -W '--json --lang --help --version' -- "$cur") ;;
        *,explain,*) _filedir xdb ;;
        *,solve,--vary,*) mapfile -t COMPREPLY < <(compgen -W 'Attack Defence MinDam MaxDam Health Speed Initiative Tier' -- "$cur") ;;
        *,solve,--scale-of,*) _filedir xdb ;;
        *,solve,*,-*) mapfile -t COMPREPLY < <(compgen -W '--vary --scale-of --json --lang --help --version' -- "$cur") ;;
        *,solve,*) _filedir xdb ;;
        *,set,--scale-of,*) _filedir xdb ;;
        *,set,*,-*) mapfile -t COMPREPLY < <(compgen -W '--write --diff --json --any-word --scale-of --help --version' -- "$cur") ;;
        *,set,*) _filedir xdb ;;
        *,check,*,-*) mapfile -t COMPREPLY < <(compgen -W '--json --game --help --version' -- "$cur") ;;
        *,check,*) _filedir '@(xdb|pak|h5u)' ;;
        *,apply,*,-*) mapfile -t COMPREPLY < <(compgen -W '--write --diff --json --help --version' -- "$cur") ;;
        *,apply,*) _filedir ;;
        *,table,--sort,*) mapfile -t COMPREPLY < <(compgen -W "$columns" -- "$cur") ;;
        *,table,--outliers,* | *,table,--jobs,*) ;;
        *,table,--html,*) _filedir html ;;
        *,table,*,-*) mapfile -t COMPREPLY < <(compgen -W '--csv --bom --json --html --sort --outliers --against --jobs --help --version' -- "$cur") ;;
        *,table,*) _filedir '@(xdb|pak|h5u)' ;;
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
