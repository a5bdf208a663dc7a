#include "remuneracao/periodo/UnTarvoESocialCamposRemunS1200.h"

#include "imports/consultas/UnTarvoConsultasESocial.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposRemunS1200::TTarvoESocialCamposRemunS1200(TTarvoESocialCamposS1200IOP& AinfoBind1200,
                                                             std::int64_t AIdFilial, std::int64_t AIdDepto)
    : TTarvoESocialCamposGrupoBase("{63D2CB1F-629B-4C36-8E0E-2755F61D9AA5}"), IdFilial(AIdFilial), IdDepto(AIdDepto),
      infoAgNocivo(AinfoBind1200), FInfoBind(AinfoBind1200)
{}

const TPropriedades& TTarvoESocialCamposRemunS1200::Tabela()
{
    using Eu = TTarvoESocialCamposRemunS1200;
    static const TPropriedades tabela{
        {"IdFilial", &Eu::IdFilial},
        {"IdDepto", &Eu::IdDepto},
        {"indSimples", &Eu::indSimples},
        {"matricula", &Eu::matricula, TFieldRelacionado("MATRICULA")},
        {"itensRemun", &Eu::itensRemun},
        {"infoAgNocivo", &Eu::infoAgNocivo},
        {"infoTrabInterm", &Eu::infoTrabInterm},
    };
    return tabela;
}

std::string TTarvoESocialCamposRemunS1200::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT EMPREGADOS.CODIGOESOCIAL AS MATRICULA
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %0:D)";
    return Format(SQL, FInfoBind.IdEmpregado());
}

void TTarvoESocialCamposRemunS1200::AtribuirValoresManualmente()
{
    indSimples = TTarvoConsultasESocial::BuscarIndSimples(IdFilial, IdDepto, FInfoBind.DataFim());
}

std::vector<TDadosCalculo> TTarvoESocialCamposRemunS1200::GerarListaItensRemunEmpregados(
    TTagOrigem ATagOrigem, const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposS1200DadosCalculo LDadosCalculo(FInfoBind, IdFilial, IdDepto, ATagOrigem);
    LDadosCalculo.CarregarListaDadosCalculo();
    GerarListaItensRemun(FInfoBind, LDadosCalculo.ListaDadosCalculo, AListaCamposModificados, itensRemun);
    return std::move(LDadosCalculo.ListaDadosCalculo);
}

} // namespace tarvo::remuneracao
