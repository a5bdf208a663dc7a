#pragma once

#include <list>
#include <mutex>
#include <string>
#include <thread>

namespace tarvo::testes {

/// A port on the loopback that passes everything on to a server, until it is cut.
class TPonteTcp {
public:
    /// std::runtime_error when the port can't be had.
    TPonteTcp(const std::string& AServidor, const std::string& APorta);
    TPonteTcp(const TPonteTcp&) = delete;
    TPonteTcp& operator=(const TPonteTcp&) = delete;
    /// Cuts, and waits for the relays to end.
    ~TPonteTcp();

    int Porta() const { return FPorta; }
    /// Breaks every connection at once, on both sides, as a pulled cable or a killed server would.
    void Cortar();

private:
    struct TPar {
        int Cliente = -1;
        int Servidor = -1;
    };

    void Atender();
    void Repassar(TPar APar);
    int LigarAoServidor() const;

    std::string FServidor;
    std::string FPortaDoServidor;
    int FEscuta = -1;
    int FPorta = 0;
    std::mutex FTrava;
    std::list<TPar> FPares;
    std::list<std::thread> FRepasses;
    std::thread FAtendente;
};

} // namespace tarvo::testes
