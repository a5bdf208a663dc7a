#include "trabalhador/contrato/UnTarvoESocialCamposRemuneracao.h"

#include "imports/valores/UnOvraFormat.h"
#include "trabalhador/contrato/UnTarvoESocialCamposSqlSalarios.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposRemuneracao::TTarvoESocialCamposRemuneracao(std::int64_t AIDEmpregado, TDate ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{7892E793-B7B0-4B8F-A338-DFAECDC2C1C0}"), FIDEmpregado(AIDEmpregado),
      FDataGeracao(ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposRemuneracao::Tabela()
{
    using Eu = TTarvoESocialCamposRemuneracao;
    static const TPropriedades tabela{
        {"ValorSalarioFixo", &Eu::ValorSalarioFixo, TFieldRelacionado("VALOR", "-1")},
        {"TipoRemuneracao", &Eu::TipoRemuneracao, TFieldRelacionado("TIPOREMUNERACAO")},
        {"TipoRemuneracaoDesc", &Eu::TipoRemuneracaoDesc, TFieldRelacionado("TIPO_REMUN_DESC")},
        {"DescricaoSalarioVariavel", &Eu::DescricaoSalarioVariavel, TFieldRelacionado("DESCRSALARIOVAR")},
    };
    return tabela;
}

std::string TTarvoESocialCamposRemuneracao::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  SALARIO.VALOR,
  SALARIO.TIPOREMUNERACAO,
  SUBSTRING (SALARIO.TIPOREMUNERACAO FROM 4 FOR CHAR_LENGTH(SALARIO.TIPOREMUNERACAO)) AS TIPO_REMUN_DESC,
  SALARIO.DESCRSALARIOVAR,
  FP_NIVEL.CODIGO AS CODIGONIVEL,
  FP_NIVEL.DESCRICAO AS DESCNIVEL
FROM %0:s SALARIO
JOIN FP_NIVEL ON (FP_NIVEL.IDNIVEL = SALARIO.IDNIVEL)
ORDER BY SALARIO.ORDEM)";
    return Format(SQL, SqlSalarios(FIDEmpregado, FDataGeracao));
}

void TTarvoESocialCamposRemuneracao::AtribuirValoresManualmente()
{
    TTarvoESocialCamposGrupoBase::AtribuirValoresManualmente();
    auto& LCds = CdsDados();
    if (LCds.RecordCount() <= 1)
        return;
    // The stored description gives way to the list of levels; meant.
    DescricaoSalarioVariavel.clear();
    for (LCds.First(); !LCds.Eof(); LCds.Next()) {
        if (!DescricaoSalarioVariavel.empty())
            DescricaoSalarioVariavel += " ";
        DescricaoSalarioVariavel += "Hora/aula " + LCds.FieldByName("DESCNIVEL").AsString() + ": R$ " +
                                    FormatFloat("0.00", LCds.FieldByName("VALOR").AsCurrency().ParaDouble()) + ";";
    }
}

} // namespace tarvo::trabalhador
