#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1000 softwareHouse: who makes the suite. Constants of the product, read from nowhere.
class TTarvoESocialCamposSoftwareHouse : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposSoftwareHouse(std::int64_t AIDEmpresa);

    std::string CnpjSoftHouse;
    std::string NmRazao;
    std::string NmCont;
    std::string Telefone;
    std::string email;

    void ReverterDados() override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
