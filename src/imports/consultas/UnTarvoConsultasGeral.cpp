#include "imports/consultas/UnTarvoConsultasGeral.h"

#include <algorithm>
#include <array>

#include "imports/banco/UnOvraConnection.h"
#include "imports/consultas/UnTarvoConsultasVerbas.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo {

namespace {

constexpr std::array NATUREZAS_DA_BASE{9905, 9930, 9931, 9932};
constexpr std::array<std::string_view, 7> FORMULAS_DO_VALOR{"6BCA", "8BN", "6BRL", "6BCAL", "8BNL", "6BCAK", "8BNM"};

template <class T>
bool Contem(const T& ALista, const typename T::value_type& AValor)
{
    return std::find(ALista.begin(), ALista.end(), AValor) != ALista.end();
}

} // namespace

TDataset TTarvoConsultasGeral::BuscarRegistros(std::string_view ASql)
{
    return std::make_unique<TOvraClientDataSet>(OvraConnection().Consultar(ASql));
}

TDataset TTarvoConsultasGeral::BuscarRegistrosSomenteLeitura(std::string_view ASql) { return BuscarRegistros(ASql); }

void TTarvoConsultasGeral::BuscarRegistrosBD(TDataset& ACds, std::string_view ASql)
{
    auto LLinhas = OvraConnection().Consultar(ASql);
    if (!ACds)
        ACds = std::make_unique<TOvraClientDataSet>();
    ACds->Atribuir(std::move(LLinhas));
}

bool TTarvoConsultasGeral::EncontrouRegistros(std::string_view ASql)
{
    return OvraConnection().Consultar(ASql).QuantidadeDeLinhas() > 0;
}

std::string TTarvoConsultasGeral::BuscarValor(std::string_view ATabela, std::string_view ACampo,
                                              std::string_view AWhere)
{
    return BuscarTexto(Format("SELECT FIRST 1 %0:s FROM %1:s %2:s", ACampo, ATabela, AWhere));
}

std::string TTarvoConsultasGeral::BuscarTexto(std::string_view ASql)
{
    const auto LLinhas = OvraConnection().Consultar(ASql);
    return LLinhas.QuantidadeDeLinhas() > 0 ? LLinhas.Texto(0, 0) : std::string();
}

std::int64_t TTarvoConsultasGeral::BuscarInteiro(std::string_view ASql)
{
    const auto LLinhas = OvraConnection().Consultar(ASql);
    return LLinhas.QuantidadeDeLinhas() > 0 ? LLinhas.Inteiro(0, 0) : 0;
}

TDateTime TTarvoConsultasGeral::BuscarData(std::string_view ASql)
{
    const auto LLinhas = OvraConnection().Consultar(ASql);
    return LLinhas.QuantidadeDeLinhas() > 0 ? LLinhas.Data(0, 0) : TDateTime();
}

std::vector<std::int64_t> TTarvoConsultasGeral::BuscarListaDeIds(std::string_view ASql)
{
    const auto LLinhas = OvraConnection().Consultar(ASql);
    std::vector<std::int64_t> LIds;
    LIds.reserve(LLinhas.QuantidadeDeLinhas());
    for (std::size_t LLinha = 0; LLinha < LLinhas.QuantidadeDeLinhas(); ++LLinha)
        LIds.push_back(LLinhas.Inteiro(LLinha, 0));
    return LIds;
}

TDataset TTarvoConsultasGeral::BuscarCalculoEventoESocial(TTipoQuebraGpsGfip ATipoQuebra,
                                                          std::string_view ASqlSemQuebra,
                                                          std::string_view ASqlComQuebra)
{
    return BuscarRegistrosSomenteLeitura(ATipoQuebra == TTipoQuebraGpsGfip::Nenhuma ? ASqlSemQuebra : ASqlComQuebra);
}

Currency TTarvoConsultasGeral::BuscarValorVerbaParaESocial(std::int64_t AIDVerba, std::string_view AFormula,
                                                           Currency ABase, Currency AValor, TDateTime AData)
{
    return VerbaUsaBase(TTarvoConsultasVerbas::BuscarNatRubrVerba(AIDVerba, AData), AFormula) ? ABase : AValor;
}

bool TTarvoConsultasGeral::VerbaUsaBase(std::int32_t ANatRubr, std::string_view AFormula)
{
    return Contem(NATUREZAS_DA_BASE, ANatRubr) && !Contem(FORMULAS_DO_VALOR, AFormula);
}

static constexpr std::string_view SQL_PRESTADOR_DO_ATESTADO = R"(SELECT FP_SITUACAOATESTADO.IDPRESTSERVICO
FROM FP_SITUACAOATESTADO
WHERE FP_SITUACAOATESTADO.IDSITUACAOATESTADO = %0:d)";

std::int64_t TTarvoConsultasGeral::BuscarIdPrestadorPeloIDSituacaoAtestado(std::int64_t AIdSituacao)
{
    return BuscarInteiro(Format(SQL_PRESTADOR_DO_ATESTADO, AIdSituacao));
}

} // namespace tarvo
