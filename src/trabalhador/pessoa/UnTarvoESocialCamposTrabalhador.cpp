#include "trabalhador/pessoa/UnTarvoESocialCamposTrabalhador.h"

#include "framework/UnTarvoESocialCamposListaDeGrupos.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposTrabalhador::TTarvoESocialCamposTrabalhador(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{36756A42-CD30-44CE-8661-02396AFC2FC2}"), Nascimento(AIDEmpregado),
      Documentos(AIDEmpregado), Endereco(AIDEmpregado), TrabEstrangeiro(AIDEmpregado), InfoDeficiencia(AIDEmpregado),
      Aposentadoria(AIDEmpregado), Contato(AIDEmpregado), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposTrabalhador::Tabela()
{
    using Eu = TTarvoESocialCamposTrabalhador;
    static const TPropriedades tabela{
        {"Cpf", &Eu::Cpf, TFieldRelacionado("CPF")},
        {"Nis", &Eu::Nis, TFieldRelacionado("PIS")},
        {"Nome", &Eu::Nome, TFieldRelacionado("NOME")},
        {"Sexo", &Eu::Sexo, TFieldRelacionado("SEXO")},
        {"SexoDesc", &Eu::SexoDesc, TFieldRelacionado("DESC_SEXO")},
        {"RacaCor", &Eu::RacaCor, TFieldRelacionado("RACACOR")},
        {"RacaCorDesc", &Eu::RacaCorDesc, TFieldRelacionado("DESC_RACACOR")},
        {"EstadoCivil", &Eu::EstadoCivil, TFieldRelacionado("ESTADOCIVILLEGAL")},
        // The statement calls it DESC_ESTADOCIVILLEGAL: the two never meet, and that is meant.
        {"EstadoCivilDesc", &Eu::EstadoCivilDesc, TFieldRelacionado("DESC_EST_CIVIL")},
        {"GrauInstrucao", &Eu::GrauInstrucao, TFieldRelacionado("GRAU_INSTR")},
        {"GrauInstrucaoDesc", &Eu::GrauInstrucaoDesc, TFieldRelacionado("DESC_GRAU_INSTR")},
        {"NomeSocial", &Eu::NomeSocial, TFieldRelacionado("NOMESOCIAL")},
        {"PrimeiroEmprego", &Eu::PrimeiroEmprego, TFieldRelacionado("PRIMEIRO_EMPREGO")},
        {"Nascimento", &Eu::Nascimento},
        {"Documentos", &Eu::Documentos},
        {"Endereco", &Eu::Endereco},
        {"TrabEstrangeiro", &Eu::TrabEstrangeiro},
        {"InfoDeficiencia", &Eu::InfoDeficiencia},
        {"Dependentes", &Eu::Dependentes},
        {"Aposentadoria", &Eu::Aposentadoria},
        {"Contato", &Eu::Contato},
        {"CarregarDadosDeDependentes", &Eu::CarregarDadosDeDependentes},
        {"CodigoEsocialRacaCor", &Eu::CodigoEsocialRacaCor, TFieldRelacionado("CODIGOESOCIALRACACOR")},
        {"CodigoESocialEstadoCivil", &Eu::CodigoESocialEstadoCivil, TFieldRelacionado("CODIGOESOCIALESTADOCIVIL")},
    };
    return tabela;
}

std::string TTarvoESocialCamposTrabalhador::BuscarSQLDados()
{
    // The stored texts carry a prefix ("2-Casado", "07-Médio completo"), which the descriptions are cut of.
    static constexpr std::string_view SQL = R"(WITH RACACOR AS (
  SELECT FP_ESOCIALTABELA.IDESOCIALTABELA, FP_ESOCIALTABELA.CODIGO, FP_ESOCIALTABELA.INFORMACAO1
  FROM FP_ESOCIALTABELA
  WHERE FP_ESOCIALTABELA.TABELA = 9994
),
ESTADOCIVIL AS (
  SELECT FP_ESOCIALTABELA.IDESOCIALTABELA, FP_ESOCIALTABELA.CODIGO, FP_ESOCIALTABELA.INFORMACAO1
  FROM FP_ESOCIALTABELA
  WHERE FP_ESOCIALTABELA.TABELA = 9993
)
SELECT
  EMPREGADOS.ESTADOCIVILLEGAL,
  SUBSTRING(EMPREGADOS.ESTADOCIVILLEGAL FROM 3 FOR CHAR_LENGTH(EMPREGADOS.ESTADOCIVILLEGAL)) AS DESC_ESTADOCIVILLEGAL,
  EMPREGADOS.CPF,
  EMPREGADOS.GRAU_INSTR,
  SUBSTRING(EMPREGADOS.GRAU_INSTR FROM 4 FOR CHAR_LENGTH(EMPREGADOS.GRAU_INSTR)) AS DESC_GRAU_INSTR,
  EMPREGADOS.RACACOR,
  SUBSTRING(EMPREGADOS.RACACOR FROM 4 FOR CHAR_LENGTH(EMPREGADOS.RACACOR)) AS DESC_RACACOR,
  EMPREGADOS.SEXO,
  SUBSTRING(EMPREGADOS.SEXO FROM 4 FOR CHAR_LENGTH(EMPREGADOS.SEXO)) AS DESC_SEXO,
  EMPREGADOS.NOME,
  EMPREGADOS.PIS,
  EMPREGADOS.NOMESOCIAL,
  EMPREGADOS.PRIMEIRO_EMPREGO,
  RACACOR.CODIGO AS CODIGOESOCIALRACACOR,
  ESTADOCIVIL.CODIGO AS CODIGOESOCIALESTADOCIVIL
FROM EMPREGADOS
LEFT JOIN RACACOR ON (RACACOR.INFORMACAO1 = EMPREGADOS.RACACOR)
LEFT JOIN ESTADOCIVIL ON (ESTADOCIVIL.INFORMACAO1 = EMPREGADOS.ESTADOCIVILLEGAL)
WHERE EMPREGADOS.IDEMPREGADO = %0:d
ORDER BY RACACOR.IDESOCIALTABELA, ESTADOCIVIL.IDESOCIALTABELA)";
    return Format(SQL, FIDEmpregado);
}

void TTarvoESocialCamposTrabalhador::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    Nascimento.CarregarDados(AListaCamposModificados);
    Documentos.CarregarDados(AListaCamposModificados);
    Endereco.CarregarDados(AListaCamposModificados);
    TrabEstrangeiro.CarregarDados(AListaCamposModificados);
    InfoDeficiencia.CarregarDados(AListaCamposModificados);
    // Whatever the list says; meant.
    CarregarDadosDependentes();
    Aposentadoria.CarregarDados(AListaCamposModificados);
    Contato.CarregarDados(AListaCamposModificados);
}

void TTarvoESocialCamposTrabalhador::CarregarDadosDependentes()
{
    Dependentes.clear();
    if (!CarregarDadosDeDependentes)
        return;
    static constexpr std::string_view SQL = R"(SELECT DEPENDENTES.IDDEPENDENTE
FROM DEPENDENTES
INNER JOIN EMPREGADOS ON (DEPENDENTES.COD_EMPRESA = EMPREGADOS.COD_EMPRESA AND DEPENDENTES.COD_EMPREGADO = EMPREGADOS.COD_EMPREGADO)
WHERE EMPREGADOS.IDEMPREGADO = %0:d
ORDER BY EMPREGADOS.IDEMPREGADO, DEPENDENTES.IDDEPENDENTE)";
    AcrescentarUmPorLinha<&TField::AsInteger>(
        Dependentes, TTarvoConsultasGeral::BuscarRegistros(Format(SQL, FIDEmpregado)), "IDDEPENDENTE");
}

void TTarvoESocialCamposTrabalhador::CriarDependenteUnico()
{
    Dependentes.clear();
    Dependentes.push_back(std::make_unique<TTarvoESocialCamposDependente>(0));
}

} // namespace tarvo::trabalhador
