#include "trabalhador/pessoa/UnTarvoESocialCamposTrabEstrangeiro.h"

#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposTrabEstrangeiro::TTarvoESocialCamposTrabEstrangeiro(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{8E5244D2-B1A8-40B4-9EC8-FDA77F4767AC}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposTrabEstrangeiro::Tabela()
{
    using Eu = TTarvoESocialCamposTrabEstrangeiro;
    static const TPropriedades tabela{
        {"DataChegada", &Eu::DataChegada, TFieldRelacionado("DATA_CHEGADA")},
        {"ClassificacaoTrabEstrang", &Eu::ClassificacaoTrabEstrang, TFieldRelacionado("CLASSTRABESTRANG")},
        {"CasadoBrasil", &Eu::CasadoBrasil, TFieldRelacionado("CASADOBRASIL")},
        {"FilhosBrasil", &Eu::FilhosBrasil, TFieldRelacionado("FILHOSBRASIL")},
        {"PaisNascimento", &Eu::PaisNascimento, TFieldRelacionado("NOME_PAIS")},
        {"PossuiInformacao", &Eu::PossuiInformacao},
    };
    return tabela;
}

std::string TTarvoESocialCamposTrabEstrangeiro::BuscarSQLDados()
{
    // CLASSTRABESTRANG stands twice; the binding takes the first.
    static constexpr std::string_view SQL = R"(SELECT
  EMPREGADOS.DATA_CHEGADA,
  EMPREGADOS.CLASSTRABESTRANG,
  EMPREGADOS.CASADOBRASIL,
  EMPREGADOS.CLASSTRABESTRANG,
  EMPREGADOS.FILHOSBRASIL,
  UPPER(CA06_PAIS.NOME) AS NOME_PAIS
FROM EMPREGADOS
LEFT JOIN CA06_PAIS ON (CA06_PAIS.IDPAIS = EMPREGADOS.PAISNASCIMENTO)
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";
    return Format(SQL, FIDEmpregado);
}

bool TTarvoESocialCamposTrabEstrangeiro::PossuiInformacao() const
{
    return Maiusculas(Trim(PaisNascimento)) != "BRASIL";
}

} // namespace tarvo::trabalhador
