#include "remuneracao/saude/UnTarvoESocialCamposdetOperS1200.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::remuneracao {

TTarvoESocialCamposdetOperS1200::TTarvoESocialCamposdetOperS1200(const TTarvoESocialCamposS1200IOP& AinfoBind1200,
                                                                 const TDadosCalculo& ADadosCalculo,
                                                                 TDateTime ADataInicioCalculo,
                                                                 TDateTime ADataFimCalculo)
    : TTarvoESocialCamposDetOperPlanoSaude("{47FD1DE5-FF3B-4362-95D1-BAB400A9F942}",
                                           {.IdVerba = ADadosCalculo.IdVerba,
                                            .Valor = Currency(ADadosCalculo.Valor),
                                            .DataInicio = ADataInicioCalculo,
                                            .DataFim = ADataFimCalculo,
                                            .DiasTrab = ADadosCalculo.DiasTrab},
                                           tabelas::TOperadorasDaVerba::SemTipo2),
      FinfoBind1200(AinfoBind1200)
{}

std::string TTarvoESocialCamposdetOperS1200::CondicaoDoEmpregado() const
{
    return Format("IN (%0:d)", FinfoBind1200.IdEmpregado());
}

} // namespace tarvo::remuneracao
