#pragma once

#include "apoio/UnBancoDeTeste.h"
#include "imports/UnOvraExcecoes.h"
#include "imports/valores/UnOvraConversoes.h"
#include "pagamento/s1210/UnTarvoESocialCamposS1210.h"

namespace tarvo::testes {

/// A calculated row; by default of the payroll of March 2021 of worker 1, paid on its last day.
struct TCalculoDeTeste {
    int Verba;
    double Valor = 100;
    int Empregado = 1;
    const char* Tipo = "01";
    int Subtipo = 0;
    TDateTime Inicio = D(2021, 3, 1);
    TDateTime Fim = D(2021, 3, 31);
    TDateTime Pagto = D(2021, 3, 31);
    double Referencia = 0;
    TValorSql Convocacao = nullptr;
    /// Where the first row counts; else the next one.
    int Id = 0;
};

/// An event that was loaded, with the parameter object that it refers to.
struct TPagamentoCarregado {
    std::unique_ptr<pagamento::TTarvoESocialCamposS1210IOP> InfoBind;
    std::unique_ptr<pagamento::TTarvoESocialCamposS1210> Evento;

    const auto& Pagamentos() const { return Evento->ideBenef.infoPgto; }
};

/// Companies 1 and 2 with an establishment each, the rubrics of a payroll and the codes they need. A rubric's id is 100
/// more than its code, a category's id is its code, that of an income-tax code 9000 more.
class TTestePagamento : public TTesteComBanco {
protected:
    static constexpr const char* CPF = "10111222354";
    enum TVerba { vSalario = 1, vFerias = 12, vInssFerias = 24, vInssFeriasPago = 25, vIrrf = 26, vIrrfFerias = 28 };
    enum TVerbaDeTotal { vPensao = 31, vPensaoFerias = 32, vLiquido = 59, vLiquidoFerias = 60, vLiquidoRescisao = 61 };

    void SetUp() override
    {
        TTesteComBanco::SetUp();
        for (const int LId : {1, 2}) {
            Inserir("SC00_EMPRESA", {{"IDEMPRESA", LId}, {"EMPRESA", LId}});
            Inserir("SC00_FILIAL", {{"IDFILIAL", LId}, {"IDEMPRESA", LId}});
        }
        for (const int LCategoria : {101, 103, 701, 721})
            Codigo(LCategoria, 1, std::to_string(LCategoria));
        for (const char* LIrrf : {"00", "09", "11", "13", "15", "31", "33", "43", "44", "51", "53", "81", "91"})
            Codigo(9000 + std::stoi(LIrrf), 9998, LIrrf);
        Verba(vSalario, "1A", "Sim");
        Verba(vFerias, "7A", "Sim");
        Verba(vInssFerias, "99E");
        Verba(vInssFeriasPago, "99EB");
        Verba(vIrrf, "99F");
        Verba(vIrrfFerias, "99H");
        Verba(vPensao, "5E");
        Verba(vPensaoFerias, "5EA");
        Verba(vLiquido, "98A");
        Verba(vLiquidoFerias, "7L");
        Verba(vLiquidoRescisao, "8J");
    }

    static void Codigo(int AId, int ATabela, const std::string& ACodigo)
    {
        Inserir("FP_ESOCIALTABELA", {{"IDESOCIALTABELA", AId}, {"TABELA", ATabela}, {"CODIGO", ACodigo}});
    }
    /// A rubric of earning when it bears income tax, else a discount.
    static void Verba(int ACodigo, const char* AFormula, const char* AIncide = "Nao")
    {
        const bool LProvento = std::string(AIncide) == "Sim";
        Inserir("TAB_VERBAS", {{"IDVERBA", 100 + ACodigo},
                               {"CODIGO", ACodigo},
                               {"NOME", "Verba " + std::to_string(ACodigo)},
                               {"TIPO", LProvento ? "1" : "2"},
                               {"FORMULA", AFormula},
                               {"INSS_NORMAL", AIncide},
                               {"IRRF_NORMAL", AIncide},
                               {"FGTS", AIncide},
                               {"REMUN_13", "Nao"},
                               {"BC_CSIND", "Nao"},
                               {"HORAS", "Nao"}});
    }
    static void IncidenciaIrrf(int AVerba, int ACodigo)
    {
        static int LId = 0;
        Inserir("FP_ESOCIALINCIDIRRF",
                {{"IDESOCIALINCIDIRRF", ++LId}, {"IDVERBA", 100 + AVerba}, {"IDESOCIALTABELA", 9000 + ACodigo}});
    }
    static void Empregado(int AId, TValorSql ACategoria = 101, TValorSql ADemissao = nullptr,
                          const std::string& ACpf = CPF, TDateTime AAdmissao = D(2018, 2, 5), int AEmpresa = 1)
    {
        Inserir("EMPREGADOS", {{"IDEMPREGADO", AId},
                               {"IDEMPRESA", AEmpresa},
                               {"COD_EMPRESA", AEmpresa},
                               {"COD_EMPREGADO", 1000 + AId},
                               {"CODIGOESOCIAL", "M" + std::to_string(AId)},
                               {"CPF", ACpf},
                               {"IDCATEGORIAESOCIAL", ACategoria},
                               {"DATA_ADMISSAO", AAdmissao},
                               {"DATA_DEMISSAO", ADemissao}});
    }
    static void Prestador(int AId, TValorSql ADependentes = 0, const std::string& ACpf = CPF)
    {
        Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", AId}, {"CPF", ACpf}, {"DEPENDENTESIR", ADependentes}});
    }
    static void Dependente(int AId, TValorSql ACpf, TValorSql APensionista, TDateTime ANascimento = D(2010, 1, 1),
                           TValorSql AFimIrrf = nullptr, int AEmpregado = 1)
    {
        Inserir("DEPENDENTES", {{"IDDEPENDENTE", AId},
                                {"COD_EMPRESA", 1},
                                {"COD_EMPREGADO", 1000 + AEmpregado},
                                {"NOME", "Dependente " + std::to_string(AId)},
                                {"CPF", ACpf},
                                {"DATA_NASCIMENTO", ANascimento},
                                {"DATA_FIM_IRRF", AFimIrrf},
                                {"PENSIONISTA", APensionista}});
    }
    static void Calculo(const TCalculoDeTeste& A)
    {
        static int LId = 1'000'000;
        Inserir("CALCULO", {{"IDCALCULO", A.Id != 0 ? A.Id : ++LId},
                            {"IDEMPREGADO", A.Empregado},
                            {"COD_EMPRESA", 1},
                            {"COD_EMPREGADO", 1000 + A.Empregado},
                            {"COD_VERBA", A.Verba},
                            {"TIPO", A.Tipo},
                            {"SUBTIPO", A.Subtipo},
                            {"DATA_INICIO", A.Inicio},
                            {"DATA_FIM", A.Fim},
                            {"DATA_PAGTO", A.Pagto},
                            {"REFERENCIA", A.Referencia},
                            {"VALOR", A.Valor},
                            {"IDDETCONVOCACAO", A.Convocacao}});
    }
    /// A complementary calculation of worker 1 that is paid on a day; of an agreement when one is given.
    static void Complementar(int ATipoCalculo, TDateTime APagto, TValorSql AAcordo = nullptr,
                             TValorSql AFormaDeTributacao = nullptr)
    {
        Inserir("CALCCOMPL", {{"IDCALCCOMPL", 1},
                              {"TIPOCALCULO", ATipoCalculo},
                              {"FORMATRIBUTACAO", AFormaDeTributacao},
                              {"IDINFOGFIP650660", AAcordo}});
        Inserir("FP_CALCCOMPLEMPREG", {{"IDCALCCOMPL", 1}, {"IDEMPREGADO", 1}});
        Inserir("CALCCOMPLPER", {{"IDCALCCOMPL", 1}, {"COMPET_PGTO", APagto}});
    }
    static void Acordo(TDateTime AData)
    {
        Inserir("FP_INFOGFIP650660", {{"IDINFOGFIP650660", 1}, {"DATAOCORRENCIA", AData}});
    }
    /// A receipt at the establishment (and company) AFilial, with its net.
    static void Recibo(int ANumero, int APrestador, TDateTime ACompetencia, TDateTime APagto, double ALiquido,
                       int AFilial = 1)
    {
        if (Consultar("SELECT COUNT(*) FROM RPATPVALOR") == "0")
            Inserir("RPATPVALOR", {{"IDRPATPVALOR", 5}, {"NOME", "VLRLIQUIDO"}});
        Inserir("RPA", {{"IDRPA", ANumero},
                        {"NRRPA", ANumero},
                        {"IDPRESTSERVICO", APrestador},
                        {"IDFILIAL", AFilial},
                        {"COMPETENCIA", ACompetencia},
                        {"DATAPAGTO", APagto}});
        Inserir("RPAVALOR", {{"IDRPA", ANumero}, {"IDRPATPVALOR", 5}, {"VALOR", ALiquido}});
    }

    /// March 2021; the date of change of layout is 1 July 2018 unless told.
    static TPagamentoCarregado Construir(TDateTime AVigencia = D(2018, 7, 1), const std::string& ACpf = CPF,
                                         TTipoTrabalhador ATipo = TTipoTrabalhador::Empregado)
    {
        TPagamentoCarregado LPagamento;
        LPagamento.InfoBind = std::make_unique<pagamento::TTarvoESocialCamposS1210IOP>();
        LPagamento.InfoBind->IdEmpresa = 1;
        LPagamento.InfoBind->Cpf = ACpf;
        LPagamento.InfoBind->TipoTrabalhador = ATipo;
        LPagamento.InfoBind->DataInicio = D(2021, 3, 1);
        LPagamento.InfoBind->DataFim = D(2021, 3, 31);
        LPagamento.InfoBind->DataInicioVigencia = AVigencia;
        LPagamento.Evento = std::make_unique<pagamento::TTarvoESocialCamposS1210>(*LPagamento.InfoBind);
        return LPagamento;
    }
    static TPagamentoCarregado Carregar(TDateTime AVigencia = D(2018, 7, 1), const std::string& ACpf = CPF,
                                        TTipoTrabalhador ATipo = TTipoTrabalhador::Empregado)
    {
        auto LPagamento = Construir(AVigencia, ACpf, ATipo);
        LPagamento.Evento->CarregarDados();
        return LPagamento;
    }
};

} // namespace tarvo::testes
