#include "pagamento/s1210/UnTarvoESocialCamposS1210.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasEmpregado.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnOvraUtilsStrings.h"
#include "imports/valores/UnTarvoUtilsStrings.h"

namespace tarvo::pagamento {

TTarvoESocialCamposS1210::TTarvoESocialCamposS1210(TTarvoESocialCamposS1210IOP& AInfoBind)
    : TTarvoESocialCamposGrupoBase("{95E22A9C-4B21-47F8-83FE-DD854159F1A8}"), ideBenef(AInfoBind), FInfoBind(AInfoBind)
{}

const TPropriedades& TTarvoESocialCamposS1210::Tabela()
{
    static const TPropriedades tabela{{"ideBenef", &TTarvoESocialCamposS1210::ideBenef}};
    return tabela;
}

void TTarvoESocialCamposS1210::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    BuscarListaIdTrabalhadorPeloCPF();
    ideBenef.CarregarDados(AListaCamposModificados);
}

// The columns hold a CPF with or without punctuation.
static constexpr std::string_view SQL_EMPREGADOS_DO_CPF = R"(SELECT DISTINCT EMPREGADOS.IDEMPREGADO
FROM EMPREGADOS
WHERE TRIM(REPLACE(REPLACE(EMPREGADOS.CPF, '.',''),'-','')) = '%0:s'
  AND EMPREGADOS.IDEMPRESA = %1:D
ORDER BY EMPREGADOS.IDEMPREGADO)";

// Across all companies of the database: the company counts later, on the receipts.
static constexpr std::string_view SQL_PRESTADORES_DO_CPF = R"(SELECT DISTINCT PREST_SERVICO.IDPRESTSERVICO
FROM PREST_SERVICO
WHERE TRIM(REPLACE(REPLACE(PREST_SERVICO.CPF, '.',''),'-','')) = '%0:s'
ORDER BY PREST_SERVICO.IDPRESTSERVICO)";

void TTarvoESocialCamposS1210::BuscarListaIdTrabalhadorPeloCPF()
{
    const auto LCpf = FormatarTexto("00000000000", GOvraUtilsStrings.RemoverCaracteres(".-/*", FInfoBind.Cpf));
    TDataset LCds;
    TTarvoConsultasGeral::BuscarRegistrosBD(LCds, Format(SQL_EMPREGADOS_DO_CPF, LCpf, FInfoBind.IdEmpresa));
    if (!LCds->IsEmpty())
        FInfoBind.ListaIdsEmpregado =
            RemoverEmpregadosComDataAdmissaoPosteriorAoCalculo(CriarListaDoClientDataset(*LCds, "IDEMPREGADO"));
    TTarvoConsultasGeral::BuscarRegistrosBD(LCds, Format(SQL_PRESTADORES_DO_CPF, LCpf));
    if (!LCds->IsEmpty())
        FInfoBind.ListaIdsPrestServico = CriarListaDoClientDataset(*LCds, "IDPRESTSERVICO");
}

std::string TTarvoESocialCamposS1210::RemoverEmpregadosComDataAdmissaoPosteriorAoCalculo(
    const std::string& ALista) const
{
    std::string LLista;
    for (const auto& LId : TTarvoUtilsStrings::TransfereStringParaLista(ALista))
        if (TTarvoConsultasEmpregado::BuscarAdmissaoOuTransfDefinitivaInicial(StrToInt64(LId)) <= FInfoBind.DataFim)
            TTarvoUtilsStrings::AdicionarItemNaLista(LLista, LId);
    return LLista.empty() ? "0" : LLista;
}

} // namespace tarvo::pagamento
