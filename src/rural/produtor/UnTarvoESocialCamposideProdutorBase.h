#pragma once

#include "rural/produtor/UnTarvoESocialCamposinfoProcJud.h"
#include "rural/produtor/UnTarvoESocialCamposnfs.h"
#include "rural/s1250/UnTarvoESocialCamposSqlS1250.h"

namespace tarvo::rural {

/// S-1250 ideProdutor: what was bought from a producer and the contributions retained, in reais and not rounded. The
/// sources fill it; here is what they share.
class TTarvoESocialCamposideProdutorBase : public TTarvoESocialCamposGrupoBase {
public:
    /// CPF, always.
    std::int32_t tpInscProd() const { return 2; }
    std::string nrInscProd;
    double vlrBruto = 0;
    double vrCPDescPR = 0;
    double vrRatDescPR = 0;
    double vrSenarDesc = 0;
    /// 2: the producer contributes on the payroll, and only Senar is retained.
    std::int32_t IndOpcCp = 0;
    TTarvoESocialCamposnfs nfs;
    /// Processes of the producer; each load adds to them.
    TListaDeGrupos<TTarvoESocialCamposinfoProcJud> infoProcJud;

    static const TPropriedades& Tabela();

protected:
    /// ACNPJ is the inscription as the source has it; AExisteProcessoAdquirente says that the acquirer itself has a
    /// process.
    TTarvoESocialCamposideProdutorBase(std::int64_t AIdFilial, std::string ACNPJ, TDateTime ADataInicio,
                                       TDateTime ADataFim, bool AExisteProcessoAdquirente,
                                       std::int32_t AProducaoIsenta);

    const TPropriedades& Propriedades() const override { return Tabela(); }
    virtual void CarregarInfoProcJud();
    virtual void CarregarValoresRetencao();

    const TComprasRurais& Compras() const { return FCompras; }
    const std::string& Cpf() const { return FCPF; }
    bool ExisteProcessoAdquirente() const { return FExisteProcessoAdquirente; }
    std::int32_t ProducaoIsenta() const { return FProducaoIsenta; }
    bool EhIsenta() const { return FProducaoIsenta == 1; }
    bool SoRetemSenar() const { return EhIsenta() || IndOpcCp == 2; }
    void ZerarRetencao();
    /// Adds a process group for each row of IDSPPROC, with the producer's amounts as they stand.
    void AcrescentarInfoProcJud(TOvraClientDataSet& AProcessos, bool AProducaoIsenta,
                                const TListaCamposModificados* AListaCamposModificados = nullptr);

private:
    TComprasRurais FCompras;
    std::string FCPF;
    bool FExisteProcessoAdquirente;
    std::int32_t FProducaoIsenta;
};

} // namespace tarvo::rural
