#include "UnPagamentoDeTeste.h"

namespace tarvo::testes {
namespace {

class TTesteBeneficiario : public TTestePagamento {};

TEST_F(TTesteBeneficiario, CpfViraOsContratosDaEmpresaEOsPrestadoresDoBanco)
{
    Empregado(1, 101, nullptr, "101.112.223-54");
    Empregado(2, 103, nullptr, "10111222354");
    Empregado(3, 101, nullptr, CPF, D(2018, 2, 5), 2);
    Empregado(4, 101, nullptr, "20211222305");
    Prestador(7, 0, "101.112.223-54");
    Prestador(8, 0, " 10111222354 ");
    Prestador(9, 0, "20211222305");
    for (const char* LCpf : {"10111222354", "101.112.223-54", "101.112.223/54", "101*112*223*54"}) {
        const auto LPagamento = Carregar(D(2018, 7, 1), LCpf);
        EXPECT_EQ("1,2", LPagamento.InfoBind->ListaIdsEmpregado) << LCpf;
        EXPECT_EQ("7,8", LPagamento.InfoBind->ListaIdsPrestServico) << LCpf;
        EXPECT_EQ(LCpf, LPagamento.Evento->ideBenef.cpfBenef);
        EXPECT_TRUE(LPagamento.Pagamentos().empty());
    }
    const auto LNinguem = Carregar(D(2018, 7, 1), "99999999999");
    EXPECT_EQ("0", LNinguem.InfoBind->ListaIdsEmpregado);
    EXPECT_EQ("0", LNinguem.InfoBind->ListaIdsPrestServico);
    EXPECT_EQ(0.0L, LNinguem.Evento->ideBenef.deps.vrDedDep);
}

TEST_F(TTesteBeneficiario, CpfComZerosNaFrenteEhCompletado)
{
    Empregado(1, 101, nullptr, "001.112.223-54");
    EXPECT_EQ("1", Carregar(D(2018, 7, 1), "111222354").InfoBind->ListaIdsEmpregado);
}

TEST_F(TTesteBeneficiario, ContratoAdmitidoDepoisDoPeriodoNaoEntra)
{
    Empregado(1, 101, nullptr, CPF, D(2021, 3, 31));
    Empregado(2, 101, nullptr, CPF, D(2021, 4, 1));
    // Came by definitive transfer after the period, although admitted before it.
    Empregado(3);
    Inserir("MOV_TRANSF", {{"IDEMPREGADO", 3},
                           {"COD_EMPRESA", 1},
                           {"DATAINICIOMOV", D(2021, 4, 1)},
                           {"MOTIVOINICIAL", "TRANSFERENCIA DEFINITIVA"}});
    EXPECT_EQ("1", Carregar().InfoBind->ListaIdsEmpregado);
    Executar("DELETE FROM EMPREGADOS WHERE IDEMPREGADO = 1");
    EXPECT_EQ("0", Carregar().InfoBind->ListaIdsEmpregado);
}

TEST_F(TTesteBeneficiario, DependentesContamPelaDataDeNascimento)
{
    Empregado(1);
    Empregado(2, 103);
    Dependente(1, nullptr, 0, D(2010, 5, 5));
    Dependente(2, nullptr, 0, D(2010, 5, 5));                 // twin: counts once with the first
    Dependente(3, nullptr, 0, D(2010, 5, 5), nullptr, 2);     // the same under the other contract
    Dependente(4, nullptr, 0, D(2015, 1, 1), D(2021, 3, 1));  // last day of the deduction
    Dependente(5, nullptr, 0, D(2016, 1, 1), D(2021, 2, 28)); // ended
    Dependente(6, nullptr, 0, D(2021, 3, 1));                 // born on the first day
    Dependente(7, nullptr, 0, D(2021, 3, 2));                 // born after it
    Prestador(7, 9);
    for (const auto LTipo : {TTipoTrabalhador::Empregado, TTipoTrabalhador::Prestador})
        EXPECT_EQ(R("568,77").ParaExtended(), Carregar(D(2018, 7, 1), CPF, LTipo).Evento->ideBenef.deps.vrDedDep);
}

TEST_F(TTesteBeneficiario, DependentesDoPrestadorSemContratoSaoOMaiorNumero)
{
    Prestador(7, 2);
    Prestador(8, 3);
    Prestador(9, nullptr);
    const auto Deducao = [](TTipoTrabalhador ATipo) {
        return Carregar(D(2018, 7, 1), CPF, ATipo).Evento->ideBenef.deps.vrDedDep;
    };
    EXPECT_EQ(R("568,77").ParaExtended(), Deducao(TTipoTrabalhador::Prestador));
    EXPECT_EQ(0.0L, Deducao(TTipoTrabalhador::Empregado));
}

TEST_F(TTesteBeneficiario, ListaDeGruposAlcancaOsFilhosEFalhaNaoDeixaNadaAberto)
{
    Empregado(1);
    Calculo({.Verba = vLiquido, .Valor = 321.09});
    Calculo({.Verba = vPensao, .Valor = 50});
    Dependente(1, "11111111111", 1);
    auto LPagamento = Construir();
    const TListaCamposModificados LLista{"{nenhum}"};
    LPagamento.Evento->CarregarDados(&LLista);
    // Everything here is computed, and computing isn't the base step that the list leaves out.
    ASSERT_EQ(1U, LPagamento.Pagamentos().size());
    EXPECT_EQ(321.09, static_cast<double>(LPagamento.Pagamentos()[0]->detPgtoFl.at(0)->vrLiq));
    const auto& LPensao = *LPagamento.Pagamentos()[0]->detPgtoFl[0]->retPgtoTot.at(0)->penAlim.at(0);
    EXPECT_EQ(50.0L, LPensao.vlrPensao);
    EXPECT_EQ("", LPensao.cpfBenef) << "which is read";

    Executar("UPDATE FP_ESOCIALTABELA SET CODIGO = 'ABC' WHERE IDESOCIALTABELA = 101");
    EXPECT_THROW(Carregar(), EDatabaseError);
    Executar("UPDATE FP_ESOCIALTABELA SET CODIGO = '101' WHERE IDESOCIALTABELA = 101");
    EXPECT_EQ(1U, Carregar().Pagamentos().size());
}

TEST_F(TTesteBeneficiario, QuadrosSemFonteFicamVazios)
{
    Empregado(1);
    Calculo({.Verba = vLiquido});
    const auto LJson = Carregar().Evento->ToJson().AsJSON(false);
    for (const char* LParte :
         {R"("IdePgtoExe":{"idePais":{"codPais":"","indNIF":"","nifBenef":""},"endExt":null})",
          R"("detPgtoBenPr":{"perRef":"","ideDmDev":"","indPgtoTt":"","vrLiq":"","retPgtoTot":{"codRubr":"")",
          R"("indResBr":0)"})
        EXPECT_NE(std::string::npos, LJson.find(LParte)) << LJson;
    pagamento::TTarvoESocialCamposIdePgtoExt LExterior(1);
    EXPECT_THROW(LExterior.CarregarDados(), EAccessViolation);
    LExterior.endExt = std::make_unique<pagamento::TTarvoESocialCamposEndExt>(1);
    EXPECT_NO_THROW(LExterior.CarregarDados());
}

} // namespace
} // namespace tarvo::testes
