#include "trabalhador/s2260/UnTarvoESocialCamposLocalTrabInterm.h"

#include "imports/valores/UnOvraFormat.h"
#include "trabalhador/s2260/UnTarvoESocialCamposSqlConvocacao.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposLocalTrabInterm::TTarvoESocialCamposLocalTrabInterm(std::int64_t AIdEmpregado, TDateTime ADataInicio)
    : TTarvoESocialCamposGrupoBase("{2EA2210A-3179-472C-B115-9D4B0B3A2CCE}"), FIdEmpregado(AIdEmpregado),
      FDataInicio(ADataInicio)
{}

const TPropriedades& TTarvoESocialCamposLocalTrabInterm::Tabela()
{
    using Eu = TTarvoESocialCamposLocalTrabInterm;
    static const TPropriedades tabela{
        {"tpLograd", &Eu::tpLograd, TFieldRelacionado("ABREVESOCIAL")},
        {"dscLograd", &Eu::dscLograd, TFieldRelacionado("ENDERECO")},
        {"nrLograd", &Eu::nrLograd, TFieldRelacionado("NUM_END")},
        {"complem", &Eu::complem},
        {"bairro", &Eu::bairro, TFieldRelacionado("BAIRRO")},
        {"cep", &Eu::cep,
         TFieldRelacionado("CEP", "", ClasseConversor<TTarvoESocialCamposConversorRemoveCaracteresEspeciais>())},
        {"codMunic", &Eu::codMunic, TFieldRelacionado("COD_MUNICIPIO")},
        {"uf", &Eu::uf, TFieldRelacionado("UF")},
    };
    return tabela;
}

std::string TTarvoESocialCamposLocalTrabInterm::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  CA06_CODLOGRAD.ABREVESOCIAL,
  PREST_SERVICO.ENDERECO,
  PREST_SERVICO.NUM_END,
  PREST_SERVICO.BAIRRO,
  PREST_SERVICO.CEP,
  PREST_SERVICO.COD_MUNICIPIO,
  PREST_SERVICO.UF
FROM FP_CONTRAINTERM
JOIN PREST_SERVICO ON ( FP_CONTRAINTERM.IDPRESTSERVICO = PREST_SERVICO.IDPRESTSERVICO )
JOIN CA06_CODLOGRAD ON ( PREST_SERVICO.IDCODLOGRAD = CA06_CODLOGRAD.IDCODLOGRAD )
WHERE %0:s)";
    return Format(SQL, CondicaoEOrdemDaConvocacao(FIdEmpregado, FDataInicio));
}

} // namespace tarvo::trabalhador
