# shellcheck shell=bash
# A Firebird server of one's own on a loopback port, for ./test and bench/aguentar; to be sourced after preparar.sh.

# The server is told to end and, as its orderly end may wait for ever on a client that vanished, made to.
encerrar_servidor() {
    [ -z "${SERVIDOR_PID:-}" ] && return
    kill "$SERVIDOR_PID" 2>/dev/null || true
    for _ in $(seq 50); do
        kill -0 "$SERVIDOR_PID" 2>/dev/null || break
        sleep 0.1
    done
    kill -9 "$SERVIDOR_PID" 2>/dev/null || true
    wait "$SERVIDOR_PID" 2>/dev/null || true
    SERVIDOR_PID=
}

# A program of a version of Firebird. Where several versions stand side by side, what is in the path sets FIREBIRD anew,
# and the version's own folder has the program itself.
programa_do_firebird() {
    local proprio=/usr/lib/firebird/$1/bin/$2
    if [ -x "$proprio" ]; then
        echo "$proprio"
    else
        PATH=$PATH:/usr/sbin command -v "$2"
    fi
}

# A Firebird server with a configuration, a security database and a port of its own; it ends with the script. Its
# version is that of the client unless one is named ("3.0").
iniciar_servidor() {
    local versao=${1:-$(versao_do_firebird)}
    local pasta isql
    pasta=$(echo /usr/lib/*/firebird/"$versao")
    isql=$(programa_do_firebird "$versao" isql-fb)
    SERVIDOR=$(mktemp -d)
    trap 'encerrar_servidor; rm -rf "$SERVIDOR"' EXIT
    SERVIDOR_PORTA=$(python3 -c 'import socket; s = socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])')
    mkdir "$SERVIDOR/trava"
    # Copies: neither plugins nor character sets are loaded from behind a link.
    cp -rL "$pasta"/{plugins,plugins.conf,intl} "$SERVIDOR/"
    # Beside another version a server may come without its texts; those of errors are the client's.
    [ ! -e "$pasta/firebird.msg" ] || cp -L "$pasta/firebird.msg" "$SERVIDOR/"
    : > "$SERVIDOR/databases.conf"
    # The engine by its name: the library that both versions' programs may share would look for that of its own.
    local engine=Engine13
    [[ $versao != 3.* ]] || engine=Engine12
    cat > "$SERVIDOR/firebird.conf" <<CONF
Providers = Remote,$engine,Loopback
RemoteServicePort = $SERVIDOR_PORTA
RemoteBindAddress = 127.0.0.1
SecurityDatabase = $SERVIDOR/seguranca.fdb
AuthServer = Srp
UserManager = Srp
WireCrypt = Enabled
DatabaseAccess = Full
CONF
    export FIREBIRD_LOCK="$SERVIDOR/trava"
    FIREBIRD="$SERVIDOR" "$isql" -q <<SQL
CREATE DATABASE '$SERVIDOR/seguranca.fdb' USER 'SYSDBA';
SQL
    FIREBIRD="$SERVIDOR" "$isql" -q -user SYSDBA "$SERVIDOR/seguranca.fdb" <<SQL
CREATE USER SYSDBA PASSWORD 'tarvo';
COMMIT;
SQL
    FIREBIRD="$SERVIDOR" "$(programa_do_firebird "$versao" firebird)" -p "$SERVIDOR_PORTA" \
        >"$SERVIDOR/servidor.log" 2>&1 &
    SERVIDOR_PID=$!
    unset FIREBIRD_LOCK
    # A busy machine may take long over it; a server that ended won't answer at all.
    for _ in $(seq 300); do
        (exec 3<>"/dev/tcp/127.0.0.1/$SERVIDOR_PORTA") 2>/dev/null && return
        kill -0 "$SERVIDOR_PID" 2>/dev/null || break
        sleep 0.1
    done
    cat "$SERVIDOR/servidor.log"
    echo "O servidor de testes não respondeu na porta $SERVIDOR_PORTA"
    return 1
}

# Every test of the release build against the server.
testar_no_servidor() {
    TESTES_LIGACAO="127.0.0.1/$SERVIDOR_PORTA:" ISC_USER=SYSDBA ISC_PASSWORD=tarvo timeout -k 10 900 \
        build/release/testes/testes --gtest_brief=1
}
