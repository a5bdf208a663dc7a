#include "tabelas/s1020/UnTarvoESocialCamposInfoEmprParcial.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoEmprParcial::TTarvoESocialCamposInfoEmprParcial(std::int64_t, std::int64_t AIDDepto)
    : TTarvoESocialCamposGrupoBase("{836E36C4-697C-4F10-A171-1D38CE9A5FB7}"), FIDDepto(AIDDepto)
{}

const TPropriedades& TTarvoESocialCamposInfoEmprParcial::Tabela()
{
    using Eu = TTarvoESocialCamposInfoEmprParcial;
    static const TPropriedades tabela{
        {"tpInscContrat", &Eu::tpInscContrat, TFieldRelacionado("TPINSCCONTRAT")},
        {"nrInscContrat", &Eu::nrInscContrat, TFieldRelacionado("NRINSCCONTRAT")},
        {"tpInscProp", &Eu::tpInscProp, TFieldRelacionado("TPINSCPROP")},
        {"nrInscProp", &Eu::nrInscProp, TFieldRelacionado("NRINSCPROP")},
        {"tpDepto", &Eu::tpDepto, TFieldRelacionado("TIPODEPTO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoEmprParcial::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  PROPRIETARIOOBRA.TIPOINSCR TPINSCPROP,
  IIF(PROPRIETARIOOBRA.TIPOINSCR <> 'NIT',PROPRIETARIOOBRA.INSCRICAO,PROPRIETARIOOBRA.CPF) NRINSCPROP,
  CONTRATANTE.TIPOINSCR TPINSCCONTRAT,
  IIF(CONTRATANTE.TIPOINSCR <> 'NIT',CONTRATANTE.INSCRICAO,CONTRATANTE.CPF) NRINSCCONTRAT,
  SC00_DEPTO.TIPODEPTO
FROM SC00_DEPTO
LEFT JOIN PREST_SERVICO PROPRIETARIOOBRA ON (PROPRIETARIOOBRA.IDPRESTSERVICO = SC00_DEPTO.IDPROPRIETARIOOBRA)
LEFT JOIN PREST_SERVICO CONTRATANTE ON (CONTRATANTE.IDPRESTSERVICO = SC00_DEPTO.IDCONTRATANTE)
WHERE SC00_DEPTO.IDDEPTO = %0:d)";
    return Format(SQL, FIDDepto);
}

} // namespace tarvo::tabelas
