#include "trabalhador/pessoa/UnTarvoESocialCamposAposentadoria.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposAposentadoria::TTarvoESocialCamposAposentadoria(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{C473D81F-C198-47CD-8BC3-FECCF90F7DF7}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposAposentadoria::Tabela()
{
    using Eu = TTarvoESocialCamposAposentadoria;
    static const TPropriedades tabela{
        {"DataAposentadoria", &Eu::DataAposentadoria, TFieldRelacionado("DATA_APOSENTADORIA")},
        {"TipoAposent", &Eu::TipoAposent, TFieldRelacionado("COD_APOSENTADORIA")},
        {"DescAposent", &Eu::DescAposent, TFieldRelacionado("DESC_APOSENTADORIA")},
    };
    return tabela;
}

std::string TTarvoESocialCamposAposentadoria::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  EMPREGADOS.DATA_APOSENTADORIA,
  EMPREGADOS.APOSENTADORIA COD_APOSENTADORIA,
  CASE EMPREGADOS.APOSENTADORIA
    WHEN 71 THEN 'Aposentadoria por tempo de contribuição'
    WHEN 78 THEN 'Aposentado por idade'
    WHEN 80 THEN 'Aposentadoria especial'
    ELSE ''
  END AS DESC_APOSENTADORIA
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";
    return Format(SQL, FIDEmpregado);
}

} // namespace tarvo::trabalhador
