#pragma once

#include <string_view>

#include "rural/s1250/UnTarvoESocialCamposideEstabAdquirBase.h"

namespace tarvo::rural {

/// Event S-1250: an establishment's purchases of rural production in a period. The source is chosen once, at
/// construction, so that the sibling system's connection must stand before: the own payroll (Folha); the sibling
/// system's tables in the payroll database (Brenco, when its connection names the same database, of Firebird 3 or
/// newer); or the sibling system's own database, where the establishment is found by its inscription. A tree is loaded
/// once: a second load repeats the items of its lists.
///
/// The constructor raises EDatabaseError alone. Without an establishment, because the sibling can't be read or doesn't
/// know it, the load raises EAccessViolation; that is the only signal.
class TTarvoESocialCamposS1250 : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposS1250(std::int64_t AIDEstabelecimento, TDateTime ADataInicio, TDateTime ADataFim,
                             TTipoConexao ATipoConexao);

    /// Whether a server of this major version ("3") reads the sibling system's tables in the payroll database.
    static bool VersaoLeTabelasDoBrenco(std::string_view AVersaoMaior);

    /// May be null.
    std::unique_ptr<TTarvoESocialCamposideEstabAdquirBase> ideEstabAdquir;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
};

} // namespace tarvo::rural
