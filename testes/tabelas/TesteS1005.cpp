#include "apoio/UnBancoDeTeste.h"
#include "tabelas/UnTarvoESocialCamposTipoInscricao1005.h"

namespace tarvo::testes {
namespace {

using tabelas::TTarvoESocialCamposTipoInscricao1005;

class TTesteTipoInscricao1005 : public TTesteComBanco {
protected:
    void SetUp() override
    {
        TTesteComBanco::SetUp();
        Inserir("SC00_EMPRESA", {{"IDEMPRESA", 1}, {"TPINSCRICAO", 1}});
        Inserir("SC00_FILIAL", {{"IDFILIAL", 1}, {"IDEMPRESA", 1}, {"TPINSCRICAO", 1}, {"CNPJ", "11222333000181"}});
        Inserir("SC00_DEPTO", {{"IDDEPTO", 10}, {"IDFILIAL", 1}, {"TPINSCRICAO", 3}, {"INSCRICAO", "512345678901"}});
    }

    static std::string Buscar(std::int64_t AIdEstab, std::int64_t AIdDepto)
    {
        const TTarvoESocialCamposTipoInscricao1005 LInscricao(AIdEstab, AIdDepto);
        return std::to_string(static_cast<int>(LInscricao.TipoInscricao)) + " " + LInscricao.Inscricao;
    }
};

TEST_F(TTesteTipoInscricao1005, ODepartamentoVenceQuandoOsDoisSaoDados)
{
    EXPECT_EQ("0 11222333000181", Buscar(1, 0));
    EXPECT_EQ("3 512345678901", Buscar(0, 10));
    EXPECT_EQ("3 512345678901", Buscar(1, 10));
    EXPECT_EQ("0 ", Buscar(0, 0));
    EXPECT_EQ("0 ", Buscar(1, 99));
}

TEST_F(TTesteTipoInscricao1005, OTipoVemDoCodigoDoLugar)
{
    for (const auto& [LCodigo, LTipo] : {std::pair{1, "0"}, {2, "3"}, {3, "3"}, {4, "0"}, {0, "0"}}) {
        Executar("UPDATE SC00_FILIAL SET TPINSCRICAO = " + std::to_string(LCodigo));
        EXPECT_EQ(std::string(LTipo) + " 11222333000181", Buscar(1, 0)) << LCodigo;
    }
}

TEST_F(TTesteTipoInscricao1005, CaepfAntesDoCeiAntesDoCnpj)
{
    Executar("UPDATE SC00_FILIAL SET MATRICULACEI = '512345678999'");
    EXPECT_EQ("0 512345678999", Buscar(1, 0));
    Executar("UPDATE SC00_FILIAL SET MATRICULACAEPF = '31245678900144'");
    // Of a company with CNPJ: the number is the CAEPF, the kind is still the place's own.
    EXPECT_EQ("0 31245678900144", Buscar(1, 0));
    Executar("UPDATE SC00_EMPRESA SET TPINSCRICAO = 2");
    EXPECT_EQ("2 31245678900144", Buscar(1, 0));
    // A department has no CAEPF of its own.
    EXPECT_EQ("3 512345678901", Buscar(0, 10));
    Executar("UPDATE SC00_FILIAL SET MATRICULACAEPF = '', MATRICULACEI = ''");
    EXPECT_EQ("0 11222333000181", Buscar(1, 0));
}

} // namespace
} // namespace tarvo::testes
