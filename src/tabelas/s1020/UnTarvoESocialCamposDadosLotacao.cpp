#include "tabelas/s1020/UnTarvoESocialCamposDadosLotacao.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposDadosLotacao::TTarvoESocialCamposDadosLotacao(std::int64_t AIDEstab, std::int64_t AIDDepto,
                                                                 TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{9D81C758-85A1-40C2-92CC-3E0E734A7575}"), FpasLotacao(AIDEstab, AIDDepto, AData),
      InfoEmprParcial(AIDEstab, AIDDepto), FLugar(regras::DepartamentoPrimeiro(AIDEstab, AIDDepto)), FData(AData)
{}

const TPropriedades& TTarvoESocialCamposDadosLotacao::Tabela()
{
    using Eu = TTarvoESocialCamposDadosLotacao;
    static const TPropriedades tabela{
        {"FpasLotacao", &Eu::FpasLotacao},
        {"InfoEmprParcial", &Eu::InfoEmprParcial},
        {"tpLotacao", &Eu::tpLotacao, TFieldRelacionado("CODIGO")},
        {"tpInsc", &Eu::tpInsc, TFieldRelacionado("TPINSCRICAO")},
        {"nrInsc", &Eu::nrInsc, TFieldRelacionado("INSCRICAO")},
    };
    return tabela;
}

std::string TTarvoESocialCamposDadosLotacao::BuscarSQLDados()
{
    static constexpr std::string_view SQL_DEPTO = R"(SELECT
  FP_ESOCIALTABELA.CODIGO,
  IIF(SC00_DEPTO.TIPODEPTO = 5,
    CASE PREST_SERVICO.TIPOINSCR WHEN 'CNPJ' THEN 1 WHEN 'NIT' THEN 2 WHEN 'CEI' THEN 4 END,
    CASE SC00_DEPTO.TPINSCRICAO WHEN 1 THEN 1 WHEN 2 THEN 2 WHEN 3 THEN 4 END) TPINSCRICAO,
  IIF(SC00_DEPTO.TIPODEPTO = 5,
    IIF(PREST_SERVICO.TIPOINSCR = 'NIT',PREST_SERVICO.CPF, PREST_SERVICO.INSCRICAO),
    SC00_DEPTO.INSCRICAO) INSCRICAO
FROM SC00_DEPTO
LEFT JOIN FP_ESOCIALTABELA ON (SC00_DEPTO.IDTIPOLOTACAO = FP_ESOCIALTABELA.IDESOCIALTABELA
  AND FP_ESOCIALTABELA.TABELA = 10)
LEFT JOIN PREST_SERVICO ON (SC00_DEPTO.IDCONTRATANTE = PREST_SERVICO.IDPRESTSERVICO)
WHERE SC00_DEPTO.IDDEPTO = %0:D)";
    // Without a configuration row that has started there is no row at all, in spite of the LEFT JOIN, and its end
    // doesn't matter; meant.
    static constexpr std::string_view SQL_ESTAB = R"(SELECT FIRST 1
  FP_ESOCIALTABELA.CODIGO,
  SC00_FILIAL.TPINSCRICAO,
  SC00_FILIAL.CNPJ INSCRICAO
FROM SC00_FILIAL
LEFT JOIN SC00_FILIALCFG ON (SC00_FILIALCFG.IDFILIAL = SC00_FILIAL.IDFILIAL
  AND SC00_FILIALCFG.ORIGEM = 90 AND SC00_FILIALCFG.ESPECIE = 50 AND SC00_FILIALCFG.TP = 1)
LEFT JOIN FP_ESOCIALTABELA ON (SC00_FILIALCFG.INFORMACAO1 = FP_ESOCIALTABELA.IDESOCIALTABELA
  AND FP_ESOCIALTABELA.TABELA = 10)
WHERE SC00_FILIAL.IDFILIAL = %0:D
  AND SC00_FILIALCFG.DATAINICIO <= %1:S
ORDER BY SC00_FILIALCFG.DATAINICIO DESC, SC00_FILIALCFG.IDFILIALCFG)";
    return Format(FLugar.EhDepto ? SQL_DEPTO : SQL_ESTAB, FLugar.Id, FormatarDataDB(FData, true));
}

void TTarvoESocialCamposDadosLotacao::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    FpasLotacao.CarregarDados(AListaCamposModificados);
    InfoEmprParcial.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
