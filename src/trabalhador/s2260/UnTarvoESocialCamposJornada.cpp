#include "trabalhador/s2260/UnTarvoESocialCamposJornada.h"

#include "imports/valores/UnOvraFormat.h"
#include "trabalhador/s2260/UnTarvoESocialCamposConversorCodHorario.h"
#include "trabalhador/s2260/UnTarvoESocialCamposSqlConvocacao.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposJornada::TTarvoESocialCamposJornada(std::int64_t AIdEmpregado, TDateTime ADataInicio)
    : TTarvoESocialCamposGrupoBase("{2BAF19D5-41E4-478B-91CD-822A8DA161D8}"), FIdEmpregado(AIdEmpregado),
      FDataInicio(ADataInicio)
{
    RegistrarConversor(ClasseConversor<TTarvoESocialCamposConversorCodHorario>());
}

const TPropriedades& TTarvoESocialCamposJornada::Tabela()
{
    using Eu = TTarvoESocialCamposJornada;
    static const TPropriedades tabela{
        {"codHorContrat", &Eu::codHorContrat,
         TFieldRelacionado("codHorContrat", "", ClasseConversor<TTarvoESocialCamposConversorCodHorario>())},
        {"dscJornada", &Eu::dscJornada, TFieldRelacionado("DESCRICAOJORNADA")},
    };
    return tabela;
}

std::string TTarvoESocialCamposJornada::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  LPAD(CAST(TAB_HORARIOS.CODIGO AS INTEGER), 6, '0')
    || SUBSTRING(FP_CONTRAINTERM.DIADASEMANA - 1 FROM 1 FOR 1) AS CODHORCONTRAT,
  FP_CONTRAINTERM.DESCRICAOJORNADA
FROM FP_CONTRAINTERM
LEFT JOIN TAB_HORARIOS ON ( FP_CONTRAINTERM.IDHORARIO = TAB_HORARIOS.IDHORARIO AND TAB_HORARIOS.TIPO <> 3 )
WHERE %0:s)";
    return Format(SQL, CondicaoEOrdemDaConvocacao(FIdEmpregado, FDataInicio));
}

} // namespace tarvo::trabalhador
