"""What is installed works for somebody else: the example outside the tree, pkg-config, the packages, and the program's
man page and completion, which know every command and option of its help."""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

CONSTRUCAO, RAIZ = sys.argv[1:3]
MES = ["1", "2021-03-01", "2021-03-31"]


def rodar(*comando, **opcoes):
    """The output of a command, which must succeed."""
    feito = subprocess.run(comando, capture_output=True, text=True, timeout=600, **opcoes)
    if feito.returncode != 0:
        raise AssertionError(f"{' '.join(comando)}: saída {feito.returncode}\n{feito.stdout}{feito.stderr}")
    return feito.stdout


class Base(unittest.TestCase):
    """A tree installed in a folder that isn't the one it was configured for, and a sample database."""

    @classmethod
    def setUpClass(cls):
        cls.pasta = tempfile.mkdtemp()
        cls.addClassCleanup(shutil.rmtree, cls.pasta)
        cls.prefixo = f"{cls.pasta}/instalado"
        rodar("cmake", "--install", CONSTRUCAO, "--prefix", cls.prefixo)
        cls.programa = f"{cls.prefixo}/bin/esocial-campos"
        cls.banco = f"{cls.pasta}/folha.fdb"
        rodar(cls.programa, "criar-banco", "--banco", cls.banco, "--exemplo")

    def compilar_exemplos(self, prefixo):
        destino = tempfile.mkdtemp(dir=self.pasta)
        rodar("cmake", "-G", "Ninja", "-S", f"{RAIZ}/exemplos", "-B", destino, f"-DCMAKE_PREFIX_PATH={prefixo}")
        rodar("cmake", "--build", destino)
        return destino


class Exemplos(Base):
    def setUp(self):
        # The same figures by the way of the program.
        linhas = rodar(self.programa, "lote", "S-1200", "--banco", self.banco, "--IdEmpresa", MES[0], "--DataInicio",
                       MES[1], "--DataFim", MES[2])
        self.codigos = set(re.findall(r'"codRubr": ?"(\w+)"', linhas))
        self.assertGreater(len(self.codigos), 10)

    def conferir_folha(self, *programa, **opcoes):
        folha = rodar(*programa, self.banco, *MES, **opcoes).splitlines()
        self.assertRegex(folha[-1], r"^Pessoas com remuneração no mês: \d\d$")
        codigos = [linha.split("\t")[0] for linha in folha[:-1]]
        self.assertLessEqual(set(codigos), self.codigos)
        self.assertGreater(len(codigos), 10)
        return folha

    def test_pacote_do_cmake(self):
        destino = self.compilar_exemplos(self.prefixo)
        self.assertEqual(self.conferir_folha(f"{destino}/folha_do_mes"),
                         self.conferir_folha(f"{destino}/folha_do_mes_estatica"))
        comandos = rodar(f"{destino}/corrigir_cargo", self.banco, "8", "Analista de Sistemas")
        self.assertEqual(comandos, rodar(self.programa, "reverter", "S-1030", "--AIDCargosDescr", "8", "--banco",
                                         self.banco, "--definir", "InfoCargo.DadosCargo.nmCargo=Analista de Sistemas"))
        versao = rodar(self.programa, "--versao").strip()
        menor = versao.rsplit(".", 1)[0]
        ligacoes = rodar("readelf", "-d", f"{destino}/folha_do_mes")
        self.assertIn(f"[libtarvo_esocial_campos.so.{menor}]", ligacoes)
        self.assertNotIn("libtarvo", rodar("readelf", "-d", f"{destino}/folha_do_mes_estatica"))
        # Another interface isn't taken.
        outra = tempfile.mkdtemp(dir=self.pasta)
        with open(f"{outra}/CMakeLists.txt", "w", encoding="utf-8") as arquivo:
            arquivo.write("cmake_minimum_required(VERSION 3.25)\nproject(x CXX)\nfind_package(TarvoESocialCampos 2.0)\n"
                          "if(TarvoESocialCampos_FOUND)\nmessage(FATAL_ERROR achou)\nendif()\n")
        rodar("cmake", "-S", outra, "-B", f"{outra}/b", f"-DCMAKE_PREFIX_PATH={self.prefixo}")

    def test_pkg_config(self):
        ambiente = dict(os.environ, PKG_CONFIG_PATH=f"{self.prefixo}/lib/pkgconfig")
        for estatica in ([], ["--static"]):
            opcoes = rodar("pkg-config", "--cflags", "--libs", *estatica, "tarvo-esocial-campos", env=ambiente).split()
            if estatica:
                opcoes.insert(0, "-Wl,-Bstatic,-ltarvo_esocial_campos,-Bdynamic")
                opcoes.insert(0, f"-L{self.prefixo}/lib")
                opcoes.remove("-ltarvo_esocial_campos")
            programa = f"{self.pasta}/folha{len(estatica)}"
            rodar("g++", "-std=c++20", f"{RAIZ}/exemplos/folha_do_mes.cpp", "-o", programa, *opcoes)
            self.conferir_folha(programa, env=dict(os.environ, LD_LIBRARY_PATH=f"{self.prefixo}/lib"))
        rodar("gcc", "-std=c99", f"{RAIZ}/exemplos/corrigir_cargo.c", "-o", f"{self.pasta}/corrigir",
              *rodar("pkg-config", "--cflags", "--libs", "tarvo-esocial-campos", env=ambiente).split())

    def test_pacotes_debian(self):
        rodar("cpack", "--config", f"{CONSTRUCAO}/CPackConfig.cmake", "-B", self.pasta, cwd=self.pasta)
        pacotes = [nome for nome in os.listdir(self.pasta) if nome.endswith(".deb")]
        self.assertEqual(3, len(pacotes))
        extraido = f"{self.pasta}/extraido"
        for nome in pacotes:
            rodar("dpkg-deb", "-x", f"{self.pasta}/{nome}", extraido)
            campos = rodar("dpkg-deb", "-f", f"{self.pasta}/{nome}", "Package", "Depends", "Version")
            if "-dev" in campos:
                self.assertRegex(campos, r"Depends: libtarvo-esocial-campos\d+\.\d+ \(= \d+\.\d+\.\d+\), firebird-dev")
            else:
                self.assertRegex(campos, r"Depends: .*libfbclient2")
                self.assertNotIn("libtarvo", campos.split("Depends")[1])
        destino = self.compilar_exemplos(f"{extraido}/usr")
        self.conferir_folha(f"{destino}/folha_do_mes")
        self.assertEqual(rodar(self.programa, "--versao"), rodar(f"{extraido}/usr/bin/esocial-campos", "--versao"))


class Ajuda(Base):
    def comandos(self):
        return re.findall(r"^  ([a-z-]+) ", rodar(self.programa, "--ajuda").split("Comandos:")[1].split("\n\n")[0], re.M)

    def test_a_pagina_de_manual_diz_todos_os_comandos_e_opcoes(self):
        with open(f"{self.prefixo}/share/man/man1/esocial-campos.1", encoding="utf-8") as arquivo:
            pagina = arquivo.read().replace("\\-", "-")
        ditas = set(re.findall(r"(--[a-z][a-z-]+)", pagina))
        existem = {"--versao"}
        self.assertEqual(6, len(self.comandos()))
        for comando in self.comandos():
            self.assertIn(f".B {comando}\n", pagina)
            existem |= {nome for linha in re.findall(r"^  (-\S+)", rodar(self.programa, comando, "--ajuda"), re.M)
                        for nome in linha.split(",") if nome.startswith("--")}
        self.assertEqual(existem, ditas)

    def completar(self, *palavras):
        roteiro = ('source "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _esocial_campos; '
                   'printf "%s\\n" "${COMPREPLY[@]}"')
        saida = rodar("bash", "-c", roteiro, "bash", f"{self.prefixo}/share/bash-completion/completions/esocial-campos",
                      self.programa, *palavras)
        return saida.split()

    def test_a_completacao_segue_a_ajuda(self):
        self.assertEqual(self.comandos(), [c for c in self.completar("") if not c.startswith("--")])
        self.assertEqual(["reverter"], self.completar("rev"))
        self.assertEqual(["S-1000", "S-1030"], self.completar("reverter", ""))
        self.assertEqual(38, len(self.completar("carregar", "S-")))
        self.assertEqual(38, len(self.completar("eventos", "")))
        self.assertEqual(["--markdown"], self.completar("eventos", "S-1000", "--m"))
        self.assertEqual(["--esquema"], self.completar("eventos", "--e"))
        self.assertEqual(["--AIDEmpresa", "--AIDEmpregado"], self.completar("carregar", "S-2200", "--AIDE"))
        self.assertEqual(["--DataInicio", "--DataFim"], self.completar("lote", "S-1200", "--banco", "x", "--Data"))
        self.assertIn("--parte", self.completar("lote", "--"))
        self.assertEqual(["1", "2"], self.completar("carregar", "S-1000", "--ambiente", ""))
        self.assertEqual([self.banco], self.completar("carregar", "--banco", self.banco[:-3]))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
