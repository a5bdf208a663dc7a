#include "apoio/UnPonteTcp.h"

#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <memory>
#include <stdexcept>

namespace tarvo::testes {

namespace {

void SemEspera(int ASoquete)
{
    const int LSim = 1;
    setsockopt(ASoquete, IPPROTO_TCP, TCP_NODELAY, &LSim, sizeof(LSim));
}

/// Passes on what stands to be read; false at the end of the connection.
bool Passar(int ADe, int APara)
{
    std::array<char, 16384> LBuffer{};
    const auto LLidos = recv(ADe, LBuffer.data(), LBuffer.size(), 0);
    for (ssize_t LEnviados = 0, LParte = 0; LEnviados < LLidos; LEnviados += LParte) {
        LParte = send(APara, LBuffer.data() + LEnviados, static_cast<std::size_t>(LLidos - LEnviados), MSG_NOSIGNAL);
        if (LParte <= 0)
            return false;
    }
    return LLidos > 0;
}

} // namespace

TPonteTcp::TPonteTcp(const std::string& AServidor, const std::string& APorta)
    : FServidor(AServidor), FPortaDoServidor(APorta), FEscuta(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_in LEndereco{};
    LEndereco.sin_family = AF_INET;
    LEndereco.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t LTamanho = sizeof(LEndereco);
    auto* LGenerico = reinterpret_cast<sockaddr*>(&LEndereco);
    if (FEscuta < 0 || bind(FEscuta, LGenerico, LTamanho) != 0 || listen(FEscuta, 8) != 0 ||
        getsockname(FEscuta, LGenerico, &LTamanho) != 0) {
        close(FEscuta);
        throw std::runtime_error("ponte TCP");
    }
    FPorta = ntohs(LEndereco.sin_port);
    FAtendente = std::thread([this] { Atender(); });
}

TPonteTcp::~TPonteTcp()
{
    shutdown(FEscuta, SHUT_RDWR);
    FAtendente.join();
    Cortar();
    for (auto& LRepasse : FRepasses)
        LRepasse.join();
    close(FEscuta);
}

int TPonteTcp::LigarAoServidor() const
{
    addrinfo LPedido{};
    LPedido.ai_socktype = SOCK_STREAM;
    addrinfo* LLista = nullptr;
    if (getaddrinfo(FServidor.c_str(), FPortaDoServidor.c_str(), &LPedido, &LLista) != 0)
        return -1;
    const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> LDono(LLista, &freeaddrinfo);
    for (const auto* LItem = LLista; LItem != nullptr; LItem = LItem->ai_next) {
        const int LSoquete = socket(LItem->ai_family, LItem->ai_socktype | SOCK_CLOEXEC, LItem->ai_protocol);
        if (LSoquete >= 0 && connect(LSoquete, LItem->ai_addr, LItem->ai_addrlen) == 0)
            return LSoquete;
        close(LSoquete);
    }
    return -1;
}

void TPonteTcp::Atender()
{
    for (int LCliente = -1; (LCliente = accept4(FEscuta, nullptr, nullptr, SOCK_CLOEXEC)) >= 0;) {
        const int LServidor = LigarAoServidor();
        if (LServidor < 0) {
            close(LCliente);
            continue;
        }
        SemEspera(LCliente);
        SemEspera(LServidor);
        const std::lock_guard LGuarda(FTrava);
        const auto& LPar = FPares.emplace_back(TPar{LCliente, LServidor});
        FRepasses.emplace_back([this, LPar] { Repassar(LPar); });
    }
}

void TPonteTcp::Repassar(TPar APar)
{
    std::array<pollfd, 2> LPontas{pollfd{APar.Cliente, POLLIN, 0}, pollfd{APar.Servidor, POLLIN, 0}};
    for (bool LViva = true; LViva && poll(LPontas.data(), LPontas.size(), -1) > 0;) {
        if (LPontas[0].revents != 0)
            LViva = Passar(APar.Cliente, APar.Servidor);
        if (LViva && LPontas[1].revents != 0)
            LViva = Passar(APar.Servidor, APar.Cliente);
    }
    const std::lock_guard LGuarda(FTrava);
    FPares.remove_if([&](const TPar& AItem) { return AItem.Cliente == APar.Cliente; });
    close(APar.Cliente);
    close(APar.Servidor);
}

void TPonteTcp::Cortar()
{
    const std::lock_guard LGuarda(FTrava);
    for (const auto& LPar : FPares)
        for (const int LPonta : {LPar.Cliente, LPar.Servidor})
            shutdown(LPonta, SHUT_RDWR);
}

} // namespace tarvo::testes
