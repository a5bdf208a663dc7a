#include "tabelas/UnTarvoESocialCamposTipoInscricao1005.h"

#include "imports/UnOvraConversoes.h"
#include "imports/UnOvraFormat.h"
#include "imports/UnTarvoConsultasGeral.h"

namespace tarvo::tabelas {

namespace {

constexpr std::string_view SQL_ESTAB = R"(SELECT
  SC00_FILIAL.TPINSCRICAO,
  SC00_FILIAL.CNPJ,
  SC00_FILIAL.MATRICULACEI,
  SC00_FILIAL.MATRICULACAEPF,
  SC00_EMPRESA.TPINSCRICAO AS TPINSCREMPRESA
FROM SC00_FILIAL
JOIN SC00_EMPRESA ON (SC00_EMPRESA.IDEMPRESA = SC00_FILIAL.IDEMPRESA)
WHERE SC00_FILIAL.IDFILIAL = %0:d;)";

constexpr std::string_view SQL_DEPTO = R"(SELECT
  SC00_DEPTO.TPINSCRICAO,
  SC00_DEPTO.INICIOATIVIDADE,
  SC00_DEPTO.INSCRICAO CNPJ,
  NULL AS MATRICULACEI,
  NULL AS MATRICULACAEPF,
  SC00_EMPRESA.TPINSCRICAO AS TPINSCREMPRESA
FROM SC00_DEPTO
JOIN SC00_FILIAL ON (SC00_FILIAL.IDFILIAL = SC00_DEPTO.IDFILIAL)
JOIN SC00_EMPRESA ON (SC00_EMPRESA.IDEMPRESA = SC00_FILIAL.IDEMPRESA)
WHERE SC00_DEPTO.IDDEPTO = %0:d)";

} // namespace

TTarvoESocialCamposTipoInscricao1005::TTarvoESocialCamposTipoInscricao1005(std::int64_t AIdEstab, std::int64_t AIdDepto)
{
    // With both ids the department wins, unlike in the groups of S-1005; meant.
    const auto LCds = TTarvoConsultasGeral::BuscarRegistros(AIdDepto == 0 ? Format(SQL_ESTAB, AIdEstab)
                                                                          : Format(SQL_DEPTO, AIdDepto));
    const auto Texto = [&LCds](std::string_view ACampo) { return LCds->FieldByName(ACampo).AsString(); };
    const auto LCaepf = Texto("MATRICULACAEPF");
    const auto LCei = Texto("MATRICULACEI");
    Inscricao = !LCaepf.empty() ? LCaepf : !LCei.empty() ? LCei : Texto("CNPJ");
    if (StrToInt64Def(Texto("TPINSCREMPRESA"), 0) == 2 && !Trim(LCaepf).empty()) {
        TipoInscricao = tpTpInsc::CAEPF;
        return;
    }
    const auto LCodigo = StrToInt64Def(Texto("TPINSCRICAO"), 0);
    // The CEI of an establishment and the work of a department are one kind here; other codes leave the first.
    if (LCodigo == 2 || LCodigo == 3)
        TipoInscricao = tpTpInsc::CNO;
}

} // namespace tarvo::tabelas
