#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// RIC document of a worker. The payroll has no register of it: the block stands for the layout and stays empty.
class TTarvoESocialCamposRic : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposRic();

    std::string Numero;
    std::string OrgaoEmissor;
    TDate DataExpedicao;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::trabalhador
