#include "tabelas/s1020/UnTarvoESocialCamposIdeLotacao.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposIdeLotacao::TTarvoESocialCamposIdeLotacao(std::int64_t AIDEstab, std::int64_t AIDDepto)
    : TTarvoESocialCamposGrupoBase("{A232C1C0-B145-45F4-881E-B73EBBEA5AD5}"),
      FLugar(regras::DepartamentoPrimeiro(AIDEstab, AIDDepto))
{}

const TPropriedades& TTarvoESocialCamposIdeLotacao::Tabela()
{
    using Eu = TTarvoESocialCamposIdeLotacao;
    static const TPropriedades tabela{
        {"codLotacao", &Eu::codLotacao, TFieldRelacionado("CODIGOESOCIAL")},
        {"iniValid", &Eu::iniValid, TFieldRelacionado("INICIOATIVIDADE")},
        {"fimValid", &Eu::fimValid},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdeLotacao::BuscarSQLDados()
{
    static constexpr std::string_view SQL_DEPTO = R"(SELECT
  SC00_DEPTO.CODIGOESOCIAL,
  SC00_DEPTO.INICIOATIVIDADE
FROM SC00_DEPTO
WHERE SC00_DEPTO.IDDEPTO = %0:d)";
    static constexpr std::string_view SQL_ESTAB = R"(SELECT SC00_FILIAL.CODIGOESOCIAL
FROM SC00_FILIAL
WHERE SC00_FILIAL.IDFILIAL = %0:d)";
    return Format(FLugar.EhDepto ? SQL_DEPTO : SQL_ESTAB, FLugar.Id);
}

} // namespace tarvo::tabelas
