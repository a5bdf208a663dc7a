#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// S-2190 infoRegPrelim: the worker to be admitted. Source: EMPREGADOS; the CPF as it was typed.
class TTarvoESocialCamposinfoRegPrelim : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposinfoRegPrelim(std::int64_t AIdEmpregado);

    std::string cpfTrab;
    TDateTime dtNascto;
    TDateTime dtAdm;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
