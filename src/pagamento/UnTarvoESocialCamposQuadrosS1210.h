#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::pagamento {

// Frames of S-1210 that declare tags and read nothing.

/// infoPgtoParc: a rubric of a partial payment. Nothing loads it.
class TTarvoESocialCamposInfoPgtoParc : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoPgtoParc(std::int64_t AIdEmpregado);

    std::string codRubr;
    std::string ideTabRubr;
    std::string qtdRubr;
    std::string fatorRubr;
    std::string vrUnit;
    std::string vrRubr;
    std::string Matricula;

protected:
    const TPropriedades& Propriedades() const override;

private:
    std::int64_t FIdEmpregado;
};

/// InfoPgtoAnt: what was paid under one incidence of income tax, in reais. detPgtoAnt sets both.
class TTarvoESocialCamposInfoPgtoAnt : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposInfoPgtoAnt(std::int64_t AIdEmpregado);

    std::string tpBcIRRF;
    long double vrBcIRRF = 0;

protected:
    const TPropriedades& Propriedades() const override;

private:
    std::int64_t FIdEmpregado;
};

/// idePais: country of a beneficiary abroad. Nothing fills it.
class TTarvoESocialCamposIdePais : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposIdePais(std::int64_t AIdEmpregado);

    std::string codPais;
    std::string indNIF;
    std::string nifBenef;

protected:
    const TPropriedades& Propriedades() const override;

private:
    std::int64_t FIdEmpregado;
};

/// endExt: address abroad. Nothing fills it.
class TTarvoESocialCamposEndExt : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposEndExt(std::int64_t AIdEmpregado);

    std::string dscLograd;
    std::string nrLograd;
    std::string complem;
    std::string bairro;
    std::string nmCid;
    std::string codPostal;

protected:
    const TPropriedades& Propriedades() const override;

private:
    std::int64_t FIdEmpregado;
};

/// idePgtoExt: payment abroad. No load of the event reaches it. Its endExt has no object until a caller gives it one:
/// a load without it raises EAccessViolation.
class TTarvoESocialCamposIdePgtoExt : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposIdePgtoExt(std::int64_t AIdEmpregado);

    TTarvoESocialCamposIdePais idePais;
    std::unique_ptr<TTarvoESocialCamposEndExt> endExt;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

protected:
    const TPropriedades& Propriedades() const override;
};

} // namespace tarvo::pagamento
