#pragma once

#include <cstdint>
#include <string>

#include "imports/UnTarvoTypesGeral.h"
#include "imports/valores/UnOvraDataHora.h"

namespace tarvo::pagamento {

/// What the parameter object of a payment hands on to that of its details.
struct TS1210IOPDoDetalhe {
    std::int64_t IdEmpresa = 0;
    /// The worker of a vacation.
    std::int64_t IdEmpregado = 0;
    /// With or without punctuation.
    std::string Cpf;
    /// First and last day of the period; for the details, DataInicio is the competence of the calculation.
    TDateTime DataInicio;
    TDateTime DataFim;
    TDateTime DataPagto;
    /// Date of change of layout: what was calculated before it counts as payment of earlier periods.
    TDateTime DataInicioVigencia;
    TTiposFolha TipoFolha = TTiposFolha::Nenhuma;
    /// CALCULO.SUBTIPO.
    std::int8_t SubTipoFolha = -1;
    /// CALCCOMPL.TIPOCALCULO of a complementary calculation.
    std::int32_t TipoFolhaCompl = 0;
    /// Contracts (IDEMPREGADO); "0" is also the mark of a provider's payment.
    std::string ListaIdsEmpregado = "0";
    /// IDPRESTSERVICO.
    std::string ListaIdsPrestServico = "0";
    /// CALCULO.IDDETCONVOCACAO of an intermittent call, 0 when none.
    std::int64_t IDIntermitente = 0;
};

/// Parameter object of S-1210: what the caller asks for, and then, rewritten during the load, the payment date and the
/// demonstrative that are being loaded. The caller owns it and sets IdEmpresa, TipoTrabalhador, Cpf, DataInicio,
/// DataFim and DataInicioVigencia before the load; a load leaves the values of the last payment date behind, so each
/// beneficiary and period takes a fresh event and a fresh object.
///
/// Lists of ids and of kinds are comma texts; "0" stands for none and is valid in IN (0).
struct TTarvoESocialCamposS1210IOP : TS1210IOPDoDetalhe {
    TTarvoESocialCamposS1210IOP() = default;
    TTarvoESocialCamposS1210IOP(const TTarvoESocialCamposS1210IOP&) = delete;
    TTarvoESocialCamposS1210IOP& operator=(const TTarvoESocialCamposS1210IOP&) = delete;

    TTipoTrabalhador TipoTrabalhador = TTipoTrabalhador::Empregado;
    /// Kind of the payment that is being loaded.
    std::int32_t tpPgto = 0;
    /// RPA.NRRPA of the current receipt.
    std::int64_t NumeroRecibo = 0;
    /// CALCULO.TIPO values of the current payment date.
    std::string ListaTipoFolhaDetPgto = "0";
    /// Of the agreement behind a complementary calculation, 0 when none.
    TDate DataAcordoConvencao;
    /// Category of the current list of contracts.
    std::int32_t CodigoCategoria = 0;
};

} // namespace tarvo::pagamento
