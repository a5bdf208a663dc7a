#include "desligamento/s2299/UnTarvoESocialCamposTransferenciaS2299.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::desligamento {

namespace {

/// The transfers of a worker to a company of the database (1) and to one outside it (3), those of the lowest key first:
/// MOTIVOESOCIAL, INSCRICAO and, where AComTipo, TPINSCRICAO.
std::string SqlTransferencia(std::int64_t AIdEmpregado, bool AComTipo, std::string_view ACondicaoDoMotivo)
{
    static constexpr std::string_view RAMO = R"(SELECT
  TRANSF_EMPREG.MOTIVOESOCIAL,
  %1:s,
  TRANSF_EMPREG.IDTRANSF_EMPREG
FROM TRANSF_EMPREG
INNER JOIN TRANSF_EMPREGDET ON (TRANSF_EMPREGDET.IDTRANSF_EMPREG = TRANSF_EMPREG.IDTRANSF_EMPREG)
INNER JOIN EMPREGADOS ON (EMPREGADOS.COD_EMPRESA = TRANSF_EMPREG.COD_EMPRESAORIGEM
                      AND EMPREGADOS.COD_EMPREGADO = TRANSF_EMPREGDET.COD_EMPREGADOORIGEM)%2:s
WHERE EMPREGADOS.IDEMPREGADO = %0:d
  AND TRANSF_EMPREG.MOTIVO = %3:d
  AND %4:s)";
    static constexpr std::string_view SQL = R"(SELECT
  %2:s
FROM (
%0:s
UNION ALL
%1:s
)
GROUP BY %2:s
ORDER BY MIN(IDTRANSF_EMPREG), MIN(IDEMPRESA))";
    return Format(SQL,
                  Format(RAMO, AIdEmpregado,
                         AComTipo
                             ? "SC00_EMPRESA.CNPJ AS INSCRICAO,\n  SC00_EMPRESA.TPINSCRICAO,\n  SC00_EMPRESA.IDEMPRESA"
                             : "SC00_EMPRESA.CNPJ AS INSCRICAO,\n  SC00_EMPRESA.IDEMPRESA",
                         "\nINNER JOIN SC00_EMPRESA ON (TRANSF_EMPREG.COD_EMPRESADESTINO = SC00_EMPRESA.EMPRESA)", 1,
                         ACondicaoDoMotivo),
                  Format(RAMO, AIdEmpregado,
                         AComTipo ? "TRANSF_EMPREG.INSCRICAO,\n  TRANSF_EMPREG.TPINSCRICAO,\n  NULL AS IDEMPRESA"
                                  : "TRANSF_EMPREG.INSCRICAO,\n  NULL AS IDEMPRESA",
                         "", 3, ACondicaoDoMotivo),
                  AComTipo ? "MOTIVOESOCIAL, INSCRICAO, TPINSCRICAO" : "MOTIVOESOCIAL, INSCRICAO");
}

} // namespace

TTarvoESocialCampossucessaoVincS2299::TTarvoESocialCampossucessaoVincS2299(std::int64_t AIdEmpregado)
    : TTarvoESocialCamposGrupoBase("{A529D7FD-008C-41B8-8EB6-CCBEDA386D3E}"), FIdEmpregado(AIdEmpregado)
{}

const TPropriedades& TTarvoESocialCampossucessaoVincS2299::Tabela()
{
    using Eu = TTarvoESocialCampossucessaoVincS2299;
    static const TPropriedades tabela{
        {"TpInscSuc", &Eu::TpInscSuc, TFieldRelacionado("TPINSCRICAO")},
        {"cnpjSucessora", &Eu::cnpjSucessora, TFieldRelacionado("INSCRICAO")},
        {"motivoAfast", &Eu::motivoAfast, TFieldRelacionado("MOTIVOESOCIAL")},
    };
    return tabela;
}

std::string TTarvoESocialCampossucessaoVincS2299::BuscarSQLDados()
{
    return SqlTransferencia(FIdEmpregado, true, "TRANSF_EMPREG.MOTIVOESOCIAL <> 34");
}

TTarvoESocialCamposTransfTitS2299::TTarvoESocialCamposTransfTitS2299(std::int64_t AIdEmpregado)
    : TTarvoESocialCamposGrupoBase("{5E3B89CA-73D3-4CC6-B038-50DA16498533}"), FIdEmpregado(AIdEmpregado)
{}

const TPropriedades& TTarvoESocialCamposTransfTitS2299::Tabela()
{
    using Eu = TTarvoESocialCamposTransfTitS2299;
    static const TPropriedades tabela{
        {"dtNascto", &Eu::dtNascto},
        {"cpfSubstituto", &Eu::cpfSubstituto, TFieldRelacionado("INSCRICAO")},
        {"motivoAfast", &Eu::motivoAfast, TFieldRelacionado("MOTIVOESOCIAL")},
    };
    return tabela;
}

std::string TTarvoESocialCamposTransfTitS2299::BuscarSQLDados()
{
    return SqlTransferencia(FIdEmpregado, false, "TRANSF_EMPREG.MOTIVOESOCIAL = 34");
}

} // namespace tarvo::desligamento
