#include "pagamento/s1210/UnTarvoESocialCamposdetRubrFer.h"

#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/consultas/UnTarvoConsultasVerbas.h"
#include "imports/valores/UnOvraConversoes.h"

namespace tarvo::pagamento {

namespace {

// A vacation takes the alimony on vacation alone; a payroll takes every code of alimony.
bool EhPensaoSobreFerias(std::int64_t ACodIncIrrf) { return ACodIncIrrf == 53; }

} // namespace

TTarvoESocialCamposdetRubrFer::TTarvoESocialCamposdetRubrFer(const TTarvoESocialCamposS1210IOP& AInfoBind)
    : TTarvoESocialCamposVerbaDoPagamento("{E25F2647-10A9-41EB-88BC-7C2B4C63C85A}", AInfoBind)
{}

const TPropriedades& TTarvoESocialCamposdetRubrFer::Tabela()
{
    using Eu = TTarvoESocialCamposdetRubrFer;
    static const TPropriedades tabela(TTarvoESocialCamposVerbaDoPagamento::Tabela(),
                                      {
                                          {"CaracteristicaVerba", &Eu::CaracteristicaVerba},
                                          {"penAlim", &Eu::penAlim},
                                      });
    return tabela;
}

void TTarvoESocialCamposdetRubrFer::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    // The social security on vacation is reported under the rubric that was paid with the vacation, with its value.
    if (CaracteristicaVerba == "99E")
        IdVerba = TTarvoConsultasVerbas::BuscarIDVerbaPelaCaracteristica("99EB");
    codRubr = BuscarCodRubr();
    ideTabRubr = BuscarIdeTabRubr();
    qtdRubr = BuscarQtdRubr();
    fatorRubr = BuscarFatorRubr();
    vrUnit = 0;
    vrRubr = BuscarVrRubr();
    CarregarListaPensaoAlimenticia(EhPensaoSobreFerias, AListaCamposModificados);
}

std::string TTarvoESocialCamposdetRubrFer::BuscarCodRubr()
{
    if (BuscarIncidenciasDaVerba().FCodVerba == 0)
        return {};
    return ComporCodRubrDaVerba(FormatarListaParaClausulaIN("TAB_VERBAS", "IDVERBA", IntToStr(IdVerba), " WHERE "));
}

} // namespace tarvo::pagamento
