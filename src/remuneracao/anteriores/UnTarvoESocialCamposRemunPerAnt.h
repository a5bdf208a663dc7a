#pragma once

#include "remuneracao/periodo/UnTarvoESocialCamposRemunS1200.h"

namespace tarvo::remuneracao {

/// S-1200 remunPerAnt: the differences of one contract in one lotação of an earlier period. Sources: EMPREGADOS, the
/// complementary calculations. A provider has none. infoTrabInterm stays empty.
class TTarvoESocialCamposRemunPerAnt : public TTarvoESocialCamposRemunS1200 {
public:
    /// The parent sets establishment and department afterwards.
    explicit TTarvoESocialCamposRemunPerAnt(TTarvoESocialCamposS1200IOP& AinfoBind1200);

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

protected:
    std::string BuscarSQLDados() override;

private:
    void CarregarDadosinfoTrabInterm() const;
};

} // namespace tarvo::remuneracao
