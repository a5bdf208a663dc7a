#!/usr/bin/env bash
# What ./test asks of the sources before it builds them: the format, the floors, the shell scripts, the warnings of
# clang, and clang-tidy over what changed since origin/main (or, standing on it, since the commit before). Every
# kind is tried, and those that failed are named in the end.
source "$(dirname "$0")/preparar.sh"

# Whose versions the format and the checks of clang-tidy are those of: another one lays out and warns otherwise.
readonly VERSAO_DO_FORMATO=14
# Sources that clang-tidy is given at most: each takes it four to ten seconds.
readonly LIMITE_DO_TIDY=12
readonly OPCOES=(
    -std=c++20 -Isrc -I. -Itestes
    '-DTARVO_VERSAO="0"' '-DPASTA_DOS_GOLDENS="."' '-DPASTA_DAS_PAGINAS="."' '-DPROGRAMA="."'
)
# The warnings of the builds. A conversion of the sign alone is none of g++'s, in C++.
readonly AVISOS=(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Werror)

instalar_pacotes "${PACOTES_DA_CONFERENCIA[@]}"
TEMPORARIA=$(mktemp -d)
trap 'rm -rf "$TEMPORARIA"' EXIT

# Runs a function named first for each of the lines of standard input, as many at a time as there are processors.
em_paralelo() {
    export -f "${1?}"
    xargs -r -d '\n' -n 1 -P "$(nproc)" bash -c "$1 \"\$0\""
}

fontes() {
    find src ferramenta banco bench testes exemplos -name build -prune -o -type f \( "$@" \) -print | LC_ALL=C sort
}

conferir_formato() {
    local versao
    versao=$(clang-format --version | grep -oE 'version [0-9]+' | grep -oE '[0-9]+') || return
    if [ "$versao" != $VERSAO_DO_FORMATO ]; then
        echo "Formato não conferido: este é o clang-format $versao, e o da casa é o $VERSAO_DO_FORMATO"
        return
    fi
    # What is in C keeps the habits of C.
    fontes -name '*.cpp' -o -name '*.h' | xargs clang-format --dry-run --Werror
}

conferir_scripts() {
    local arquivo
    find . \( -name .git -o -name 'build*' \) -prune -o -type f \( -perm -u+x -o -name '*.sh' -o -name '*.bash' \) -print |
        while read -r arquivo; do
            case "$arquivo:$(head -n 1 "$arquivo" | tr -d '\0')" in
            *.sh:* | *.bash:* | *:'#!'*sh) echo "$arquivo" ;;
            esac
        done | xargs shellcheck -x -S warning
}

# The sources of a subsystem go through clang as one, which reads the headers once; where they don't stand together (two
# of them have something of one name), each by itself.
conferir_pasta() {
    local pasta=$1 junto arquivos arquivo falhou=0 profundidade=1
    [[ $pasta != src/* ]] || profundidade=9
    arquivos=$(find "$pasta" -maxdepth $profundidade -name '*.cpp' | LC_ALL=C sort)
    junto=$TEMPORARIA/${pasta//\//_}.cpp
    sed 's/.*/#include "&"/' <<<"$arquivos" >"$junto"
    # shellcheck disable=SC2086 # words of options
    clang++ -fsyntax-only $COMPILAR "$junto" 2>/dev/null && return
    while read -r arquivo; do
        # shellcheck disable=SC2086
        clang++ -fsyntax-only $COMPILAR "$arquivo" || falhou=1
    done <<<"$arquivos"
    return $falhou
}

conferir_avisos() {
    # What is installed is what the examples are built with.
    fontes -name '*.cpp' | grep -v '^exemplos/' | xargs -n 1 dirname | cut -d / -f 1-2 |
        LC_ALL=C sort -u | em_paralelo conferir_pasta
}

conferir_com_tidy() {
    # shellcheck disable=SC2086
    clang-tidy --quiet --warnings-as-errors='*' "$1" -- $COMPILAR 2>"$TEMPORARIA/tidy.${1//\//_}" || {
        grep -v 'warnings\? .*generated' "$TEMPORARIA/tidy.${1//\//_}" || true
        return 1
    }
}

# The sources that changed, and those of the headers that did.
fontes_mudadas() {
    local base arquivo
    # Whoever owns the folder: only names are asked for.
    local -r GIT=(git -c safe.directory="$PWD" -c core.quotePath=false)
    local cabeca
    cabeca=$("${GIT[@]}" rev-parse HEAD) || return
    base=$("${GIT[@]}" merge-base HEAD origin/main 2>/dev/null) || base=$cabeca
    if [ "$base" = "$cabeca" ]; then
        base=$("${GIT[@]}" rev-parse -q --verify HEAD~1) || base=$cabeca # the first commit, or all that a clone has
    fi
    { "${GIT[@]}" diff --name-only "$base" && "${GIT[@]}" ls-files -o --exclude-standard; } |
        sed -nE '/^exemplos\//d; s/\.(cpp|h)$/.cpp/p' | LC_ALL=C sort -u |
        while read -r arquivo; do [ ! -f "$arquivo" ] || echo "$arquivo"; done
}

conferir_mudancas() {
    local mudadas
    mudadas=$(fontes_mudadas) || return
    if [ "$(wc -l <<<"$mudadas")" -gt $LIMITE_DO_TIDY ]; then
        echo "clang-tidy: $(wc -l <<<"$mudadas") fontes mudaram; conferidas as primeiras $LIMITE_DO_TIDY"
    fi
    head -n $LIMITE_DO_TIDY <<<"$mudadas" | sed '/^$/d' | em_paralelo conferir_com_tidy
}

COMPILAR="${OPCOES[*]} ${AVISOS[*]}"
export COMPILAR TEMPORARIA

FALHAS=()
for conferencia in formato andares scripts avisos mudancas; do
    inicio=$SECONDS
    case $conferencia in
    andares) scripts/andares.py ;;
    *) "conferir_$conferencia" ;;
    esac || {
        FALHAS+=("$conferencia")
    }
    echo "$conferencia: $((SECONDS - inicio)) s"
done
if [ ${#FALHAS[@]} -gt 0 ]; then
    echo "A conferência falhou: ${FALHAS[*]}" >&2
    exit 1
fi
