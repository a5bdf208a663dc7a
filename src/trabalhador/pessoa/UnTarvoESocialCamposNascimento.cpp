#include "trabalhador/pessoa/UnTarvoESocialCamposNascimento.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposNascimento::TTarvoESocialCamposNascimento(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{A53E443F-37A1-4FDF-8D54-6E0505A3730E}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposNascimento::Tabela()
{
    using Eu = TTarvoESocialCamposNascimento;
    static const TPropriedades tabela{
        {"DataNascimento", &Eu::DataNascimento, TFieldRelacionado("DATA_NASCIMENTO")},
        {"MunicipioCodigo", &Eu::MunicipioCodigo, TFieldRelacionado("COD_MUN_NASC")},
        {"MunicipioNome", &Eu::MunicipioNome, TFieldRelacionado("NOME_MUN_NASC")},
        {"MunicipioUf", &Eu::MunicipioUf, TFieldRelacionado("UF_MUN_NASC")},
        {"PaisNascimentoID", &Eu::PaisNascimentoID, TFieldRelacionado("ID_PAIS_NASCIM")},
        {"PaisNascimentoCodigo", &Eu::PaisNascimentoCodigo, TFieldRelacionado("COD_PAIS_NASCIM")},
        {"PaisNascimentoNome", &Eu::PaisNascimentoNome, TFieldRelacionado("NOME_PAIS_NASCIM")},
        {"PaisNacionalidadeID", &Eu::PaisNacionalidadeID, TFieldRelacionado("PAISNACIONALIDADE")},
        {"PaisNacionalidadeCodigo", &Eu::PaisNacionalidadeCodigo, TFieldRelacionado("COD_PAIS_NACION")},
        {"PaisNacionalidadeNome", &Eu::PaisNacionalidadeNome, TFieldRelacionado("NOME_PAIS_NACION")},
        {"NomeMae", &Eu::NomeMae, TFieldRelacionado("FILIACAO_MAE")},
        {"NomePai", &Eu::NomePai, TFieldRelacionado("FILIACAO_PAI")},
        {"CodigoESocialPaisNasc", &Eu::CodigoESocialPaisNasc, TFieldRelacionado("CODIGOESOCIALPAISNASC")},
        {"CodigoESocialPaisNascion", &Eu::CodigoESocialPaisNascion, TFieldRelacionado("CODIGOESOCIALPAISNASCION")},
        {"IdEmpregado", &Eu::IdEmpregado},
    };
    return tabela;
}

std::string TTarvoESocialCamposNascimento::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  EMPREGADOS.DATA_NASCIMENTO,
  EMPREGADOS.COD_MUN_NASC,
  MUNICIPIOS.NOME_MUN AS NOME_MUN_NASC,
  EMPREGADOS.UF_MUN_NASC,
  EMPREGADOS.PAISNASCIMENTO AS ID_PAIS_NASCIM,
  PAIS_NASC.PAIS AS COD_PAIS_NASCIM,
  PAIS_NASC.NOME AS NOME_PAIS_NASCIM,
  EMPREGADOS.PAISNACIONALIDADE,
  PAIS_NASCION.PAIS AS COD_PAIS_NACION,
  PAIS_NASCION.NOME AS NOME_PAIS_NACION,
  EMPREGADOS.FILIACAO_MAE,
  EMPREGADOS.FILIACAO_PAI,
  ESOCIALPAISNASC.CODIGO AS CODIGOESOCIALPAISNASC,
  ESOCIALPAISNASCION.CODIGO AS CODIGOESOCIALPAISNASCION
FROM EMPREGADOS
LEFT JOIN MUNICIPIOS ON (MUNICIPIOS.COD_MUN = EMPREGADOS.COD_MUN_NASC)
LEFT JOIN CA06_PAIS PAIS_NASC ON (PAIS_NASC.IDPAIS = EMPREGADOS.PAISNASCIMENTO)
LEFT JOIN CA06_PAIS PAIS_NASCION ON (PAIS_NASCION.IDPAIS = EMPREGADOS.PAISNACIONALIDADE)
LEFT JOIN FP_ESOCIALTABELA ESOCIALPAISNASC ON (ESOCIALPAISNASC.TABELA = 6 AND CAST(ESOCIALPAISNASC.CODIGO AS NUMERIC(5,0)) = PAIS_NASC.PAIS)
LEFT JOIN FP_ESOCIALTABELA ESOCIALPAISNASCION ON (ESOCIALPAISNASCION.TABELA = 6 AND CAST(ESOCIALPAISNASCION.CODIGO AS NUMERIC(5,0)) = PAIS_NASCION.PAIS)
WHERE EMPREGADOS.IDEMPREGADO = %0:d
ORDER BY ESOCIALPAISNASC.IDESOCIALTABELA, ESOCIALPAISNASCION.IDESOCIALTABELA)";
    return Format(SQL, FIDEmpregado);
}

} // namespace tarvo::trabalhador
