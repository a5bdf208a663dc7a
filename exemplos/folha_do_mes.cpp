// What a company pays in a month, as S-1200 tells it: a line for each rubric with the number of its items and the sum of
// their values, and how many people the month has.
//
//   folha_do_mes folha.fdb 1 2021-03-01 2021-03-31

#include <iostream>
#include <map>

#include "catalogo/UnTarvoESocialCamposCatalogo.h"
#include "imports/banco/UnOvraConnection.h"
#include "imports/banco/UnOvraUtilsDbFirebird.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraCurrency.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200.h"

namespace {

struct TRubrica {
    int Itens = 0;
    tarvo::Currency Valor;
};

void Somar(const tarvo::remuneracao::TTarvoESocialCamposS1200& AEvento, std::map<std::string, TRubrica>& ARubricas)
{
    for (const auto& LDemonstrativo : AEvento.dmDev)
        for (const auto& LLotacao : LDemonstrativo->infoPerApur.ideEstabLot)
            for (const auto& LRemuneracao : LLotacao->remunPerApur)
                for (const auto& LItem : LRemuneracao->itensRemun) {
                    auto& LRubrica = ARubricas[LItem->codRubr];
                    ++LRubrica.Itens;
                    LRubrica.Valor += tarvo::Currency(LItem->vrRubr);
                }
}

void MostrarFolha(const std::string& ABanco, const std::map<std::string, std::string>& AArgumentos)
{
    tarvo::TOvraConnection LConexao(tarvo::ParametrosDaConexao(ABanco));
    tarvo::DefinirOvraConnection(&LConexao);
    // One snapshot: all figures are of the same moment.
    LConexao.IniciarTransacao(tarvo::TOvraConnection::TIsolamento::Instantaneo);

    std::map<std::string, TRubrica> LRubricas;
    int LPessoas = 0;
    for (const auto& LChave : tarvo::BuscarChavesDoLote("S-1200", AArgumentos)) {
        const auto LConstruido = tarvo::ConstruirEvento("S-1200", LChave.Argumentos);
        auto& LEvento = dynamic_cast<tarvo::remuneracao::TTarvoESocialCamposS1200&>(*LConstruido.Evento);
        LEvento.CarregarDados();
        LPessoas += LEvento.dmDev.empty() ? 0 : 1;
        Somar(LEvento, LRubricas);
    }
    for (const auto& [LCodigo, LRubrica] : LRubricas)
        std::cout << LCodigo << '\t' << LRubrica.Itens << '\t' << tarvo::CurrToStr(LRubrica.Valor) << '\n';
    std::cout << "Pessoas com remuneração no mês: " << LPessoas << '\n';
    tarvo::DefinirOvraConnection(nullptr);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 5) {
        std::cerr << "Uso: folha_do_mes BANCO IDEMPRESA INICIO FIM (datas como AAAA-MM-DD)\n";
        return 2;
    }
    try {
        tarvo::PrepararPastaDeTravas();
        MostrarFolha(argv[1], {{"IdEmpresa", argv[2]}, {"DataInicio", argv[3]}, {"DataFim", argv[4]}});
        return 0;
    } catch (const std::exception& LErro) {
        std::cerr << LErro.what() << '\n';
        return 1;
    }
}
