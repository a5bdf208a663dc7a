#include "trabalhador/s3000/UnTarvoESocialCamposInfoExclusao.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposInfoExclusao::TTarvoESocialCamposInfoExclusao(std::int64_t AIdEvento)
    : TTarvoESocialCamposGrupoBase("{F7ED58AC-87A4-439C-9E39-E0149056B449}"), ideTrabalhador(AIdEvento),
      ideFolhaPagto(AIdEvento), FIdEvento(AIdEvento)
{}

const TPropriedades& TTarvoESocialCamposInfoExclusao::Tabela()
{
    using Eu = TTarvoESocialCamposInfoExclusao;
    static const TPropriedades tabela{
        {"tpEvento", &Eu::tpEvento, TFieldRelacionado("TPEVENTO")},
        {"nrRecEvt", &Eu::nrRecEvt, TFieldRelacionado("DESCRICAO")},
        {"ideTrabalhador", &Eu::ideTrabalhador},
        {"ideFolhaPagto", &Eu::ideFolhaPagto},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoExclusao::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  SC00_ESOCIALREINFXML.TPEVENTO,
  SC00_ESOCIALREINFDET.DESCRICAO
FROM SC00_ESOCIALREINFXML
JOIN SC00_ESOCIALREINFDET ON ( SC00_ESOCIALREINFDET.IDEVENTO=SC00_ESOCIALREINFXML.IDESOCIALREINFXML)
WHERE SC00_ESOCIALREINFXML.IDESOCIALREINFXML = %0:d AND SC00_ESOCIALREINFDET.STATUS IN (201,202)
ORDER BY SC00_ESOCIALREINFXML.IDESOCIALREINFXML, SC00_ESOCIALREINFDET.IDESOCIALREINFDET)";
    return Format(SQL, FIdEvento);
}

void TTarvoESocialCamposInfoExclusao::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    ideTrabalhador.CarregarDados(AListaCamposModificados);
    ideFolhaPagto.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
