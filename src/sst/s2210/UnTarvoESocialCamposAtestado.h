#pragma once

#include "trabalhador/atestado/UnTarvoESocialCamposEmitente.h"

namespace tarvo::sst {

/// S-2210 atestado: the medical certificate. Source: FP_CATATESTADO. Its issuer is looked up at construction; a report
/// without a certificate has an issuer of id 0.
class TTarvoESocialCamposAtestado : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposAtestado(std::int64_t AIdTabCat);

    std::string codCNES;
    TDateTime dtAtendimento;
    std::string hrAtendimento;
    std::int32_t indInternacao = 0;
    std::int32_t durTrat = 0;
    std::int32_t indAfast = 0;
    std::int32_t dscLesao = 0;
    std::string dscCompLesao;
    std::string diagProvavel;
    std::string codCID;
    std::string observacao;
    trabalhador::TTarvoESocialCamposEmitente emitente;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    static std::int32_t BuscarIdDoEmitente(std::int64_t AIdTabCat);

    std::int64_t FIdTabCat;
};

} // namespace tarvo::sst
