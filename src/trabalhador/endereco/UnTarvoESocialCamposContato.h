#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Telephones and e-mails of a worker. Source: the first two of each kind in FP_EMPREGADOSCONTATO (telephones 1 and 2,
/// e-mails 4), in the order in which the database gives them, and the telephone of EMPREGADOS beside them. The four
/// are emptied by each load.
class TTarvoESocialCamposContato : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposContato(std::int64_t AIDEmpregado);

    std::string FonePrincipal;
    std::string FoneAlternativo;
    std::string EmailPrincipal;
    std::string EmailAlternativo;
    /// EMPREGADOS.FONE; never stands in for a missing FonePrincipal.
    std::string FoneCadEmpregado;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
    void AtribuirValoresManualmente() override;

private:
    void BuscarFones();
    void BuscarEmails();

    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
