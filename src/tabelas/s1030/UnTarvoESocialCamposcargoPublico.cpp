#include "tabelas/s1030/UnTarvoESocialCamposcargoPublico.h"

#include "framework/UnTarvoESocialCamposListaSqlReversao.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposcargoPublico::TTarvoESocialCamposcargoPublico(std::int64_t AIDCargosDescr)
    : TTarvoESocialCamposGrupoBase("{61008333-F289-430E-9CA3-54A0F5D19B9F}"), leicargo(AIDCargosDescr),
      IdCargosDescr(AIDCargosDescr), FIDCargosDescr(AIDCargosDescr)
{}

const TPropriedades& TTarvoESocialCamposcargoPublico::Tabela()
{
    using Eu = TTarvoESocialCamposcargoPublico;
    static const TPropriedades tabela{
        {"acumCargo", &Eu::acumCargo, TFieldRelacionado("ACUMULOCARGOS")},
        {"contagemEsp", &Eu::contagemEsp, TFieldRelacionado("CONTAGEMTEMPO")},
        {"dedicExcl", &Eu::dedicExcl, TFieldRelacionado("DEDICACAOEXCL")},
        {"leicargo", &Eu::leicargo},
        {"IdCargosDescr", &Eu::IdCargosDescr},
    };
    return tabela;
}

std::string TTarvoESocialCamposcargoPublico::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  FP_CARGOSPUBLICO.ACUMULOCARGOS,
  FP_CARGOSPUBLICO.CONTAGEMTEMPO,
  FP_CARGOSPUBLICO.DEDICACAOEXCL
FROM FP_CARGOSPUBLICO
WHERE FP_CARGOSPUBLICO.IDCARGOSDESCR = %0:d
ORDER BY FP_CARGOSPUBLICO.IDCARGOSPUBLICO + 0)";
    return Format(SQL, FIDCargosDescr);
}

void TTarvoESocialCamposcargoPublico::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    leicargo.CarregarDados(AListaCamposModificados);
}

void TTarvoESocialCamposcargoPublico::ReverterDados()
{
    TTarvoESocialCamposGrupoBase::ReverterDados();
    static constexpr std::string_view SQL =
        "UPDATE FP_CARGOSPUBLICO SET FP_CARGOSPUBLICO.ACUMULOCARGOS = %1:s, FP_CARGOSPUBLICO.CONTAGEMTEMPO = %2:s, "
        "FP_CARGOSPUBLICO.DEDICACAOEXCL = %3:s WHERE FP_CARGOSPUBLICO.IDCARGOSDESCR = %0:d";
    if (!acumCargo.empty())
        BuscarInstanciaListaSql().Lista.push_back(Format(SQL, FIDCargosDescr, acumCargo, contagemEsp, dedicExcl));
    leicargo.ReverterDados();
}

} // namespace tarvo::tabelas
