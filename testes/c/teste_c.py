"""The C interface: a host in C, and the shared library from Python, whose JSON must be the goldens'."""

import ctypes
import json
import pathlib
import shutil
import subprocess
import sys
import tempfile
import threading
import unittest

PROGRAMA, TESTE_C = sys.argv[1:3]
# Not given for a sanitized library, which Python can't hold.
BIBLIOTECA = sys.argv[3] if len(sys.argv) > 3 else ""
GOLDENS = pathlib.Path(__file__).parents[1] / "goldens"
FEITO, FALHA, USO_ERRADO = range(3)


def rodar(*comando):
    return subprocess.run(comando, capture_output=True, text=True, timeout=300)


class Base(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.pasta = tempfile.mkdtemp()
        cls.addClassCleanup(shutil.rmtree, cls.pasta)
        cls.bancos = [f"{cls.pasta}/folha.fdb", f"{cls.pasta}/outra.fdb"]
        for banco in cls.bancos:
            feito = rodar(PROGRAMA, "criar-banco", "--banco", banco, "--exemplo")
            assert feito.returncode == 0, feito.stderr


class EmC(Base):
    def test_em_c(self):
        feito = rodar(TESTE_C, *self.bancos)
        self.assertEqual((0, ""), (feito.returncode, feito.stderr))


class Biblioteca:
    """The functions as Python calls them; what they give is freed at once."""

    def __init__(self):
        self.c = ctypes.CDLL(BIBLIOTECA)
        self.c.tarvo_erro.restype = ctypes.c_char_p
        self.c.tarvo_textos_item.restype = ctypes.c_char_p
        self.c.tarvo_textos_item.argtypes = [ctypes.c_void_p, ctypes.c_size_t]
        self.c.tarvo_textos_quantidade.restype = ctypes.c_size_t
        for nome in ("tarvo_textos_quantidade", "tarvo_liberar_textos", "tarvo_liberar_texto", "tarvo_desconectar",
                     "tarvo_evento_liberar"):
            getattr(self.c, nome).argtypes = [ctypes.c_void_p]

    def chamar(self, nome, *argumentos):
        textos = [a.encode() if isinstance(a, str) else a for a in argumentos]
        situacao = getattr(self.c, nome)(*textos)
        if situacao != FEITO:
            raise RuntimeError(situacao, self.c.tarvo_erro().decode())

    def dar(self, nome, *argumentos):
        resultado = ctypes.c_void_p()
        self.chamar(nome, *argumentos, ctypes.byref(resultado))
        return resultado

    def texto(self, nome, *argumentos):
        resultado = self.dar(nome, *argumentos)
        try:
            return ctypes.string_at(resultado).decode()
        finally:
            self.c.tarvo_liberar_texto(resultado)

    def lista(self, nome, *argumentos):
        resultado = self.dar(nome, *argumentos)
        try:
            return [self.c.tarvo_textos_item(resultado, i).decode()
                    for i in range(self.c.tarvo_textos_quantidade(resultado))]
        finally:
            self.c.tarvo_liberar_textos(resultado)

    def criar(self, conexao, codigo, argumentos):
        vetor = ctypes.c_char_p * len(argumentos)
        return self.dar("tarvo_evento_criar", conexao, codigo, vetor(*(n.encode() for n in argumentos)),
                        vetor(*(v.encode() for v in argumentos.values())), ctypes.c_size_t(len(argumentos)))

    def carregar(self, conexao, codigo, argumentos):
        evento = self.criar(conexao, codigo, argumentos)
        try:
            self.chamar("tarvo_evento_carregar", evento, None)
            return self.texto("tarvo_evento_json", evento, 1)
        finally:
            self.c.tarvo_evento_liberar(evento)


def casos_dos_goldens():
    """Event, arguments and expected JSON of each case of the goldens."""
    for lista in sorted(GOLDENS.glob("*.casos")):
        for linha in lista.read_text(encoding="utf-8").splitlines():
            if linha and not linha.startswith("#"):
                nome, *argumentos = linha.split()
                yield (lista.stem, dict(a.split("=", 1) for a in argumentos),
                       (GOLDENS / lista.stem / f"{nome}.json").read_text(encoding="utf-8").strip())


@unittest.skipUnless(BIBLIOTECA, "sem biblioteca dinâmica")
class EmPython(Base):
    def setUp(self):
        self.b = Biblioteca()
        self.conexoes = [self.conectar(banco) for banco in self.bancos]

    def conectar(self, banco):
        conexao = self.b.dar("tarvo_conectar", banco, None, None)
        self.addCleanup(self.b.c.tarvo_desconectar, conexao)
        self.b.chamar("tarvo_conectar_brenco", conexao, banco, None, None)
        return conexao

    def test_o_json_eh_o_dos_goldens(self):
        for codigo, argumentos, esperado in casos_dos_goldens():
            with self.subTest(codigo, **argumentos):
                self.assertEqual(esperado, self.b.carregar(self.conexoes[0], codigo, argumentos))

    def test_cada_evento_diz_os_seus_argumentos_e_o_seu_esquema(self):
        codigos = self.b.lista("tarvo_eventos")
        self.assertEqual(38, len(codigos))
        for codigo in codigos:
            obrigatorios = self.b.lista("tarvo_argumentos", codigo, 1)
            self.assertLessEqual(set(obrigatorios), set(self.b.lista("tarvo_argumentos", codigo, 0)))
            self.assertTrue(json.loads(self.b.texto("tarvo_esquema", codigo))["properties"])
            if obrigatorios:
                with self.assertRaises(RuntimeError) as erro:
                    self.b.criar(self.conexoes[0], codigo, {})
                self.assertEqual(USO_ERRADO, erro.exception.args[0])
                self.assertIn(obrigatorios[0], erro.exception.args[1])

    def test_muitas_linhas_de_execucao_carregam_de_dois_bancos(self):
        casos = [caso for caso in casos_dos_goldens() if caso[0] in ("S-1000", "S-1250", "S-2206")]
        self.assertGreater(len(casos), 10)
        erros = []

        def carregar(vez):
            try:
                for i, (codigo, argumentos, esperado) in enumerate(casos):
                    if self.b.carregar(self.conexoes[(vez + i) % 2], codigo, argumentos) != esperado:
                        erros.append(f"{codigo} difere")
                    # The error is the thread's own.
                    try:
                        self.b.chamar("tarvo_evento_carregar", None, None)
                    except RuntimeError as erro:
                        if erro.args != (USO_ERRADO, "Falta informar o evento"):
                            erros.append(erro.args)
            except Exception as erro:
                erros.append(repr(erro))

        linhas = [threading.Thread(target=carregar, args=[vez]) for vez in range(6)]
        for linha in linhas:
            linha.start()
        for linha in linhas:
            linha.join()
        self.assertEqual([], erros)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
