#include "regras/UnTarvoESocialCamposSqlLotacao.h"

#include "imports/consultas/UnTarvoConsultasDepartamento.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::regras {

std::string SqlInscricaoDaLotacao(std::int64_t AIdFilial, std::int64_t AIdDepto)
{
    static constexpr std::string_view SQL_FILIAL = R"(SELECT
  SC00_FILIAL.TPINSCRICAO,
  SC00_FILIAL.CNPJ AS INSCRICAO,
  SC00_FILIAL.CODIGOESOCIAL
FROM SC00_FILIAL
WHERE SC00_FILIAL.IDFILIAL = %0:D)";
    static constexpr std::string_view SQL_DEPTO_COM_INSCRICAO = R"(SELECT
  SC00_DEPTO.TPINSCRICAO,
  SC00_DEPTO.INSCRICAO,
  SC00_DEPTO.CODIGOESOCIAL
FROM SC00_DEPTO
WHERE SC00_DEPTO.IDDEPTO = %0:D)";
    static constexpr std::string_view SQL_DEPTO = R"(SELECT
  SC00_FILIAL.TPINSCRICAO,
  SC00_FILIAL.CNPJ AS INSCRICAO,
  SC00_DEPTO.CODIGOESOCIAL
FROM SC00_DEPTO
INNER JOIN SC00_FILIAL ON (SC00_FILIAL.IDFILIAL = SC00_DEPTO.IDFILIAL)
WHERE SC00_DEPTO.IDDEPTO = %0:D)";
    if (AIdDepto == 0)
        return Format(SQL_FILIAL, AIdFilial);
    const auto LTipo = TTarvoConsultasDepartamento::BuscarTipoDepartamento(AIdDepto);
    return Format(LTipo == 2 || LTipo == 3 ? SQL_DEPTO_COM_INSCRICAO : SQL_DEPTO, AIdDepto);
}

} // namespace tarvo::regras
