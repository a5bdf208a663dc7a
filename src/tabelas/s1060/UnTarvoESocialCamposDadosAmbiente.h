#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1060 dadosAmbiente: what and where the environment is. Source: SST_AMBIENTES, its department, which goes first, and
/// its establishment.
class TTarvoESocialCamposDadosAmbiente : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposDadosAmbiente(std::int64_t AIdAmbiente);

    std::string nmAmb;
    std::string dscAmb;
    /// 1 own establishment, 2 establishment of others, 3 another place with an inscription.
    std::int64_t localAmb = 0;
    /// Kind and number of inscription at 1 and 3, lotação at 2.
    std::int8_t tpInsc = 0;
    std::string nrInsc;
    std::string codLotacao;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdAmbiente;
};

} // namespace tarvo::tabelas
