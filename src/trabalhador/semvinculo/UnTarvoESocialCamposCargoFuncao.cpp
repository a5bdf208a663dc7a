#include "trabalhador/semvinculo/UnTarvoESocialCamposCargoFuncao.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposCargoFuncao::TTarvoESocialCamposCargoFuncao(std::int64_t AIDEmpregado, TDate ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{32124512-5D75-4375-8956-CFDD0C4D2C5C}"), FIDEmpregado(AIDEmpregado),
      FDataGeracao(ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposCargoFuncao::Tabela()
{
    using Eu = TTarvoESocialCamposCargoFuncao;
    static const TPropriedades tabela{
        {"codCargo", &Eu::codCargo, TFieldRelacionado("CODIGOESOCIAL")},
        {"DescCargo", &Eu::DescCargo, TFieldRelacionado("DESCRICAO")},
        {"TipoCargo", &Eu::TipoCargo, TFieldRelacionado("TPCARGOPUBLICO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposCargoFuncao::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  FP_CARGOSDESCR.CODIGOESOCIAL,
  FP_CARGOSDESCR.DESCRICAO,
  FP_CARGOSPUBLICO.TPCARGOPUBLICO
FROM EMPREGADOS
LEFT JOIN SP_BUSCARCARGOEMPREGADO(%1:s) AS CARGO ON (EMPREGADOS.IDEMPREGADO = CARGO.IDEMPREGADO)
LEFT JOIN FP_CARGOSDESCR ON (FP_CARGOSDESCR.IDCARGOSDESCR = CARGO.IDCARGOSDESCR)
LEFT JOIN FP_CARGOSPUBLICO ON (FP_CARGOSDESCR.IDCARGOSDESCR = FP_CARGOSPUBLICO.IDCARGOSDESCR)
WHERE EMPREGADOS.IDEMPREGADO = %0:d
ORDER BY FP_CARGOSPUBLICO.IDCARGOSPUBLICO + 0;)";
    return Format(SQL, FIDEmpregado, FormatarDataDB(FDataGeracao, true));
}

} // namespace tarvo::trabalhador
