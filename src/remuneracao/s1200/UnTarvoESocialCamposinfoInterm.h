#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"

namespace tarvo::remuneracao {

/// S-1200 infoInterm: days of intermittent work in the month, both ends counted. Source: the convocations that lie in
/// the month as a whole (FP_DETCONVOCACAO); one that crosses its limits doesn't count.
class TTarvoESocialCamposinfoInterm : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposinfoInterm(const TTarvoESocialCamposS1200IOP& AinfoBind1200);

    std::int32_t qtdDiasInterm = 0;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    const TTarvoESocialCamposS1200IOP& FInfoBind;
};

} // namespace tarvo::remuneracao
