#include "tabelas/s1060/UnTarvoESocialCamposDadosAmbiente.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposDadosAmbiente::TTarvoESocialCamposDadosAmbiente(std::int64_t AIdAmbiente)
    : TTarvoESocialCamposGrupoBase("{F7488121-D4A0-4B2A-9D3F-F2CEEE851B40}"), FIdAmbiente(AIdAmbiente)
{}

const TPropriedades& TTarvoESocialCamposDadosAmbiente::Tabela()
{
    using Eu = TTarvoESocialCamposDadosAmbiente;
    static const TPropriedades tabela{
        {"nmAmb", &Eu::nmAmb, TFieldRelacionado("NOME")},
        {"dscAmb", &Eu::dscAmb, TFieldRelacionado("DESCRICAOAMBIENTE")},
        {"localAmb", &Eu::localAmb, TFieldRelacionado("LOCALAMBIENTE")},
        {"tpInsc", &Eu::tpInsc, TFieldRelacionado("TPINSC")},
        {"nrInsc", &Eu::nrInsc, TFieldRelacionado("NRINSC")},
        {"codLotacao", &Eu::codLotacao, TFieldRelacionado("CODLOTACAO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposDadosAmbiente::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  SST_AMBIENTES.NOME,
  SST_AMBIENTES.DESCRICAOAMBIENTE,
  SST_AMBIENTES.LOCALAMBIENTE,
  CASE SST_AMBIENTES.LOCALAMBIENTE
    WHEN 1 THEN IIF(SST_AMBIENTES.IDDEPTO IS NOT NULL, SC00_DEPTO.TPINSCRICAO, SC00_FILIAL.TPINSCRICAO)
    WHEN 2 THEN NULL
    WHEN 3 THEN SST_AMBIENTES.TPINSCRICAO
  END AS TPINSC,
  CASE SST_AMBIENTES.LOCALAMBIENTE
    WHEN 1 THEN IIF(SST_AMBIENTES.IDDEPTO IS NOT NULL, SC00_DEPTO.INSCRICAO, SC00_FILIAL.CNPJ)
    WHEN 2 THEN NULL
    WHEN 3 THEN SST_AMBIENTES.INSCRICAO
  END AS NRINSC,
  CASE SST_AMBIENTES.LOCALAMBIENTE
    WHEN 1 THEN NULL
    WHEN 2 THEN IIF(SST_AMBIENTES.IDDEPTO IS NOT NULL, SC00_DEPTO.CODIGOESOCIAL, SC00_FILIAL.CODIGOESOCIAL)
    WHEN 3 THEN NULL
  END AS CODLOTACAO
FROM SST_AMBIENTES
LEFT JOIN SC00_FILIAL ON (SST_AMBIENTES.IDFILIAL = SC00_FILIAL.IDFILIAL)
LEFT JOIN SC00_DEPTO ON (SST_AMBIENTES.IDDEPTO = SC00_DEPTO.IDDEPTO)
LEFT JOIN FP_ESOCIALTABELA ON (SC00_DEPTO.IDTIPOLOTACAO = FP_ESOCIALTABELA.IDESOCIALTABELA
  AND FP_ESOCIALTABELA.TABELA = 10)
WHERE SST_AMBIENTES.IDAMBIENTE = %0:d)";
    return Format(SQL, FIdAmbiente);
}

} // namespace tarvo::tabelas
