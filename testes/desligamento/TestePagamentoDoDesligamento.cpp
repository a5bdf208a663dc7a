#include <set>

#include "apoio/UnBancoDeTeste.h"
#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "desligamento/s2299/UnTarvoESocialCamposS2299.h"
#include "desligamento/s2399/UnTarvoESocialCamposS2399.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnTarvoUtilsDatas.h"
#include "pagamento/s1210/UnTarvoESocialCamposS1210.h"

namespace tarvo::testes {
namespace {

using namespace desligamento;

class TTestePagamentoDoDesligamento : public TTesteComExemplo {
protected:
    using TIds = std::set<std::string>;

    /// The demonstratives that the payments of a kind refer to: 2 by dismissal, 3 by the end without a bond.
    static void AcrescentarPagos(std::int64_t AIdEmpresa, const std::string& ACpf, TDateTime AMes, int ATpPgto,
                                 TIds& AIds)
    {
        pagamento::TTarvoESocialCamposS1210IOP LInfoBind;
        LInfoBind.IdEmpresa = AIdEmpresa;
        LInfoBind.Cpf = ACpf;
        LInfoBind.DataInicio = AMes;
        LInfoBind.DataFim = TransformarData(AMes, 0, TDiasTransformarData::UltimoDiaDoMes);
        LInfoBind.DataInicioVigencia = D(2018, 7, 1);
        pagamento::TTarvoESocialCamposS1210 LEvento(LInfoBind);
        LEvento.CarregarDados();
        for (const auto& LPgto : LEvento.ideBenef.infoPgto)
            for (const auto& LDetalhe : LPgto->detPgtoFl)
                if (LPgto->tpPgto == ATpPgto)
                    AIds.insert(LDetalhe->ideDmDev);
    }
    template <class TVerbas>
    static void AcrescentarDevidos(const TVerbas& AVerbas, TIds& AIds)
    {
        for (const auto& LDmDev : AVerbas.dmDev)
            AIds.insert(LDmDev->ideDmDev);
    }
    /// Paid to a person in any month, by kind, and due by the person's terminations.
    static std::pair<TIds, TIds> PagosEDevidos(std::int64_t AIdEmpresa, const std::string& ACpf, int ATpPgto)
    {
        std::pair<TIds, TIds> LIds;
        const auto LMeses = TTarvoConsultasGeral::BuscarRegistros(
            Format("SELECT DISTINCT CAST(CALCULO.DATA_PAGTO AS DATE) - EXTRACT(DAY FROM CALCULO.DATA_PAGTO) + 1 AS MES "
                   "FROM CALCULO JOIN EMPREGADOS ON (EMPREGADOS.IDEMPREGADO = CALCULO.IDEMPREGADO) "
                   "WHERE EMPREGADOS.IDEMPRESA = %0:d AND EMPREGADOS.CPF = '%1:s'",
                   AIdEmpresa, ACpf));
        for (; !LMeses->Eof(); LMeses->Next())
            AcrescentarPagos(AIdEmpresa, ACpf, LMeses->FieldByName("MES").AsDateTime(), ATpPgto, LIds.first);
        const auto LContratos = TTarvoConsultasGeral::BuscarRegistros(
            Format("SELECT IDEMPREGADO, IIF(FP_ESOCIALTABELA.CODIGO > '700', 3, 2) AS TPPGTO FROM EMPREGADOS "
                   "LEFT JOIN FP_ESOCIALTABELA ON (IDESOCIALTABELA = IDCATEGORIAESOCIAL) "
                   "WHERE IDEMPRESA = %0:d AND CPF = '%1:s'",
                   AIdEmpresa, ACpf));
        for (; !LContratos->Eof(); LContratos->Next()) {
            if (LContratos->FieldByName("TPPGTO").AsInteger() != ATpPgto)
                continue;
            const auto LId = LContratos->FieldByName("IDEMPREGADO").AsLargeInt();
            if (ATpPgto == 2) {
                TTarvoESocialCamposS2299 LEvento(LId, D(2018, 5, 1));
                LEvento.CarregarDados();
                AcrescentarDevidos(LEvento.infoDeslig.verbasResc, LIds.second);
            } else {
                TTarvoESocialCamposS2399 LEvento(LId, D(2018, 5, 1));
                LEvento.CarregarDados();
                AcrescentarDevidos(LEvento.infoTSVTermino.verbasResc, LIds.second);
            }
        }
        return LIds;
    }
    static std::string Lote(const char* AEvento, const char* AEmpresa, const char* AInicio = "2021-03-01",
                            const char* AFim = "2021-03-31")
    {
        std::string LTexto;
        for (const auto& LChave : BuscarChavesDoLote(AEvento, {{"IdEmpresa", AEmpresa},
                                                               {"DataInicio", AInicio},
                                                               {"DataFim", AFim},
                                                               {"ADataInicioEventosPeriodicos", "2018-05-01"}})) {
            LTexto += (LTexto.empty() ? "" : " ") + LChave.Json;
            EXPECT_NO_THROW(ConstruirEvento(AEvento, LChave.Argumentos));
        }
        return LTexto;
    }
};

TEST_F(TTestePagamentoDoDesligamento, TodoPagamentoSeRefereAUmDemonstrativo)
{
    const auto LPessoas = TTarvoConsultasGeral::BuscarRegistros(
        "SELECT DISTINCT IDEMPRESA, CPF FROM EMPREGADOS WHERE DATA_DEMISSAO IS NOT NULL AND CPF IS NOT NULL");
    for (; !LPessoas->Eof(); LPessoas->Next()) {
        const auto LCpf = LPessoas->FieldByName("CPF").AsString();
        for (const int LTpPgto : {2, 3}) {
            const auto [LPagos, LDevidos] =
                PagosEDevidos(LPessoas->FieldByName("IDEMPRESA").AsLargeInt(), LCpf, LTpPgto);
            for (const auto& LId : LPagos)
                EXPECT_TRUE(LDevidos.contains(LId)) << LCpf << ": " << LId;
        }
    }
}

TEST_F(TTestePagamentoDoDesligamento, CadaTipoDeCalculoTemOMesmoIdentificadorNoPagamento)
{
    const struct {
        std::int64_t IdEmpresa;
        const char* Cpf;
        int TpPgto;
        TIds Ids;
    } LCasos[] = {
        {1, "114.112.223-50", 2, {"05_000_01_03_2021", "05_002_01_03_2021"}},
        {1, "121.112.223-99", 3, {"05_000_01_03_2021"}},
        // Two contracts of different categories; the differences are of a month that knew one.
        {78,
         "178.211.222-70",
         2,
         {"05_000_01_03_2021_101", "05_002_01_03_2021_101", "02_000_0_03_2021_101", "01_004_1_01_2021"}},
        {78, "178.211.222-70", 3, {"05_000_01_03_2021_721", "05_002_01_03_2021_721", "06_000_0_03_2021_721"}},
        {78, "178.311.222-06", 2, {"01_000_0_0000007813_03_2021"}},
    };
    for (const auto& LCaso : LCasos) {
        const auto [LPagos, LDevidos] = PagosEDevidos(LCaso.IdEmpresa, LCaso.Cpf, LCaso.TpPgto);
        EXPECT_EQ(LCaso.Ids, LPagos) << LCaso.Cpf;
        EXPECT_EQ(LCaso.Ids, LDevidos) << LCaso.Cpf;
    }
}

TEST_F(TTestePagamentoDoDesligamento, LotePelosDesligadosDoPeriodoComESemVinculo)
{
    // 20 left by definitive transfer; 22 arrived by one.
    EXPECT_EQ("14 20", Lote("S-2299", "1"));
    EXPECT_EQ("20", Lote("S-2299", "1", "2021-03-15", "2021-03-15"));
    EXPECT_EQ("7801", Lote("S-2299", "2"));
    EXPECT_EQ("7811 7813", Lote("S-2299", "78"));
    EXPECT_EQ("7814 7815", Lote("S-2299", "78", "2021-02-01", "2021-02-28"));
    EXPECT_EQ("21", Lote("S-2399", "1"));
    EXPECT_EQ("7812", Lote("S-2399", "78"));
    EXPECT_EQ("", Lote("S-2399", "2"));
}

} // namespace
} // namespace tarvo::testes
