#pragma once

#include "apoio/UnBancoDeTeste.h"
#include "regras/UnTarvoESocialCamposSqlConfiguracao.h"

namespace tarvo::testes {

/// A company (1) with a head office (1) and a department of it (10), and short ways to configure them.
class TTesteComLugar : public TTesteComBanco {
protected:
    void SetUp() override
    {
        TTesteComBanco::SetUp();
        Inserir("SC00_EMPRESA", {{"IDEMPRESA", 1}, {"TPINSCRICAO", 1}});
        Inserir("SC00_FILIAL", {{"IDFILIAL", 1},
                                {"IDEMPRESA", 1},
                                {"TPINSCRICAO", 1},
                                {"CNPJ", "11222333000181"},
                                {"CODIGOESOCIAL", "F1"},
                                {"EHMATRIZ", 1}});
        Inserir("SC00_DEPTO", {{"IDDEPTO", 10},
                               {"IDFILIAL", 1},
                               {"TPINSCRICAO", 3},
                               {"INSCRICAO", "512345678901"},
                               {"CODIGOESOCIAL", "D10"},
                               {"INICIOATIVIDADE", D(2020, 2, 3)}});
    }

    struct TValidade {
        TDateTime Inicio;
        TValorSql Fim;
    };
    inline static const TValidade SEMPRE{D(2018, 1, 1), nullptr};

    /// A configuration row; the owner is the company, the establishment or the department of the fixture.
    static void Configurar(regras::TTabelaDeConfiguracao ATabela, regras::TChaveDeConfiguracao AChave,
                           const TValidade& AValidade, TValorSql A1, TValorSql A2 = nullptr, TValorSql A3 = nullptr,
                           TValorSql A8 = nullptr, TValorSql A9 = nullptr, TValorSql A10 = nullptr)
    {
        const std::string LColunaDoDono(ATabela.ColunaDoDono);
        Inserir(std::string(ATabela.Nome).c_str(), {{LColunaDoDono.c_str(), LColunaDoDono == "IDDEPARTAMENTO" ? 10 : 1},
                                                    {"ORIGEM", AChave.Origem},
                                                    {"ESPECIE", AChave.Especie},
                                                    {"TP", AChave.Tp},
                                                    {"DATAINICIO", AValidade.Inicio},
                                                    {"DATAFIM", AValidade.Fim},
                                                    {"INFORMACAO1", A1},
                                                    {"INFORMACAO2", A2},
                                                    {"INFORMACAO3", A3},
                                                    {"INFORMACAO8", A8},
                                                    {"INFORMACAO9", A9},
                                                    {"INFORMACAO10", A10}});
    }

    static void Processo(int AId, const char* ANumero)
    {
        Inserir("ES02_SPPROC", {{"IDSPPROC", AId}, {"TPPROCESSO", 2}, {"NUMERO", ANumero}, {"INDMATERIA", 1}});
    }
    static void Suspensao(int AId, int AIdProcesso, TDateTime AData, const char* AIndicador)
    {
        Inserir("ES02_SPPROCDET",
                {{"IDSPPROCDET", AId}, {"IDSPPROC", AIdProcesso}, {"DATA", AData}, {"INDSUSPENSAO", AIndicador}});
    }

    template <class T, class... A>
    static std::unique_ptr<T> Carregar(const A&... AArgumentos)
    {
        auto LGrupo = std::make_unique<T>(AArgumentos...);
        LGrupo->CarregarDados();
        return LGrupo;
    }
};

} // namespace tarvo::testes
