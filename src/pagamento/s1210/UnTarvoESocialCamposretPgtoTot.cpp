#include "pagamento/s1210/UnTarvoESocialCamposretPgtoTot.h"

#include "imports/valores/UnOvraFormat.h"
#include "pagamento/s1210/UnTarvoESocialCamposSqlS1210.h"

namespace tarvo::pagamento {

namespace {

bool EhPensaoAlimenticia(std::int64_t ACodIncIrrf) { return ACodIncIrrf >= 51 && ACodIncIrrf <= 55; }

} // namespace

TTarvoESocialCamposretPgtoTot::TTarvoESocialCamposretPgtoTot(const TTarvoESocialCamposS1210IOP& AInfoBind)
    : TTarvoESocialCamposVerbaDoPagamento("{9F4B38A4-81FE-463F-AE3B-073A464DFCA4}", AInfoBind)
{}

const TPropriedades& TTarvoESocialCamposretPgtoTot::Tabela()
{
    static const TPropriedades tabela(TTarvoESocialCamposVerbaDoPagamento::Tabela(),
                                      {{"penAlim", &TTarvoESocialCamposretPgtoTot::penAlim}});
    return tabela;
}

void TTarvoESocialCamposretPgtoTot::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    AlimentarPropriedadesDaTag();
    if (!EhPrestador())
        CarregarListaPensaoAlimenticia(EhPensaoAlimenticia, AListaCamposModificados);
}

void TTarvoESocialCamposretPgtoTot::AlimentarPropriedadesDaTag()
{
    codRubr = EhPrestador() ? BuscarCodRubrPrestador() : BuscarCodRubrEmpregado();
    ideTabRubr = BuscarIdeTabRubr();
    qtdRubr = EhPrestador() ? 0 : BuscarQtdRubr();
    fatorRubr = EhPrestador() ? 0 : BuscarFatorRubr();
    vrUnit = 0;
    vrRubr = EhPrestador() ? BuscarVrRubrPrestador() : BuscarVrRubr();
}

std::string TTarvoESocialCamposretPgtoTot::BuscarCodRubrEmpregado()
{
    BuscarIncidenciasDaVerba();
    return ComporCodRubrDaVerba(Format(" WHERE TAB_VERBAS.IDVERBA = %D ", IdVerba));
}

std::string TTarvoESocialCamposretPgtoTot::BuscarCodRubrPrestador() const
{
    return regras::ComporCodRubrRpa(IdVerba, BuscarCodigosDaVerbaRpa(IdVerba));
}

long double TTarvoESocialCamposretPgtoTot::BuscarVrRubrPrestador() const
{
    static constexpr std::string_view SQL = R"(SELECT RPAVALOR.VALOR
FROM RPAVALOR
JOIN RPA ON (RPA.IDRPA=RPAVALOR.IDRPA)
JOIN SC00_FILIAL ON (SC00_FILIAL.IDFILIAL=RPA.IDFILIAL)
%0:s)";
    return BuscarSomaDoSql(Format(SQL, FiltroDoRecibo(FInfoBind, Format("RPAVALOR.IDRPATPVALOR = %0:d", IdVerba))),
                           "RPAVALOR.IDRPAVALOR");
}

} // namespace tarvo::pagamento
