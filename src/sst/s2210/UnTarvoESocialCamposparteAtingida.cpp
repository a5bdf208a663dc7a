#include "sst/s2210/UnTarvoESocialCamposparteAtingida.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::sst {

TTarvoESocialCamposparteAtingida::TTarvoESocialCamposparteAtingida(std::int64_t AIdCatParteAtingida)
    : TTarvoESocialCamposGrupoBase("{16093F2E-B395-4A77-9832-62D4B4088405}"), FIdCatParteAtingida(AIdCatParteAtingida)
{}

const TPropriedades& TTarvoESocialCamposparteAtingida::Tabela()
{
    using Eu = TTarvoESocialCamposparteAtingida;
    static const TPropriedades tabela{
        {"codParteAting", &Eu::codParteAting, TFieldRelacionado("CODIGO")},
        {"lateralidade", &Eu::lateralidade, TFieldRelacionado("LATERALIDADE")},
    };
    return tabela;
}

std::string TTarvoESocialCamposparteAtingida::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT FP_ESOCIALTABELA.CODIGO, FP_CATPARTEATINGIDA.LATERALIDADE
FROM FP_CATPARTEATINGIDA
JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.IDESOCIALTABELA = FP_CATPARTEATINGIDA.IDPARTEATINGIDA AND FP_ESOCIALTABELA.TABELA = 13)
WHERE FP_CATPARTEATINGIDA.IDCATPARTEATINGIDA = %0:d)";
    return Format(SQL, FIdCatParteAtingida);
}

} // namespace tarvo::sst
