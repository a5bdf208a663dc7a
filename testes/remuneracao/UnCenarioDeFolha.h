#pragma once

#include "apoio/UnBancoDeTeste.h"
#include "imports/valores/UnOvraConversoes.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"

namespace tarvo::testes {

/// A payroll to test with: company 1 (code 7), establishments 1 and 2 with departments 10 and 20, employee 1 (code 101)
/// of category 101, CPF 111.222.333-96. The run of the parameter object is the normal payroll of March 2021.
class TTesteDeFolha : public TTesteComBanco {
protected:
    static constexpr const char* CPF = "111.222.333-96";

    void SetUp() override;

    /// Rubric whose IDVERBA is 1000 more than its code.
    void Verba(int ACodigo, const char* AFormula, TCamposSql AOutros = {});
    /// Nature of a rubric since 2018.
    void Natureza(int ACodVerba, const char* ANatureza);
    struct TLinha {
        const char* Tipo = "01";
        int SubTipo = 0;
        TDateTime Inicio = D(2021, 3, 1);
        TDateTime Fim = D(2021, 3, 31);
        TDateTime Pagto = D(2021, 3, 31);
        std::int64_t IdEmpregado = 1;
        int Filial = 1;
        TValorSql Depto = nullptr;
        TValorSql Convocacao = nullptr;
        double Base = 0;
        double Referencia = 0;
        int CodEmpresa = 7;
    };
    /// A row of CALCULO; gives its id.
    std::int64_t Calculo(int ACodVerba, double AValor, const TLinha& ALinha);
    std::int64_t Calculo(int ACodVerba, double AValor) { return Calculo(ACodVerba, AValor, TLinha()); }
    void Quebra(std::int64_t AIdCalculo, int AFilial, TValorSql ADepto, double AValor, int ADias);
    /// How the company splits its guides: 0 not at all, 3 by department.
    void TipoDeQuebra(int ATipo);
    /// A complementary calculation of employee 1, with a period and a day of payment.
    void Complementar(int AId, int ATipoCalculo, TDateTime AInicio, TDateTime AFim, TDateTime APagto,
                      TValorSql AAcordo = nullptr);
    void Acordo(int AId, TDateTime AOcorrencia);
    void Prestador(std::int64_t AId, const char* ACpf, int AIdCategoria);
    /// A kind of value of a receipt, with its nature and the incidences that Recibo makes.
    void TipoDeValor(int AId, int ASequencia, int AIdNatureza);
    /// A receipt with one value (kind 1).
    void Recibo(std::int64_t AId, std::int64_t ANumero, std::int64_t AIdPrestador, TDateTime APagto, double AValor,
                int AFilial = 1, TValorSql ADepto = nullptr);

    remuneracao::TTarvoESocialCamposS1200IOP Info;

private:
    std::int64_t FUltimoCalculo = 0;
};

} // namespace tarvo::testes
