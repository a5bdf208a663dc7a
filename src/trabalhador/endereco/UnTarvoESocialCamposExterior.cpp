#include "trabalhador/endereco/UnTarvoESocialCamposExterior.h"

#include "imports/valores/UnOvraFormat.h"
#include "trabalhador/endereco/UnTarvoESocialCamposSqlEndereco.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposExterior::TTarvoESocialCamposExterior(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{DD40DC53-0EAB-4D7D-BA8F-1F37B3121AD0}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposExterior::Tabela()
{
    using Eu = TTarvoESocialCamposExterior;
    static const TPropriedades tabela{
        {"PaisResid", &Eu::PaisResid, TFieldRelacionado("ESOCIALPAIS")},
        {"DscLograd", &Eu::DscLograd, TFieldRelacionado("ESOCIALDESCR")},
        {"NrLograd", &Eu::NrLograd, TFieldRelacionado("NUMEROLOGRESOCIAL")},
        {"Complemento", &Eu::Complemento, TFieldRelacionado("COMPLEMENTO")},
        {"Bairro", &Eu::Bairro, TFieldRelacionado("BAIRRO")},
        {"NmCid", &Eu::NmCid, TFieldRelacionado("NOME")},
        {"CodPostal", &Eu::CodPostal, TFieldRelacionado("CODIGOPOSTAL")},
        {"PaisNome", &Eu::PaisNome, TFieldRelacionado("ESOCIALPAISNOME")},
        {"Logradouro", &Eu::Logradouro, TFieldRelacionado("LOGRADOURO")},
        {"Cep", &Eu::Cep, TFieldRelacionado("CEP")},
    };
    return tabela;
}

std::string TTarvoESocialCamposExterior::BuscarSQLDados()
{
    // NUM_END, UF and ESOCIALTIPOLOGRAD are read and no property takes them.
    static constexpr std::string_view SQL = R"(SELECT
  CA06_CODLOGRAD.CODLOGRAD AS ESOCIALTIPOLOGRAD,
  CA06_CODLOGRAD.DESCRICAO AS ESOCIALDESCR,
  EMPREGADOS.LOGRADOURO,
  EMPREGADOS.NUM_END,
  EMPREGADOS.COMPLEMENTO,
  EMPREGADOS.BAIRRO,
  EMPREGADOS.CEP,
  EMPREGADOS.UF,
  CA06_MUNICIPIO.NOME,
  CA06_MUNICIPIO.CODIGOPOSTAL,
  CA06_PAIS.PAIS AS ESOCIALPAIS,
  CA06_PAIS.NOME AS ESOCIALPAISNOME,
  %1:s
FROM EMPREGADOS
LEFT JOIN CA06_CODLOGRAD ON (CA06_CODLOGRAD.IDCODLOGRAD = EMPREGADOS.IDCODLOGRAD)
LEFT JOIN CA06_MUNICIPIO ON (CA06_MUNICIPIO.CODIGOFEDERAL = EMPREGADOS.COD_MUN)
LEFT JOIN FP_ESOCIALTABELA ESOCIALLOGR ON (ESOCIALLOGR.CODIGO = CA06_CODLOGRAD.ABREVESOCIAL AND ESOCIALLOGR.TABELA = 20)
LEFT JOIN CA06_PAIS ON (CA06_PAIS.IDPAIS = CA06_MUNICIPIO.IDPAIS)
WHERE EMPREGADOS.IDEMPREGADO = %0:d
ORDER BY CA06_MUNICIPIO.IDMUNICIPIO + 0)";
    return Format(SQL, FIDEmpregado, NUMERO_LOGRADOURO_ESOCIAL);
}

} // namespace tarvo::trabalhador
