#pragma once

#include "framework/UnTarvoESocialCamposQuadro.h"

namespace tarvo::desligamento {

/// infoAgNocivo: the exposure to harmful agents in the position held on a day. Sources: CARGOS, the contract's category.
class TTarvoESocialCamposinfoAgNocivoDesligamento : public TTarvoESocialCamposGrupoBase {
public:
    /// The occurrence as it stands, unlike in the remuneration.
    std::string grauExp;
    std::int32_t codCateg = 0;

    static const TPropriedades& Tabela();

protected:
    TTarvoESocialCamposinfoAgNocivoDesligamento(std::string_view AGuid, std::int64_t AIdEmpregado, TDateTime ADataBase);

    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIdEmpregado;
    TDateTime FDataBase;
};

class TTarvoESocialCamposinfoAgNocivoS2299 : public TTarvoESocialCamposinfoAgNocivoDesligamento {
public:
    TTarvoESocialCamposinfoAgNocivoS2299(std::int64_t AIdEmpregado, TDateTime ADataBase)
        : TTarvoESocialCamposinfoAgNocivoDesligamento("{962A9094-05E4-4E77-91A4-515D0D45591C}", AIdEmpregado, ADataBase)
    {}
};

class TTarvoESocialCamposinfoAgNocivoS2399 : public TTarvoESocialCamposinfoAgNocivoDesligamento {
public:
    TTarvoESocialCamposinfoAgNocivoS2399(std::int64_t AIdEmpregado, TDateTime ADataBase)
        : TTarvoESocialCamposinfoAgNocivoDesligamento("{82B0B697-6AAB-4724-877E-E403F135DC51}", AIdEmpregado, ADataBase)
    {}
};

/// infoSimples: the simplified tax regime of a lotação on a day.
class TTarvoESocialCamposinfoSimplesDesligamento : public TTarvoESocialCamposGrupoBase {
public:
    /// "0" without a setting.
    std::string indSimples;

    static const TPropriedades& Tabela();

protected:
    TTarvoESocialCamposinfoSimplesDesligamento(std::string_view AGuid, std::int64_t AIDEstabelecimento,
                                               std::int64_t AIDDepartamento, TDateTime ADataBase);

    const TPropriedades& Propriedades() const override { return Tabela(); }
    void AtribuirValoresManualmente() override;

private:
    std::int64_t FIDEstabelecimento;
    std::int64_t FIDDepartamento;
    TDateTime FDataBase;
};

class TTarvoESocialCamposinfoSimplesS2299 : public TTarvoESocialCamposinfoSimplesDesligamento {
public:
    TTarvoESocialCamposinfoSimplesS2299(std::int64_t AIDEstabelecimento, std::int64_t AIDDepartamento,
                                        TDateTime ADataBase)
        : TTarvoESocialCamposinfoSimplesDesligamento("{3B6CE49D-AF4F-4C04-B936-75E4C2E1AE15}", AIDEstabelecimento,
                                                     AIDDepartamento, ADataBase)
    {}
};

class TTarvoESocialCamposinfoSimplesS2399 : public TTarvoESocialCamposinfoSimplesDesligamento {
public:
    TTarvoESocialCamposinfoSimplesS2399(std::int64_t AIDEstabelecimento, std::int64_t AIDDepartamento,
                                        TDateTime ADataBase)
        : TTarvoESocialCamposinfoSimplesDesligamento("{855B50EF-0B26-43B6-B3A1-6A93B2A067FF}", AIDEstabelecimento,
                                                     AIDDepartamento, ADataBase)
    {}
};

/// Frame infoSimples: part of no tree, for the caller to fill.
class TTarvoESocialCamposinfoSimples : public TTarvoESocialCamposQuadro<TTarvoESocialCamposinfoSimples> {
public:
    explicit TTarvoESocialCamposinfoSimples(std::int64_t AIdEmpregado)
        : TTarvoESocialCamposQuadro("{6323EA37-C64A-4DA5-B84E-53BDE8ACEB28}", AIdEmpregado)
    {}

    std::string indSimples;

    static TPropriedades Tags() { return {{"indSimples", &Eu::indSimples}}; }
};

} // namespace tarvo::desligamento
