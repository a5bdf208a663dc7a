#include "trabalhador/pessoa/UnTarvoESocialCamposInfoDeficiencia.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposInfoDeficiencia::TTarvoESocialCamposInfoDeficiencia(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{728E5542-F430-410F-BF97-8067F5D6273A}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposInfoDeficiencia::Tabela()
{
    using Eu = TTarvoESocialCamposInfoDeficiencia;
    static const TPropriedades tabela{
        {"TipoDeficiencia", &Eu::TipoDeficiencia, TFieldRelacionado("DEFICIENCIAESOCIAL")},
        {"infoCota", &Eu::infoCota, TFieldRelacionado("DEFICIENCIACOTA")},
        {"TipoDeficienciaDesc", &Eu::TipoDeficienciaDesc, TFieldRelacionado("DESC_TIPO_DEFICIENCIA")},
        {"Observacao", &Eu::Observacao, TFieldRelacionado("DEFICIENCIAOBS")},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoDeficiencia::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  EMPREGADOS.DEFICIENCIAESOCIAL,
  EMPREGADOS.DEFICIENCIACOTA,
  CASE EMPREGADOS.TIPO_DEFICIENCIA
    WHEN 0 THEN 'Não é Portador'
    WHEN 1 THEN 'Física'
    WHEN 2 THEN 'Auditiva'
    WHEN 3 THEN 'Visual'
    WHEN 4 THEN 'Intelectual (mental)'
    WHEN 5 THEN 'Múltipla'
    WHEN 6 THEN 'Reabilitado'
  END AS DESC_TIPO_DEFICIENCIA,
  EMPREGADOS.DEFICIENCIAOBS
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";
    return Format(SQL, FIDEmpregado);
}

} // namespace tarvo::trabalhador
