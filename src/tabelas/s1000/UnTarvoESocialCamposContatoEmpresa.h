#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1000 contato: the one contact of the database, the same for every company. Source: CA06_CFG 97/2, whatever the
/// date.
class TTarvoESocialCamposContatoEmpresa : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposContatoEmpresa(std::int64_t AIDEmpresa);

    std::string NmCtt;
    std::string CpfCtt;
    std::string FoneFixo;
    /// The same number as FoneFixo: the register has one only.
    std::string FoneCel;
    std::string Email;

    void ReverterDados() override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
};

} // namespace tarvo::tabelas
