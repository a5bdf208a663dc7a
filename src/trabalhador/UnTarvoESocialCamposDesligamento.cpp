#include "trabalhador/UnTarvoESocialCamposDesligamento.h"

#include "imports/UnOvraFormat.h"

namespace tarvo::trabalhador {

namespace {

constexpr int SITUACAO_RESCISAO = 0;

} // namespace

TTarvoESocialCamposDesligamento::TTarvoESocialCamposDesligamento(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{F2AD8527-5E0E-4402-9267-4F081978DAE6}"), FIDEmpregado(AIDEmpregado)
{
}

const TPropriedades& TTarvoESocialCamposDesligamento::Propriedades() const
{
    using Eu = TTarvoESocialCamposDesligamento;
    static const TPropriedades tabela{
        {"DataDesligamento", &Eu::DataDesligamento, TFieldRelacionado("DATA_DEMISSAO")},
        {"PossuiInformacao", &Eu::PossuiInformacao},
    };
    return tabela;
}

std::string TTarvoESocialCamposDesligamento::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT EMPREGADOS.DATA_DEMISSAO
FROM EMPREGADOS
JOIN TAB_RESCISAO ON ( TAB_RESCISAO.COD_EMPRESA=EMPREGADOS.COD_EMPRESA
  AND TAB_RESCISAO.COD_EMPREGADO=EMPREGADOS.COD_EMPREGADO)
WHERE EMPREGADOS.IDEMPREGADO = %0:d AND TAB_RESCISAO.SITUACAO = %1:d)";
    return Format(SQL, FIDEmpregado, SITUACAO_RESCISAO);
}

} // namespace tarvo::trabalhador
