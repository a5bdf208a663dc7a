#include "apoio/UnCasosDeOrdem.h"
#include "imports/consultas/UnTarvoConsultasCAT.h"
#include "imports/consultas/UnTarvoConsultasESocial.h"
#include "imports/consultas/UnTarvoConsultasEmpresa.h"
#include "imports/consultas/UnTarvoConsultasVerbas.h"

namespace tarvo::testes {
namespace {

const auto HOJE = D(2021, 3, 1);

/// A row of a configuration table (its name without SC00_ and CFG) and its owner, with INFORMACAO1.
std::string Cfg(const std::string& ATabela, int AId, const std::string& ADono, const std::string& AEspecieETp,
                const std::string& AInicio, const std::string& AInformacao)
{
    return "SC00_" + ATabela + "CFG (ID" + ATabela + "CFG, ORIGEM, " + ADono +
           ", ESPECIE, TP, DATAINICIO, INFORMACAO1) VALUES (" + std::to_string(AId) + ", 90, 1, " + AEspecieETp +
           ", '" + AInicio + "', '" + AInformacao + "')";
}

class TTesteOrdemDosServicos : public TTesteDeOrdem<TTesteComBanco> {};

TEST_P(TTesteOrdemDosServicos, OResultadoNaoDependeDeQuemFoiGravadoAntes) { Conferir(); }

INSTANTIATE_TEST_SUITE_P(
    Casos, TTesteOrdemDosServicos,
    ::testing::Combine(
        ::testing::ValuesIn(std::vector<TCasoDeOrdem>{
            {"QuebraDaEmpresa",
             {Cfg("EMPRESA", 3, "IDEMPRESA", "19, 1", "01.01.2020", "1"),
              Cfg("EMPRESA", 1, "IDEMPRESA", "19, 1", "01.01.2019", "0"),
              Cfg("EMPRESA", 2, "IDEMPRESA", "19, 1", "01.01.2020", "2")},
             [] { return std::to_string(static_cast<int>(TTarvoConsultasEmpresa::BuscarTipoQuebraGpsGfipEmpresa(1))); },
             "2"},
            {"InicioDaEmpresa",
             {Cfg("EMPRESA", 3, "IDEMPRESA", "38, 10", "01.01.2020", "03/03/2003"),
              Cfg("EMPRESA", 2, "IDEMPRESA", "38, 10", "01.01.2020", "02/02/2002")},
             [] {
                 const auto LInicio = TTarvoConsultasESocial::BuscarDataInicioEmpresaEsocial(1);
                 return std::to_string(LInicio.DataInicio == D(2002, 2, 2));
             },
             "1"},
            {"IndicadorDoSimples",
             {Cfg("DEPARTAMENTO", 3, "IDDEPARTAMENTO", "60, 1", "01.01.2020", "1"),
              Cfg("FILIAL", 3, "IDFILIAL", "60, 1", "01.01.2020", "3"),
              Cfg("DEPARTAMENTO", 2, "IDDEPARTAMENTO", "60, 1", "01.01.2020", "2"),
              Cfg("FILIAL", 2, "IDFILIAL", "60, 1", "01.01.2020", "4")},
             [] {
                 return std::to_string(TTarvoConsultasESocial::BuscarIndSimples(1, 1, HOJE)) + " " +
                        std::to_string(TTarvoConsultasESocial::BuscarIndSimples(1, 2, HOJE));
             },
             "2 4"},
            // Of the newest event: its first accepted detail.
            {"Recibo",
             {"SC00_ESOCIALREINFXML (IDESOCIALREINFXML, IDEMPRESA, TPEVENTO, IDTABELAEVENTO, TPAMB, STATUS, DATA) "
              "VALUES (1, 1, 'S-2299', 5, 1, 201, '01.03.2021')",
              "SC00_ESOCIALREINFDET (IDESOCIALREINFDET, IDEVENTO, STATUS, DESCRICAO) VALUES (3, 1, 201, 'c')",
              "SC00_ESOCIALREINFDET (IDESOCIALREINFDET, IDEVENTO, STATUS, DESCRICAO) VALUES (1, 1, 301, 'b')",
              "SC00_ESOCIALREINFDET (IDESOCIALREINFDET, IDEVENTO, STATUS, DESCRICAO) VALUES (2, 1, 202, 'd')"},
             [] { return TTarvoConsultasESocial::BuscarNumeroDeRecibo(1, TTipoEventoFolha::tefS2299, 5, 0, 1, {}); },
             "d"},
            {"NaturezaDaVerba",
             {"FP_RUBRICARELAC (IDRUBRICARELAC, IDVERBA, IDESOCIALTABELA, DATAINICIO) VALUES (9, 5, 1, '01.01.2020')",
              "FP_ESOCIALTABELA (IDESOCIALTABELA, TABELA, CODIGO) VALUES (1, 3, '1001')",
              "FP_ESOCIALTABELA (IDESOCIALTABELA, TABELA, CODIGO) VALUES (2, 3, '1002')",
              "FP_RUBRICARELAC (IDRUBRICARELAC, IDVERBA, IDESOCIALTABELA, DATAINICIO) VALUES (8, 5, 2, '01.01.2020')"},
             [] { return std::to_string(TTarvoConsultasVerbas::BuscarNatRubrVerba(5, HOJE)); },
             "1002"},
            {"EmpregadoDaCat",
             {"EMPREGADOS (IDEMPREGADO, COD_EMPRESA, COD_EMPREGADO) VALUES (9, 1, 1)",
              "EMPREGADOS (IDEMPREGADO, COD_EMPRESA, COD_EMPREGADO) VALUES (8, 1, 1)",
              "TABCAT (IDTABCAT, COD_EMPRESA, COD_EMPREGADO) VALUES (1, 1, 1)"},
             [] { return std::to_string(TTarvoConsultasCAT::BuscarIdEmpregadoPeloIdTabCat(1)); },
             "8"},
            // Codes that two establishments of the company, and two departments of the first, have alike.
            {"AlocacaoPorCodigos",
             {"SC00_EMPRESA (IDEMPRESA, EMPRESA) VALUES (1, 10)",
              "SC00_FILIAL (IDFILIAL, IDEMPRESA, FILIAL) VALUES (9, 1, 1)",
              "SC00_FILIAL (IDFILIAL, IDEMPRESA, FILIAL) VALUES (8, 1, 1)",
              "SC00_DEPTO (IDDEPTO, IDFILIAL, DEPTO) VALUES (7, 8, 1)",
              "SC00_DEPTO (IDDEPTO, IDFILIAL, DEPTO) VALUES (6, 8, 1)",
              "MOV_TRANSF (IDEMPREGADO, COD_EMPRESA, COD_FILIAL, COD_DEPTO, DATAINICIOMOV) "
              "VALUES (1, 10, 1, 1, '01.01.2020')"},
             [] {
                 return Consultar(
                     "SELECT IDFILIAL || ' ' || IDDEPTO FROM SP_BUSCARALOCACAOEMPREGADO('01.03.2021', NULL, 1)");
             },
             "8 6"},
        }),
        ::testing::Bool()),
    NomeDoCasoDeOrdem);

} // namespace
} // namespace tarvo::testes
