#pragma once

#include "sst/UnTarvoESocialCamposinfoAmb.h"
#include "trabalhador/UnTarvoESocialCamposideVinculo.h"

namespace tarvo::sst {

/// S-2241 iniInsalPeric.
class TTarvoESocialCamposiniInsalPeric : public TTarvoESocialCamposQuadro {
public:
    explicit TTarvoESocialCamposiniInsalPeric(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposQuadro("{DEDDA557-E6A7-4211-8E4F-CF31329E90C7}", AIdInsalPeric), infoAmb(AIdInsalPeric)
    {}

    TDateTime dtIniCondicao;
    TTarvoESocialCamposinfoAmb infoAmb;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override
    {
        CarregarComFilhos(AListaCamposModificados, {&infoAmb});
    }

protected:
    const TPropriedades& Propriedades() const override
    {
        using Eu = TTarvoESocialCamposiniInsalPeric;
        static const TPropriedades tabela{{"dtIniCondicao", &Eu::dtIniCondicao}, {"infoAmb", &Eu::infoAmb}};
        return tabela;
    }
};

/// S-2241 altInsalPeric.
class TTarvoESocialCamposaltInsalPeric : public TTarvoESocialCamposQuadro {
public:
    explicit TTarvoESocialCamposaltInsalPeric(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposQuadro("{C41EE4D7-5E9B-449E-845A-E6163D50A018}", AIdInsalPeric), infoAmb(AIdInsalPeric)
    {}

    TDateTime dtAltCondicao;
    TTarvoESocialCamposinfoAmb infoAmb;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override
    {
        CarregarComFilhos(AListaCamposModificados, {&infoAmb});
    }

protected:
    const TPropriedades& Propriedades() const override
    {
        using Eu = TTarvoESocialCamposaltInsalPeric;
        static const TPropriedades tabela{{"dtAltCondicao", &Eu::dtAltCondicao}, {"infoAmb", &Eu::infoAmb}};
        return tabela;
    }
};

/// S-2241 fimInsalPeric.
class TTarvoESocialCamposfimInsalPeric : public TTarvoESocialCamposQuadro {
public:
    explicit TTarvoESocialCamposfimInsalPeric(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposQuadro("{9F9D3C82-0F9F-483F-8AB4-13872F0C0073}", AIdInsalPeric), infoAmb(AIdInsalPeric)
    {}

    TDateTime dtFimCondicao;
    TTarvoESocialCamposinfoAmb infoAmb;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override
    {
        CarregarComFilhos(AListaCamposModificados, {&infoAmb});
    }

protected:
    const TPropriedades& Propriedades() const override
    {
        using Eu = TTarvoESocialCamposfimInsalPeric;
        static const TPropriedades tabela{{"dtFimCondicao", &Eu::dtFimCondicao}, {"infoAmb", &Eu::infoAmb}};
        return tabela;
    }
};

/// S-2241 iniAposentEsp.
class TTarvoESocialCamposiniAposentEsp : public TTarvoESocialCamposQuadro {
public:
    explicit TTarvoESocialCamposiniAposentEsp(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposQuadro("{89D47C59-6E27-42EF-AA70-0B458730671C}", AIdInsalPeric), infoAmb(AIdInsalPeric)
    {}

    TDateTime dtIniCondicao;
    TTarvoESocialCamposinfoAmb infoAmb;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override
    {
        CarregarComFilhos(AListaCamposModificados, {&infoAmb});
    }

protected:
    const TPropriedades& Propriedades() const override
    {
        using Eu = TTarvoESocialCamposiniAposentEsp;
        static const TPropriedades tabela{{"dtIniCondicao", &Eu::dtIniCondicao}, {"infoAmb", &Eu::infoAmb}};
        return tabela;
    }
};

/// S-2241 altAposentEsp.
class TTarvoESocialCamposaltAposentEsp : public TTarvoESocialCamposQuadro {
public:
    explicit TTarvoESocialCamposaltAposentEsp(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposQuadro("{229E7B1D-6FB5-4787-9592-7C287751F347}", AIdInsalPeric), infoAmb(AIdInsalPeric)
    {}

    TDateTime dtAltCondicao;
    TTarvoESocialCamposinfoAmb infoAmb;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override
    {
        CarregarComFilhos(AListaCamposModificados, {&infoAmb});
    }

protected:
    const TPropriedades& Propriedades() const override
    {
        using Eu = TTarvoESocialCamposaltAposentEsp;
        static const TPropriedades tabela{{"dtAltCondicao", &Eu::dtAltCondicao}, {"infoAmb", &Eu::infoAmb}};
        return tabela;
    }
};

/// S-2241 fimAposentEsp.
class TTarvoESocialCamposfimAposentEsp : public TTarvoESocialCamposQuadro {
public:
    explicit TTarvoESocialCamposfimAposentEsp(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposQuadro("{98897F87-C17E-4046-B21A-ABD156F86DCB}", AIdInsalPeric), infoAmb(AIdInsalPeric)
    {}

    TDateTime dtFimCondicao;
    TTarvoESocialCamposinfoAmb infoAmb;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override
    {
        CarregarComFilhos(AListaCamposModificados, {&infoAmb});
    }

protected:
    const TPropriedades& Propriedades() const override
    {
        using Eu = TTarvoESocialCamposfimAposentEsp;
        static const TPropriedades tabela{{"dtFimCondicao", &Eu::dtFimCondicao}, {"infoAmb", &Eu::infoAmb}};
        return tabela;
    }
};

/// S-2241 insalPeric: unhealthy or dangerous work.
class TTarvoESocialCamposinsalPeric : public TTarvoESocialCamposQuadro {
public:
    explicit TTarvoESocialCamposinsalPeric(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposQuadro("{7F32C9EF-1CED-4B6A-8E9A-FEB846F0E854}", AIdInsalPeric),
          iniInsalPeric(AIdInsalPeric), altInsalPeric(AIdInsalPeric), fimInsalPeric(AIdInsalPeric)
    {}

    TTarvoESocialCamposiniInsalPeric iniInsalPeric;
    TTarvoESocialCamposaltInsalPeric altInsalPeric;
    TTarvoESocialCamposfimInsalPeric fimInsalPeric;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override
    {
        CarregarComFilhos(AListaCamposModificados, {&iniInsalPeric, &altInsalPeric, &fimInsalPeric});
    }

protected:
    const TPropriedades& Propriedades() const override
    {
        using Eu = TTarvoESocialCamposinsalPeric;
        static const TPropriedades tabela{{"iniInsalPeric", &Eu::iniInsalPeric},
                                          {"altInsalPeric", &Eu::altInsalPeric},
                                          {"fimInsalPeric", &Eu::fimInsalPeric}};
        return tabela;
    }
};

/// S-2241 aposentEsp: special retirement, its end first.
class TTarvoESocialCamposaposentEsp : public TTarvoESocialCamposQuadro {
public:
    explicit TTarvoESocialCamposaposentEsp(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposQuadro("{E7EF4857-2E7B-4460-B91D-FE65914F64B4}", AIdInsalPeric),
          fimAposentEsp(AIdInsalPeric), iniAposentEsp(AIdInsalPeric), altAposentEsp(AIdInsalPeric)
    {}

    TTarvoESocialCamposfimAposentEsp fimAposentEsp;
    TTarvoESocialCamposiniAposentEsp iniAposentEsp;
    TTarvoESocialCamposaltAposentEsp altAposentEsp;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override
    {
        CarregarComFilhos(AListaCamposModificados, {&fimAposentEsp, &iniAposentEsp, &altAposentEsp});
    }

protected:
    const TPropriedades& Propriedades() const override
    {
        using Eu = TTarvoESocialCamposaposentEsp;
        static const TPropriedades tabela{{"fimAposentEsp", &Eu::fimAposentEsp},
                                          {"iniAposentEsp", &Eu::iniAposentEsp},
                                          {"altAposentEsp", &Eu::altAposentEsp}};
        return tabela;
    }
};

/// Event S-2241: unhealthy or dangerous work and special retirement. A frame that the caller fills; only ideVinculo
/// reads the database, and takes the id of the condition as if it were a worker's; meant.
class TTarvoESocialCamposS2241 : public TTarvoESocialCamposQuadro {
public:
    explicit TTarvoESocialCamposS2241(std::int64_t AIdInsalPeric)
        : TTarvoESocialCamposQuadro("{80A12DC3-308C-416B-A444-5BBA5D68AB44}", AIdInsalPeric), ideVinculo(AIdInsalPeric),
          insalPeric(AIdInsalPeric), aposentEsp(AIdInsalPeric)
    {}

    trabalhador::TTarvoESocialCamposideVinculo ideVinculo;
    TTarvoESocialCamposinsalPeric insalPeric;
    TTarvoESocialCamposaposentEsp aposentEsp;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override
    {
        CarregarComFilhos(AListaCamposModificados, {&ideVinculo, &insalPeric, &aposentEsp});
    }

protected:
    const TPropriedades& Propriedades() const override
    {
        using Eu = TTarvoESocialCamposS2241;
        static const TPropriedades tabela{
            {"ideVinculo", &Eu::ideVinculo}, {"insalPeric", &Eu::insalPeric}, {"aposentEsp", &Eu::aposentEsp}};
        return tabela;
    }
};

} // namespace tarvo::sst
