#include "imports/banco/UnOvraUtilsDbFirebird.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "imports/banco/UnOvraConnection.h"
#include "imports/banco/UnTarvoUtilsDb.h"
#include "imports/valores/UnOvraConversoes.h"

namespace tarvo {

std::unique_ptr<TOvraClientDataSetWithConnection> TOvraUtilsDb::CreateClientDataSetWithConnection() const
{
    return CriarOvraClientDataset();
}

TInformacoesBancoFirebird TOvraUtilsDbFirebird::GetInformacoesBancoDeDados() const
{
    return {IntToStr(OvraConnection().VersaoMaiorDoServidor())};
}

const TOvraUtilsDbFirebird& BuscarInstanciaOvraUtilsDbManager()
{
    static const TOvraUtilsDbFirebird LInstancia;
    return LInstancia;
}

void PrepararPastaDeTravas(const std::string& APasta)
{
    constexpr const char* VARIAVEL = "FIREBIRD_LOCK";
    // A folder that isn't there yet is made by the engine, and belongs to this user then.
    if (std::getenv(VARIAVEL) != nullptr || faccessat(AT_FDCWD, APasta.c_str(), R_OK | W_OK | X_OK, AT_EACCESS) == 0 ||
        errno == ENOENT)
        return;
    const auto LPropria = APasta + "-" + std::to_string(geteuid());
    mkdir(LPropria.c_str(), S_IRWXU);
    // A folder or a link that somebody else put there is no place for this user's files.
    struct stat LDados {};
    if (lstat(LPropria.c_str(), &LDados) == 0 && S_ISDIR(LDados.st_mode) && LDados.st_uid == geteuid() &&
        (LDados.st_mode & (S_IRWXG | S_IRWXO)) == 0)
        setenv(VARIAVEL, LPropria.c_str(), 0);
}

} // namespace tarvo
