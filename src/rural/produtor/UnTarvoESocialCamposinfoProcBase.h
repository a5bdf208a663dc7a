#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "rural/produtor/UnTarvoESocialCamposinfoProcJudIOP.h"

namespace tarvo::rural {

/// A legal process about the contributions of rural purchases, with the share of each contribution that was not
/// retained because of it, in reais and not rounded. Source: ES02_SPPROC and ES02_SPPROCDET of the library's own
/// connection. EZeroDivide when the parameter counts no process.
class TTarvoESocialCamposinfoProcBase : public TTarvoESocialCamposGrupoBase {
public:
    /// The parameters are copied: the caller's object may go as soon as this one stands.
    explicit TTarvoESocialCamposinfoProcBase(const TTarvoESocialCamposinfoProcJudIOP& ADados);

    std::string nrProcJud;
    std::string codSusp;
    /// Bits of the contributions that it covers.
    std::int32_t AbrangS1250 = 0;
    /// Bits of the tributes that it is about.
    std::int32_t IndMateriaTpTrib = 0;
    double vrCPNRet = 0;
    double vrRatNRet = 0;
    double vrSenarNRet = 0;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    TTarvoESocialCamposinfoProcJudIOP FDados;
};

/// Adds a process group for each row of IDSPPROC, from the first one on, all with the same amounts. The rows are
/// counted here; the groups are loaded with the list that is passed on, whole without one.
template <class T>
void AcrescentarProcessos(TListaDeGrupos<T>& ALista, TOvraClientDataSet& AProcessos,
                          TTarvoESocialCamposinfoProcJudIOP ADados,
                          const TListaCamposModificados* AListaCamposModificados = nullptr)
{
    ADados.QtdProcesso = static_cast<std::int32_t>(AProcessos.RecordCount());
    for (AProcessos.First(); !AProcessos.Eof(); AProcessos.Next()) {
        ADados.IdProcesso = AProcessos.FieldByName("IDSPPROC").AsLargeInt();
        auto LProcesso = std::make_unique<T>(ADados);
        LProcesso->CarregarDados(AListaCamposModificados);
        ALista.push_back(std::move(LProcesso));
    }
}

} // namespace tarvo::rural
