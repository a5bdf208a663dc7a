#include "tabelas/empregador/UnTarvoESocialCamposIdEmpregador.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposIdEmpregador::TTarvoESocialCamposIdEmpregador(std::int64_t AIDEmpresa)
    : TTarvoESocialCamposGrupoBase("{57A18B43-2FE6-4077-AAB5-191DFAA9AD20}"), FIDEmpresa(AIDEmpresa)
{}

const TPropriedades& TTarvoESocialCamposIdEmpregador::Tabela()
{
    using Eu = TTarvoESocialCamposIdEmpregador;
    static const TPropriedades tabela{
        {"TipoInscricao", &Eu::TipoInscricao, TFieldRelacionado("TPINSCRICAO")},
        {"Inscricao", &Eu::Inscricao, TFieldRelacionado("CNPJ")},
        {"IDEmpresa", &Eu::IDEmpresa},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdEmpregador::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT SC00_EMPRESA.TPINSCRICAO, SC00_EMPRESA.CNPJ
FROM SC00_EMPRESA
WHERE SC00_EMPRESA.IDEMPRESA = %0:d)";
    return Format(SQL, FIDEmpresa);
}

} // namespace tarvo::tabelas
