#include "tabelas/s1020/UnTarvoESocialCamposInfoProcJudTerceiros.h"

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnTarvoUtilsStrings.h"

namespace tarvo::tabelas {

namespace {

/// The FPAS row of a place, and what the code and the process of its suspended entities are kept in.
struct TLinhaDoFpas {
    regras::TTabelaDeConfiguracao Cfg;
    regras::TChaveDeConfiguracao Chave;
    std::int64_t IdDono;
    std::string_view CodSusp;
    std::string_view Processo;

    std::string Sql(const std::string& AColunas, TDateTime AData) const
    {
        static constexpr std::string_view SQL = R"(SELECT %0:s
FROM %1:s
WHERE %2:s
ORDER BY %3:s, %1:s.%4:s)";
        return Format(SQL, AColunas, Cfg.Nome, regras::CondicaoDaChave(Cfg, IdDono, Chave),
                      regras::OrdemDaValidade(Cfg, AData), Cfg.ColunaDaChave);
    }
};

TLinhaDoFpas LinhaDoFpas(regras::TLugar ALugar)
{
    if (ALugar.EhDepto)
        return {regras::SC00_DEPARTAMENTOCFG, {90, 18, 2}, ALugar.Id, "INFORMACAO2", "INFORMACAO3"};
    return {regras::SC00_FILIALCFG, {90, 51, 2}, ALugar.Id, "INFORMACAO8", "INFORMACAO9"};
}

} // namespace

TTarvoESocialCamposInfoProcJudTerceiros::TTarvoESocialCamposInfoProcJudTerceiros(std::int64_t AIDEstab,
                                                                                 std::int64_t AIDDepto, TDateTime AData)
    : TTarvoESocialCamposGrupoBase("{23F156AF-B2D6-4939-9BAE-DCAFD49C19B3}"),
      FLugar(regras::EstabelecimentoPrimeiro(AIDEstab, AIDDepto)), FData(AData)
{
    CarregarDadosProcJudTerceiro();
}

const TPropriedades& TTarvoESocialCamposInfoProcJudTerceiros::Tabela()
{
    using Eu = TTarvoESocialCamposInfoProcJudTerceiros;
    static const TPropriedades tabela{
        {"ProcJudTerceiro", &Eu::ProcJudTerceiro},
    };
    return tabela;
}

void TTarvoESocialCamposInfoProcJudTerceiros::BuscarCodigosDeTerceiros()
{
    // The order of the bits is that of the children.
    constexpr int BITS[]{2, 1, 4, 8, 16, 32, 64, 128, 256, 512, 1024, 2048, 4096, 8192};
    const auto LLinha = LinhaDoFpas(FLugar);
    std::string LTermos;
    for (const int LBit : BITS)
        LTermos += Format("%0:sBIN_AND(COALESCE(CAST(%1:s.%2:s AS INTEGER),0),%3:d)", LTermos.empty() ? "" : "||','||",
                          LLinha.Cfg.Nome, LLinha.CodSusp, LBit);
    AtribuirCodigosNaLista(TTarvoConsultasGeral::BuscarTexto(LLinha.Sql(LTermos + " CODSUSP", FData)));
}

void TTarvoESocialCamposInfoProcJudTerceiros::AtribuirCodigosNaLista(const std::string& ACodigos)
{
    for (const auto& LItem : TTarvoUtilsStrings::TransfereStringParaLista(ACodigos))
        if (const auto LCodigo = StrToInt64Def(LItem, 0); LCodigo != 0)
            FCodTerceiros.push_back(LCodigo);
}

void TTarvoESocialCamposInfoProcJudTerceiros::CarregarDadosProcJudTerceiro()
{
    BuscarCodigosDeTerceiros();
    const auto LLinha = LinhaDoFpas(FLugar);
    const auto LCds = TTarvoConsultasGeral::BuscarRegistros(
        LLinha.Sql(Format("%0:s.%1:s ID, %0:s.%2:s CODSUSP", LLinha.Cfg.Nome, LLinha.Processo, LLinha.CodSusp), FData));
    const auto LProcesso = LCds->FieldByName("ID");
    if (LProcesso.AsString().empty())
        return;
    for (const auto LCodigo : FCodTerceiros) {
        auto LItem = std::make_unique<TTarvoESocialCamposProcJudTerceiro>(LProcesso.AsLargeInt());
        LItem->CarregarDados();
        LItem->codTerc = IntToStr(LCodigo);
        ProcJudTerceiro.push_back(std::move(LItem));
    }
}

} // namespace tarvo::tabelas
