#include "desligamento/s2399/UnTS2399DadosCalculos.h"

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::desligamento {

TS2399DadosCalculos::TS2399DadosCalculos(TdmDevS2399IOP& ADadosDmDev)
    : TDadosCalculosDesligamento(ADadosDmDev,
                                 "'5E', '5EC', '5EB', '5EA', '99F', '99G', '99GA', '99H', '99HA', '99I', '99K', '99M'")
{}

void TS2399DadosCalculos::CarregarRegistrosCalculo()
{
    LimparListas();
    if (const auto LCds = BuscarCalculo())
        for (; !LCds->Eof(); LCds->Next())
            AdicionarVerba(*LCds);
    CarregarLotacoesDoCalculo();
}

TDataset TS2399DadosCalculos::BuscarCalculo()
{
    using enum TTipoCalculoDesligamento;
    switch (DadosDmDev().TipoCalculo) {
    case Rescisao:
        return BuscarCalculoRescisao();
    case RescisaoComplementar:
        return BuscarCalculoRescisaoComplementar();
    case OutroDaCompetencia:
        return BuscarCalculoOutrosTiposNaCompetencia();
    default:
        return nullptr;
    }
}

// Unlike the dismissal's: rows that aren't split count too, the kind stands without quotes in the break form, and the
// order is by rubric alone there, so that rows of one lotação can be parted by those of another. All are meant.
TDataset TS2399DadosCalculos::BuscarCalculoRescisao()
{
    const auto Condicoes = [&](std::string_view ATipo) {
        return Format(
            "CALCULO.TIPO = %0:s\n  AND CALCULO.SUBTIPO IN (104, 105)\n  AND %1:s", ATipo,
            CondicaoDoPeriodo(DadosDmDev().GetPrimeiroDiaMesRescisao(), DadosDmDev().GetUltimoDiaMesRescisao()));
    };
    FSqlCalc = SqlDoCalculo(Condicoes("'01'")) +
               "\nORDER BY CALCULO.COD_EMPRESA, CALCULO.COD_FILIAL, CALCULO.COD_DEPTO, TAB_VERBAS.IDVERBA,"
               " CALCULO.IDCALCULO";
    FSqlCalcQuebra = SqlDaQuebraOuDoCalculo(Condicoes("01")) + "\nORDER BY IDVERBA, MIN(IDCALCULO), MIN(IDCALCQUEBRA)";
    return TTarvoConsultasGeral::BuscarCalculoEventoESocial(DadosDmDev().TipoQuebraEmpresa, FSqlCalc, FSqlCalcQuebra);
}

} // namespace tarvo::desligamento
