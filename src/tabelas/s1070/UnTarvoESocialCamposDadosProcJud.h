#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::tabelas {

/// S-1070 dadosProcJud: the court. Source: ES02_SPPROC, CA06_MUNICIPIO and CA06_UF; a process without a municipality
/// loads nothing.
class TTarvoESocialCamposDadosProcJud : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposDadosProcJud(std::int64_t AIdProcesso);

    std::string ufVara;
    std::string codMunic;
    std::string idVara;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdProcesso;
};

} // namespace tarvo::tabelas
