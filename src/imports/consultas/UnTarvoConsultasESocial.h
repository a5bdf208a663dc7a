#pragma once

#include <cstdint>
#include <string>

#include "imports/pcesConversaoeSocial.h"
#include "imports/valores/UnOvraDataHora.h"

namespace tarvo {

/// The dates from which a company is in the eSocial; 0 where nothing is set.
struct TDatasInicioESocial {
    TDateTime DataInicio;
    /// The start that counts for the employer's workers: the second date of the setting, or the first without one.
    TDateTime DataInicioEmpregador;
};

/// Tributes that a legal process is about.
struct TTpTribs {
    bool IRRF = false;
    bool INSS = false;
    bool FGTS = false;
    bool CS = false;
};

/// Contributions of a rural purchase that a legal process is about.
struct TTiposContribIncid1250 {
    bool CP = false;
    bool RAT = false;
    bool Senar = false;
};

/// eSocial settings and events already sent.
class TTarvoConsultasESocial {
public:
    /// The newest setting of the company, whatever its validity. EConvertError when it holds a text that is no date.
    static TDatasInicioESocial BuscarDataInicioEmpresaEsocial(std::int64_t AIDEmpresa);
    /// Start of the test environment.
    static TDateTime BuscarDataInicioAmbienteTeste();
    /// Indicator of the simplified tax regime at a date: the department's if it has one in force, else that of the
    /// establishment (of the department's own where AIDEstab is 0); 0 when there is none.
    static std::int32_t BuscarIndSimples(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData);
    /// Receipt of the newest accepted event of a kind for a worker, in an environment; empty when there is none.
    /// AIDEvento and AData, where they aren't 0, narrow the search to one stored event and to one period.
    static std::string BuscarNumeroDeRecibo(std::int64_t AIDEmpresa, TTipoEventoFolha ATipo,
                                            std::int64_t AIDTrabalhador, std::int64_t AIDEvento, std::int32_t ATpAmb,
                                            TDateTime AData);
    /// The tributes of ES02_SPPROC.INDMATERIATPTRIB, from its bits.
    static TTpTribs RetornarTpTribsMarcados(std::int32_t ACodigo);
    /// The contributions of ES02_SPPROC.ABRANGS1250, from its bits.
    static TTiposContribIncid1250 RetornarTiposContribIncid1250(std::int32_t ACodigo);
};

} // namespace tarvo
