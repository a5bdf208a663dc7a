#include "tabelas/s1005/UnTarvoESocialCamposIdeEstab.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposIdeEstab::TTarvoESocialCamposIdeEstab(std::int64_t AIDEstab, std::int64_t AIDDepto)
    : TTarvoESocialCamposGrupoBase("{2638C56F-D1D7-4BE5-AA45-34B7951F0F83}"),
      FLugar(regras::EstabelecimentoPrimeiro(AIDEstab, AIDDepto))
{}

const TPropriedades& TTarvoESocialCamposIdeEstab::Tabela()
{
    using Eu = TTarvoESocialCamposIdeEstab;
    static const TPropriedades tabela{
        {"TpInsc", &Eu::TpInsc, TFieldRelacionado("TPINSCRICAO")},
        {"NrInsc", &Eu::NrInsc, TFieldRelacionado("CNPJ")},
        {"MatriculaCEI", &Eu::MatriculaCEI, TFieldRelacionado("MATRICULACEI")},
        {"MatriculaCAEPF", &Eu::MatriculaCAEPF, TFieldRelacionado("MATRICULACAEPF")},
        {"TpInscEmp", &Eu::TpInscEmp, TFieldRelacionado("TPINSCREMPRESA")},
        {"IniValid", &Eu::IniValid, TFieldRelacionado("INICIOATIVIDADE")},
        {"FimValid", &Eu::FimValid},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdeEstab::BuscarSQLDados()
{
    static constexpr std::string_view SQL_ESTAB = R"(SELECT
  SC00_FILIAL.TPINSCRICAO,
  (IIF(TRIM(SC00_FILIAL.MATRICULACAEPF) <> '', SC00_FILIAL.MATRICULACAEPF,
    (IIF (TRIM(SC00_FILIAL.MATRICULACEI)<> '', SC00_FILIAL.MATRICULACEI, SC00_FILIAL.CNPJ)))) AS CNPJ,
  SC00_FILIAL.MATRICULACEI,
  SC00_FILIAL.MATRICULACAEPF,
  SC00_EMPRESA.TPINSCRICAO AS TPINSCREMPRESA
FROM SC00_FILIAL
JOIN SC00_EMPRESA ON (SC00_EMPRESA.IDEMPRESA = SC00_FILIAL.IDEMPRESA)
WHERE SC00_FILIAL.IDFILIAL = %0:d;)";
    static constexpr std::string_view SQL_DEPTO = R"(SELECT
  SC00_DEPTO.TPINSCRICAO,
  SC00_DEPTO.INICIOATIVIDADE,
  SC00_DEPTO.INSCRICAO CNPJ,
  NULL AS MATRICULACEI,
  NULL AS MATRICULACAEPF,
  NULL AS TPINSCREMPRESA
FROM SC00_DEPTO
WHERE SC00_DEPTO.IDDEPTO = %0:d)";
    return Format(FLugar.EhDepto ? SQL_DEPTO : SQL_ESTAB, FLugar.Id);
}

} // namespace tarvo::tabelas
