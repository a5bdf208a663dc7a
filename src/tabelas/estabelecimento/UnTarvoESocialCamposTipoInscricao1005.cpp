#include "tabelas/estabelecimento/UnTarvoESocialCamposTipoInscricao1005.h"

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

namespace {

std::string SqlInscricao(std::int64_t AIdEstab, std::int64_t AIdDepto)
{
    static constexpr std::string_view SQL_ESTAB = R"(SELECT
  SC00_FILIAL.TPINSCRICAO,
  SC00_FILIAL.CNPJ,
  SC00_FILIAL.MATRICULACEI,
  SC00_FILIAL.MATRICULACAEPF,
  SC00_EMPRESA.TPINSCRICAO AS TPINSCREMPRESA
FROM SC00_FILIAL
JOIN SC00_EMPRESA ON (SC00_EMPRESA.IDEMPRESA = SC00_FILIAL.IDEMPRESA)
WHERE SC00_FILIAL.IDFILIAL = %0:d;)";
    static constexpr std::string_view SQL_DEPTO = R"(SELECT
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
    return AIdDepto == 0 ? Format(SQL_ESTAB, AIdEstab) : Format(SQL_DEPTO, AIdDepto);
}

} // namespace

TTarvoESocialCamposTipoInscricao1005::TTarvoESocialCamposTipoInscricao1005(std::int64_t AIdEstab, std::int64_t AIdDepto)
{
    constexpr std::int64_t EMPRESA_COM_CPF = 2;
    const auto LCds = TTarvoConsultasGeral::BuscarRegistros(SqlInscricao(AIdEstab, AIdDepto));
    const auto LTexto = [&](std::string_view ACampo) { return LCds->FieldByName(ACampo).AsString(); };

    const auto LCaepf = LTexto("MATRICULACAEPF");
    const auto LCei = LTexto("MATRICULACEI");
    Inscricao = !LCaepf.empty() ? LCaepf : !LCei.empty() ? LCei : LTexto("CNPJ");

    if (StrToInt64Def(LTexto("TPINSCREMPRESA"), 0) == EMPRESA_COM_CPF && !Trim(LCaepf).empty()) {
        TipoInscricao = tpTpInsc::CAEPF;
        return;
    }
    // 2 and 3 both stand for a construction work; any other code stays at the first value.
    switch (StrToInt64Def(LTexto("TPINSCRICAO"), 0)) {
    case 2:
    case 3:
        TipoInscricao = tpTpInsc::CNO;
        break;
    default:
        break;
    }
}

} // namespace tarvo::tabelas
