#include "trabalhador/s2306/UnTarvoESocialCamposinfoTSVAlteracao.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposinfoTSVAlteracao::TTarvoESocialCamposinfoTSVAlteracao(std::int64_t AIdEmpregado, TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{5E48B96D-A9FC-4E0C-8610-CFE259B5E941}"),
      infoComplementares2306(AIdEmpregado, AData), FIdEmpregado(AIdEmpregado)
{}

const TPropriedades& TTarvoESocialCamposinfoTSVAlteracao::Tabela()
{
    using Eu = TTarvoESocialCamposinfoTSVAlteracao;
    static const TPropriedades tabela{
        {"dtAlteracao", &Eu::dtAlteracao},
        {"natAtividade", &Eu::natAtividade, TFieldRelacionado("TIPOVINCULO")},
        {"infoComplementares2306", &Eu::infoComplementares2306},
    };
    return tabela;
}

std::string TTarvoESocialCamposinfoTSVAlteracao::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT EMPREGADOS.TIPOVINCULO
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %0:D)";
    return Format(SQL, FIdEmpregado);
}

void TTarvoESocialCamposinfoTSVAlteracao::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    infoComplementares2306.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
