#include "trabalhador/vinculo/UnTarvoESocialCamposideVinculo.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposideVinculo::TTarvoESocialCamposideVinculo(std::int64_t AIdEmpregado)
    : TTarvoESocialCamposGrupoBase("{A40C219B-EC89-4C7C-9F68-8AE4061D19C7}"), FIDEmpregado(AIdEmpregado)
{}

const TPropriedades& TTarvoESocialCamposideVinculo::Tabela()
{
    using Eu = TTarvoESocialCamposideVinculo;
    static const TPropriedades tabela{
        {"cpfTrab", &Eu::cpfTrab,
         TFieldRelacionado("CPF", "", ClasseConversor<TTarvoESocialCamposConversorRemoveCaracteresEspeciais>())},
        {"nisTrab", &Eu::nisTrab, TFieldRelacionado("PIS")},
        {"matricula", &Eu::matricula, TFieldRelacionado("MATRICULA")},
        {"CodCateg", &Eu::CodCateg, TFieldRelacionado("COD_CATEG")},
        {"Contrato", &Eu::Contrato, TFieldRelacionado("CONTRATO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposideVinculo::BuscarSQLDados()
{
    // LPAD cuts a longer contract to two characters as well; meant.
    static constexpr std::string_view SQL = R"(SELECT
  EMPREGADOS.CPF,
  EMPREGADOS.PIS,
  LPAD(EMPREGADOS.CONTRATO,2,'0') AS CONTRATO,
  EMPREGADOS.CODIGOESOCIAL AS MATRICULA,
  FP_ESOCIALTABELA.CODIGO AS COD_CATEG
FROM EMPREGADOS
LEFT JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = EMPREGADOS.IDCATEGORIAESOCIAL)
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";
    return Format(SQL, FIDEmpregado);
}

} // namespace tarvo::trabalhador
