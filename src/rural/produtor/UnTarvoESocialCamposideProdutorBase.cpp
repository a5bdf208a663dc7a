#include "rural/produtor/UnTarvoESocialCamposideProdutorBase.h"

namespace tarvo::rural {

TTarvoESocialCamposideProdutorBase::TTarvoESocialCamposideProdutorBase(std::int64_t AIdFilial, std::string ACNPJ,
                                                                       TDateTime ADataInicio, TDateTime ADataFim,
                                                                       bool AExisteProcessoAdquirente,
                                                                       std::int32_t AProducaoIsenta)
    : TTarvoESocialCamposGrupoBase("{D9C8F571-E76D-4E88-B576-62FA7F6CE9E6}"),
      nfs(AIdFilial), FCompras{AIdFilial, ADataInicio, ADataFim}, FCPF(std::move(ACNPJ)),
      FExisteProcessoAdquirente(AExisteProcessoAdquirente), FProducaoIsenta(AProducaoIsenta)
{}

const TPropriedades& TTarvoESocialCamposideProdutorBase::Tabela()
{
    using Eu = TTarvoESocialCamposideProdutorBase;
    static const TPropriedades tabela{
        {"tpInscProd", &Eu::tpInscProd},
        {"nrInscProd", &Eu::nrInscProd, TFieldRelacionado("CNPJ")},
        {"vlrBruto", &Eu::vlrBruto, TFieldRelacionado("VLRBRUTO")},
        {"vrCPDescPR", &Eu::vrCPDescPR},
        {"vrRatDescPR", &Eu::vrRatDescPR},
        {"vrSenarDesc", &Eu::vrSenarDesc},
        {"IndOpcCp", &Eu::IndOpcCp, TFieldRelacionado("INDOPCCP")},
        {"nfs", &Eu::nfs},
        {"infoProcJud", &Eu::infoProcJud},
    };
    return tabela;
}

void TTarvoESocialCamposideProdutorBase::CarregarInfoProcJud() {}

void TTarvoESocialCamposideProdutorBase::CarregarValoresRetencao() {}

void TTarvoESocialCamposideProdutorBase::ZerarRetencao()
{
    vrCPDescPR = 0;
    vrRatDescPR = 0;
    vrSenarDesc = 0;
}

void TTarvoESocialCamposideProdutorBase::AcrescentarInfoProcJud(TOvraClientDataSet& AProcessos, bool AProducaoIsenta,
                                                                const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposinfoProcJudIOP LDados;
    LDados.vlrBruto = vlrBruto;
    LDados.vrCPDescPR = vrCPDescPR;
    LDados.vrRatDescPR = vrRatDescPR;
    LDados.vrSenarDesc = vrSenarDesc;
    LDados.ProducaoIsenta = AProducaoIsenta;
    AcrescentarProcessos(infoProcJud, AProcessos, LDados, AListaCamposModificados);
}

} // namespace tarvo::rural
