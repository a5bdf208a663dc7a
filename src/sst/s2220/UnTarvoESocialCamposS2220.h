#pragma once

#include "framework/UnTarvoESocialCamposQuadro.h"
#include "trabalhador/vinculo/UnTarvoESocialCamposideVinculo.h"

namespace tarvo::sst {

/// S-2220 respMonit: who answers for the monitoring.
class TTarvoESocialCamposrespMonit : public TTarvoESocialCamposQuadro<TTarvoESocialCamposrespMonit> {
public:
    TTarvoESocialCamposrespMonit() : TTarvoESocialCamposQuadro("{BBDB7727-0068-4027-AC99-DE57FAE70397}") {}

    std::string NisResp;
    std::string NrConsClasse;
    std::string UfConsClasse;

    static TPropriedades Tags()
    {
        return {{"NisResp", &Eu::NisResp}, {"NrConsClasse", &Eu::NrConsClasse}, {"UfConsClasse", &Eu::UfConsClasse}};
    }
};

/// S-2220 exame: one examination, added by the caller.
class TTarvoESocialCamposexame : public TTarvoESocialCamposQuadro<TTarvoESocialCamposexame> {
public:
    TTarvoESocialCamposexame() : TTarvoESocialCamposQuadro("{1F0E962E-2CFC-4A8F-B32B-7FBC1E033556}") {}

    TDateTime DtExm;
    std::int32_t ProcRealizado = 0;
    std::string obsProc;
    std::int32_t interprExm = 0;
    std::int32_t ordExame = 0;
    TDate dtIniMonit;
    TDate dtFimMonit;
    std::int32_t indResult = 0;
    TTarvoESocialCamposrespMonit respMonit;

    static TPropriedades Tags()
    {
        return {{"DtExm", &Eu::DtExm},           {"ProcRealizado", &Eu::ProcRealizado}, {"obsProc", &Eu::obsProc},
                {"interprExm", &Eu::interprExm}, {"ordExame", &Eu::ordExame},           {"dtIniMonit", &Eu::dtIniMonit},
                {"dtFimMonit", &Eu::dtFimMonit}, {"indResult", &Eu::indResult},         {"respMonit", &Eu::respMonit}};
    }
};

/// S-2220 CRM.
class TTarvoESocialCamposCrm : public TTarvoESocialCamposQuadro<TTarvoESocialCamposCrm> {
public:
    TTarvoESocialCamposCrm() : TTarvoESocialCamposQuadro("{CA0F88DC-569E-422E-B5C0-F1AB5275E5D8}") {}

    std::string NrCRM;
    std::string UfCRM;

    static TPropriedades Tags() { return {{"NrCRM", &Eu::NrCRM}, {"UfCRM", &Eu::UfCRM}}; }
};

/// S-2220 medico.
class TTarvoESocialCamposMedico : public TTarvoESocialCamposQuadro<TTarvoESocialCamposMedico> {
public:
    TTarvoESocialCamposMedico() : TTarvoESocialCamposQuadro("{FBA0A22A-9BF5-4909-B78E-66E86F9683AD}") {}

    std::string NmMed;
    TTarvoESocialCamposCrm CRM;

    static TPropriedades Tags() { return {{"NmMed", &Eu::NmMed}, {"CRM", &Eu::CRM}}; }
};

/// S-2220 ideServSaude: the health service.
class TTarvoESocialCamposIdeServSaude : public TTarvoESocialCamposQuadro<TTarvoESocialCamposIdeServSaude> {
public:
    TTarvoESocialCamposIdeServSaude() : TTarvoESocialCamposQuadro("{20396040-8FF2-43E2-9AFA-EA98945810D0}") {}

    std::string CodCNES;
    std::string FrmCtt;
    std::string Email;
    TTarvoESocialCamposMedico Medico;

    static TPropriedades Tags()
    {
        return {{"CodCNES", &Eu::CodCNES}, {"FrmCtt", &Eu::FrmCtt}, {"Email", &Eu::Email}, {"Medico", &Eu::Medico}};
    }
};

/// S-2220 aso: the health certificate. Its examinations are not loaded: there is nothing to load.
class TTarvoESocialCamposAso : public TTarvoESocialCamposQuadro<TTarvoESocialCamposAso> {
public:
    TTarvoESocialCamposAso() : TTarvoESocialCamposQuadro("{75ACB68E-B0C6-494D-9A50-C25A0842C1AB}") {}

    TDateTime DtAso;
    std::int32_t tpAso = 0;
    std::int32_t ResAso = 0;
    TListaDeGrupos<TTarvoESocialCamposexame> Exame;
    TTarvoESocialCamposIdeServSaude IdeServSaude;

    static TPropriedades Tags()
    {
        return {{"DtAso", &Eu::DtAso},
                {"tpAso", &Eu::tpAso},
                {"ResAso", &Eu::ResAso},
                {"Exame", &Eu::Exame},
                {"IdeServSaude", &Eu::IdeServSaude}};
    }
};

/// Event S-2220: health monitoring of a worker. A frame that the caller fills; only ideVinculo reads the database.
class TTarvoESocialCamposS2220 : public TTarvoESocialCamposQuadro<TTarvoESocialCamposS2220> {
public:
    explicit TTarvoESocialCamposS2220(std::int64_t AIDEmpregado)
        : TTarvoESocialCamposQuadro("{B3BB7169-2FFC-46A1-AE0D-A0CD9E267116}", AIDEmpregado), ideVinculo(AIDEmpregado)
    {}

    trabalhador::TTarvoESocialCamposideVinculo ideVinculo;
    TTarvoESocialCamposAso aso;

    static TPropriedades Tags() { return {{"ideVinculo", &Eu::ideVinculo}, {"aso", &Eu::aso}}; }
};

} // namespace tarvo::sst
