#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1000 infoEFR: a tag without content of its own.
class TTarvoESocialCamposInfoEFR : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoEFR(std::int64_t AIDEmpresa);
};

/// S-1000 infoEnte: a tag without content of its own.
class TTarvoESocialCamposInfoEnte : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoEnte(std::int64_t AIDEmpresa);
};

/// S-1000 infoOP: public body. It reads nothing, and nothing creates its two children, which stay null.
class TTarvoESocialCamposInfoOP : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoOP(std::int64_t AIDEmpresa);

    std::string nrSiafi;
    std::unique_ptr<TTarvoESocialCamposInfoEFR> infoEFR;
    std::unique_ptr<TTarvoESocialCamposInfoEnte> infoEnte;

    void ReverterDados() override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
