#pragma once

#include <optional>
#include <string>

#include "apoio/UnBancoDeTeste.h"
#include "imports/valores/UnOvraConversoes.h"
#include "rural/s1250/UnTarvoESocialCamposS1250.h"

namespace tarvo::testes {

/// The sources of purchases, as ATipoConexao says them.
inline constexpr int FOLHA = 1;
inline constexpr int BRENCO = 2;
inline constexpr int EXTERNO = 3;

/// Establishment 10 of company 1, and rows of purchases of March 2021.
class TTesteCompras : public TTesteComBanco {
protected:
    static constexpr const char* CNPJ = "81300700000101";

    void SetUp() override
    {
        TTesteComBanco::SetUp();
        InserirFilial(10, CNPJ);
    }

    static void InserirFilial(int AId, const char* ACnpj, TValorSql AEncerramento = nullptr, TValorSql ACaepf = nullptr,
                              int ATpInscricao = 1)
    {
        Inserir("SC00_EMPRESA", {{"IDEMPRESA", AId}, {"EMPRESA", AId}, {"TPINSCRICAO", 1}});
        Inserir("SC00_FILIAL", {{"IDFILIAL", AId},
                                {"IDEMPRESA", AId},
                                {"FILIAL", 1},
                                {"TPINSCRICAO", ATpInscricao},
                                {"CNPJ", ACnpj},
                                {"MATRICULACAEPF", ACaepf},
                                {"ENCERRAMENTOATIV", AEncerramento}});
    }
    static void InserirPrestador(int AId, const char* ACpf, TValorSql AIndOpcCp = 1,
                                 const char* ACategoria = "00-Segurado Especial", const char* ATipoInscr = "NIT")
    {
        Inserir("PREST_SERVICO", {{"IDPRESTSERVICO", AId},
                                  {"CODIGO", AId},
                                  {"CPF", ACpf},
                                  {"TIPOINSCR", ATipoInscr},
                                  {"CATEGORIA", ACategoria},
                                  {"INDOPCCP", AIndOpcCp}});
    }
    static void InserirMovimento(int APrestador, double AValor, TValorSql AIsenta = nullptr,
                                 TDateTime AInicio = D(2021, 3, 5), TValorSql AFim = nullptr, int AFilial = 10)
    {
        Inserir("MOV_PRESTSERV", {{"COD_PRESTSERV", APrestador},
                                  {"COD_EMPRESA", AFilial},
                                  {"COD_FILIAL", 1},
                                  {"DATA_MOVIMENTO", AInicio},
                                  {"DATAFIMMOV", AFim},
                                  {"VALOR", AValor},
                                  {"PRODUCAOISENTA", AIsenta}});
    }
    /// A process with one suspension, of the id in a column: IDPRESTSERVICO, IDPLANO or IDFILIAL.
    static void InserirProcesso(int AId, const char* AColuna, int ADono, int AAbrang = 7, int ATrib = 2,
                                int ATpImpetrante = 5, TDateTime AAbertura = D(2021, 3, 31))
    {
        Inserir("ES02_SPPROC", {{"IDSPPROC", AId},
                                {AColuna, ADono},
                                {"NUMERO", "P" + std::to_string(AId)},
                                {"DATAABERTURA", AAbertura},
                                {"ABRANGS1250", AAbrang},
                                {"INDMATERIATPTRIB", ATrib},
                                {"TPIMPETRANTE", ATpImpetrante}});
        Inserir("ES02_SPPROCDET", {{"IDSPPROCDET", AId * 10}, {"IDSPPROC", AId}});
    }
    /// A producer of the sibling system, whose plan has the same id.
    static void InserirProdutor(int AId, const char* ACpf, TValorSql AIndOpcCp = 1, int AProdutor = 1,
                                int ATpInscricao = 2)
    {
        Inserir("ES02_CLIFOR", {{"IDCLIFOR", AId},
                                {"CNPJ", ACpf},
                                {"PRODUTOR", AProdutor},
                                {"TPINSCRICAO", ATpInscricao},
                                {"INDOPCCP", AIndOpcCp}});
        Inserir("CO01_PLANO", {{"IDPLANO", AId}, {"IDCLIFOR", AId}});
    }
    struct TEntrada {
        int Id = 1;
        int Filial = 10;
        int Plano = 1;
        TDateTime Data = D(2021, 3, 5);
        const char* Modelo = "04";
        TValorSql Isenta = nullptr;
        double Valor = 1000;
        const char* Cfop = "1.101";
    };
    /// An entry note with one detail.
    static void InserirEntrada(const TEntrada& A)
    {
        Inserir("ES02_ENTRADA", {{"IDENTRADA", A.Id},
                                 {"IDFILIAL", A.Filial},
                                 {"IDPLANO", A.Plano},
                                 {"DATAENTRADA", A.Data},
                                 {"MODELO", A.Modelo},
                                 {"PRODUCAOISENTA", A.Isenta},
                                 {"VLRCONTABIL", A.Valor}});
        Inserir("ES02_CFOP", {{"IDCFOP", A.Id}, {"CFOP", A.Cfop}});
        Inserir("ES02_ENTRADADET", {{"IDENTRADA", A.Id}, {"IDCFOP", A.Id}});
    }
    static void InserirRetencao(int AEntrada, TValorSql AAliquota, double AValor, int AOrigem = 2, int AEspecie = 1)
    {
        const int LDiario = std::stoi(Consultar("SELECT COUNT(*) FROM CO01_DIARIO")) + 1;
        Inserir("CO01_DIARIO",
                {{"IDDIARIO", LDiario}, {"IDESCRITA", AEntrada}, {"ORIGEM", AOrigem}, {"ORIGEMESPECIE", AEspecie}});
        Inserir("TR04_IMPRETIDO", {{"IDDIARIO", LDiario}, {"ALIQUOTA", AAliquota}, {"VLRIMPOSTO", AValor}});
    }

    static rural::TTarvoESocialCamposS1250 Evento(int ATipoConexao, int AFilial = 10)
    {
        return {AFilial, D(2021, 3, 1), D(2021, 3, 31), static_cast<TTipoConexao>(ATipoConexao)};
    }
    /// "inscription: kind=total producer gross/CP/RAT/Senar(process CP/RAT/Senar) {process of the acquirer ...}".
    static std::string Resumo(const rural::TTarvoESocialCamposideEstabAdquirBase& AEstab)
    {
        std::string LTexto = AEstab.nrInscAdq + ":";
        for (const auto& LTipo : AEstab.tpAquis) {
            LTexto += " " + LTipo->indAquis() + "=" + LTipo->vlrTotAquis;
            for (const auto& LProdutor : LTipo->ideProdutor) {
                LTexto += " " + LProdutor->nrInscProd + " " + Valores(*LProdutor);
                for (const auto& LProcesso : LProdutor->infoProcJud)
                    LTexto += "(" + Valores(*LProcesso) + ")";
            }
            for (const auto& LProcesso : LTipo->infoProcJ)
                LTexto += " {" + Valores(*LProcesso) + "}";
        }
        return LTexto;
    }
    static std::string Valores(const rural::TTarvoESocialCamposideProdutorBase& A)
    {
        return FloatToStr(A.vlrBruto) + "/" + FloatToStr(A.vrCPDescPR) + "/" + FloatToStr(A.vrRatDescPR) + "/" +
               FloatToStr(A.vrSenarDesc);
    }
    static std::string Valores(const rural::TTarvoESocialCamposinfoProcBase& A)
    {
        return A.nrProcJud + " " + FloatToStr(A.vrCPNRet) + "/" + FloatToStr(A.vrRatNRet) + "/" +
               FloatToStr(A.vrSenarNRet);
    }
    static std::string Carregar(int ATipoConexao, int AFilial = 10)
    {
        auto LEvento = Evento(ATipoConexao, AFilial);
        LEvento.CarregarDados();
        return Resumo(*LEvento.ideEstabAdquir);
    }
};

/// With the sibling system's tables in the payroll database.
class TTesteComprasComBrenco : public TTesteCompras {
protected:
    void SetUp() override
    {
        TTesteCompras::SetUp();
        FBrenco.emplace(Conexao());
    }
    void TearDown() override
    {
        FBrenco.reset();
        TTesteCompras::TearDown();
    }

private:
    std::optional<TBrencoLigado> FBrenco;
};

} // namespace tarvo::testes
