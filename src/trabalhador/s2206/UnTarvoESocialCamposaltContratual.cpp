#include "trabalhador/s2206/UnTarvoESocialCamposaltContratual.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposaltContratual::TTarvoESocialCamposaltContratual(std::int64_t AIDEmpregado, TDateTime ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{19FEFEAB-96D4-41A8-9526-636DC8ACFF18}"), Vinculo(AIDEmpregado, ADataGeracao),
      infoRegimeTrab(AIDEmpregado, ADataGeracao), infoContrato(AIDEmpregado, ADataGeracao), FIDEmpregado(AIDEmpregado),
      FDataGeracao(ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposaltContratual::Tabela()
{
    using Eu = TTarvoESocialCamposaltContratual;
    static const TPropriedades tabela{
        {"dtALteracao", &Eu::dtALteracao},
        {"dtEf", &Eu::dtEf, TFieldRelacionado("INICIOVIGENCIA")},
        {"dscAlt", &Eu::dscAlt},
        {"Vinculo", &Eu::Vinculo},
        {"infoRegimeTrab", &Eu::infoRegimeTrab},
        {"infoContrato", &Eu::infoContrato},
    };
    return tabela;
}

std::string TTarvoESocialCamposaltContratual::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT BUSCAR.INICIOVIGENCIA
FROM SP_BUSCARSALARIOEMPREGADO(%0:s,NULL,%1:d) BUSCAR)";
    return Format(SQL, FormatarDataDB(FDataGeracao, true), FIDEmpregado);
}

void TTarvoESocialCamposaltContratual::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    Vinculo.CarregarDados(AListaCamposModificados);
    infoRegimeTrab.CarregarDados(AListaCamposModificados);
    infoContrato.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::trabalhador
