#include "tabelas/s1005/UnTarvoESocialCamposInfoObra.h"

#include "regras/UnTarvoESocialCamposSqlLugar.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoObra::TTarvoESocialCamposInfoObra(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{5BD92182-3820-4FFB-B8A9-46F2C8317EE4}"), IdEstab(AIDEstab), IdDepto(AIDDepto),
      FIDDepto(AIDDepto), FData(AData)
{}

const TPropriedades& TTarvoESocialCamposInfoObra::Tabela()
{
    using Eu = TTarvoESocialCamposInfoObra;
    static const TPropriedades tabela{
        {"IndSubstPatrObra", &Eu::IndSubstPatrObra, TFieldRelacionado("INFORMACAO1", "0")},
        {"IdEstab", &Eu::IdEstab},
        {"IdDepto", &Eu::IdDepto},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoObra::BuscarSQLDados()
{
    // Whatever the establishment: only a department is a construction work.
    if (FIDDepto == 0)
        return {};
    return regras::SqlCfgDoDono("SC00_DEPARTAMENTOCFG.INFORMACAO1", regras::SC00_DEPARTAMENTOCFG, FIDDepto, {90, 40, 1},
                                FData);
}

} // namespace tarvo::tabelas
