#include "remuneracao/s1200/UnTarvoESocialCamposRemunOutrEmprS1200.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposRemunOutrEmprS1200::TTarvoESocialCamposRemunOutrEmprS1200()
    : TTarvoESocialCamposGrupoBase("{020C01EF-0020-44E7-8670-9FE2074EA739}")
{}

const TPropriedades& TTarvoESocialCamposRemunOutrEmprS1200::Tabela()
{
    using Eu = TTarvoESocialCamposRemunOutrEmprS1200;
    static const TPropriedades tabela{
        {"tpInsc", &Eu::tpInsc},
        {"nrInsc", &Eu::nrInsc},
        {"codCateg", &Eu::codCateg},
        {"vlrRemunOE", &Eu::vlrRemunOE},
        {"PossuiInfomacao", &Eu::PossuiInfomacao},
    };
    return tabela;
}

bool TTarvoESocialCamposRemunOutrEmprS1200::PossuiInfomacao() const
{
    return codCateg != 0 || vlrRemunOE != 0 || !tpInsc.empty() || !nrInsc.empty();
}

} // namespace tarvo::remuneracao
