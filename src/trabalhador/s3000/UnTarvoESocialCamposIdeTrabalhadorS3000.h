#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/pcesConversaoeSocial.h"

namespace tarvo::trabalhador {

/// S-3000 ideTrabalhador: the worker of the excluded event, looked up at construction. Source: EMPREGADOS, for the pay
/// and the payments of a month by the CPF, which may also be that of a service provider.
class TTarvoESocialCamposIdeTrabalhadorS3000 : public TTarvoESocialCamposGrupoBase {
public:
    /// Exception when the event's kind is unknown, or there is no such event.
    explicit TTarvoESocialCamposIdeTrabalhadorS3000(std::int64_t AIdEvento);

    std::string cpfTrab;
    /// The first that isn't empty, the contract's before the provider's.
    std::string nisTrab;
    /// 0 for the pay and the payments of a month, and for a category whose code is no whole number (723.1).
    std::int32_t CodCateg = 0;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;
    void AtribuirValoresManualmente() override;

private:
    void BuscarTipoEvento(std::int64_t AIdEvento);
    std::string SqlPeloCpf() const;

    std::int64_t FIdTrabalhador;
    /// The event's source row; for the pay and the payments of a month the CPF as a number.
    std::int64_t FIdTabelaEvento = 0;
    TTipoEvento FTipoEvento{};
};

} // namespace tarvo::trabalhador
