#include "tabelas/s1005/UnTarvoESocialCamposInfoPCD.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoPCD::TTarvoESocialCamposInfoPCD(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{18F68A4B-54D0-4CD3-A3A3-F6F5C9F55BBF}"), IdEstab(AIDEstab), IdDepto(AIDDepto),
      FLugar(regras::EstabelecimentoPrimeiro(AIDEstab, AIDDepto)), FData(AData)
{}

const TPropriedades& TTarvoESocialCamposInfoPCD::Tabela()
{
    using Eu = TTarvoESocialCamposInfoPCD;
    static const TPropriedades tabela{
        {"ContPCD", &Eu::ContPCD, TFieldRelacionado("INFORMACAO1")},
        {"NrProcJud", &Eu::NrProcJud, TFieldRelacionado("INFORMACAO2")},
        {"IdEstab", &Eu::IdEstab},
        {"IdDepto", &Eu::IdDepto},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoPCD::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  SC00_EMPRESACFG.INFORMACAO1,
  ES02_SPPROC.NUMERO INFORMACAO2
FROM SC00_EMPRESACFG
LEFT JOIN ES02_SPPROC ON (ES02_SPPROC.IDSPPROC = SC00_EMPRESACFG.INFORMACAO2)
JOIN SC00_FILIAL ON (SC00_FILIAL.IDEMPRESA = SC00_EMPRESACFG.IDEMPRESA)
JOIN SC00_DEPTO ON (SC00_DEPTO.IDFILIAL = SC00_FILIAL.IDFILIAL)
WHERE %2:s
  AND SC00_FILIAL.EHMATRIZ = 1
  AND SC00_DEPTO.%1:s = %0:D
ORDER BY SC00_EMPRESACFG.DATAINICIO DESC, SC00_EMPRESACFG.IDEMPRESACFG)";
    return Format(
        SQL, FLugar.Id, FLugar.EhDepto ? "IDDEPTO" : "IDFILIAL",
        regras::CondicaoVigente(regras::SC00_EMPRESACFG, {90, 38, 14}, FData, regras::TFimDaValidade::Exclusive));
}

} // namespace tarvo::tabelas
