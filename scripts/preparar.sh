# Shared by ./demo and ./test: what the machine needs, and the builds. Everything goes to standard error.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

readonly PACOTES=(
    g++ cmake ninja-build ccache
    firebird-dev firebird3.0-server-core firebird3.0-utils firebird3.0-server
    libpugixml-dev rapidjson-dev libcli11-dev libgtest-dev libbenchmark-dev python3
    pkg-config dpkg-dev file
)

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

# Installs the Debian packages that are missing, those named after it too; nothing when all are there.
instalar() {
    local faltam=() pacote
    for pacote in "${PACOTES[@]}" "$@"; do
        dpkg-query -W -f='${Status}' "$pacote" 2>/dev/null | grep -q 'ok installed' || faltam+=("$pacote")
    done
    [ ${#faltam[@]} -eq 0 ] && return
    echo "Instalando: ${faltam[*]}"
    como_root env DEBIAN_FRONTEND=noninteractive apt-get update -qq
    como_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${faltam[@]}"
}

# Builds a preset of CMakePresets.json, all of it or the targets named after it; warnings are errors.
compilar() {
    cmake --preset "$1" >/dev/null
    cmake --build --preset "$1" -j "$(nproc)" ${2:+--target "${@:2}"}
}
