#include "trabalhador/contrato/UnTarvoESocialCamposLocalTrabDom.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposLocalTrabDom::TTarvoESocialCamposLocalTrabDom(std::int64_t AIDEmpregado, TDate ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{0FF91BBC-2AF3-43CC-9B71-B5A9942E1876}"), FIDEmpregado(AIDEmpregado),
      FDataGeracao(ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposLocalTrabDom::Tabela()
{
    using Eu = TTarvoESocialCamposLocalTrabDom;
    static const TPropriedades tabela{
        {"IDFilial", &Eu::IDFilial, TFieldRelacionado("IDFILIAL")},
        {"TipoLogradouroID", &Eu::TipoLogradouroID, TFieldRelacionado("IDCODLOGRAD")},
        {"TipoLogradouroCod", &Eu::TipoLogradouroCod, TFieldRelacionado("CODLOGRAD")},
        {"TipoLogradouroAbrev", &Eu::TipoLogradouroAbrev, TFieldRelacionado("ABREVESOCIAL")},
        {"TipoLogradouroDesc", &Eu::TipoLogradouroDesc, TFieldRelacionado("DESCRICAO")},
        {"DescricaoLogradouro", &Eu::DescricaoLogradouro, TFieldRelacionado("LOGR")},
        {"NumeroLogradouro", &Eu::NumeroLogradouro, TFieldRelacionado("NUM_END")},
        {"Complemento", &Eu::Complemento, TFieldRelacionado("COMPL_END")},
        {"Bairro", &Eu::Bairro, TFieldRelacionado("BAIRRO")},
        {"Cep", &Eu::Cep, TFieldRelacionado("CEP")},
        {"CodigoMunic", &Eu::CodigoMunic, TFieldRelacionado("COD_MUN_E")},
        {"NomeMunicipio", &Eu::NomeMunicipio, TFieldRelacionado("NOME_MUN")},
        {"Uf", &Eu::Uf, TFieldRelacionado("UF")},
        {"Contrato", &Eu::Contrato, TFieldRelacionado("CONTRATO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposLocalTrabDom::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  ALOC.IDFILIAL,
  FILIAIS.IDCODLOGRAD,
  CA06_CODLOGRAD.CODLOGRAD,
  CA06_CODLOGRAD.ABREVESOCIAL,
  CA06_CODLOGRAD.DESCRICAO,
  FILIAIS.LOGR,
  FILIAIS.NUM_END,
  FILIAIS.COMPL_END,
  FILIAIS.BAIRRO,
  FILIAIS.CEP,
  FILIAIS.COD_MUN_E,
  CA06_MUNICIPIO.NOME AS NOME_MUN,
  FILIAIS.UF,
  EMPREGADOS.CONTRATO
FROM SP_BUSCARALOCACAOEMPREGADO(%1:s, NULL, %0:d) AS ALOC
LEFT JOIN FILIAIS ON (FILIAIS.IDFILIAL = ALOC.IDFILIAL)
LEFT JOIN CA06_CODLOGRAD ON (FILIAIS.IDCODLOGRAD = CA06_CODLOGRAD.IDCODLOGRAD)
LEFT JOIN CA06_MUNICIPIO ON (CA06_MUNICIPIO.CODIGOFEDERAL = FILIAIS.COD_MUN_E)
JOIN EMPREGADOS ON (EMPREGADOS.IDEMPREGADO = ALOC.IDEMPREGADO)
ORDER BY CA06_MUNICIPIO.IDMUNICIPIO + 0)";
    return Format(SQL, FIDEmpregado, FormatarDataDB(FDataGeracao, true));
}

} // namespace tarvo::trabalhador
