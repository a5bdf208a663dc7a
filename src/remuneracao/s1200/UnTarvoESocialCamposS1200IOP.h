#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "imports/UnTarvoTypesGeral.h"
#include "imports/pcesConversaoeSocial.h"
#include "imports/valores/UnOvraDataHora.h"

namespace tarvo::remuneracao {

/// One calculated rubric of S-1200, from CALCULO, CALC_QUEBRA or a receipt. Amounts in reais, rounded to cents.
struct TDadosCalculo {
    std::int64_t IdCalculo = 0;
    double Base = 0;
    /// Hours as hh.mm, days or a percentage, as the rubric has it.
    double Referencia = 0;
    double Valor = 0;
    /// Days worked in the lotação; 0 where the month isn't split.
    std::int32_t DiasTrab = 0;
    std::int64_t IdVerba = 0;
    /// Code of the rubric; of a receipt the sequence of the kind of value.
    std::int32_t Cod_Verba = 0;
    /// Code already composed; only of a receipt.
    std::string Cod_Rubr;
    std::string Horas;
    std::string Formula;
    double Vlr_Calc = 0;
};

/// Parameter object of S-1200: what the caller asks for, and then, rewritten while the tree walks, the run and the
/// worker that are being loaded. The caller owns it, sets Cpf before it constructs the event, and IdEmpresa,
/// DataInicio, DataFim and IndApuracao before the load.
///
/// A guarded parameter that nobody set raises Exception with its name; one that was set to 0 or empty reads normally.
class TTarvoESocialCamposS1200IOP {
public:
    TTarvoESocialCamposS1200IOP() = default;
    TTarvoESocialCamposS1200IOP(const TTarvoESocialCamposS1200IOP&) = delete;
    TTarvoESocialCamposS1200IOP& operator=(const TTarvoESocialCamposS1200IOP&) = delete;

    std::int64_t IdEmpresa() const { return Ler(FIdEmpresa, FIdEmpresaInst, "IdEmpresa"); }
    void SetIdEmpresa(std::int64_t AValor) { Gravar(FIdEmpresa, FIdEmpresaInst, AValor); }

    /// The current worker: a contract, or a provider where TipoEmpregado says so.
    std::int64_t IdEmpregado() const { return Ler(FIdEmpregado, FIdEmpregadoInst, "IdEmpregado"); }
    void SetIdEmpregado(std::int64_t AValor) { Gravar(FIdEmpregado, FIdEmpregadoInst, AValor); }

    TTipoTrabalhador TipoEmpregado() const { return Ler(FTipoEmpregado, FTipoEmpregadoInst, "TipoEmpregado"); }
    void SetTipoEmpregado(TTipoTrabalhador AValor) { Gravar(FTipoEmpregado, FTipoEmpregadoInst, AValor); }

    /// The worker's CPF as the caller gives it; EMPREGADOS.CPF is compared with it as it stands.
    const std::string& Cpf() const { return Ler(FCpf, FCpfInst, "Cpf"); }
    void SetCpf(std::string AValor) { Gravar(FCpf, FCpfInst, std::move(AValor)); }

    /// The month of the event, then the period of the current run.
    TDateTime DataInicio() const { return Ler(FDataInicio, FDataInicioInst, "DataInicio"); }
    void SetDataInicio(TDateTime AValor) { Gravar(FDataInicio, FDataInicioInst, AValor); }
    TDateTime DataFim() const { return Ler(FDataFim, FDataFimInst, "Datafim"); }
    void SetDataFim(TDateTime AValor) { Gravar(FDataFim, FDataFimInst, AValor); }

    /// 1 January 1900 for a run that doesn't tell it.
    TDateTime DataPagto() const { return Ler(FDataPagto, FDataPagtoInst, "DataPagtoInst"); }
    void SetDataPagto(TDateTime AValor) { Gravar(FDataPagto, FDataPagtoInst, AValor); }

    /// CALCULO.TIPO as a number, 97 for a receipt.
    std::int32_t TipoFolha() const { return Ler(FTipoFolha, FTipoFolhaInst, "TipoFolha"); }
    void SetTipoFolha(std::int32_t AValor) { Gravar(FTipoFolha, FTipoFolhaInst, AValor); }

    std::int32_t SubTipoFolha() const { return Ler(FSubTipoFolha, FSubTipoFolhaInst, "SubTipoFolha"); }
    void SetSubTipoFolha(std::int32_t AValor) { Gravar(FSubTipoFolha, FSubTipoFolhaInst, AValor); }

    /// CALCCOMPL.TIPOCALCULO of a complementary run, else 0.
    std::int32_t TipoFolhaCompl() const { return Ler(FTipoFolhaCompl, FTipoFolhaComplInst, "TipoFolhaCompl"); }
    void SetTipoFolhaCompl(std::int32_t AValor) { Gravar(FTipoFolhaCompl, FTipoFolhaComplInst, AValor); }

    /// Monthly, or annual for the thirteenth salary.
    tpIndApuracao IndApuracao() const { return Ler(FIndApuracao, FIndApuracaoInst, "IndApuracao"); }
    void SetIndApuracao(tpIndApuracao AValor) { Gravar(FIndApuracao, FIndApuracaoInst, AValor); }

    /// Contracts and providers of the CPF in the current category.
    std::vector<std::int64_t>& ListaIdsEmpregado() { return FListaIdsEmpregado; }
    const std::vector<std::int64_t>& ListaIdsEmpregado() const { return FListaIdsEmpregado; }
    void SetListaIdsEmpregado(std::vector<std::int64_t> AValor)
    {
        Gravar(FListaIdsEmpregado, FListaIdsEmpregadoInst, std::move(AValor));
    }
    std::vector<std::int64_t>& ListaIdsPrestServico() { return FListaIdsPrestServico; }
    const std::vector<std::int64_t>& ListaIdsPrestServico() const { return FListaIdsPrestServico; }
    void SetListaIdsPrestServico(std::vector<std::int64_t> AValor)
    {
        Gravar(FListaIdsPrestServico, FListaIdsPrestServicoInst, std::move(AValor));
    }

    // Without a guard.

    /// RPA.NRRPA of the current receipt.
    std::int64_t NrReciboRpa = 0;
    /// First day of the earlier period that an agreement refers to.
    TDateTime PerRef;
    /// Branch (1 to 6) of the statement of runs that gave the current row; a receipt leaves it as it was.
    std::int32_t Chave = 0;
    /// FP_INFOGFIP650660 of an agreement, else 0.
    std::int64_t IdAcordo = 0;
    /// Convocation of intermittent work, else 0.
    std::int64_t IdDetConvocacao = 0;

private:
    template <class T>
    static const T& Ler(const T& ACampo, bool AInst, const char* ANome)
    {
        if (!AInst)
            DeuPau(ANome);
        return ACampo;
    }
    template <class T>
    static void Gravar(T& ACampo, bool& AInst, T AValor)
    {
        ACampo = std::move(AValor);
        AInst = true;
    }
    [[noreturn]] static void DeuPau(const char* ANome);

    std::int64_t FIdEmpresa = 0;
    std::int64_t FIdEmpregado = 0;
    TTipoTrabalhador FTipoEmpregado = TTipoTrabalhador::Empregado;
    std::string FCpf;
    TDateTime FDataInicio;
    TDateTime FDataFim;
    TDateTime FDataPagto;
    std::int32_t FTipoFolha = 0;
    std::int32_t FSubTipoFolha = 0;
    std::int32_t FTipoFolhaCompl = 0;
    std::vector<std::int64_t> FListaIdsEmpregado;
    std::vector<std::int64_t> FListaIdsPrestServico;
    tpIndApuracao FIndApuracao = tpIndApuracao::Mensal;

    bool FIdEmpresaInst = false;
    bool FIdEmpregadoInst = false;
    bool FTipoEmpregadoInst = false;
    bool FCpfInst = false;
    bool FDataInicioInst = false;
    bool FDataFimInst = false;
    bool FDataPagtoInst = false;
    bool FTipoFolhaInst = false;
    bool FSubTipoFolhaInst = false;
    bool FTipoFolhaComplInst = false;
    bool FListaIdsEmpregadoInst = false;
    bool FListaIdsPrestServicoInst = false;
    bool FIndApuracaoInst = false;
};

} // namespace tarvo::remuneracao
