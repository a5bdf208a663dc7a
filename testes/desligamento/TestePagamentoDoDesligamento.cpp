#include <set>

#include "apoio/UnBancoDeTeste.h"
#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "desligamento/UnTarvoESocialCamposS2299.h"
#include "desligamento/UnTarvoESocialCamposS2399.h"
#include "pagamento/UnTarvoESocialCamposS1210.h"

namespace tarvo::testes {
namespace {

using namespace desligamento;

class TTestePagamentoDoDesligamento : public TTesteComExemplo {
protected:
    /// The identifiers of the terminations that a CPF was paid in March 2021.
    static std::set<std::string> Pagos(const char* ACpf)
    {
        pagamento::TTarvoESocialCamposS1210IOP LInfoBind;
        LInfoBind.IdEmpresa = 1;
        LInfoBind.Cpf = ACpf;
        LInfoBind.DataInicio = D(2021, 3, 1);
        LInfoBind.DataFim = D(2021, 3, 31);
        LInfoBind.DataInicioVigencia = D(2018, 7, 1);
        pagamento::TTarvoESocialCamposS1210 LEvento(LInfoBind);
        LEvento.CarregarDados();
        std::set<std::string> LIds;
        for (const auto& LPgto : LEvento.ideBenef.infoPgto)
            for (const auto& LDetalhe : LPgto->detPgtoFl)
                if (LDetalhe->ideDmDev.starts_with("05_"))
                    LIds.insert(LDetalhe->ideDmDev);
        return LIds;
    }
    template <class TVerbas>
    static std::set<std::string> Devidos(const TVerbas& AVerbas)
    {
        std::set<std::string> LIds;
        for (const auto& LDmDev : AVerbas.dmDev)
            LIds.insert(LDmDev->ideDmDev);
        return LIds;
    }
    static std::string Lote(const char* AEvento, const char* AEmpresa)
    {
        std::string LTexto;
        for (const auto& LChave : BuscarChavesDoLote(AEvento, {{"IdEmpresa", AEmpresa},
                                                               {"DataInicio", "2021-03-01"},
                                                               {"DataFim", "2021-03-31"},
                                                               {"ADataInicioEventosPeriodicos", "2018-05-01"}})) {
            LTexto += (LTexto.empty() ? "" : " ") + LChave.Json;
            EXPECT_NO_THROW(ConstruirEvento(AEvento, LChave.Argumentos));
        }
        return LTexto;
    }
};

TEST_F(TTestePagamentoDoDesligamento, ReferemSeAosMesmosDemonstrativos)
{
    TTarvoESocialCamposS2299 LDesligamento(14, D(2018, 5, 1));
    LDesligamento.CarregarDados();
    EXPECT_EQ((std::set<std::string>{"05_000_01_03_2021", "05_002_01_03_2021"}), Pagos("114.112.223-50"));
    EXPECT_EQ(Pagos("114.112.223-50"), Devidos(LDesligamento.infoDeslig.verbasResc));
    TTarvoESocialCamposS2399 LTermino(21, D(2018, 5, 1));
    LTermino.CarregarDados();
    EXPECT_EQ(Pagos("121.112.223-99"), Devidos(LTermino.infoTSVTermino.verbasResc));
    EXPECT_EQ(1u, Pagos("121.112.223-99").size());
}

TEST_F(TTestePagamentoDoDesligamento, LotePelosDesligadosDoPeriodoComESemVinculo)
{
    EXPECT_EQ("14", Lote("S-2299", "1"));
    EXPECT_EQ("7801", Lote("S-2299", "2"));
    EXPECT_EQ("21", Lote("S-2399", "1"));
    EXPECT_EQ("", Lote("S-2399", "2"));
}

} // namespace
} // namespace tarvo::testes
