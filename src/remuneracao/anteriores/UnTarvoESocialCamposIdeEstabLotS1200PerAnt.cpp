#include "remuneracao/anteriores/UnTarvoESocialCamposIdeEstabLotS1200PerAnt.h"

#include "imports/valores/UnTarvoUtilsDatas.h"
#include "regras/UnTarvoESocialCamposSqlLotacao.h"
#include "remuneracao/anteriores/UnTarvoESocialCamposLotacoesS1200.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposIdeEstabLotS1200PerAnt::TTarvoESocialCamposIdeEstabLotS1200PerAnt(
    TTarvoESocialCamposS1200IOP& AinfoBind1200)
    : TTarvoESocialCamposGrupoBase("{4F4E70CA-8CEC-4C54-96CA-D2574558832C}"), FInfoBind(AinfoBind1200),
      FListaIdsEmpregado(AinfoBind1200.ListaIdsEmpregado())
{}

const TPropriedades& TTarvoESocialCamposIdeEstabLotS1200PerAnt::Tabela()
{
    using Eu = TTarvoESocialCamposIdeEstabLotS1200PerAnt;
    static const TPropriedades tabela{
        {"tpInsc", &Eu::tpInsc, TFieldRelacionado("TPINSCRICAO")},
        {"nrInsc", &Eu::nrInsc, TFieldRelacionado("INSCRICAO")},
        {"codLotacao", &Eu::codLotacao, TFieldRelacionado("CODIGOESOCIAL")},
        {"IdFilial", &Eu::IdFilial},
        {"IdDepto", &Eu::IdDepto},
        {"remunPerAnt", &Eu::remunPerAnt},
    };
    return tabela;
}

std::string TTarvoESocialCamposIdeEstabLotS1200PerAnt::BuscarSQLDados()
{
    return regras::SqlInscricaoDaLotacao(IdFilial, IdDepto);
}

void TTarvoESocialCamposIdeEstabLotS1200PerAnt::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    FiltrarTrabalhadoresPorLotacao();
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    CarregarDadosRemunPerAnt();
}

void TTarvoESocialCamposIdeEstabLotS1200PerAnt::FiltrarTrabalhadoresPorLotacao()
{
    // The whole month for a department too, unlike in the current period.
    FListaIdsEmpregado = BuscarEmpregadosDaLotacao(FListaIdsEmpregado, PrimeiroDiaDoMes(FInfoBind.PerRef),
                                                   UltimoDiaDoMes(FInfoBind.PerRef), IdFilial, IdDepto);
}

void TTarvoESocialCamposIdeEstabLotS1200PerAnt::CarregarDadosRemunPerAnt()
{
    // No test of the admission here: an earlier month may precede a transfer.
    for (const auto LId : FListaIdsEmpregado) {
        FInfoBind.SetTipoEmpregado(TTipoTrabalhador::Empregado);
        FInfoBind.SetIdEmpregado(LId);
        auto LRemuneracao = std::make_unique<TTarvoESocialCamposRemunPerAnt>(FInfoBind);
        LRemuneracao->IdFilial = IdFilial;
        LRemuneracao->IdDepto = IdDepto;
        LRemuneracao->CarregarDados();
        if (!LRemuneracao->itensRemun.empty())
            remunPerAnt.push_back(std::move(LRemuneracao));
    }
}

} // namespace tarvo::remuneracao
