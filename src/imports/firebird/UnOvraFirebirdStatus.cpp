#include "imports/firebird/UnOvraFirebirdStatus.h"

#include <algorithm>
#include <array>
#include <string>

#include "imports/valores/UnOvraConversoes.h"

namespace tarvo::firebird {

using namespace Firebird;

namespace {

/// What to do about an error whose own text doesn't tell; goes in front of it.
std::string ConselhoDoErro(intptr_t ACodigo)
{
    if (ACodigo == isc_unavailable) {
        const auto LVersao = Mestre()->getUtilInterface()->getClientVersion();
        return "Falta o motor do Firebird que abre um arquivo: instale o pacote firebird" +
               std::to_string(LVersao >> 8) + "." + std::to_string(LVersao & 0xFF) + "-server-core\n";
    }
    if (ACodigo == isc_wrong_ods)
        return "O arquivo é de outra versão do Firebird: copie-o com o gbak da versão que o criou (gbak -b) e "
               "restaure-o "
               "com o da versão em uso (gbak -c)\n";
    return {};
}

} // namespace

IMaster* Mestre()
{
    static IMaster* LMestre = fb_get_master_interface();
    return LMestre;
}

void TStatus::Lancar()
{
    const intptr_t* LErros = getErrors();
    std::array<char, 8192> LTexto{};
    Mestre()->getUtilInterface()->formatStatus(LTexto.data(), LTexto.size(), this);
    std::array<char, 6> LSqlState{};
    fb_sqlstate(LSqlState.data(), LErros);
    throw EDatabaseError(ConselhoDoErro(LErros[1]) + ParaUtf8(LTexto.data()), LErros[1], LSqlState.data());
}

TBlocoDeParametros CriarBloco(unsigned ATipo)
{
    TStatus LStatus;
    return TBlocoDeParametros(Mestre()->getUtilInterface()->getXpbBuilder(&LStatus, ATipo, nullptr, 0));
}

bool EhPerdaDeConexao(const EDatabaseError& AErro)
{
    static constexpr ISC_STATUS CODIGOS[] = {isc_network_error,      isc_net_read_err,    isc_net_write_err,
                                             isc_lost_db_connection, isc_att_shutdown,    isc_bad_db_handle,
                                             isc_shutdown,           isc_cancelled,       isc_att_handle_busy,
                                             isc_net_connect_err,    isc_bad_trans_handle};
    return std::find(std::begin(CODIGOS), std::end(CODIGOS), AErro.Codigo()) != std::end(CODIGOS);
}

} // namespace tarvo::firebird
