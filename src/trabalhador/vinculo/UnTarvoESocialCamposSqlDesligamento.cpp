#include "trabalhador/vinculo/UnTarvoESocialCamposSqlDesligamento.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

namespace {

constexpr int SITUACAO_RESCISAO = 0;

} // namespace

std::string SqlDataDoDesligamento(std::int64_t AIDEmpregado)
{
    static constexpr std::string_view SQL = R"(SELECT EMPREGADOS.DATA_DEMISSAO
FROM EMPREGADOS
JOIN TAB_RESCISAO ON ( TAB_RESCISAO.COD_EMPRESA=EMPREGADOS.COD_EMPRESA
  AND TAB_RESCISAO.COD_EMPREGADO=EMPREGADOS.COD_EMPREGADO)
WHERE EMPREGADOS.IDEMPREGADO = %0:d AND TAB_RESCISAO.SITUACAO = %1:d)";
    return Format(SQL, AIDEmpregado, SITUACAO_RESCISAO);
}

} // namespace tarvo::trabalhador
