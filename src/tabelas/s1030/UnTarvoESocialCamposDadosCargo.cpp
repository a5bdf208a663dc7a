#include "tabelas/s1030/UnTarvoESocialCamposDadosCargo.h"

#include "framework/UnTarvoESocialCamposListaSqlReversao.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposDadosCargo::TTarvoESocialCamposDadosCargo(std::int64_t AIDCargosDescr)
    : TTarvoESocialCamposGrupoBase("{9DFB0174-5069-4B08-B9AF-D31668FDDE3F}"), cargoPublico(AIDCargosDescr),
      IDCargo(AIDCargosDescr), FIDCargosDescr(AIDCargosDescr)
{}

const TPropriedades& TTarvoESocialCamposDadosCargo::Tabela()
{
    using Eu = TTarvoESocialCamposDadosCargo;
    static const TPropriedades tabela{
        {"nmCargo", &Eu::nmCargo, TFieldRelacionado("DESCRICAO")},
        {"codCBO", &Eu::codCBO, TFieldRelacionado("CBO")},
        {"ReverIdCbo", &Eu::ReverIdCbo, TFieldRelacionado("IDCBO2002")},
        {"cargoPublico", &Eu::cargoPublico},
        {"IDCargo", &Eu::IDCargo},
    };
    return tabela;
}

std::string TTarvoESocialCamposDadosCargo::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  FP_CBO2002.CBO AS CBO,
  FP_CARGOSDESCR.DESCRICAO,
  FP_CARGOSDESCR.IDCBO2002
FROM FP_CARGOSDESCR
JOIN FP_CBO2002 ON (FP_CARGOSDESCR.IDCBO2002 = FP_CBO2002.IDCBO2002)
WHERE FP_CARGOSDESCR.IDCARGOSDESCR = %0:d)";
    return Format(SQL, FIDCargosDescr);
}

void TTarvoESocialCamposDadosCargo::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    cargoPublico.CarregarDados(AListaCamposModificados);
}

void TTarvoESocialCamposDadosCargo::ReverterDados()
{
    TTarvoESocialCamposGrupoBase::ReverterDados();
    static constexpr std::string_view SQL =
        "UPDATE FP_CARGOSDESCR SET FP_CARGOSDESCR.DESCRICAO = '%1:s', FP_CARGOSDESCR.IDCBO2002 = %2:d WHERE "
        "FP_CARGOSDESCR.IDCARGOSDESCR = %0:D";
    BuscarInstanciaListaSql().Lista.push_back(Format(SQL, FIDCargosDescr, nmCargo, ReverIdCbo));
    cargoPublico.ReverterDados();
}

} // namespace tarvo::tabelas
