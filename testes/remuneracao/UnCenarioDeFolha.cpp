#include "remuneracao/UnCenarioDeFolha.h"

namespace tarvo::testes {

void TTesteDeFolha::SetUp()
{
    TTesteComBanco::SetUp();
    Inserir("SC00_EMPRESA", {{"IDEMPRESA", 1}, {"EMPRESA", 7}, {"CNPJ", "11222333000181"}});
    for (const auto& [LFilial, LDepto] : {std::pair{1, 10}, {2, 20}}) {
        Inserir("SC00_FILIAL", {{"IDFILIAL", LFilial},
                                {"IDEMPRESA", 1},
                                {"FILIAL", LFilial},
                                {"TPINSCRICAO", 1},
                                {"CNPJ", "1122233300018" + std::to_string(LFilial)},
                                {"CODIGOESOCIAL", "F" + std::to_string(LFilial)}});
        Inserir("SC00_DEPTO", {{"IDDEPTO", LDepto},
                               {"IDFILIAL", LFilial},
                               {"DEPTO", LDepto},
                               {"TIPODEPTO", 1},
                               {"CODIGOESOCIAL", "D" + std::to_string(LDepto)},
                               {"TPINSCRICAO", 3},
                               {"INSCRICAO", "999"}});
    }
    for (const auto& [LId, LCodigo] :
         {std::pair{101, "101"}, {103, "103"}, {721, "721"}, {700, "700"}, {701, "701"}, {723, "723.1"}})
        Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", LId}, {"TABELA", 1}, {"CODIGO", LCodigo}});
    Inserir("EMPREGADOS", {{"IDEMPREGADO", 1},
                           {"IDEMPRESA", 1},
                           {"COD_EMPRESA", 7},
                           {"COD_EMPREGADO", 101},
                           {"CPF", CPF},
                           {"PIS", "170"},
                           {"CODIGOESOCIAL", "MAT1"},
                           {"IDCATEGORIAESOCIAL", 101},
                           {"DATA_ADMISSAO", D(2018, 1, 2)}});

    Info.SetIdEmpresa(1);
    Info.SetCpf(CPF);
    Info.SetDataInicio(D(2021, 3, 1));
    Info.SetDataFim(D(2021, 3, 31));
    Info.SetIndApuracao(tpIndApuracao::Mensal);
}

void TTesteDeFolha::Verba(int ACodigo, const char* AFormula, TCamposSql AOutros)
{
    Inserir("TAB_VERBAS", {{"IDVERBA", 1000 + ACodigo},
                           {"CODIGO", ACodigo},
                           {"TIPO", "1"},
                           {"FORMULA", AFormula},
                           {"NOME", "x"},
                           {"INSS_NORMAL", "Nao"},
                           {"IRRF_NORMAL", "Nao"},
                           {"FGTS", "Nao"},
                           {"REMUN_13", "Nao"},
                           {"DED_IRRF", "Nao"},
                           {"BC_CSIND", "Nao"},
                           {"HORAS", "Nao"}});
    for (const auto& [LColuna, LValor] : AOutros)
        Executar(std::string("UPDATE TAB_VERBAS SET ") + LColuna + " = " + LValor.Texto() +
                 " WHERE CODIGO = " + std::to_string(ACodigo));
}

void TTesteDeFolha::Natureza(int ACodVerba, const char* ANatureza)
{
    Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", 300000 + ACodVerba}, {"TABELA", 3}, {"CODIGO", ANatureza}});
    Inserir("FP_RUBRICARELAC",
            {{"IDVERBA", 1000 + ACodVerba}, {"IDESOCIALTABELA", 300000 + ACodVerba}, {"DATAINICIO", D(2018, 1, 1)}});
}

std::int64_t TTesteDeFolha::Calculo(int ACodVerba, double AValor, const TLinha& ALinha)
{
    Inserir("CALCULO", {{"IDCALCULO", ++FUltimoCalculo},
                        {"IDEMPREGADO", ALinha.IdEmpregado},
                        {"COD_EMPRESA", ALinha.CodEmpresa},
                        {"COD_EMPREGADO", 100 + ALinha.IdEmpregado},
                        {"COD_FILIAL", ALinha.Filial},
                        {"IDFILIAL", ALinha.Filial},
                        {"COD_DEPTO", ALinha.Depto},
                        {"IDDEPARTAMENTO", ALinha.Depto},
                        {"COD_VERBA", ACodVerba},
                        {"TIPO", ALinha.Tipo},
                        {"SUBTIPO", ALinha.SubTipo},
                        {"DATA_INICIO", ALinha.Inicio},
                        {"DATA_FIM", ALinha.Fim},
                        {"DATA_PAGTO", ALinha.Pagto},
                        {"BASE", ALinha.Base},
                        {"REFERENCIA", ALinha.Referencia},
                        {"VALOR", AValor},
                        {"IDDETCONVOCACAO", ALinha.Convocacao}});
    return FUltimoCalculo;
}

void TTesteDeFolha::Quebra(std::int64_t AIdCalculo, int AFilial, TValorSql ADepto, double AValor, int ADias)
{
    Inserir("CALC_QUEBRA", {{"IDCALCULO", AIdCalculo},
                            {"COD_FILIAL", AFilial},
                            {"IDFILIAL", AFilial},
                            {"COD_DEPTO", ADepto},
                            {"IDDEPARTAMENTO", ADepto},
                            {"BASE", 0},
                            {"REFERENCIA", 0},
                            {"VALOR", AValor},
                            {"DIASTRAB", ADias}});
}

void TTesteDeFolha::TipoDeQuebra(int ATipo)
{
    Executar("DELETE FROM SC00_EMPRESACFG WHERE ESPECIE = 19");
    Inserir("SC00_EMPRESACFG", {{"IDEMPRESA", 1},
                                {"ORIGEM", 90},
                                {"ESPECIE", 19},
                                {"TP", 1},
                                {"DATAINICIO", D(2018, 1, 1)},
                                {"INFORMACAO1", std::to_string(ATipo)}});
}

void TTesteDeFolha::Complementar(int AId, int ATipoCalculo, TDateTime AInicio, TDateTime AFim, TDateTime APagto,
                                 TValorSql AAcordo)
{
    Inserir("CALCCOMPL", {{"IDCALCCOMPL", AId},
                          {"COD_EMPRESA", 7},
                          {"TIPO", "01"},
                          {"TIPOCALCULO", ATipoCalculo},
                          {"IDINFOGFIP650660", AAcordo}});
    Inserir("FP_CALCCOMPLEMPREG", {{"IDCALCCOMPL", AId}, {"IDEMPREGADO", 1}});
    Inserir("CALCCOMPLPER", {{"IDCALCCOMPLPER", AId},
                             {"IDCALCCOMPL", AId},
                             {"TIPO", "01"},
                             {"DATA_INICIO", AInicio},
                             {"DATA_FIM", AFim},
                             {"COMPET_PGTO", APagto}});
}

void TTesteDeFolha::Acordo(int AId, TDateTime AOcorrencia)
{
    Inserir(
        "FP_INFOGFIP650660",
        {{"IDINFOGFIP650660", AId}, {"DATAOCORRENCIA", AOcorrencia}, {"CARACTERISTICA", 2}, {"DESCRICAO", "Acordo"}});
}

void TTesteDeFolha::Prestador(std::int64_t AId, const char* ACpf, int AIdCategoria)
{
    Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", AId},
                              {"CPF", ACpf},
                              {"IDCATEGORIAESOCIAL", AIdCategoria},
                              {"NOME", "Prestador"},
                              {"INSCRICAO", "999"},
                              {"CBO", "2611-10"},
                              {"NATATIVIDADE", 1},
                              {"DATANASCIMENTO", D(1980, 5, 6)}});
}

void TTesteDeFolha::TipoDeValor(int AId, int ASequencia, int AIdNatureza)
{
    Inserir("RPATPVALOR", {{"IDRPATPVALOR", AId}, {"SEQUENCIA", ASequencia}, {"NOME", "VLR" + std::to_string(AId)}});
    Inserir("FP_RUBRICARELACRPA", {{"IDRPATPVALOR", AId},
                                   {"IDESOCIALTABELA", AIdNatureza},
                                   {"IDESOCIALTABELACP", 9997},
                                   {"IDESOCIALTABELAIRRF", 9998},
                                   {"IDESOCIALTABELAFGTS", 9996},
                                   {"IDESOCIALTABELACS", 9995}});
}

void TTesteDeFolha::Recibo(std::int64_t AId, std::int64_t ANumero, std::int64_t AIdPrestador, TDateTime APagto,
                           double AValor, int AFilial, TValorSql ADepto)
{
    if (Consultar("SELECT COUNT(*) FROM RPATPVALOR WHERE IDRPATPVALOR = 1") == "0") {
        Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", 3501}, {"TABELA", 3}, {"CODIGO", "3501"}});
        TipoDeValor(1, 1, 3501);
        for (const auto& [LTabela, LCodigo] : {std::pair{9997, "11"}, {9998, "12"}, {9996, "00"}, {9995, "1"}})
            Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", LTabela}, {"TABELA", LTabela}, {"CODIGO", LCodigo}});
    }
    Inserir("RPA", {{"IDRPA", AId},
                    {"NRRPA", ANumero},
                    {"IDPRESTSERVICO", AIdPrestador},
                    {"DATAPAGTO", APagto},
                    {"IDFILIAL", AFilial},
                    {"IDDEPARTAMENTO", ADepto}});
    Inserir("RPAVALOR", {{"IDRPA", AId}, {"IDRPATPVALOR", 1}, {"VALOR", AValor}});
}

} // namespace tarvo::testes
