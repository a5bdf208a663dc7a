#include "trabalhador/s2300/UnTarvoESocialCamposInfoDirigenteSindical.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposInfoDirigenteSindical::TTarvoESocialCamposInfoDirigenteSindical(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{0DEAFC3F-F175-4F40-A19E-92D71D6CBE32}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposInfoDirigenteSindical::Tabela()
{
    using Eu = TTarvoESocialCamposInfoDirigenteSindical;
    static const TPropriedades tabela{
        {"categOrig", &Eu::categOrig, TFieldRelacionado("CATEGORIGEM")},
        {"cnpjOrigem", &Eu::cnpjOrigem, TFieldRelacionado("CNPJ")},
        {"dtAdmOrigem", &Eu::dtAdmOrigem, TFieldRelacionado("DATA")},
        {"matricOrig", &Eu::matricOrig, TFieldRelacionado("MATRICULA")},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoDirigenteSindical::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT FIRST 1
  FP_EMPREGADOSDET.INFORMACAO1 CNPJ,
  FP_EMPREGADOSDET.INFORMACAO2 DATA,
  FP_EMPREGADOSDET.INFORMACAO3 MATRICULA,
  FP_ESOCIALTABELA.CODIGO CATEGORIGEM
FROM FP_EMPREGADOSDET
LEFT JOIN FP_ESOCIALTABELA ON (FP_EMPREGADOSDET.INFORMACAO4 = FP_ESOCIALTABELA.IDESOCIALTABELA)
WHERE FP_EMPREGADOSDET.ESPECIE = 1 AND FP_EMPREGADOSDET.TP = 5 AND FP_EMPREGADOSDET.IDEMPREGADO = %0:D
ORDER BY FP_EMPREGADOSDET.IDEMPREGADO, FP_EMPREGADOSDET.IDEMPREGADOSDET)";
    return Format(SQL, FIDEmpregado);
}

} // namespace tarvo::trabalhador
