# Completion of esocial-campos for bash. Commands, events and options are asked of the program itself, from its help.

_esocial_campos()
{
    local atual=${COMP_WORDS[COMP_CWORD]} anterior=${COMP_WORDS[COMP_CWORD - 1]} programa=${COMP_WORDS[0]}
    local comando=${COMP_WORDS[1]} evento='' palavras='' palavra

    case $anterior in
        --banco | --brenco | --rastrear)
            compopt -o filenames 2>/dev/null
            mapfile -t COMPREPLY < <(compgen -f -- "$atual")
            return ;;
        --ambiente)
            mapfile -t COMPREPLY < <(compgen -W "1 2" -- "$atual")
            return ;;
        --inss | --irrf | --fgts | --cs)
            mapfile -t COMPREPLY < <(compgen -W "0 1 2 3" -- "$atual")
            return ;;
    esac
    if ((COMP_CWORD == 1)); then
        palavras=$("$programa" --ajuda 2>/dev/null | sed -n '/^Comandos:/,/^$/s/^  \([a-z-]*\) .*/\1/p')
        mapfile -t COMPREPLY < <(compgen -W "$palavras --ajuda --versao" -- "$atual")
        return
    fi
    for palavra in "${COMP_WORDS[@]:2:COMP_CWORD-2}"; do
        [[ $palavra == [Ss]-[0-9]* ]] && evento=$palavra
    done
    if [[ $atual == -* ]]; then
        # The first word of an option's line holds its names: "-h,--ajuda,--help".
        palavras=$({
            "$programa" "$comando" --ajuda
            [[ -n $evento && $comando != eventos ]] && "$programa" "$comando" "$evento" --ajuda
        } 2>/dev/null | sed -n 's/^  \(-[^ ]*\).*/\1/p' | tr , '\n' | grep '^--')
    elif [[ -z $evento && $comando == eventos ]]; then
        palavras=$("$programa" eventos 2>/dev/null | sed -n 's/^\(S-[0-9]*\).*/\1/p')
    elif [[ -z $evento ]]; then
        palavras=$("$programa" "$comando" --ajuda 2>/dev/null | sed -n 's/^  \(S-[0-9]*\) .*/\1/p')
    fi
    mapfile -t COMPREPLY < <(compgen -W "$palavras" -- "$atual")
}
complete -F _esocial_campos esocial-campos
