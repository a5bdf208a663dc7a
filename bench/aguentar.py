"""Runs the parts of a batch side by side, again and again, and holds them against the whole; called by bench/aguentar."""

import argparse
import itertools
import json
import pathlib
import subprocess
import sys
import time

# What a process may grow between the first fifth of its keys and its end, and the server between its second round and
# the last: the kept statements come to their number, and nothing else grows.
FOLGA = 1.10
FOLGA_KB = 4096


def memoria_kb(pid):
    """Resident memory of a process; 0 when it has ended."""
    try:
        for linha in pathlib.Path(f"/proc/{pid}/status").read_text().splitlines():
            if linha.startswith("VmRSS:"):
                return int(linha.split()[1])
    except OSError:
        pass
    return 0


def lote(opcoes, mais, saida):
    """Starts the batch of a month, with its lines going to a file."""
    comando = [opcoes.programa, "lote", "S-1200", "--banco", opcoes.banco, "--IdEmpresa", "1"]
    comando += ["--DataInicio", "2021-03-01", "--DataFim", "2021-03-31", *mais]
    with open(saida, "wb") as arquivo, open(f"{saida}.erros", "wb") as erros:
        return subprocess.Popen(comando, stdout=arquivo, stderr=erros)


def conferir_inteiro(arquivo, trabalhadores):
    """Each key of the whole answered once, without an error; the number of lines."""
    chaves = set()
    with open(arquivo, encoding="utf-8") as linhas:
        quantas = 0
        for linha in linhas:
            item = json.loads(linha)
            if "erro" in item:
                raise SystemExit(f"A chave {item['chave']} falhou: {item['erro']}")
            chaves.add(item["chave"])
            quantas += 1
    if len(chaves) != quantas or quantas < trabalhadores:
        raise SystemExit(f"{quantas} linhas de {len(chaves)} chaves para {trabalhadores} trabalhadores")
    return quantas


def conferir_partes(inteiro, partes):
    """Line i of part k is line k + i * N of the whole, and none is left over."""
    abertas = [open(parte, "rb") for parte in partes]
    with open(inteiro, "rb") as linhas:
        for numero, linha in enumerate(linhas):
            if abertas[numero % len(partes)].readline() != linha:
                raise SystemExit(f"A parte {numero % len(partes) + 1} difere do lote inteiro na chave {numero + 1}")
    for parte, arquivo in zip(partes, abertas):
        if arquivo.readline():
            raise SystemExit(f"{parte} tem linhas a mais")
        arquivo.close()


class Processo:
    """A part of the batch at work, and the samples of its memory by the lines that it has written."""

    def __init__(self, opcoes, numero, pasta):
        self.saida = pasta / f"parte-{numero}.jsonl"
        self.processo = lote(opcoes, ["--parte", f"{numero}/{opcoes.processos}"], self.saida)
        self.amostras = []

    def amostrar(self):
        memoria = memoria_kb(self.processo.pid)
        if memoria and self.processo.poll() is None:
            self.amostras.append((self.saida.stat().st_size, memoria))
        return self.processo.poll() is None

    def conferir(self):
        if self.processo.wait() != 0:
            raise SystemExit(f"{self.saida}: saída {self.processo.returncode}\n" + pathlib.Path(f"{self.saida}.erros").read_text())
        total = self.saida.stat().st_size
        depois = [memoria for feito, memoria in self.amostras if feito > total / 5]
        if len(depois) < 2:
            return 0, 0
        if max(depois) > depois[0] * FOLGA + FOLGA_KB:
            raise SystemExit(f"{self.saida}: a memória cresceu de {depois[0]} para {max(depois)} KB")
        return depois[0], max(depois)


def main():
    argumentos = argparse.ArgumentParser(add_help=False)
    for nome in ("--programa", "--banco", "--saida"):
        argumentos.add_argument(nome, required=True)
    argumentos.add_argument("--servidor", type=int, required=True)
    argumentos.add_argument("--trabalhadores", type=int, required=True)
    argumentos.add_argument("--minutos", type=float, default=10)
    argumentos.add_argument("--processos", type=int, default=4)
    opcoes = argumentos.parse_args()
    pasta = pathlib.Path(opcoes.saida)

    inteiro = pasta / "inteiro.jsonl"
    inicio = time.monotonic()
    if lote(opcoes, [], inteiro).wait() != 0:
        raise SystemExit(pathlib.Path(f"{inteiro}.erros").read_text())
    chaves = conferir_inteiro(inteiro, opcoes.trabalhadores)
    print(f"O lote inteiro: {chaves} chaves, cada uma uma vez, em {time.monotonic() - inicio:.1f} s", flush=True)

    fim = time.monotonic() + opcoes.minutos * 60
    servidor = []
    for rodada in itertools.count(1):
        inicio = time.monotonic()
        processos = [Processo(opcoes, numero, pasta) for numero in range(1, opcoes.processos + 1)]
        pico = 0
        while any([processo.amostrar() for processo in processos]):
            pico = max(pico, memoria_kb(opcoes.servidor))
            time.sleep(0.1)
        memorias = [processo.conferir() for processo in processos]
        conferir_partes(inteiro, [processo.saida for processo in processos])
        servidor.append(pico)
        texto = "  ".join(f"{antes}-{depois}" for antes, depois in memorias)
        print(f"rodada {rodada}: {time.monotonic() - inicio:.1f} s; KB por processo {texto}; servidor {pico} KB", flush=True)
        if time.monotonic() >= fim:
            break
    if len(servidor) > 2 and servidor[-1] > servidor[1] * FOLGA + FOLGA_KB:
        raise SystemExit(f"A memória do servidor cresceu de {servidor[1]} para {servidor[-1]} KB")
    print(f"{len(servidor)} rodadas, {len(servidor) * chaves} cargas: as {opcoes.processos} partes são o lote inteiro, nada se perdeu "
          "e a memória não cresceu")


if __name__ == "__main__":
    sys.exit(main())
