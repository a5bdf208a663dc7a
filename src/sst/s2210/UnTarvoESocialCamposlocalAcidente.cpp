#include "sst/s2210/UnTarvoESocialCamposlocalAcidente.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::sst {

TTarvoESocialCamposlocalAcidente::TTarvoESocialCamposlocalAcidente(std::int64_t AIdTabCat)
    : TTarvoESocialCamposGrupoBase("{9DD8442D-92E6-480A-A7B9-535B1ED9AD7E}"), ideLocalAcid(AIdTabCat),
      FIdTabCat(AIdTabCat)
{}

const TPropriedades& TTarvoESocialCamposlocalAcidente::Tabela()
{
    using Eu = TTarvoESocialCamposlocalAcidente;
    static const TPropriedades tabela{
        {"tpLocal", &Eu::tpLocal, TFieldRelacionado("LOCALACIDENTE")},
        {"dscLocal", &Eu::dscLocal, TFieldRelacionado("ESPECIFICACAOLOCAL")},
        {"codAmb", &Eu::codAmb, TFieldRelacionado("AMBIENTE")},
        {"tpLograd", &Eu::tpLograd, TFieldRelacionado("TPLOGRAD")},
        {"dscLograd", &Eu::dscLograd, TFieldRelacionado("LOGRADLOCALACIDENTE")},
        {"nrLograd", &Eu::nrLograd, TFieldRelacionado("NUMEROLOCALACIDENTE")},
        {"complemento", &Eu::complemento, TFieldRelacionado("COMPLEMENTO")},
        {"bairro", &Eu::bairro, TFieldRelacionado("BAIRRO")},
        {"cep", &Eu::cep, TFieldRelacionado("CEP")},
        {"codMunic", &Eu::codMunic, TFieldRelacionado("MUNICIPIO")},
        {"uf", &Eu::uf, TFieldRelacionado("UF")},
        {"pais", &Eu::pais, TFieldRelacionado("PAIS")},
        {"codPostal", &Eu::codPostal, TFieldRelacionado("COMPLEMENTO")},
        {"ideLocalAcid", &Eu::ideLocalAcid},
    };
    return tabela;
}

std::string TTarvoESocialCamposlocalAcidente::BuscarSQLDados()
{
    // EMPREGADOS is joined by the company alone, so the row comes once for each worker and DISTINCT folds them; meant.
    static constexpr std::string_view SQL = R"(SELECT DISTINCT
  TABCAT.LOCALACIDENTE,
  TABCAT.ESPECIFICACAOLOCAL,
  TABCAT.LOGRADLOCALACIDENTE,
  TABCAT.NUMEROLOCALACIDENTE,
  TABCAT.COMPLEMENTO,
  TABCAT.BAIRRO,
  TABCAT.CEP,
  TABCAT.MUNICIPIO,
  TABCAT.UF,
  TABCAT.CODIGOENDPOSTAL,
  SST_AMBIENTES.AMBIENTE,
  TPLOGRAD.CODIGO AS TPLOGRAD,
  PAIS.CODIGO AS PAIS
FROM TABCAT
JOIN SC00_EMPRESA ON (SC00_EMPRESA.EMPRESA = TABCAT.COD_EMPRESA)
JOIN EMPREGADOS ON (EMPREGADOS.COD_EMPRESA = TABCAT.COD_EMPRESA)
LEFT JOIN SST_AMBIENTES ON (SST_AMBIENTES.IDAMBIENTE = TABCAT.IDAMBIENTE)
LEFT JOIN FP_ESOCIALTABELA TPLOGRAD ON (TPLOGRAD.IDESOCIALTABELA = TABCAT.IDTAB20TPLOGRAD AND TPLOGRAD.TABELA = 20)
LEFT JOIN FP_ESOCIALTABELA PAIS ON (PAIS.IDESOCIALTABELA = TABCAT.IDTAB6CODPAIS AND PAIS.TABELA = 6)
WHERE TABCAT.IDTABCAT = %0:d)";
    return Format(SQL, FIdTabCat);
}

void TTarvoESocialCamposlocalAcidente::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    ideLocalAcid.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::sst
