#include "tabelas/s1005/UnTarvoESocialCamposInfoEntEduc.h"

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoEntEduc::TTarvoESocialCamposInfoEntEduc(std::int64_t AIDEntEduc)
    : TTarvoESocialCamposGrupoBase("{4BFD74AF-832A-4A12-84A0-21AF824A54FC}"), FIDEntEduc(AIDEntEduc)
{}

const TPropriedades& TTarvoESocialCamposInfoEntEduc::Tabela()
{
    using Eu = TTarvoESocialCamposInfoEntEduc;
    static const TPropriedades tabela{
        {"nrInsc", &Eu::nrInsc, TFieldRelacionado("INSCRICAO")},
    };
    return tabela;
}

void TTarvoESocialCamposInfoEntEduc::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    static constexpr std::string_view SQL = R"(SELECT PREST_SERVICO.INSCRICAO
FROM PREST_SERVICO
JOIN FP_INFOGERALCFG ON (PREST_SERVICO.IDPRESTSERVICO = FP_INFOGERALCFG.INFORMACAO1
  AND FP_INFOGERALCFG.ORIGEM = 90 AND FP_INFOGERALCFG.ESPECIE = 58 AND FP_INFOGERALCFG.TP = 1)
WHERE FP_INFOGERALCFG.IDINFOGERALCFG = %0:D)";
    SetarValoresDoCdsNasProperties(*TTarvoConsultasGeral::BuscarRegistros(Format(SQL, FIDEntEduc)));
}

} // namespace tarvo::tabelas
