#pragma once

#include "tabelas/s1010/UnTarvoESocialCamposDadosRubrica.h"
#include "tabelas/s1010/UnTarvoESocialCamposIdeRubrica.h"

namespace tarvo::tabelas {

/// S-1010 infoRubrica: identification and data of a rubric.
class TTarvoESocialCamposInfoRubrica : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposInfoRubrica(std::int64_t AIdVerba, std::int64_t AidEmpresa, std::int64_t AIdRubricaRpa,
                                   TDateTime ADataGeracao, const regras::TCodigosIncidenciaVerba* ACodigosIncidencia);

    TTarvoESocialCamposIdeRubrica IdeRubrica;
    TTarvoESocialCamposDadosRubrica DadosRubrica;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::tabelas
