#include "imports/consultas/UnTarvoConsultasEmpresa.h"

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraConversoes.h"
#include "imports/valores/UnOvraFormat.h"

namespace tarvo {

static constexpr std::string_view SQL_EMPRESA_DO_ESTAB = R"(SELECT SC00_FILIAL.IDEMPRESA
FROM SC00_FILIAL
WHERE SC00_FILIAL.IDFILIAL = %0:d)";

std::int64_t TTarvoConsultasEmpresa::BuscarIDEmpresaPeloIDEstab(std::int64_t AIDEstab)
{
    return TTarvoConsultasGeral::BuscarInteiro(Format(SQL_EMPRESA_DO_ESTAB, AIDEstab));
}

static constexpr std::string_view SQL_TIPO_QUEBRA = R"(SELECT FIRST 1 SC00_EMPRESACFG.INFORMACAO1
FROM SC00_EMPRESACFG
WHERE SC00_EMPRESACFG.IDEMPRESA = %0:d
  AND SC00_EMPRESACFG.ORIGEM = 90
  AND SC00_EMPRESACFG.ESPECIE = 19
  AND SC00_EMPRESACFG.TP = 1
ORDER BY SC00_EMPRESACFG.DATAINICIO DESC, SC00_EMPRESACFG.IDEMPRESACFG)";

TTipoQuebraGpsGfip TTarvoConsultasEmpresa::BuscarTipoQuebraGpsGfipEmpresa(std::int64_t AIDEmpresa)
{
    const auto LOrdinal = StrToInt64Def(TTarvoConsultasGeral::BuscarTexto(Format(SQL_TIPO_QUEBRA, AIDEmpresa)), 0);
    constexpr auto ULTIMO = static_cast<std::int64_t>(TTipoQuebraGpsGfip::Departamento);
    return LOrdinal < 0 || LOrdinal > ULTIMO ? TTipoQuebraGpsGfip::Nenhuma : static_cast<TTipoQuebraGpsGfip>(LOrdinal);
}

std::string TTarvoConsultasEmpresa::BuscarCampoPeloIdEmpresa(std::string_view ACampo, std::int64_t AIDEmpresa)
{
    return TTarvoConsultasGeral::BuscarValor("SC00_EMPRESA", ACampo,
                                             Format(" WHERE SC00_EMPRESA.IDEMPRESA = %0:d", AIDEmpresa));
}

} // namespace tarvo
