#include "remuneracao/s1200/UnTarvoESocialCamposInfoComplemS1200.h"

#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnTarvoUtilsStrings.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposInfoComplemS1200::TTarvoESocialCamposInfoComplemS1200(
    const TTarvoESocialCamposS1200IOP& AinfoBind1200)
    : TTarvoESocialCamposGrupoBase("{217555DF-953E-4016-85B0-34B54685AAA6}"), FInfoBind(AinfoBind1200)
{}

const TPropriedades& TTarvoESocialCamposInfoComplemS1200::Tabela()
{
    using Eu = TTarvoESocialCamposInfoComplemS1200;
    static const TPropriedades tabela{
        {"PossuiInformacao", &Eu::PossuiInformacao},
        {"nmTrab", &Eu::nmTrab, TFieldRelacionado("NOME")},
        {"dtNascto", &Eu::dtNascto, TFieldRelacionado("DATANASCIMENTO")},
        {"qtdDiasTrab", &Eu::qtdDiasTrab},
        {"sucessaoVinc", &Eu::sucessaoVinc},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoComplemS1200::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  PREST_SERVICO.NOME,
  PREST_SERVICO.DATANASCIMENTO,
  PREST_SERVICO.CBO,
  0 AS TIPOVINCULO
FROM PREST_SERVICO
WHERE PREST_SERVICO.CPF = '%0:S'
ORDER BY PREST_SERVICO.IDPRESTSERVICO + 0)";
    return Format(SQL, TTarvoUtilsStrings::RemoverCaracteresEspeciais(FInfoBind.Cpf()));
}

bool TTarvoESocialCamposInfoComplemS1200::PossuiInformacao() const
{
    return !nmTrab.empty() || !dtNascto.Vazia() || qtdDiasTrab != 0;
}

void TTarvoESocialCamposInfoComplemS1200::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    sucessaoVinc.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::remuneracao
