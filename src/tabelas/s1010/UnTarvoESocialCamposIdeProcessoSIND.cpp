#include "tabelas/s1010/UnTarvoESocialCamposIdeProcessoSIND.h"

#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlProcesso.h"

namespace tarvo::tabelas {

TTarvoESocialCamposIdeProcessoSIND::TTarvoESocialCamposIdeProcessoSIND()
    : TTarvoESocialCamposIdeProcessoVerba("{CA518786-0640-4B1C-AC0E-EC9EB185DAF8}")
{}

const TPropriedades& TTarvoESocialCamposIdeProcessoSIND::Tabela()
{
    static const TPropriedades tabela{
        {"NrProc", &TTarvoESocialCamposIdeProcessoSIND::NrProc, TFieldRelacionado("NUMERO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdeProcessoSIND::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT FIRST 1
       %1:s
FROM ES02_SPPROC
WHERE ES02_SPPROC.IDSPPROC = %0:d)";
    return Format(SQL, FIdProcesso, regras::NUMERO_DO_PROCESSO);
}

} // namespace tarvo::tabelas
