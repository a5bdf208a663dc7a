#include "regras/UnTarvoESocialCamposIdeDmDev.h"

#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo::regras {

std::string FormarIdeDmDev(const TDadosIdeDmDev& ADados)
{
    const auto LConvocacao = ADados.IdDetConvocacao ? FormatFloat("0000000000", *ADados.IdDetConvocacao) + "_" : "";
    std::string LTexto = FormatFloat("00", ADados.TipoFolha) + "_";
    switch (ADados.Forma) {
    case TFormaIdeDmDev::Recibo:
        LTexto += FormatFloat("0000000000", ADados.NrRecibo) + "_" + FormatDateTime("DD_MM_YYYY", ADados.Data);
        break;
    case TFormaIdeDmDev::Rescisao:
        LTexto +=
            FormatFloat("000", ADados.SubTipoFolha) + "_" + LConvocacao + FormatDateTime("DD_MM_YYYY", ADados.Data);
        break;
    case TFormaIdeDmDev::Folha:
        LTexto += FormatFloat("000", ADados.SubTipoFolha) + "_" + FormatFloat("0", ADados.TipoFolhaCompl) + "_" +
                  LConvocacao + FormatDateTime("MM_YYYY", ADados.Data);
        break;
    }
    if (ADados.CodCateg != 0)
        LTexto += "_" + IntToStr(ADados.CodCateg);
    return LTexto;
}

} // namespace tarvo::regras
