#!/usr/bin/env python3
"""Runs a sanitized test program, and once more when the leak search itself crashed, as it does now and then when a
thread ends meanwhile. That is told by what it then writes; a leak, any other report of a sanitizer and a test that
failed without it are failures at once.

    sanitizado.py PROGRAM [ARGUMENTS]
"""
import re
import subprocess
import sys

QUEDA_DA_BUSCA = (b"LeakSanitizer has encountered a fatal error", b"Tracer caught signal 11")
ACHADOS = (b"detected memory leaks", b"ERROR: AddressSanitizer", b"runtime error: ")


def rodar(comando):
    """Exit code and all output, which is shown as it comes."""
    saida = bytearray()
    with subprocess.Popen(comando, stdout=subprocess.PIPE, stderr=subprocess.STDOUT) as processo:
        while parte := processo.stdout.read1():
            saida += parte
            sys.stdout.buffer.write(parte)
            sys.stdout.buffer.flush()
    return processo.returncode, bytes(saida)


def caiu(texto):
    return all(marca in texto for marca in QUEDA_DA_BUSCA)


def so_a_busca_caiu(saida):
    """Whether nothing went wrong but the leak search, of the program or of those that a test started."""
    if not caiu(saida) or any(achado in saida for achado in ACHADOS):
        return False
    testes = re.findall(rb"^\[ RUN      \] (\S+)\n(.*?)^\[ +(OK|FAILED|SKIPPED) +\] \1", saida, re.M | re.S)
    return all(caiu(texto) for _, texto, fim in testes if fim == b"FAILED")


def main():
    # A program that hangs ends with its time limit, which ends this script.
    comando = ["setpriv", "--pdeathsig", "KILL", *sys.argv[1:]]
    codigo, saida = rodar(comando)
    if codigo != 0 and so_a_busca_caiu(saida):
        print("A própria busca por vazamentos caiu: mais uma vez", flush=True)
        codigo, saida = rodar(comando)
    return codigo if codigo >= 0 else 128 - codigo


if __name__ == "__main__":
    sys.exit(main())
