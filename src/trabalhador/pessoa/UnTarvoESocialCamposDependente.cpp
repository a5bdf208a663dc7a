#include "trabalhador/pessoa/UnTarvoESocialCamposDependente.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposDependente::TTarvoESocialCamposDependente(std::int64_t AIDDependente)
    : TTarvoESocialCamposGrupoBase("{306B71FD-1A0D-4B2C-9C4B-F146856B8489}"), FIDDependente(AIDDependente)
{}

const TPropriedades& TTarvoESocialCamposDependente::Tabela()
{
    using Eu = TTarvoESocialCamposDependente;
    static const TPropriedades tabela{
        {"GrauDependenciaDesc", &Eu::GrauDependenciaDesc, TFieldRelacionado("DESCRICAO")},
        {"GrauDependenciaCodigo", &Eu::GrauDependenciaCodigo, TFieldRelacionado("CODIGO")},
        {"Nome", &Eu::Nome, TFieldRelacionado("NOME")},
        {"CodDependente", &Eu::CodDependente, TFieldRelacionado("COD_DEPENDENTE")},
        {"DataNascimento", &Eu::DataNascimento, TFieldRelacionado("DATA_NASCIMENTO")},
        {"Cpf", &Eu::Cpf, TFieldRelacionado("CPF")},
        {"DataFimIrrf", &Eu::DataFimIrrf, TFieldRelacionado("DATA_FIM_IRRF")},
        {"DataFimInss", &Eu::DataFimInss, TFieldRelacionado("DATA_FIM_INSS")},
        {"IDDependente", &Eu::IDDependente, TFieldRelacionado("IDDEPENDENTE")},
        {"Dep_Perm", &Eu::Dep_Perm, TFieldRelacionado("DEP_PERM")},
        {"CodEmpresa", &Eu::CodEmpresa, TFieldRelacionado("COD_EMPRESA")},
        {"CodEmpregado", &Eu::CodEmpregado, TFieldRelacionado("COD_EMPREGADO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposDependente::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  FP_ESOCIALTABELA.DESCRICAO,
  FP_ESOCIALTABELA.CODIGO,
  DEPENDENTES.NOME,
  DEPENDENTES.COD_DEPENDENTE,
  DEPENDENTES.DATA_NASCIMENTO,
  DEPENDENTES.CPF,
  DEPENDENTES.DATA_FIM_IRRF,
  DEPENDENTES.DATA_FIM_INSS,
  DEPENDENTES.IDDEPENDENTE,
  DEPENDENTES.DEP_PERM,
  DEPENDENTES.COD_EMPRESA,
  DEPENDENTES.COD_EMPREGADO
FROM DEPENDENTES
LEFT JOIN FP_ESOCIALTABELA ON (DEPENDENTES.IDESOCIALTABELA = FP_ESOCIALTABELA.IDESOCIALTABELA AND FP_ESOCIALTABELA.TABELA = 7)
WHERE DEPENDENTES.IDDEPENDENTE = %0:d)";
    return Format(SQL, FIDDependente);
}

} // namespace tarvo::trabalhador
