#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "imports/banco/UnOvraConnection.h"
#include "imports/consultas/UnTarvoConsultasVerbas.h"

namespace tarvo::regras {

/// Which codes of a tribute are asked for.
enum class TTipoRetornoIncidVerbas : std::uint8_t {
    /// The base code and every variant, base code first.
    trTodos = 0,
    /// The base code alone.
    trNormal = 1,
    /// The variant for accumulated income; income tax only.
    trRRA = 2,
    /// The variant for a rubric under a legal process.
    trProcesso = 3,
};

/// Incidence codes of a rubric, by tribute.
struct TIncidVerba {
    /// TAB_VERBAS.CODIGO; 0 when the rubric doesn't exist or is one that no event reports.
    std::int32_t FCodVerba = 0;
    std::vector<std::int32_t> FListInss;
    std::vector<std::int32_t> FListIrrf;
    std::vector<std::int32_t> FListFgts;
    std::vector<std::int32_t> FListCs;
};

/// How a rubric bears on social security, income tax, FGTS and union contribution. The base codes come from the
/// rubric's flags, kind, name and formula (TAB_VERBAS); the variants under a legal process and for accumulated income
/// follow from them. Totals and bases of the calculation have no incidence.
///
/// Every operation raises EDatabaseError when the search itself fails. More than one code of a tribute that was not
/// asked for all of them is told through GOvraUtilsDialogs, and the search goes on. An instance serves one rubric once.
class TTarvoESocialCamposBuscaIncidVerbas {
public:
    /// Told of each rubric of the first fill: its id, how its statements ended, how many rubrics are done and how many
    /// there are.
    using TAcompanhamento = std::function<void(std::int64_t AIdVerba, const TResultStatus& AStatus, std::size_t AFeitas,
                                               std::size_t ATotal)>;

    explicit TTarvoESocialCamposBuscaIncidVerbas(std::int64_t AIdVerba);

    /// All the codes of a rubric.
    static TIncidVerba BuscarIncidencias(std::int64_t AIdVerba);
    /// The codes of the kinds asked for.
    static TIncidVerba BuscarIncidencias(std::int64_t AIdVerba, TTipoRetornoIncidVerbas ATpRetornoInss,
                                         TTipoRetornoIncidVerbas ATpRetornoIrrf, TTipoRetornoIncidVerbas ATpRetornoFgts,
                                         TTipoRetornoIncidVerbas ATpRetornoCs);
    /// trProcesso for each tribute that has a process, trNormal for the others: the codes that an amount is reported
    /// with.
    static TIncidVerba BuscarIncidencias(std::int64_t AIdVerba, const TTributosComProcesso& AProcessos);

    /// Rewrites the rubric's rows in FP_ESOCIALINCIDCP, FP_ESOCIALINCIDIRRF, FP_ESOCIALINCIDFGTS and
    /// FP_ESOCIALINCIDCSIND. Each statement is confirmed by itself, with whatever the caller left open before it; after
    /// one that fails the rest is skipped without a word, and what was confirmed stays.
    static void AtualizarIncidencias(std::int64_t AIdVerba);
    /// Does that for every rubric of the database. Always returns success: whether a rubric failed is told to
    /// AAcompanhamento alone.
    static TResultStatus EfetuarCargaInicialIncidencias(const TAcompanhamento& AAcompanhamento = {});

    /// The step behind AtualizarIncidencias, for a caller who wants to know how it ended.
    void AtualizarIncidVerba();
    const TResultStatus& ResultStatus() const { return FResultStatus; }

private:
    void BuscarIncidVerba();
    void BuscarIncidVerba(TTipoRetornoIncidVerbas ATpRetornoInss, TTipoRetornoIncidVerbas ATpRetornoIrrf,
                          TTipoRetornoIncidVerbas ATpRetornoFgts, TTipoRetornoIncidVerbas ATpRetornoCs);
    void AlimentarListasIncid();
    void AlertarSobreMaisDeUmCodigo() const;
    void EfetuarCargaInicial(const TAcompanhamento& AAcompanhamento);
    void LimparVerbaNoBanco();
    void InserirIncidInssNoBanco();
    void InserirIncidIrrfNoBanco();
    void InserirIncidFgtsNoBanco();
    void InserirIncidCsNoBanco();
    void Inserir(const char* ATributo, std::int32_t ATabela, const std::vector<std::int32_t>& ACodigos);
    void ExecutarSeSemFalha(const std::string& ASql);

    TResultStatus FResultStatus{true, {}};
    TIncidVerba FIncidVerba;
    std::int64_t FIdVerba;
    TTipoRetornoIncidVerbas FTipoRetornoInss = TTipoRetornoIncidVerbas::trTodos;
    TTipoRetornoIncidVerbas FTipoRetornoIrrf = TTipoRetornoIncidVerbas::trTodos;
    TTipoRetornoIncidVerbas FTipoRetornoFgts = TTipoRetornoIncidVerbas::trTodos;
    TTipoRetornoIncidVerbas FTipoRetornoCs = TTipoRetornoIncidVerbas::trTodos;
};

} // namespace tarvo::regras
