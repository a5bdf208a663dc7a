#include "pagamento/UnTarvoESocialCamposQuadrosS1210.h"

#include "imports/UnOvraExcecoes.h"

namespace tarvo::pagamento {

TTarvoESocialCamposInfoPgtoParc::TTarvoESocialCamposInfoPgtoParc(std::int64_t AIdEmpregado)
    : TTarvoESocialCamposGrupoBase("{D3C25E6A-57F1-43B1-99C3-9B5F5F86FA48}"), FIdEmpregado(AIdEmpregado)
{}

const TPropriedades& TTarvoESocialCamposInfoPgtoParc::Propriedades() const
{
    using Eu = TTarvoESocialCamposInfoPgtoParc;
    static const TPropriedades tabela{
        {"codRubr", &Eu::codRubr},     {"ideTabRubr", &Eu::ideTabRubr}, {"qtdRubr", &Eu::qtdRubr},
        {"fatorRubr", &Eu::fatorRubr}, {"vrUnit", &Eu::vrUnit},         {"vrRubr", &Eu::vrRubr},
        {"Matricula", &Eu::Matricula},
    };
    return tabela;
}

TTarvoESocialCamposInfoPgtoAnt::TTarvoESocialCamposInfoPgtoAnt(std::int64_t AIdEmpregado)
    : TTarvoESocialCamposGrupoBase("{E2C9F164-3CF3-485E-9523-EC302D8BEA46}"), FIdEmpregado(AIdEmpregado)
{}

const TPropriedades& TTarvoESocialCamposInfoPgtoAnt::Propriedades() const
{
    using Eu = TTarvoESocialCamposInfoPgtoAnt;
    static const TPropriedades tabela{
        {"tpBcIRRF", &Eu::tpBcIRRF},
        {"vrBcIRRF", &Eu::vrBcIRRF},
    };
    return tabela;
}

TTarvoESocialCamposIdePais::TTarvoESocialCamposIdePais(std::int64_t AIdEmpregado)
    : TTarvoESocialCamposGrupoBase("{B4FB3B56-3FDB-40FF-8811-5D5F9656D337}"), FIdEmpregado(AIdEmpregado)
{}

const TPropriedades& TTarvoESocialCamposIdePais::Propriedades() const
{
    using Eu = TTarvoESocialCamposIdePais;
    static const TPropriedades tabela{
        {"codPais", &Eu::codPais},
        {"indNIF", &Eu::indNIF},
        {"nifBenef", &Eu::nifBenef},
    };
    return tabela;
}

TTarvoESocialCamposEndExt::TTarvoESocialCamposEndExt(std::int64_t AIdEmpregado)
    : TTarvoESocialCamposGrupoBase("{1FEB5350-B804-4BD8-BE9A-AA81B75D2973}"), FIdEmpregado(AIdEmpregado)
{}

const TPropriedades& TTarvoESocialCamposEndExt::Propriedades() const
{
    using Eu = TTarvoESocialCamposEndExt;
    static const TPropriedades tabela{
        {"dscLograd", &Eu::dscLograd}, {"nrLograd", &Eu::nrLograd}, {"complem", &Eu::complem},
        {"bairro", &Eu::bairro},       {"nmCid", &Eu::nmCid},       {"codPostal", &Eu::codPostal},
    };
    return tabela;
}

TTarvoESocialCamposIdePgtoExt::TTarvoESocialCamposIdePgtoExt(std::int64_t AIdEmpregado)
    : TTarvoESocialCamposGrupoBase("{694F11CA-6A18-49DF-91D0-6D2B8CD4806B}"), idePais(AIdEmpregado)
{}

const TPropriedades& TTarvoESocialCamposIdePgtoExt::Propriedades() const
{
    using Eu = TTarvoESocialCamposIdePgtoExt;
    static const TPropriedades tabela{
        {"idePais", &Eu::idePais},
        {"endExt", &Eu::endExt},
    };
    return tabela;
}

void TTarvoESocialCamposIdePgtoExt::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    idePais.CarregarDados(AListaCamposModificados);
    Existente(endExt.get(), "endExt").CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::pagamento
