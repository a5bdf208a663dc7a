#include "trabalhador/semvinculo/UnTarvoESocialCamposEntidadeEstagio.h"

#include "imports/valores/UnOvraFormat.h"
#include "trabalhador/semvinculo/UnTarvoESocialCamposSqlEstagio.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposEntidadeEstagio::TTarvoESocialCamposEntidadeEstagio(std::string_view AGuid,
                                                                       std::int64_t AIDEmpregado,
                                                                       std::string_view AColuna)
    : TTarvoESocialCamposGrupoBase(AGuid), FIDEmpregado(AIDEmpregado), FColuna(AColuna)
{}

TPropriedades TTarvoESocialCamposEntidadeEstagio::TabelaComCnpj(const TPropriedade& ACnpj)
{
    using Eu = TTarvoESocialCamposEntidadeEstagio;
    return TPropriedades{
        ACnpj,
        {"nmRazao", &Eu::nmRazao, TFieldRelacionado("NOME")},
        {"dscLograd", &Eu::dscLograd, TFieldRelacionado("ENDERECO")},
        {"nrLograd", &Eu::nrLograd, TFieldRelacionado("NUM_END")},
        {"bairro", &Eu::bairro, TFieldRelacionado("BAIRRO")},
        {"cep", &Eu::cep, TFieldRelacionado("CEP")},
        {"codMunic", &Eu::codMunic, TFieldRelacionado("COD_MUNICIPIO")},
        {"uf", &Eu::uf, TFieldRelacionado("UF")},
    };
}

std::string TTarvoESocialCamposEntidadeEstagio::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  PREST_SERVICO.INSCRICAO,
  PREST_SERVICO.NOME,
  PREST_SERVICO.ENDERECO,
  PREST_SERVICO.NUM_END,
  PREST_SERVICO.BAIRRO,
  PREST_SERVICO.CEP,
  PREST_SERVICO.COD_MUNICIPIO,
  PREST_SERVICO.UF
FROM PREST_SERVICO
WHERE PREST_SERVICO.IDPRESTSERVICO = %0:s)";
    return Format(SQL, SqlIdDoEstagio(FColuna, FIDEmpregado));
}

} // namespace tarvo::trabalhador
