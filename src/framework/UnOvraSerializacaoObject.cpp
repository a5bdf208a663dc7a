#include "framework/UnOvraSerializacaoObject.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/reader.h>
#include <rapidjson/writer.h>

#include <array>
#include <charconv>
#include <cmath>

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "imports/UnOvraExcecoes.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo {

namespace {

using TEscritor = rapidjson::Writer<rapidjson::StringBuffer, rapidjson::UTF8<>, rapidjson::UTF8<>,
                                    rapidjson::CrtAllocator, rapidjson::kWriteValidateEncodingFlag>;

void EscreverGrupo(TEscritor& AEscritor, const TTarvoESocialCamposGrupoBase* AGrupo);

void EscreverTexto(TEscritor& AEscritor, const std::string& ATexto)
{
    if (!AEscritor.String(ATexto.data(), static_cast<rapidjson::SizeType>(ATexto.size())))
        throw EConvertError("Texto que não é UTF-8 em uma propriedade");
}

void EscreverNumero(TEscritor& AEscritor, std::string_view ATexto)
{
    AEscritor.RawValue(ATexto.data(), ATexto.size(), rapidjson::kNumberType);
}

void EscreverFlutuante(TEscritor& AEscritor, double AValor)
{
    if (!std::isfinite(AValor))
        throw EConvertError("Número sem valor definido em uma propriedade");
    std::array<char, 40> LBuffer{};
    const auto LFim = std::to_chars(LBuffer.data(), LBuffer.data() + LBuffer.size(), AValor);
    const std::string_view LTexto(LBuffer.data(), static_cast<std::size_t>(LFim.ptr - LBuffer.data()));
    EscreverNumero(AEscritor, LTexto == "-0" ? "0" : LTexto);
}

void EscreverData(TEscritor& AEscritor, TDateTime AData)
{
    if (AData.Vazia())
        AEscritor.Null();
    else
        EscreverTexto(AEscritor, FormatDateTime(TemHora(AData) ? "yyyy-mm-ddThh:nn:ss" : "yyyy-mm-dd", AData));
}

void EscreverValor(TEscritor& AEscritor, const TValorPropriedade& AValor)
{
    struct TVisitante {
        TEscritor& Escritor;
        void operator()(std::monostate) const { Escritor.Null(); }
        void operator()(std::int64_t AInteiro) const { Escritor.Int64(AInteiro); }
        void operator()(long double ANumero) const { EscreverFlutuante(Escritor, static_cast<double>(ANumero)); }
        void operator()(Currency AMoeda) const
        {
            EscreverNumero(Escritor, DecimalToStr(AMoeda.DecimosMilesimos(), -4, '.'));
        }
        void operator()(bool ABooleano) const { Escritor.Bool(ABooleano); }
        void operator()(TDateTime AData) const { EscreverData(Escritor, AData); }
        void operator()(const std::string& ATexto) const { EscreverTexto(Escritor, ATexto); }
    };
    std::visit(TVisitante{AEscritor}, AValor);
}

void EscreverPropriedade(TEscritor& AEscritor, const TPropriedade& APropriedade,
                         const TTarvoESocialCamposGrupoBase& AGrupo)
{
    switch (APropriedade.Tipo()) {
    case TTipoPropriedade::Grupo:
        EscreverGrupo(AEscritor, APropriedade.Filho(AGrupo));
        break;
    case TTipoPropriedade::ListaDeGrupos:
        AEscritor.StartArray();
        for (std::size_t i = 0; i < APropriedade.Quantidade(AGrupo); ++i)
            EscreverGrupo(AEscritor, APropriedade.Item(AGrupo, i));
        AEscritor.EndArray();
        break;
    case TTipoPropriedade::ListaDeTextos:
    case TTipoPropriedade::ListaDeInteiros:
        AEscritor.StartArray();
        for (std::size_t i = 0; i < APropriedade.Quantidade(AGrupo); ++i)
            EscreverValor(AEscritor, APropriedade.Valor(AGrupo, i));
        AEscritor.EndArray();
        break;
    default:
        EscreverValor(AEscritor, APropriedade.Ler(AGrupo));
    }
}

void EscreverGrupo(TEscritor& AEscritor, const TTarvoESocialCamposGrupoBase* AGrupo)
{
    if (AGrupo == nullptr) {
        AEscritor.Null();
        return;
    }
    AEscritor.StartObject();
    for (const auto& LPropriedade : AGrupo->PropriedadesDaClasse()) {
        AEscritor.Key(LPropriedade.Nome());
        EscreverPropriedade(AEscritor, LPropriedade, *AGrupo);
    }
    AEscritor.EndObject();
}

/// Writes what the reader reads; numbers pass as they stand, so that money keeps its last digit.
class TIdentador : public rapidjson::PrettyWriter<rapidjson::StringBuffer> {
public:
    using PrettyWriter::PrettyWriter;
    bool RawNumber(const char* ATexto, rapidjson::SizeType ATamanho, bool)
    {
        return RawValue(ATexto, ATamanho, rapidjson::kNumberType);
    }
};

} // namespace

std::string ISuperObject::AsJSON(bool AIdentado) const
{
    if (!AIdentado)
        return FTexto;
    rapidjson::StringBuffer LBuffer;
    TIdentador LEscritor(LBuffer);
    LEscritor.SetIndent(' ', 2);
    rapidjson::StringStream LTexto(FTexto.c_str());
    rapidjson::Reader LLeitor;
    LLeitor.Parse<rapidjson::kParseNumbersAsStringsFlag>(LTexto, LEscritor);
    return {LBuffer.GetString(), LBuffer.GetSize()};
}

std::string TextoJson(std::string_view ATexto)
{
    rapidjson::StringBuffer LBuffer;
    TEscritor LEscritor(LBuffer);
    EscreverTexto(LEscritor, ParaUtf8(ATexto));
    return {LBuffer.GetString(), LBuffer.GetSize()};
}

ISuperObject TSuperObjectHelper::ToJson(const TTarvoESocialCamposGrupoBase& AGrupo, TSuperRttiContext*)
{
    rapidjson::StringBuffer LBuffer;
    TEscritor LEscritor(LBuffer);
    EscreverGrupo(LEscritor, &AGrupo);
    return ISuperObject({LBuffer.GetString(), LBuffer.GetSize()});
}

} // namespace tarvo
