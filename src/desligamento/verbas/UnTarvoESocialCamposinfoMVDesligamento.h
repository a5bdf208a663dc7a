#pragma once

#include <memory>

#include "desligamento/verbas/UnTarvoESocialCamposremunOutrEmprDesligamento.h"
#include "imports/consultas/UnTarvoConsultasEmpregado.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"

namespace tarvo::desligamento {

/// The statement of infoMV: INDICADORDESCINSS.
std::string SqlIndicadorDescontoINSS(std::int64_t AIdEmpregado);
/// What other employers paid to a worker in the month of a day, by employer and category: TPINSCRICAO, INSCRICAO,
/// CODIGO, VALOR. Reads the worker's company, CPF and kind of deduction first.
std::string SqlRemunOutrEmpr(std::int64_t AIdEmpregado, TDateTime AData);
/// Takes a row of that statement over.
void AlimentarRemunOutrEmpr(TTarvoESocialCamposremunOutrEmprDesligamento& ARemuneracao, const TOvraClientDataSet& ACds);

/// infoMV: how the social security is withheld where the worker has other employers, and what they paid in the month
/// of the termination. Sources: EMPREGADOS, RENDIMENTOS.
template <class TRemunOutrEmpr>
class TTarvoESocialCamposinfoMVDesligamento : public TTarvoESocialCamposGrupoBase {
public:
    std::string indMV;
    TListaDeGrupos<TRemunOutrEmpr> remunOutrEmpr;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override
    {
        TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
        CarregarRemunOutrEmpr();
    }

    static const TPropriedades& Tabela()
    {
        using Eu = TTarvoESocialCamposinfoMVDesligamento;
        static const TPropriedades tabela{
            {"indMV", &Eu::indMV, TFieldRelacionado("INDICADORDESCINSS")},
            {"remunOutrEmpr", &Eu::remunOutrEmpr},
        };
        return tabela;
    }

protected:
    TTarvoESocialCamposinfoMVDesligamento(std::string_view AGuid, std::int64_t AIdEmpregado)
        : TTarvoESocialCamposGrupoBase(AGuid), FIdEmpregado(AIdEmpregado),
          FDataDesligamento(TTarvoConsultasEmpregado::BuscarDataDemissaoOuTransfDefinitiva(AIdEmpregado))
    {}

    const TPropriedades& Propriedades() const override { return Tabela(); }

    std::string BuscarSQLDados() override { return SqlIndicadorDescontoINSS(FIdEmpregado); }

private:
    void CarregarRemunOutrEmpr()
    {
        const auto LCds = TTarvoConsultasGeral::BuscarRegistros(SqlRemunOutrEmpr(FIdEmpregado, FDataDesligamento));
        for (; !LCds->Eof(); LCds->Next()) {
            auto LRemuneracao = std::make_unique<TRemunOutrEmpr>();
            AlimentarRemunOutrEmpr(*LRemuneracao, *LCds);
            remunOutrEmpr.push_back(std::move(LRemuneracao));
        }
    }

    std::int64_t FIdEmpregado;
    TDateTime FDataDesligamento;
};

} // namespace tarvo::desligamento
