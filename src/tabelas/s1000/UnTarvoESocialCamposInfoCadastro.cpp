#include "tabelas/s1000/UnTarvoESocialCamposInfoCadastro.h"

#include "framework/UnTarvoESocialCamposListaSqlReversao.h"
#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlConfiguracao.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoCadastro::TTarvoESocialCamposInfoCadastro(std::int64_t AIDEmpresa, TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{B4A45915-8AFD-4584-A8F7-489D7ED7A40B}"), DadosIsencao(AIDEmpresa, AData),
      Contato(AIDEmpresa), InfoOP(AIDEmpresa), SoftwareHouse(AIDEmpresa), InfoComplementares(AIDEmpresa, AData),
      FIDEmpresa(AIDEmpresa), FData(AData)
{}

const TPropriedades& TTarvoESocialCamposInfoCadastro::Tabela()
{
    using Eu = TTarvoESocialCamposInfoCadastro;
    static const TPropriedades tabela{
        {"DadosIsencao", &Eu::DadosIsencao},
        {"Contato", &Eu::Contato},
        {"InfoOP", &Eu::InfoOP},
        {"InfoOrgInternacional", &Eu::InfoOrgInternacional},
        {"SoftwareHouse", &Eu::SoftwareHouse},
        {"InfoComplementares", &Eu::InfoComplementares},
        {"NmRazao", &Eu::NmRazao, TFieldRelacionado("NOME")},
        {"ClassTrib", &Eu::ClassTrib, TFieldRelacionado("CLASS_TRIB")},
        {"NatJurid", &Eu::NatJurid, TFieldRelacionado("NAT_JUR")},
        {"IndCoop", &Eu::IndCoop, TFieldRelacionado("IND_COOP")},
        {"IndConstr", &Eu::IndConstr, TFieldRelacionado("IND_CONSTR")},
        {"IndDesFolha", &Eu::IndDesFolha, TFieldRelacionado("INDDESFOLHA")},
        {"IndOptRegEletron", &Eu::IndOptRegEletron, TFieldRelacionado("INDOPTREGELETRON")},
        {"MultTabRubricas", &Eu::MultTabRubricas},
        {"IndEntEd", &Eu::IndEntEd, TFieldRelacionado("INDENTED")},
        {"IndEtt", &Eu::IndEtt, TFieldRelacionado("INDETT")},
        {"nrRegEtt", &Eu::nrRegEtt, TFieldRelacionado("NRREGRTT")},
        {"TipoInscricao", &Eu::TipoInscricao, TFieldRelacionado("TPINSCRICAO")},
        {"indOpcCP", &Eu::indOpcCP, TFieldRelacionado("INDOPCCP")},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoCadastro::BuscarSQLDados()
{
    // The company's row always comes back; a missing configuration only gives nulls.
    static constexpr std::string_view SQL = R"(WITH
SQL_NAT_JUR AS (%1:s),
SQL_CLASS_TRIB AS (%2:s),
SQL_IND_COOP AS (%3:s),
SQL_IND_CONSTR AS (%4:s),
SQL_INDDESFOLHA AS (%5:s),
SQL_INDOPCCP AS (SELECT COALESCE((%6:s), 1) INDOPCCP FROM RDB$DATABASE),
SQL_INDOPTREGELETRON AS (%7:s),
SQL_INDENTED AS (%8:s),
SQL_INDETT AS (%9:s)
SELECT
  SC00_EMPRESA.NOME,
  SQL_NAT_JUR.NAT_JUR,
  SQL_CLASS_TRIB.CLASS_TRIB,
  SQL_IND_COOP.IND_COOP,
  SQL_IND_CONSTR.IND_CONSTR,
  SQL_INDDESFOLHA.INDDESFOLHA,
  SQL_INDOPCCP.INDOPCCP,
  SQL_INDOPTREGELETRON.INDOPTREGELETRON,
  SQL_INDENTED.INDENTED,
  SQL_INDETT.INDETT,
  SQL_INDETT.NRREGRTT,
  TRIM(CASE SC00_EMPRESA.TPINSCRICAO WHEN 1 THEN 'CNPJ' WHEN 2 THEN 'CPF' WHEN 3 THEN 'CEI' END) AS TPINSCRICAO
FROM SC00_EMPRESA
LEFT JOIN SQL_NAT_JUR ON (1=1)
LEFT JOIN SQL_CLASS_TRIB ON (1=1)
LEFT JOIN SQL_IND_COOP ON (1=1)
LEFT JOIN SQL_IND_CONSTR ON (1=1)
LEFT JOIN SQL_INDDESFOLHA ON (1=1)
LEFT JOIN SQL_INDOPCCP ON (1=1)
LEFT JOIN SQL_INDOPTREGELETRON ON (1=1)
LEFT JOIN SQL_INDENTED ON (1=1)
LEFT JOIN SQL_INDETT ON (1=1)
WHERE SC00_EMPRESA.IDEMPRESA =%0:d)";
    const auto Vigente = [this](std::string_view AColunas, regras::TChaveDeConfiguracao AChave) {
        return regras::SqlConfiguracaoVigente(AColunas, regras::SC00_EMPRESACFG, FIDEmpresa, AChave, FData);
    };
    return Format(SQL, FIDEmpresa, Vigente("SC00_EMPRESACFG.INFORMACAO1 NAT_JUR", {1, 1, 1}),
                  Vigente("SC00_EMPRESACFG.INFORMACAO1 CLASS_TRIB", {90, 38, 1}),
                  Vigente("SC00_EMPRESACFG.INFORMACAO3 IND_COOP", {1, 1, 41}),
                  Vigente("SC00_EMPRESACFG.INFORMACAO1 IND_CONSTR", {90, 38, 5}),
                  Vigente("SC00_EMPRESACFG.INFORMACAO1 INDDESFOLHA", {90, 30, 1}),
                  Vigente("SC00_EMPRESACFG.INFORMACAO1", {90, 18, 2}),
                  Vigente("SC00_EMPRESACFG.INFORMACAO1 INDOPTREGELETRON", {90, 38, 11}),
                  Vigente("SC00_EMPRESACFG.INFORMACAO1 INDENTED", {1, 1, 47}),
                  Vigente("SC00_EMPRESACFG.INFORMACAO1 INDETT, SC00_EMPRESACFG.INFORMACAO2 NRREGRTT", {90, 38, 12}));
}

void TTarvoESocialCamposInfoCadastro::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    DadosIsencao.CarregarDados(AListaCamposModificados);
    Contato.CarregarDados(AListaCamposModificados);
    InfoOP.CarregarDados(AListaCamposModificados);
    InfoOrgInternacional.CarregarDados(AListaCamposModificados);
    SoftwareHouse.CarregarDados(AListaCamposModificados);
    InfoComplementares.CarregarDados(AListaCamposModificados);
}

void TTarvoESocialCamposInfoCadastro::ReverterDados()
{
    DadosIsencao.ReverterDados();
    Contato.ReverterDados();
    InfoOP.ReverterDados();
    InfoOrgInternacional.ReverterDados();
    SoftwareHouse.ReverterDados();
    InfoComplementares.ReverterDados();

    static constexpr std::string_view ATRIBUICAO = "SC00_EMPRESACFG.%0:s = '%1:s'";
    static constexpr std::string_view SQL =
        "UPDATE SC00_EMPRESACFG SET %2:s WHERE SC00_EMPRESACFG.IDEMPRESA =%0:d AND SC00_EMPRESACFG.ORIGEM = %3:d AND "
        "SC00_EMPRESACFG.ESPECIE = %4:d AND SC00_EMPRESACFG.TP = %5:d AND SC00_EMPRESACFG.DATAINICIO <= %1:s AND "
        "(SC00_EMPRESACFG.DATAFIM >= %1:s OR SC00_EMPRESACFG.DATAFIM IS NULL) ORDER BY SC00_EMPRESACFG.DATAINICIO DESC";
    auto& LLista = BuscarInstanciaListaSql().Lista;
    const auto Atribuir = [](std::string_view AColuna, const std::string& AValor) {
        return Format(ATRIBUICAO, AColuna, AValor);
    };
    const auto Atualizar = [&](const std::string& AAtribuicoes, regras::TChaveDeConfiguracao AChave) {
        return Format(SQL, FIDEmpresa, FormatarDataDB(FData, true), AAtribuicoes, AChave.Origem, AChave.Especie,
                      AChave.Tp);
    };
    LLista.push_back(Format("UPDATE SC00_EMPRESA SET SC00_EMPRESA.NOME = '%0:s' WHERE SC00_EMPRESA.IDEMPRESA = %1:d",
                            NmRazao, FIDEmpresa));
    LLista.push_back(Atualizar(Atribuir("INFORMACAO1", NatJurid), {1, 1, 1}));
    LLista.push_back(Atualizar(Atribuir("INFORMACAO1", ClassTrib), {90, 38, 1}));
    // Written at ORIGEM 90 although the load reads ORIGEM 1; meant.
    LLista.push_back(Atualizar(Atribuir("INFORMACAO3", IndCoop), {90, 1, 41}));
    LLista.push_back(Atualizar(Atribuir("INFORMACAO1", IndConstr), {90, 38, 5}));
    LLista.push_back(Atualizar(Atribuir("INFORMACAO1", IndDesFolha), {90, 30, 1}));
    LLista.push_back(Atualizar(Atribuir("INFORMACAO1", IndOptRegEletron), {90, 38, 11}));
    // Written over the row of IndOptRegEletron, which the statement before has just set; meant.
    LLista.push_back(Atualizar(Atribuir("INFORMACAO1", IndEntEd), {90, 38, 11}));
    // The closing bracket has no partner, and the engine refuses the statement; meant.
    LLista.push_back(
        Atualizar(Atribuir("INFORMACAO1", IndEtt) + ", " + Atribuir("INFORMACAO2", nrRegEtt), {90, 38, 12}) + ")");

    TTarvoESocialCamposGrupoBase::ReverterDados();
}

} // namespace tarvo::tabelas
