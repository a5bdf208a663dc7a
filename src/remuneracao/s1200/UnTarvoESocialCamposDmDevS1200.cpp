#include "remuneracao/s1200/UnTarvoESocialCamposDmDevS1200.h"

#include "imports/consultas/UnTarvoConsultasEmpregado.h"
#include "regras/UnTarvoESocialCamposIdeDmDev.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposDmDevS1200::TTarvoESocialCamposDmDevS1200(TTarvoESocialCamposS1200IOP& AinfoBind1200,
                                                             std::int32_t ACategoriaEmpregado)
    : TTarvoESocialCamposGrupoBase("{AE927F8B-912B-40D5-855C-E0A0412D9324}"), codCateg(ACategoriaEmpregado),
      infoPerApur(AinfoBind1200), infoPerAnt(AinfoBind1200), infoComplCont(AinfoBind1200), FInfoBind(AinfoBind1200)
{}

const TPropriedades& TTarvoESocialCamposDmDevS1200::Tabela()
{
    using Eu = TTarvoESocialCamposDmDevS1200;
    static const TPropriedades tabela{
        {"ideDmDev", &Eu::ideDmDev},
        {"codCateg", &Eu::codCateg},
        {"infoPerApur", &Eu::infoPerApur},
        {"infoPerAnt", &Eu::infoPerAnt},
        {"infoComplCont", &Eu::infoComplCont},
        {"GerarInfoPerApur", &Eu::GerarInfoPerApur},
        {"GerarInfoPerAnt", &Eu::GerarInfoPerAnt},
        {"DataInicioOriginal", &Eu::DataInicioOriginal},
        {"DataFimOriginal", &Eu::DataFimOriginal},
    };
    return tabela;
}

void TTarvoESocialCamposDmDevS1200::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    AlimentarIdeDmDev();
    if (FInfoBind.Chave == 5 || FInfoBind.Chave == 6) {
        // From here on the parameter object speaks of the month of the event again. A receipt that follows such a run
        // comes here too, without a month of its own: its period becomes zero. That is meant.
        GerarInfoPerAnt = true;
        FInfoBind.PerRef = FInfoBind.DataInicio();
        FInfoBind.SetDataInicio(DataInicioOriginal);
        FInfoBind.SetDataFim(DataFimOriginal);
    } else {
        GerarInfoPerApur = true;
    }
    if (GerarInfoPerApur) {
        infoPerApur.codCateg = codCateg;
        infoPerApur.CarregarDados(AListaCamposModificados);
    }
    if (GerarInfoPerAnt)
        infoPerAnt.CarregarDados(AListaCamposModificados);
    infoComplCont.CarregarDados(AListaCamposModificados);
}

void TTarvoESocialCamposDmDevS1200::AlimentarIdeDmDev()
{
    regras::TDadosIdeDmDev LDados;
    LDados.TipoFolha = FInfoBind.TipoFolha();
    // Profit sharing goes by its day of payment.
    LDados.Data = LDados.TipoFolha == 9 ? FInfoBind.DataPagto() : FInfoBind.DataInicio();
    if (FInfoBind.TipoEmpregado() != TTipoTrabalhador::Empregado) {
        LDados.Forma = regras::TFormaIdeDmDev::Recibo;
        LDados.NrRecibo = FInfoBind.NrReciboRpa;
        LDados.Data = FInfoBind.DataPagto();
    } else {
        LDados.Forma = FInfoBind.Chave == 6 ? regras::TFormaIdeDmDev::Rescisao : regras::TFormaIdeDmDev::Folha;
        LDados.SubTipoFolha = FInfoBind.SubTipoFolha();
        LDados.TipoFolhaCompl = FInfoBind.TipoFolhaCompl();
        if (FInfoBind.IdDetConvocacao != 0)
            LDados.IdDetConvocacao = FInfoBind.IdDetConvocacao;
    }
    if (TTarvoConsultasEmpregado::ExistemVariosVinculosAtivosComCategDiferentes(FInfoBind.IdEmpresa(), FInfoBind.Cpf(),
                                                                                FInfoBind.DataInicio()))
        LDados.CodCateg = codCateg;
    ideDmDev = regras::FormarIdeDmDev(LDados);
}

} // namespace tarvo::remuneracao
