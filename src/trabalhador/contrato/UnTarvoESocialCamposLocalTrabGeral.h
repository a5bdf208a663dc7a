#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/pcesConversaoeSocial.h"

namespace tarvo::trabalhador {

/// Place of work of a worker at a date, with its inscription. Source: SP_BUSCARALOCACAOEMPREGADO, or a definitive
/// transfer (MOV_TRANSF) later than the date; of both the first row that the engine gives counts. A department counts
/// only when it has an inscription of its own (TIPODEPTO 2 or 3).
class TTarvoESocialCamposLocalTrabGeral : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposLocalTrabGeral(std::int64_t AIDEmpregado, TDate ADataBase);

    tpTpInsc TipoInscricao = tpTpInsc::CNPJ;
    std::string NumeroInscricao;
    /// Has no source.
    std::string DescricaoComplementar;
    std::int64_t IdFilial = 0;
    std::int64_t IdDepto = 0;
    std::string Contrato;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
    TDate FDataBase;
};

} // namespace tarvo::trabalhador
