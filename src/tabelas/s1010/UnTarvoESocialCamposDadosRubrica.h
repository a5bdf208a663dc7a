#pragma once

#include "regras/UnTarvoESocialCamposCodRubr.h"
#include "tabelas/s1010/UnTarvoESocialCamposIdeProcessoCP.h"
#include "tabelas/s1010/UnTarvoESocialCamposIdeProcessoFGTS.h"
#include "tabelas/s1010/UnTarvoESocialCamposIdeProcessoIRRF.h"
#include "tabelas/s1010/UnTarvoESocialCamposIdeProcessoSIND.h"

namespace tarvo::tabelas {

/// S-1010 dadosRubrica: description, nature, kind and incidences of a rubric (TAB_VERBAS, FP_RUBRICARELAC) or of a
/// value kind of a provider's receipt (FP_RUBRICARELACRPA), and the processes that suspend an incidence. With both ids
/// it follows the provider's.
///
/// The incidences of a rubric are the caller's, who keeps the object (null for none) while the group is loaded; those
/// of a provider's value come from the database.
class TTarvoESocialCamposDadosRubrica : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposDadosRubrica(std::int64_t AIdVerba, std::int64_t AIdEmpresa, TDateTime ADataGeracao,
                                    std::int64_t AIdRubricaRpa,
                                    const regras::TCodigosIncidenciaVerba* ACodigosIncidencia);

    std::string dscRubr;
    std::string natRubr;
    std::string tpRubr;
    std::string observacao;
    std::string codIncFGTS;
    std::string codIncSIND;
    std::string codIncCP;
    std::string codIncIRRF;
    TDateTime DataInicioRelacionamento;
    TTarvoESocialCamposIdeProcessoCP IdeProcessoCP;
    TTarvoESocialCamposIdeProcessoFGTS IdeProcessoFGTS;
    TTarvoESocialCamposIdeProcessoIRRF IdeProcessoIRRF;
    TTarvoESocialCamposIdeProcessoSIND IdeProcessoSIND;

    /// A process group is loaded only when the rubric has a process for its tribute at the company.
    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::string BuscarSqlDaVerba() const;
    std::string BuscarSqlDaRubricaRpa() const;
    void AtribuirCodigosIncidencia();

    std::int64_t FIdVerba;
    std::int64_t FIdEmpresa;
    TDateTime FDataGeracao;
    std::int64_t FIdRubricaRpa;
    const regras::TCodigosIncidenciaVerba* FCodigosIncidencia;
};

} // namespace tarvo::tabelas
