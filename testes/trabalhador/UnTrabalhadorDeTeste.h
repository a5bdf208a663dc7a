#pragma once

#include <string>
#include <vector>

#include "apoio/UnBancoDeTeste.h"
#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::testes {

/// A list that leaves every group out.
inline const TListaCamposModificados NENHUM{"{nenhum}"};

/// One company, one establishment with three departments, one worker (7) admitted on 1 February 2021 into the first.
class TTesteComTrabalhador : public TTesteComBanco {
protected:
    static constexpr std::int64_t ID = 7;

    void SetUp() override
    {
        TTesteComBanco::SetUp();
        Inserir("SC00_EMPRESA", {{"IDEMPRESA", 1}, {"EMPRESA", 10}, {"TPINSCRICAO", 1}});
        Inserir("SC00_FILIAL",
                {{"IDFILIAL", 2}, {"IDEMPRESA", 1}, {"FILIAL", 20}, {"TPINSCRICAO", 1}, {"CNPJ", "FILIAL"}});
        for (const int LTipo : {1, 2, 3})
            Inserir("SC00_DEPTO", {{"IDDEPTO", 30 + LTipo},
                                   {"IDFILIAL", 2},
                                   {"DEPTO", 300 + LTipo},
                                   {"TIPODEPTO", LTipo},
                                   {"TPINSCRICAO", LTipo},
                                   {"INSCRICAO", "DEPTO" + std::to_string(LTipo)}});
        Inserir("EMPREGADOS", {{"IDEMPREGADO", ID},
                               {"IDEMPRESA", 1},
                               {"COD_EMPRESA", 10},
                               {"COD_EMPREGADO", 70},
                               {"CODIGOESOCIAL", "MAT-7"},
                               {"DATA_ADMISSAO", D(2021, 2, 1)}});
        Transferir(D(2021, 2, 1), "ADMISSAO", 301);
    }

    void Transferir(TDateTime AData, const char* AMotivo, int ADepto)
    {
        Inserir("MOV_TRANSF", {{"IDEMPREGADO", ID},
                               {"COD_EMPRESA", 10},
                               {"COD_FILIAL", 20},
                               {"COD_DEPTO", ADepto},
                               {"IDFILIAL", 2},
                               {"DATAINICIOMOV", AData},
                               {"MOTIVOINICIAL", AMotivo}});
    }

    /// Configuration of the worker at ORIGEM 90.
    void Configurar(int AEspecie, int ATp, TDateTime AInicio, TValorSql AFim, TValorSql A1, TValorSql A2 = nullptr,
                    TValorSql A3 = nullptr, TValorSql A4 = nullptr)
    {
        Inserir("SC00_EMPREGADOCFG", {{"IDEMPREGADO", ID},
                                      {"COD_EMPRESA", 10},
                                      {"COD_EMPREGADO", 70},
                                      {"ORIGEM", 90},
                                      {"ESPECIE", AEspecie},
                                      {"TP", ATp},
                                      {"DATAINICIO", AInicio},
                                      {"DATAFIM", AFim},
                                      {"INFORMACAO1", A1},
                                      {"INFORMACAO2", A2},
                                      {"INFORMACAO3", A3},
                                      {"INFORMACAO4", A4}});
    }

    /// Detail row of the worker: INFORMACAO1 to INFORMACAO7 in order, those left out null, and INFORMACAO10.
    void Detalhe(int AEspecie, int ATp, std::vector<TValorSql> AInformacoes, TValorSql A10 = nullptr)
    {
        AInformacoes.resize(7, nullptr);
        Inserir("FP_EMPREGADOSDET", {{"IDEMPREGADO", ID},
                                     {"ESPECIE", AEspecie},
                                     {"TP", ATp},
                                     {"INFORMACAO1", AInformacoes[0]},
                                     {"INFORMACAO2", AInformacoes[1]},
                                     {"INFORMACAO3", AInformacoes[2]},
                                     {"INFORMACAO4", AInformacoes[3]},
                                     {"INFORMACAO5", AInformacoes[4]},
                                     {"INFORMACAO6", AInformacoes[5]},
                                     {"INFORMACAO7", AInformacoes[6]},
                                     {"INFORMACAO10", A10}});
    }

    void Empregado(const std::string& AAtribuicao)
    {
        Executar("UPDATE EMPREGADOS SET " + AAtribuicao + " WHERE IDEMPREGADO = " + std::to_string(ID));
    }

    /// What tells each statement of a load apart: the first of the given words that it holds, in the order of the load.
    template <class T>
    std::vector<std::string> OrdemDaCarga(T& AGrupo, const std::vector<std::string>& APalavras,
                                          const std::vector<std::string>* ALista = nullptr)
    {
        std::vector<std::string> LOrdem;
        Conexao().DefinirObservador([&](const TExecucaoSql& AExecucao) {
            for (const auto& LPalavra : APalavras)
                if (AExecucao.Sql.find(LPalavra) != std::string::npos) {
                    LOrdem.push_back(LPalavra);
                    return;
                }
        });
        AGrupo.CarregarDados(ALista);
        Conexao().DefinirObservador({});
        return LOrdem;
    }

    /// A list that names one group of the tree runs that group's statement alone: AGrupos[i] has APalavras[i].
    template <class T>
    void ConferirListaDeUmGrupo(T& AEvento, const std::vector<const TTarvoESocialCamposGrupoBase*>& AGrupos,
                                const std::vector<std::string>& APalavras)
    {
        ASSERT_EQ(AGrupos.size(), APalavras.size());
        for (std::size_t i = 0; i < AGrupos.size(); ++i) {
            const TListaCamposModificados LLista{std::string(AGrupos[i]->GuidClasse())};
            EXPECT_EQ(std::vector<std::string>{APalavras[i]}, OrdemDaCarga(AEvento, APalavras, &LLista)) << LLista[0];
        }
    }
};

} // namespace tarvo::testes
