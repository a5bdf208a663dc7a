# shellcheck shell=bash
# Shared by ./demo and ./test: what the machine needs, and the builds. Everything goes to standard error.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

readonly PACOTES=(
    g++ cmake ninja-build ccache
    firebird-dev
    libpugixml-dev rapidjson-dev libcli11-dev libgtest-dev libbenchmark-dev python3
    pkg-config dpkg-dev file
)
# What scripts/conferir.sh looks at the sources with.
# shellcheck disable=SC2034 # used there
readonly PACOTES_DA_CONFERENCIA=(clang clang-format clang-tidy shellcheck git)
# The engine, its tools and its server; their names begin with the version that firebird-dev has.
readonly PACOTES_DO_MOTOR=(server-core utils server)

como_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "Para instalar pacotes é preciso ser root ou ter o sudo" >&2
        return 1
    fi
}

# Those of the packages named after it that aren't installed, a line each.
pacotes_que_faltam() {
    local pacote
    for pacote in "$@"; do
        dpkg-query -W -f='${Status}' "$pacote" 2>/dev/null | grep -q 'ok installed' || echo "$pacote"
    done
}

instalar_pacotes() {
    local faltam
    mapfile -t faltam < <(pacotes_que_faltam "$@")
    [ ${#faltam[@]} -eq 0 ] && return
    echo "Instalando: ${faltam[*]}"
    como_root env DEBIAN_FRONTEND=noninteractive apt-get update -qq
    como_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${faltam[@]}"
}

# The version of the Firebird client that programs here are built with, "3.0" or "4.0". A distribution may offer servers
# of several versions, but the client brings in the engine of its own alone.
versao_do_firebird() {
    dpkg-query -W -f='${Version}' firebird-dev | grep -oE '^[0-9]+\.[0-9]+'
}

# Installs the Debian packages that are missing, those named after it too; nothing when all are there.
instalar() {
    instalar_pacotes "${PACOTES[@]}" "$@"
    local motor
    motor=firebird$(versao_do_firebird)
    instalar_pacotes "${PACOTES_DO_MOTOR[@]/#/$motor-}"
}

# Builds a preset of CMakePresets.json, all of it or the targets named after it; warnings are errors.
compilar() {
    cmake --preset "$1" >/dev/null
    cmake --build --preset "$1" -j "$(nproc)" ${2:+--target "${@:2}"}
}

# The same of the release with what bench/ adds to it.
compilar_com_bancada() {
    cmake --preset release -DTARVO_BANCADA=ON >/dev/null
    cmake --build --preset release -j "$(nproc)" --target "$@"
}
