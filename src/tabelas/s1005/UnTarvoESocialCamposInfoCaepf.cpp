#include "tabelas/s1005/UnTarvoESocialCamposInfoCaepf.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoCaepf::TTarvoESocialCamposInfoCaepf(std::int64_t AIDEstab, std::int64_t AIDDepto,
                                                           TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{9178B75C-6926-43A6-8818-6F273788B68B}"),
      FLugar(regras::EstabelecimentoPrimeiro(static_cast<std::int32_t>(AIDEstab), static_cast<std::int32_t>(AIDDepto))),
      FData(AData)
{}

const TPropriedades& TTarvoESocialCamposInfoCaepf::Tabela()
{
    using Eu = TTarvoESocialCamposInfoCaepf;
    static const TPropriedades tabela{
        {"tpCaepf", &Eu::tpCaepf, TFieldRelacionado("INFORMACAO1")},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoCaepf::BuscarSQLDados()
{
    return regras::SqlCfgDaEmpresa("SC00_EMPRESACFG.INFORMACAO1", FLugar, {1, 1, 1}, FData);
}

} // namespace tarvo::tabelas
