#include "rural/s1250/UnTarvoESocialCamposideEstabAdquirBase.h"

namespace tarvo::rural {

TTarvoESocialCamposideEstabAdquirBase::TTarvoESocialCamposideEstabAdquirBase(std::int64_t AIDEstabelecimento,
                                                                             TDateTime ADataInicio, TDateTime ADataFim,
                                                                             TTipoConexao ATipoConexao)
    : TTarvoESocialCamposGrupoBase("{8B8DDC14-A190-43C3-A3BA-FBB073DEF1AD}"), FCompras{AIDEstabelecimento, ADataInicio,
                                                                                       ADataFim},
      FTipoConexao(ATipoConexao)
{}

const TPropriedades& TTarvoESocialCamposideEstabAdquirBase::Tabela()
{
    using Eu = TTarvoESocialCamposideEstabAdquirBase;
    static const TPropriedades tabela{
        {"tpInscAdq", &Eu::tpInscAdq, TFieldRelacionado("TPINSCRICAO")},
        {"nrInscAdq", &Eu::nrInscAdq, TFieldRelacionado("CNPJ")},
        {"tpAquis", &Eu::tpAquis},
    };
    return tabela;
}

std::string TTarvoESocialCamposideEstabAdquirBase::BuscarSqlTpAquis() { return {}; }

} // namespace tarvo::rural
