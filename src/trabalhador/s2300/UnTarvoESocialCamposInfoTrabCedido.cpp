#include "trabalhador/s2300/UnTarvoESocialCamposInfoTrabCedido.h"

#include "imports/valores/UnOvraFormat.h"
#include "regras/UnTarvoESocialCamposSqlConfiguracao.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposInfoTrabCedido::TTarvoESocialCamposInfoTrabCedido(std::int64_t AIDEmpregado, TDate ADataGeracao)
    : TTarvoESocialCamposGrupoBase("{79BD2DB1-3436-4D42-9CFD-D2F6409078C9}"), FIDEmpregado(AIDEmpregado),
      FDataGeracao(ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposInfoTrabCedido::Tabela()
{
    using Eu = TTarvoESocialCamposInfoTrabCedido;
    static const TPropriedades tabela{
        {"categOrig", &Eu::categOrig},
        {"cnpjCednt", &Eu::cnpjCednt, TFieldRelacionado("CNPJCEDNT")},
        {"matricCed", &Eu::matricCed, TFieldRelacionado("MATRICCED")},
        {"dtAdmCed", &Eu::dtAdmCed, TFieldRelacionado("DTADMCED")},
        {"tpRegTrab", &Eu::tpRegTrab, TFieldRelacionado("TPREGTRAB")},
        {"tpRegPrev", &Eu::tpRegPrev, TFieldRelacionado("TPREGPREV")},
        {"infOnus", &Eu::infOnus, TFieldRelacionado("INFONUS")},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoTrabCedido::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(WITH EMPREGADOSDET AS (
  SELECT
    FP_EMPREGADOSDET.INFORMACAO1 CNPJCEDNT,
    FP_EMPREGADOSDET.INFORMACAO2 MATRICCED,
    FP_EMPREGADOSDET.INFORMACAO3 DTADMCED,
    FP_EMPREGADOSDET.INFORMACAO4 INFONUS,
    FP_EMPREGADOSDET.IDEMPREGADOSDET
  FROM FP_EMPREGADOSDET
  JOIN EMPREGADOS ON (EMPREGADOS.IDEMPREGADO = FP_EMPREGADOSDET.IDEMPREGADO)
  WHERE FP_EMPREGADOSDET.ESPECIE = 1 AND FP_EMPREGADOSDET.TP = 2 AND FP_EMPREGADOSDET.IDEMPREGADO = %0:d
    AND EMPREGADOS.TIPOADMISSAO = 4),
EMPREGADOSCFG AS (
  SELECT
    SC00_EMPREGADOCFG.INFORMACAO2 TPREGTRAB,
    SC00_EMPREGADOCFG.INFORMACAO3 TPREGPREV,
    IIF(%2:s, 0, 1) FORADAVALIDADE,
    SC00_EMPREGADOCFG.DATAINICIO,
    SC00_EMPREGADOCFG.IDEMPREGADOCFG
  FROM SC00_EMPREGADOCFG
  WHERE %1:s)
SELECT
  EMPREGADOSDET.CNPJCEDNT,
  EMPREGADOSDET.MATRICCED,
  EMPREGADOSDET.DTADMCED,
  EMPREGADOSCFG.TPREGTRAB,
  EMPREGADOSCFG.TPREGPREV,
  EMPREGADOSDET.INFONUS
FROM EMPREGADOSDET
JOIN EMPREGADOSCFG ON (1=1)
ORDER BY
  EMPREGADOSDET.IDEMPREGADOSDET,
  EMPREGADOSCFG.FORADAVALIDADE,
  EMPREGADOSCFG.DATAINICIO DESC,
  EMPREGADOSCFG.IDEMPREGADOCFG)";
    return Format(SQL, FIDEmpregado, regras::CondicaoDaChave(regras::SC00_EMPREGADOCFG, FIDEmpregado, {90, 38, 7}),
                  regras::CondicaoDaValidade(regras::SC00_EMPREGADOCFG, FDataGeracao));
}

} // namespace tarvo::trabalhador
