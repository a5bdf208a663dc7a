#!/usr/bin/env python3
"""The floors of the house: a file includes only its own floor and those below it. Prints what breaks that."""
import re
import subprocess
import sys

# From below; those of one row know nothing of each other. Folders of src/, then those beside it.
ANDARES = [
    {"src/imports"},
    {"src/framework"},
    {"src/regras"},
    {"src/tabelas"},
    {"src/remuneracao", "src/rural", "src/trabalhador"},
    {"src/pagamento", "src/desligamento", "src/sst"},
    {"src/catalogo"},
    {"src/c", "banco"},
    {"ferramenta", "bench"},
]
# What only a few files may include: the engine's headers, and a library that takes seconds to compile.
SO_ALI = {
    "firebird/": ("src/imports/", "bench/", "testes/imports/"),
    "CLI/": ("ferramenta/UnLinhaDeComando.cpp", "bench/"),
}
# Examples use what is installed, tests everything.
DE_FORA = ("testes/", "exemplos/")


def pasta(caminho):
    partes = caminho.split("/")
    return "/".join(partes[:2]) if partes[0] == "src" else partes[0]


def main():
    alturas = {nome: altura for altura, nomes in enumerate(ANDARES) for nome in nomes}
    arquivos = subprocess.run(["git", "ls-files", "-co", "--exclude-standard", "*.cpp", "*.h", "*.c"],
                              check=True, capture_output=True, text=True).stdout.split()
    erros = []
    for arquivo in arquivos:
        try:
            linhas = open(arquivo, encoding="utf-8").read().splitlines()
        except FileNotFoundError:
            continue  # removed, and git not told yet
        minha = pasta(arquivo)
        livre = arquivo.startswith(DE_FORA)
        if not livre and minha not in alturas:
            erros.append(f"{arquivo}: a pasta {minha} não está na tabela dos andares (scripts/andares.py)")
            continue
        for numero, linha in enumerate(linhas, 1):
            achado = re.match(r'\s*#\s*include\s*([<"])([^>"]+)[>"]', linha)
            if not achado:
                continue
            incluido = achado[2]
            for inicio, onde in SO_ALI.items():
                if incluido.startswith(inicio) and not arquivo.startswith(onde):
                    erros.append(f"{arquivo}:{numero}: {incluido} só se inclui em {' e '.join(onde)}")
            if livre or achado[1] == "<":
                continue
            outra = incluido.split("/")[0]
            outra = f"src/{outra}" if f"src/{outra}" in alturas else outra
            if outra not in alturas:
                erros.append(f'{arquivo}:{numero}: "{incluido}" não diz o andar (pasta/Arquivo.h)')
            elif outra != minha and alturas[outra] >= alturas[minha]:
                erros.append(f"{arquivo}:{numero}: {minha} não pode incluir {incluido}, do mesmo andar ou de um acima")
    print("\n".join(erros), file=sys.stderr, end="\n" if erros else "")
    return 1 if erros else 0


if __name__ == "__main__":
    sys.exit(main())
