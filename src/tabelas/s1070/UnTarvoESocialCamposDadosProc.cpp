#include "tabelas/s1070/UnTarvoESocialCamposDadosProc.h"

#include "framework/UnTarvoESocialCamposListaDeGrupos.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposDadosProc::TTarvoESocialCamposDadosProc(std::int64_t AIdProcesso)
    : TTarvoESocialCamposGrupoBase("{7DD9CEB1-EF25-403F-9156-CB730BCD3C19}"), DadosProcJud(AIdProcesso),
      FIdProcesso(AIdProcesso)
{}

const TPropriedades& TTarvoESocialCamposDadosProc::Tabela()
{
    using Eu = TTarvoESocialCamposDadosProc;
    static const TPropriedades tabela{
        {"indAutoria", &Eu::indAutoria, TFieldRelacionado("INDAUTORIA")},
        {"indMatProc", &Eu::indMatProc, TFieldRelacionado("INDMATERIA")},
        {"observacao", &Eu::observacao, TFieldRelacionado("OBSERVACAO")},
        {"DadosProcJud", &Eu::DadosProcJud},
        {"InfoSusp", &Eu::InfoSusp},
    };
    return tabela;
}

std::string TTarvoESocialCamposDadosProc::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  ES02_SPPROC.INDAUTORIA,
  ES02_SPPROC.INDMATERIA,
  ES02_SPPROC.OBSERVACAO
FROM ES02_SPPROC
WHERE ES02_SPPROC.IDSPPROC = %0:D)";
    return Format(SQL, FIdProcesso);
}

void TTarvoESocialCamposDadosProc::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    DadosProcJud.CarregarDados(AListaCamposModificados);
    CarregarInfoSusp(AListaCamposModificados);
}

void TTarvoESocialCamposDadosProc::CarregarInfoSusp(const TListaCamposModificados* AListaCamposModificados)
{
    static constexpr std::string_view SQL = R"(SELECT ES02_SPPROCDET.IDSPPROCDET
FROM ES02_SPPROCDET
WHERE ES02_SPPROCDET.IDSPPROC = %0:D
ORDER BY ES02_SPPROCDET.IDSPPROCDET + 0)";
    AcrescentarUmPorLinha(InfoSusp, TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(Format(SQL, FIdProcesso)),
                          "IDSPPROCDET", AListaCamposModificados);
}

} // namespace tarvo::tabelas
