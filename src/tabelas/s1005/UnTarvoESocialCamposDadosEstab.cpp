#include "tabelas/s1005/UnTarvoESocialCamposDadosEstab.h"

#include "imports/valores/UnOvraFormat.h"

namespace tarvo::tabelas {

TTarvoESocialCamposDadosEstab::TTarvoESocialCamposDadosEstab(std::int64_t AIDEstab, std::int64_t AIDDepto,
                                                             TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{5A04AFF8-42B3-4A8C-9A42-4ED261E2151E}"), AliqGilRat(AIDEstab, AIDDepto, AData),
      InfoCaepf(AIDEstab, AIDDepto, AData), InfoObra(AIDEstab, AIDDepto, AData), InfoTrab(AIDEstab, AIDDepto, AData),
      FLugar(regras::EstabelecimentoPrimeiro(AIDEstab, AIDDepto))
{}

const TPropriedades& TTarvoESocialCamposDadosEstab::Tabela()
{
    using Eu = TTarvoESocialCamposDadosEstab;
    static const TPropriedades tabela{
        {"AliqGilRat", &Eu::AliqGilRat},
        {"InfoCaepf", &Eu::InfoCaepf},
        {"InfoObra", &Eu::InfoObra},
        {"InfoTrab", &Eu::InfoTrab},
        {"CnaePrep", &Eu::CnaePrep, TFieldRelacionado("INFORMACAO2")},
    };
    return tabela;
}

std::string TTarvoESocialCamposDadosEstab::BuscarSQLDados()
{
    static constexpr std::string_view SQL_ESTAB = R"(SELECT FIRST 1 SC00_FILIALCFG.INFORMACAO2
FROM SC00_FILIALCFG
WHERE SC00_FILIALCFG.IDFILIAL = %0:d
  AND %1:s
ORDER BY SC00_FILIALCFG.DATAINICIO DESC, SC00_FILIALCFG.IDFILIALCFG)";
    // Not descending, unlike the establishment's; meant.
    static constexpr std::string_view SQL_DEPTO = R"(SELECT FIRST 1 SC00_FILIALCFG.INFORMACAO2
FROM SC00_FILIALCFG
JOIN SC00_DEPTO ON (SC00_DEPTO.IDFILIAL = SC00_FILIALCFG.IDFILIAL)
WHERE SC00_DEPTO.IDDEPTO = %0:d
  AND %1:s
ORDER BY SC00_FILIALCFG.DATAINICIO, SC00_FILIALCFG.IDFILIALCFG)";
    return Format(FLugar.EhDepto ? SQL_DEPTO : SQL_ESTAB, FLugar.Id,
                  regras::CondicaoDaChave(regras::SC00_FILIALCFG, {1, 1, 2}));
}

void TTarvoESocialCamposDadosEstab::CarregarDados(const TListaCamposModificados* AListaCamposModificados)
{
    TTarvoESocialCamposGrupoBase::CarregarDados(AListaCamposModificados);
    AliqGilRat.CarregarDados(AListaCamposModificados);
    InfoCaepf.CarregarDados(AListaCamposModificados);
    InfoObra.CarregarDados(AListaCamposModificados);
    InfoTrab.CarregarDados(AListaCamposModificados);
}

} // namespace tarvo::tabelas
