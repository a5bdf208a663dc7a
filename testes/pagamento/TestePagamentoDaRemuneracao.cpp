#include <map>
#include <set>

#include "apoio/UnBancoDeTeste.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnTarvoUtilsDatas.h"
#include "pagamento/s1210/UnTarvoESocialCamposS1210.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200.h"

namespace tarvo::testes {
namespace {

using pagamento::TTarvoESocialCamposdetPgtoFl;

struct TTrabalhador {
    std::int64_t IdEmpresa;
    /// As the register holds it, which is how a remuneration is asked for.
    std::string Cpf;
};

/// The whole sample company: what was paid refers to what was due.
class TTestePagamentoDaRemuneracao : public TTesteComExemplo {
protected:
    static std::vector<TTrabalhador> Trabalhadores()
    {
        std::vector<TTrabalhador> LLista;
        const auto LLinhas = OvraConnection().Consultar(R"(SELECT IDEMPRESA, CPF FROM EMPREGADOS
UNION
SELECT SC00_FILIAL.IDEMPRESA, PREST_SERVICO.CPF
FROM PREST_SERVICO
JOIN RPA ON (RPA.IDPRESTSERVICO = PREST_SERVICO.IDPRESTSERVICO)
JOIN SC00_FILIAL ON (SC00_FILIAL.IDFILIAL = RPA.IDFILIAL))");
        for (std::size_t i = 0; i < LLinhas.QuantidadeDeLinhas(); ++i)
            LLista.push_back({LLinhas.Inteiro(i, 0), LLinhas.Texto(i, 1)});
        return LLista;
    }
    /// First days of the months in which anything was paid.
    static std::vector<TDateTime> MesesDePagamento()
    {
        std::vector<TDateTime> LMeses;
        const auto LLinhas =
            OvraConnection().Consultar(R"(SELECT DISTINCT EXTRACT(YEAR FROM DIA), EXTRACT(MONTH FROM DIA)
FROM (SELECT DATA_PAGTO DIA FROM CALCULO UNION SELECT DATAPAGTO DIA FROM RPA))");
        for (std::size_t i = 0; i < LLinhas.QuantidadeDeLinhas(); ++i)
            LMeses.push_back(D(static_cast<int>(LLinhas.Inteiro(i, 0)), static_cast<int>(LLinhas.Inteiro(i, 1)), 1));
        return LMeses;
    }

    const std::set<std::string>& Remuneracao(const TTrabalhador& ATrabalhador, TDateTime AMes, bool AAnual)
    {
        const auto LChave = Format("%0:d %1:s %2:s %3:d", ATrabalhador.IdEmpresa, ATrabalhador.Cpf,
                                   FormatDateTime("YYYY-MM", AMes), AAnual ? 1 : 0);
        const auto [LItem, LNovo] = FRemuneracoes.try_emplace(LChave);
        if (LNovo) {
            remuneracao::TTarvoESocialCamposS1200IOP LInfoBind;
            LInfoBind.SetIdEmpresa(ATrabalhador.IdEmpresa);
            LInfoBind.SetCpf(ATrabalhador.Cpf);
            LInfoBind.SetDataInicio(AMes);
            LInfoBind.SetDataFim(UltimoDiaDoMes(AMes));
            LInfoBind.SetIndApuracao(AAnual ? tpIndApuracao::Anual : tpIndApuracao::Mensal);
            remuneracao::TTarvoESocialCamposS1200 LEvento(LInfoBind);
            LEvento.CarregarDados();
            for (const auto& LDemonstrativo : LEvento.dmDev)
                LItem->second.insert(LDemonstrativo->ideDmDev);
        }
        return LItem->second;
    }

    /// The month whose remuneration reports the demonstrative: that which it refers to; a receipt is reported by its
    /// day of payment, and a thirteenth salary, which refers to a year, by the month in its identifier.
    static TDateTime MesDaRemuneracao(const TTarvoESocialCamposdetPgtoFl& ADetalhe, TDateTime APagto)
    {
        if (ADetalhe.ideDmDev.starts_with("97_"))
            return PrimeiroDiaDoMes(APagto);
        const bool LAnual = ADetalhe.perRef.size() == 4;
        const int LMes = std::stoi(LAnual ? ADetalhe.ideDmDev.substr(9, 2) : ADetalhe.perRef.substr(5, 2));
        return D(std::stoi(ADetalhe.perRef.substr(0, 4)), LMes, 1);
    }

private:
    std::map<std::string, std::set<std::string>> FRemuneracoes;
};

TEST_F(TTestePagamentoDaRemuneracao, CadaDemonstrativoPagoEstaNaRemuneracaoDoMes)
{
    std::size_t LConferidos = 0;
    std::set<std::string> LFormas;
    for (const auto& LTrabalhador : Trabalhadores())
        for (const auto LMes : MesesDePagamento()) {
            pagamento::TTarvoESocialCamposS1210IOP LInfoBind;
            LInfoBind.IdEmpresa = LTrabalhador.IdEmpresa;
            LInfoBind.Cpf = LTrabalhador.Cpf;
            LInfoBind.DataInicio = LMes;
            LInfoBind.DataFim = UltimoDiaDoMes(LMes);
            LInfoBind.DataInicioVigencia = D(2018, 7, 1);
            pagamento::TTarvoESocialCamposS1210 LEvento(LInfoBind);
            LEvento.CarregarDados();
            for (const auto& LPgto : LEvento.ideBenef.infoPgto) {
                if (LPgto->tpPgto != 1)
                    continue;
                for (const auto& LDetalhe : LPgto->detPgtoFl) {
                    const auto LReferencia = MesDaRemuneracao(*LDetalhe, LPgto->dtPgto);
                    const auto& LDevidos = Remuneracao(LTrabalhador, LReferencia, LDetalhe->perRef.size() == 4);
                    EXPECT_TRUE(LDevidos.contains(LDetalhe->ideDmDev))
                        << LDetalhe->ideDmDev << " de " << LTrabalhador.Cpf << ", pago em "
                        << DateTimeToStr(LPgto->dtPgto) << ", não está na remuneração de "
                        << FormatDateTime("mm/yyyy", LReferencia);
                    ++LConferidos;
                    LFormas.insert(LDetalhe->ideDmDev.substr(0, 6));
                }
            }
        }
    // The sample company pays every kind of run, or the comparison proves little.
    EXPECT_GE(LConferidos, 35U);
    for (const char* LForma : {"01_000", "01_004", "02_000", "03_000", "05_002", "06_000", "09_000", "97_000"})
        EXPECT_TRUE(LFormas.contains(LForma)) << LForma;
}

} // namespace
} // namespace tarvo::testes
