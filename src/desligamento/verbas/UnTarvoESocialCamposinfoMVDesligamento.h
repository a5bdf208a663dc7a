#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::desligamento {

/// remunOutrEmpr: what another employer paid, all as text; infoMV fills it.
class TTarvoESocialCamposremunOutrEmprDesligamento : public TTarvoESocialCamposGrupoBase {
public:
    std::string tpInsc;
    std::string nrInsc;
    std::string codCateg;
    /// In reais, decimal comma.
    std::string vlrRemunOE;

    static const TPropriedades& Tabela();

protected:
    using TTarvoESocialCamposGrupoBase::TTarvoESocialCamposGrupoBase;
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

class TTarvoESocialCamposremunOutrEmprS2299 : public TTarvoESocialCamposremunOutrEmprDesligamento {
public:
    TTarvoESocialCamposremunOutrEmprS2299()
        : TTarvoESocialCamposremunOutrEmprDesligamento("{B77EFADE-8E06-49EC-AD77-91366CF77434}")
    {}
};

class TTarvoESocialCamposremunOutrEmprS2399 : public TTarvoESocialCamposremunOutrEmprDesligamento {
public:
    TTarvoESocialCamposremunOutrEmprS2399()
        : TTarvoESocialCamposremunOutrEmprDesligamento("{EF29C855-4BC6-418C-9BC8-36597888FDE9}")
    {}
};

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
    TTarvoESocialCamposinfoMVDesligamento(std::string_view AGuid, std::int64_t AIdEmpregado);

    const TPropriedades& Propriedades() const override { return Tabela(); }

    std::string BuscarSQLDados() override { return SqlIndicadorDescontoINSS(FIdEmpregado); }

private:
    void CarregarRemunOutrEmpr();

    std::int64_t FIdEmpregado;
    TDateTime FDataDesligamento;
};

class TTarvoESocialCamposinfoMVS2299
    : public TTarvoESocialCamposinfoMVDesligamento<TTarvoESocialCamposremunOutrEmprS2299> {
public:
    explicit TTarvoESocialCamposinfoMVS2299(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposinfoMVDesligamento("{2E86E12D-329D-4549-9850-1147D22FED49}", AIdEmpregado)
    {}
};

class TTarvoESocialCamposinfoMVS2399
    : public TTarvoESocialCamposinfoMVDesligamento<TTarvoESocialCamposremunOutrEmprS2399> {
public:
    explicit TTarvoESocialCamposinfoMVS2399(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposinfoMVDesligamento("{1BE82F7B-6A17-489E-853A-3185D1EC1902}", AIdEmpregado)
    {}
};

} // namespace tarvo::desligamento
