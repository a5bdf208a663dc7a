#include "trabalhador/contrato/UnTarvoESocialCamposServPubl.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposServPubl::TTarvoESocialCamposServPubl(std::int64_t AIdEmpregado, TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{C7DAD221-8DD2-43BF-9FF2-C5C46FB1B175}"), FIDEmpregado(AIdEmpregado), FData(AData)
{}

const TPropriedades& TTarvoESocialCamposServPubl::Tabela()
{
    using Eu = TTarvoESocialCamposServPubl;
    static const TPropriedades tabela{
        {"mtvAlter", &Eu::mtvAlter, TFieldRelacionado("MOTIVO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposServPubl::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT SP_BUSCARCARGOEMPREGADO.MOTIVO
FROM SP_BUSCARCARGOEMPREGADO(%0:S,NULL)
JOIN EMPREGADOS ON (SP_BUSCARCARGOEMPREGADO.IDEMPREGADO = EMPREGADOS.IDEMPREGADO)
WHERE EMPREGADOS.IDEMPREGADO = %1:D)";
    return Format(SQL, FormatarDataDB(FData, true), FIDEmpregado);
}

} // namespace tarvo::trabalhador
