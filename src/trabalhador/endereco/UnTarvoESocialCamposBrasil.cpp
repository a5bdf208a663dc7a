#include "trabalhador/endereco/UnTarvoESocialCamposBrasil.h"

#include "imports/valores/UnOvraFormat.h"
#include "trabalhador/endereco/UnTarvoESocialCamposSqlEndereco.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposBrasil::TTarvoESocialCamposBrasil(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{3192016A-E18C-423D-A0FB-5FD3DFDF53A6}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposBrasil::Tabela()
{
    using Eu = TTarvoESocialCamposBrasil;
    static const TPropriedades tabela{
        {"LogradouroTipoID", &Eu::LogradouroTipoID, TFieldRelacionado("IDCODLOGRAD")},
        {"LogradouroTipoCodigo", &Eu::LogradouroTipoCodigo, TFieldRelacionado("COD_TIPO_LOGRAD")},
        {"LogradouroTipoDescricao", &Eu::LogradouroTipoDescricao, TFieldRelacionado("DESC_TIPO_LOGRAD")},
        {"MunicipioCodigo", &Eu::MunicipioCodigo, TFieldRelacionado("COD_MUN")},
        {"MunicipioDescricao", &Eu::MunicipioDescricao, TFieldRelacionado("NOME_MUN")},
        {"LogradouroDescricao", &Eu::LogradouroDescricao, TFieldRelacionado("LOGRADOURO")},
        {"LogradouroNumero", &Eu::LogradouroNumero, TFieldRelacionado("NUM_END")},
        {"Complemento", &Eu::Complemento, TFieldRelacionado("COMPLEMENTO")},
        {"Bairro", &Eu::Bairro, TFieldRelacionado("BAIRRO")},
        {"Cep", &Eu::Cep, TFieldRelacionado("CEP")},
        {"Uf", &Eu::Uf, TFieldRelacionado("UF")},
        {"ESocialTipoLograd", &Eu::ESocialTipoLograd, TFieldRelacionado("ESOCIALTIPOLOGRAD")},
        {"ESocialDescr", &Eu::ESocialDescr, TFieldRelacionado("ESOCIALDESCR")},
        {"NumeroLogrESocial", &Eu::NumeroLogrESocial, TFieldRelacionado("NUMEROLOGRESOCIAL")},
    };
    return tabela;
}

std::string TTarvoESocialCamposBrasil::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  EMPREGADOS.IDCODLOGRAD,
  CA06_CODLOGRAD.CODLOGRAD AS COD_TIPO_LOGRAD,
  CA06_CODLOGRAD.DESCRICAO AS DESC_TIPO_LOGRAD,
  EMPREGADOS.COD_MUN,
  MUNICIPIOS.NOME_MUN,
  EMPREGADOS.LOGRADOURO,
  EMPREGADOS.NUM_END,
  EMPREGADOS.COMPLEMENTO,
  EMPREGADOS.BAIRRO,
  EMPREGADOS.CEP,
  EMPREGADOS.UF,
  FP_ESOCIALTABELA.CODIGO AS ESOCIALTIPOLOGRAD,
  FP_ESOCIALTABELA.DESCRICAO AS ESOCIALDESCR,
  %1:s
FROM EMPREGADOS
LEFT JOIN CA06_CODLOGRAD ON (CA06_CODLOGRAD.IDCODLOGRAD = EMPREGADOS.IDCODLOGRAD)
LEFT JOIN MUNICIPIOS ON (MUNICIPIOS.COD_MUN = EMPREGADOS.COD_MUN)
LEFT JOIN FP_ESOCIALTABELA ON (FP_ESOCIALTABELA.TABELA = 20 AND FP_ESOCIALTABELA.CODIGO = CA06_CODLOGRAD.ABREVESOCIAL)
WHERE EMPREGADOS.IDEMPREGADO = %0:d
ORDER BY FP_ESOCIALTABELA.IDESOCIALTABELA + 0)";
    return Format(SQL, FIDEmpregado, NUMERO_LOGRADOURO_ESOCIAL);
}

} // namespace tarvo::trabalhador
