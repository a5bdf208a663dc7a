#include "tabelas/s1020/UnTarvoESocialCamposFPASLotacao.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposFPASLotacao::TTarvoESocialCamposFPASLotacao(std::int64_t AIDEstab, std::int64_t AIDDepto,
                                                               TDateTime ADataBase)
    : TTarvoESocialCamposGrupoBase("{52228831-2345-4D33-A184-92A0DDC72412}"),
      InfoProcJudTerceiros(AIDEstab, AIDDepto, ADataBase), FLugar(regras::DepartamentoPrimeiro(AIDEstab, AIDDepto)),
      FDataBase(ADataBase)
{}

const TPropriedades& TTarvoESocialCamposFPASLotacao::Tabela()
{
    using Eu = TTarvoESocialCamposFPASLotacao;
    static const TPropriedades tabela{
        {"InfoProcJudTerceiros", &Eu::InfoProcJudTerceiros},
        {"Fpas", &Eu::Fpas, TFieldRelacionado("FPAS")},
        {"CodTercs", &Eu::CodTercs, TFieldRelacionado("CODTERCS")},
        {"CodTercsSusp", &Eu::CodTercsSusp, TFieldRelacionado("CODTERCSSUSP")},
    };
    return tabela;
}

std::string TTarvoESocialCamposFPASLotacao::BuscarSQLDados()
{
    static constexpr std::string_view SQL_CODTERCS =
        R"(IIF(SC00_EMPRESACFG.INFORMACAO1 IN ('01','02','03','04'), 0,
    IIF(FP_FPASPERCENTUAIS.SALARIOEDUC = 0,0,1)+
    IIF(FP_FPASPERCENTUAIS.INCRA = 0,0,2)+
    IIF(FP_FPASPERCENTUAIS.SENAI = 0,0,4)+
    IIF(FP_FPASPERCENTUAIS.SESI = 0,0,8)+
    IIF(FP_FPASPERCENTUAIS.SENAC = 0,0,16)+
    IIF(FP_FPASPERCENTUAIS.SESC = 0,0,32)+
    IIF(FP_FPASPERCENTUAIS.SEBRAE = 0,0,64)+
    IIF(FP_FPASPERCENTUAIS.DPC = 0,0,128)+
    IIF(FP_FPASPERCENTUAIS.FAER = 0,0,256)+
    IIF(FP_FPASPERCENTUAIS.SENAR = 0,0,512)+
    IIF(FP_FPASPERCENTUAIS.SEST=0,0,1024)+
    IIF(FP_FPASPERCENTUAIS.SENAT=0,0,2048)+
    IIF(FP_FPASPERCENTUAIS.SESCOOP=0,0,4096) -
    CAST(COALESCE(SC00_FILIALCFG.INFORMACAO10,0) AS NUMERIC(5,2))) AS CODTERCS)";
    static constexpr std::string_view SQL_EMPRESA =
        R"(JOIN FP_FPASPERCENTUAIS ON (FP_FPASPERCENTUAIS.IDFPASCODIGO = FP_FPASCODIGO.IDFPASCODIGO)
JOIN SC00_FILIAL ON (SC00_FILIAL.IDFILIAL = SC00_FILIALCFG.IDFILIAL)
JOIN SC00_EMPRESACFG ON (SC00_EMPRESACFG.IDEMPRESA = SC00_FILIAL.IDEMPRESA
  AND %0:s))";
    // The department's row holds the code of the FPAS, the establishment's its id; meant.
    static constexpr std::string_view SQL_DEPTO = R"(SELECT
  CAST(SC00_DEPARTAMENTOCFG.INFORMACAO1 AS FLOAT) FPAS,
  %1:s,
  SC00_DEPARTAMENTOCFG.INFORMACAO2 CODTERCSSUSP
FROM SC00_DEPARTAMENTOCFG
JOIN SC00_DEPTO ON (SC00_DEPTO.IDDEPTO = SC00_DEPARTAMENTOCFG.IDDEPARTAMENTO)
JOIN SC00_FILIALCFG ON (SC00_FILIALCFG.IDFILIAL = SC00_DEPTO.IDFILIAL
  AND %3:s)
JOIN FP_FPASCODIGO ON (CAST(SC00_DEPARTAMENTOCFG.INFORMACAO1 AS NUMERIC(4,1)) = FP_FPASCODIGO.CODIGO)
%2:s
WHERE SC00_DEPARTAMENTOCFG.IDDEPARTAMENTO = %0:d
  AND %4:s
ORDER BY %6:s, SC00_DEPARTAMENTOCFG.IDDEPARTAMENTOCFG,
  %5:s, SC00_FILIALCFG.IDFILIALCFG,
  FP_FPASCODIGO.IDFPASCODIGO,
  FP_FPASPERCENTUAIS.IDFPASPERCENTUAIS,
  SC00_EMPRESACFG.DATAINICIO DESC, SC00_EMPRESACFG.IDEMPRESACFG)";
    static constexpr std::string_view SQL_ESTAB = R"(SELECT
  FP_FPASCODIGO.CODIGO FPAS,
  %1:s,
  SC00_FILIALCFG.INFORMACAO8 CODTERCSSUSP
FROM FP_FPASCODIGO
JOIN SC00_FILIALCFG ON (SC00_FILIALCFG.INFORMACAO1 = FP_FPASCODIGO.IDFPASCODIGO)
%2:s
WHERE SC00_FILIALCFG.IDFILIAL = %0:d
  AND %3:s
ORDER BY %5:s, SC00_FILIALCFG.IDFILIALCFG,
  FP_FPASPERCENTUAIS.IDFPASPERCENTUAIS,
  SC00_EMPRESACFG.DATAINICIO DESC, SC00_EMPRESACFG.IDEMPRESACFG)";
    return Format(FLugar.EhDepto ? SQL_DEPTO : SQL_ESTAB, FLugar.Id, SQL_CODTERCS,
                  Format(SQL_EMPRESA, regras::CondicaoVigente(regras::SC00_EMPRESACFG, {90, 38, 1}, FDataBase)),
                  regras::CondicaoDaChave(regras::SC00_FILIALCFG, {90, 51, 2}),
                  regras::CondicaoDaChave(regras::SC00_DEPARTAMENTOCFG, {90, 18, 2}),
                  regras::OrdemDaValidade(regras::SC00_FILIALCFG, FDataBase),
                  regras::OrdemDaValidade(regras::SC00_DEPARTAMENTOCFG, FDataBase));
}

void TTarvoESocialCamposFPASLotacao::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    InfoProcJudTerceiros.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
