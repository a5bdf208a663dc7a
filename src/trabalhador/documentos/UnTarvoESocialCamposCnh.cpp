#include "trabalhador/documentos/UnTarvoESocialCamposCnh.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposCnh::TTarvoESocialCamposCnh(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{E9797D7B-F248-4AED-B8C9-53ABA1F6B644}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposCnh::Tabela()
{
    using Eu = TTarvoESocialCamposCnh;
    static const TPropriedades tabela{
        {"Numero", &Eu::Numero, TFieldRelacionado("CART_NAC_HABILIT")},
        {"DataExpedicao", &Eu::DataExpedicao, TFieldRelacionado("DATAEXPEDICAOCNH")},
        {"DataValidade", &Eu::DataValidade, TFieldRelacionado("DATA_VENC_CNH")},
        {"CategoriaCnh", &Eu::CategoriaCnh, TFieldRelacionado("CAT_CART_HABILIT")},
        {"DataPrimeiraHabilitacao", &Eu::DataPrimeiraHabilitacao, TFieldRelacionado("DATAPRIMEIRACNH")},
        {"Uf", &Eu::Uf, TFieldRelacionado("UFCNH")},
        {"PossuiInformacao", &Eu::PossuiInformacao},
        {"IdEmpregado", &Eu::IdEmpregado},
        {"CodEmpregado", &Eu::CodEmpregado},
    };
    return tabela;
}

std::string TTarvoESocialCamposCnh::BuscarSQLDados()
{
    // ORGAOEMISSORCNH is read and no property takes it.
    static constexpr std::string_view SQL = R"(SELECT
  EMPREGADOS.CART_NAC_HABILIT,
  EMPREGADOS.DATAEXPEDICAOCNH,
  EMPREGADOS.ORGAOEMISSORCNH,
  EMPREGADOS.DATA_VENC_CNH,
  EMPREGADOS.DATAPRIMEIRACNH,
  EMPREGADOS.UFCNH,
  EMPREGADOS.CAT_CART_HABILIT
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";
    return Format(SQL, FIDEmpregado);
}

bool TTarvoESocialCamposCnh::PossuiInformacao() const
{
    return !Uf.empty() || !Numero.empty() || !CategoriaCnh.empty() || DataExpedicao > TDate() ||
           DataValidade > TDate() || DataPrimeiraHabilitacao > TDate();
}

} // namespace tarvo::trabalhador
