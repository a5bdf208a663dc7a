#include "regras/UnTarvoESocialCamposSqlRendimentos.h"

#include "imports/consultas/UnTarvoConsultasEmpregado.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::regras {

std::string CondicaoDeOutroEmpregador(std::string_view AColuna, std::string_view AIdEmpresa)
{
    static constexpr std::string_view SQL = R"(AND %0:s NOT IN (
  SELECT SC00_EMPRESA.CNPJ FROM SC00_EMPRESA WHERE SC00_EMPRESA.IDEMPRESA = %1:s
  UNION
  SELECT SC00_FILIAL.CNPJ FROM SC00_FILIAL WHERE SC00_FILIAL.IDEMPRESA = %1:s))";
    return Format(SQL, AColuna, AIdEmpresa);
}

std::string_view CondicaoDaOrdemDeDesconto(std::int64_t AIdEmpresa, std::string_view ACpf)
{
    static constexpr std::int32_t DESCONTO_POR_ORDEM = 2;
    return TTarvoConsultasEmpregado::BuscarIndicadorDescontoINSS(AIdEmpresa, ACpf) == DESCONTO_POR_ORDEM
               ? "AND RENDIMENTOS.ORDEMCALCULO <= EMPREGADOS.ORDEMDESCINSS"
               : "";
}

} // namespace tarvo::regras
