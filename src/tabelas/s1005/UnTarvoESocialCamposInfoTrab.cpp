#include "tabelas/s1005/UnTarvoESocialCamposInfoTrab.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposInfoTrab::TTarvoESocialCamposInfoTrab(std::int64_t AIDEstab, std::int64_t AIDDepto, TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{0DF56C99-B4D1-4B1C-81B9-8274449872D5}"), InfoApr(AIDEstab, AIDDepto, AData),
      InfoPCD(AIDEstab, AIDDepto, AData), FLugar(regras::EstabelecimentoPrimeiro(AIDEstab, AIDDepto)), FData(AData)
{}

const TPropriedades& TTarvoESocialCamposInfoTrab::Tabela()
{
    using Eu = TTarvoESocialCamposInfoTrab;
    static const TPropriedades tabela{
        {"InfoApr", &Eu::InfoApr},
        {"InfoPCD", &Eu::InfoPCD},
        {"RegPt", &Eu::RegPt, TFieldRelacionado("INFORMACAO1")},
    };
    return tabela;
}

std::string TTarvoESocialCamposInfoTrab::BuscarSQLDados()
{
    const auto LCfg = FLugar.Cfg();
    return regras::SqlCfgDoDono(Format("%0:s.INFORMACAO1", LCfg.Nome), LCfg, FLugar.Id, {90, 7, 1}, FData);
}

void TTarvoESocialCamposInfoTrab::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    InfoApr.CarregarDados(AListaCamposModificados);
    InfoPCD.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
