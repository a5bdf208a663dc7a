#pragma once

#include "tabelas/s1000/UnTarvoESocialCamposInfoEFR.h"
#include "tabelas/s1000/UnTarvoESocialCamposInfoEnte.h"

namespace tarvo::tabelas {

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
