#include "trabalhador/vinculo/UnTarvoESocialCampostransfDom.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCampostransfDom::TTarvoESocialCampostransfDom(std::int64_t AIdEmpregado)
    : TTarvoESocialCamposGrupoBase("{1B1BE02D-3D4B-446B-AD73-9C8A4F6388D7}"), FIDEmpregado(AIdEmpregado)
{}

const TPropriedades& TTarvoESocialCampostransfDom::Tabela()
{
    using Eu = TTarvoESocialCampostransfDom;
    static const TPropriedades tabela{
        {"cpfSubstituido", &Eu::cpfSubstituido, TFieldRelacionado("INFORMACAO1")},
        {"matricAnt", &Eu::matricAnt, TFieldRelacionado("INFORMACAO2")},
        {"dtTransf", &Eu::dtTransf, TFieldRelacionado("INFORMACAO3")},
    };
    return tabela;
}

std::string TTarvoESocialCampostransfDom::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT FIRST 1
  FP_EMPREGADOSDET.INFORMACAO1,
  FP_EMPREGADOSDET.INFORMACAO2,
  FP_EMPREGADOSDET.INFORMACAO3,
  FP_EMPREGADOSDET.INFORMACAO10
FROM FP_EMPREGADOSDET
WHERE FP_EMPREGADOSDET.IDEMPREGADO = %0:D
  AND FP_EMPREGADOSDET.ESPECIE = 1 AND FP_EMPREGADOSDET.TP = 3
ORDER BY FP_EMPREGADOSDET.IDEMPREGADO, FP_EMPREGADOSDET.IDEMPREGADOSDET)";
    return Format(SQL, FIDEmpregado);
}

} // namespace tarvo::trabalhador
