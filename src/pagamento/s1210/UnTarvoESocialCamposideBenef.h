#pragma once

#include "pagamento/s1210/UnTarvoESocialCamposdeps.h"
#include "pagamento/s1210/UnTarvoESocialCamposinfoPgto.h"

namespace tarvo::pagamento {

/// S-1210 ideBenef: the beneficiary and the dates on which he was paid. Sources: CALCULO of his contracts and RPA of
/// his provider records; the kind of each payment follows from the kind of calculation, the dismissal, the category
/// and the date of change of layout.
class TTarvoESocialCamposideBenef : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposideBenef(TTarvoESocialCamposS1210IOP& AInfoBind);

    /// As the caller gave it, punctuation included.
    std::string cpfBenef;
    TTarvoESocialCamposdeps deps;
    /// By date, kind of payment and list of contracts.
    TListaDeGrupos<TTarvoESocialCamposinfoPgto> infoPgto;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    void CarregarListaInfoPgto(const TListaCamposModificados* AListaCamposModificados);
    std::string BuscarSqlDatasDePagamento() const;

    TTarvoESocialCamposS1210IOP& FInfoBind;
};

} // namespace tarvo::pagamento
