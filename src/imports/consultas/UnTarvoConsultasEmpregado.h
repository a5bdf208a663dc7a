#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "imports/UnTarvoTypesGeral.h"
#include "imports/banco/UnOvraClientDataSet.h"
#include "imports/valores/UnOvraDataHora.h"

namespace tarvo {

/// The digits of a column that holds a CPF, as an expression. The punctuation is taken off by the engine's own functions,
/// which cost a fraction of a procedure call for each row.
std::string SqlDigitosDoCpf(std::string_view AColuna);

/// Look-ups of workers (EMPREGADOS, one row a contract). A CPF is compared by its digits on both sides; one without
/// digits is nobody's. Dates come without a time of day.
class TTarvoConsultasEmpregado {
public:
    /// The company of a contract; 0 when there is none.
    static std::int64_t BuscarIDEmpresaDoEmpregado(std::int64_t AIDEmpregado);
    /// Code of the worker's category; empty when there is none.
    static std::string BuscarCodCategoriaEmpregado(std::int64_t AIDEmpregado);
    /// CPF of an employee or of a service provider, as stored; empty when there is none.
    static std::string BuscarCpfTrabalhador(std::int64_t AIDTrabalhador,
                                            TTipoTrabalhador ATipo = TTipoTrabalhador::Empregado);
    /// DATA_ADMISSAO and IDEMPRESA of a contract; no row when there is none.
    static TDataset BuscarDadosEmpregado(std::int64_t AIDEmpregado);
    /// The worker of a stored event. Where the event's row isn't about a worker, the id that it keeps (for a periodic
    /// event the CPF as a number); 0 when there is no such event.
    static std::int64_t BuscarIdTrabalhadorPeloIdEvento(std::int64_t AIdEvento);

    /// The day on which the contract began at its company: the first definitive transfer into it, else the admission.
    static TDateTime BuscarAdmissaoOuTransfDefinitivaInicial(std::int64_t AIDEmpregado);
    /// The day of the dismissal; 0 when there is none.
    static TDateTime BuscarDataDemissao(std::int64_t AIDEmpregado);
    /// The end of the contract: the dismissal, else the last definitive transfer to another company; 0 when there is
    /// none. With ASomenteTransf the dismissal doesn't count.
    static TDateTime BuscarDataDemissaoOuTransfDefinitiva(std::int64_t AIDEmpregado, bool ASomenteTransf = false);
    /// The same day as an expression over a row of EMPREGADOS, for statements that list contracts by it.
    static std::string ExpressaoDemissaoOuTransfDefinitiva(bool ASomenteTransf = false);
    /// True when one of the contracts (comma text of ids) has a definitive transfer to another company on a day of the
    /// interval, ends included.
    static bool EncontrouMovimPorTransfDefinitivaParaOhEmpregado(std::string_view AIds, TDateTime ADataInicio,
                                                                 TDateTime ADataFim);

    /// True when the CPF's contracts at the company that are active on the date have more than one category.
    static bool ExistemVariosVinculosAtivosComCategDiferentes(std::int64_t AIDEmpresa, std::string_view ACpf,
                                                              TDateTime AData);
    /// The same for the CPF and the company of a contract.
    static bool ExistemVariosVinculosAtivosComCategDiferentes(std::int64_t AIDEmpregado, TDateTime AData);

    /// Indicator of the social-security deduction of a CPF at a company, the highest of its contracts; 0 when none.
    static std::int32_t BuscarIndicadorDescontoINSS(std::int64_t AIDEmpresa, std::string_view ACpf);

    /// Ids, as text and in order, of the legal processes of a worker that were opened on or before the date: those of
    /// the contract, or where AIDEmpregado is 0 those of every contract of the CPF at the company.
    static std::vector<std::string> BuscarProcessosDoEmpregado(std::int64_t AIDEmpresa, std::int64_t AIDEmpregado,
                                                               std::string_view ACpf, TDateTime AData);
    /// The same with the rows of ES02_SPPROC.
    static TDataset BuscarDadosProcessosDoEmpregado(std::int64_t AIDEmpresa, std::int64_t AIDEmpregado,
                                                    std::string_view ACpf, TDateTime AData);
};

} // namespace tarvo
