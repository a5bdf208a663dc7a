#include "trabalhador/contrato/UnTarvoESocialCamposInfoContrato.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::trabalhador {

TTarvoESocialCamposInfoContrato::TTarvoESocialCamposInfoContrato(std::int64_t AIDEmpregado, TDate ADataGeracao)
    : TTarvoESocialCamposInfoContrato("{712789EA-2C22-4064-A4CD-89F4DA93E950}", AIDEmpregado, ADataGeracao)
{}

TTarvoESocialCamposInfoContrato::TTarvoESocialCamposInfoContrato(std::string_view AGuid, std::int64_t AIDEmpregado,
                                                                 TDate ADataGeracao)
    : TTarvoESocialCamposGrupoBase(AGuid), Remuneracao(AIDEmpregado, ADataGeracao),
      LocalTrabalho(AIDEmpregado, ADataGeracao), Duracao(AIDEmpregado, ADataGeracao),
      HorContratual(AIDEmpregado, ADataGeracao), FiliacaoSindical(AIDEmpregado), AlvaraJudicial(AIDEmpregado),
      FIDEmpregado(AIDEmpregado), FDataGeracao(ADataGeracao)
{}

const TPropriedades& TTarvoESocialCamposInfoContrato::Tabela()
{
    using Eu = TTarvoESocialCamposInfoContrato;
    static const TPropriedades tabela{
        {"Remuneracao", &Eu::Remuneracao},
        {"LocalTrabalho", &Eu::LocalTrabalho},
        {"Duracao", &Eu::Duracao},
        {"HorContratual", &Eu::HorContratual},
        {"FiliacaoSindical", &Eu::FiliacaoSindical},
        {"AlvaraJudicial", &Eu::AlvaraJudicial},
        {"Observacoes", &Eu::Observacoes},
        {"ServPubl", &Eu::ServPubl},
        {"CodigoCargo", &Eu::CodigoCargo, TFieldRelacionado("CODIGOESOCIAL")},
        {"DescricaoCargo", &Eu::DescricaoCargo, TFieldRelacionado("DESCRICAO")},
        {"CodigoFuncao", &Eu::CodigoFuncao, TFieldRelacionado("FUNCAO")},
        {"CodigoCategoria", &Eu::CodigoCategoria, TFieldRelacionado("CODIGOCATEG")},
        {"TipoCargo", &Eu::TipoCargo, TFieldRelacionado("TPCARGOPUBLICO")},
        {"dtIngrCarr", &Eu::dtIngrCarr, TFieldRelacionado("DATALEI")},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoContrato::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT
  FP_CARGOSDESCR.CODIGOESOCIAL,
  FP_CARGOSDESCR.DESCRICAO,
  EMPREGADOS.CONTRATO,
  FP_ESOCIALTABELA.CODIGO AS CODIGOCATEG,
  FP_CARGOSPUBLICO.TPCARGOPUBLICO,
  FP_CARGOSPUBLICO.DATALEI
FROM EMPREGADOS
LEFT JOIN SP_BUSCARCARGOEMPREGADO(%1:s) AS CARGO ON (EMPREGADOS.IDEMPREGADO = CARGO.IDEMPREGADO)
LEFT JOIN FP_CARGOSDESCR ON (FP_CARGOSDESCR.IDCARGOSDESCR = CARGO.IDCARGOSDESCR)
LEFT JOIN FP_CARGOSPUBLICO ON (FP_CARGOSPUBLICO.IDCARGOSDESCR = FP_CARGOSDESCR.IDCARGOSDESCR)
LEFT JOIN FP_ESOCIALTABELA ON (EMPREGADOS.IDCATEGORIAESOCIAL = FP_ESOCIALTABELA.IDESOCIALTABELA)
WHERE EMPREGADOS.IDEMPREGADO = %0:d
ORDER BY FP_CARGOSPUBLICO.IDCARGOSPUBLICO + 0;)";
    return Format(SQL, FIDEmpregado, FormatarDataDB(FDataGeracao, true));
}

void TTarvoESocialCamposInfoContrato::CarregarDadosObservacoes()
{
    static constexpr std::string_view SQL = R"(SELECT FP_EMPREGADOOBS.OBSERVACAO
FROM FP_EMPREGADOOBS
WHERE FP_EMPREGADOOBS.IDEMPREGADO = %0:D
ORDER BY FP_EMPREGADOOBS.IDEMPREGADO, FP_EMPREGADOOBS.IDEMPREGADOOBS)";
    for (const auto LCds = TTarvoConsultasGeral::BuscarRegistros(Format(SQL, FIDEmpregado)); !LCds->Eof(); LCds->Next())
        Observacoes.push_back(
            std::make_unique<TTarvoESocialCamposObservacoes>(0, LCds->FieldByName("OBSERVACAO").AsString()));
}

void TTarvoESocialCamposInfoContrato::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    Remuneracao.CarregarDados(AListaCamposModificados);
    Duracao.CarregarDados(AListaCamposModificados);
    LocalTrabalho.CarregarDados(AListaCamposModificados);
    HorContratual.CarregarDados(AListaCamposModificados);
    FiliacaoSindical.CarregarDados(AListaCamposModificados);
    AlvaraJudicial.CarregarDados(AListaCamposModificados);
    CarregarDadosObservacoes();
}

} // namespace tarvo::trabalhador
