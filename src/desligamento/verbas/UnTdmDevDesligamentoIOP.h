#pragma once

#include <cstdint>
#include <string>

#include "imports/UnTarvoTypesCalculos.h"
#include "imports/valores/UnOvraDataHora.h"

namespace tarvo::desligamento {

/// Which calculations a demonstrative of a termination reads. S-2399 knows the first three alone.
enum class TTipoCalculoDesligamento : std::uint8_t {
    Nenhum = 0,
    Rescisao = 1,
    RescisaoComplementar = 2,
    OutroDaCompetencia = 3,
    /// By agreement, convention or dissídio: differences of an earlier period.
    ComplementarPagoNaCompet = 4,
    Intermitente = 5,
};

/// What the groups of one demonstrative need to know; the driver fills it for each, and the lotação that is being
/// loaded stands in IDFilial and IDDepto.
struct TdmDevDesligamentoIOP {
    std::int64_t IDEmpregado = 0;
    TDateTime DataPagamento;
    TDateTime DataInicio;
    TDateTime DataFim;
    /// CALCULO.TIPO as it stands: "05".
    std::string TipoFolha;
    std::int32_t SubTipoFolha = 0;
    /// Nothing sets it.
    std::int32_t GrupoInformacoes = 0;
    TDateTime DataDemissao;
    std::int64_t IDFilial = 0;
    /// 0 for none.
    std::int64_t IDDepto = 0;
    TTipoCalculoDesligamento TipoCalculo = TTipoCalculoDesligamento::Nenhum;
    TTipoQuebraGpsGfip TipoQuebraEmpresa = TTipoQuebraGpsGfip::Nenhuma;

    TDateTime GetPrimeiroDiaMesRescisao() const;
    TDateTime GetUltimoDiaMesRescisao() const;
};

/// Parameters of a demonstrative of S-2299.
struct TdmDevS2299IOP : TdmDevDesligamentoIOP {
    /// CALCCOMPL.TIPOCALCULO.
    std::int32_t TipoCalcComplem = 0;
    /// The agreement behind a complementary calculation (FP_INFOGFIP650660).
    std::int64_t IdAcordoConvencaoDissidio = 0;
    /// The convocation of intermittent work; 0 for none.
    std::int64_t IdDetConvocacaoTrabInterm = 0;
};

/// Parameters of a demonstrative of S-2399.
struct TdmDevS2399IOP : TdmDevDesligamentoIOP {};

} // namespace tarvo::desligamento
