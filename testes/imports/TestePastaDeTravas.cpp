#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "imports/banco/UnOvraUtilsDbFirebird.h"

namespace tarvo::testes {
namespace {

namespace fs = std::filesystem;

/// What FIREBIRD_LOCK is for a plain user after the folder was chosen; asked in a child process, which changes it.
std::string Escolhida(const fs::path& APasta, const char* AJaDefinida = nullptr)
{
    constexpr uid_t NINGUEM = 65534;
    int LPontas[2];
    if (pipe(LPontas) != 0)
        return "pipe";
    const auto LFilho = fork();
    if (LFilho == 0) {
        unsetenv("FIREBIRD_LOCK");
        if (AJaDefinida != nullptr)
            setenv("FIREBIRD_LOCK", AJaDefinida, 1);
        std::string LTexto = "setuid";
        if (geteuid() != 0 || setresuid(NINGUEM, NINGUEM, NINGUEM) == 0) {
            PrepararPastaDeTravas(APasta);
            const char* LValor = std::getenv("FIREBIRD_LOCK");
            LTexto = LValor == nullptr ? "" : LValor;
        }
        _exit(write(LPontas[1], LTexto.data(), LTexto.size()) < 0 ? 1 : 0);
    }
    close(LPontas[1]);
    char LBuffer[512];
    const auto LLidos = read(LPontas[0], LBuffer, sizeof(LBuffer));
    close(LPontas[0]);
    waitpid(LFilho, nullptr, 0);
    return {LBuffer, static_cast<std::size_t>(std::max<ssize_t>(LLidos, 0))};
}

TEST(TTestePastaDeTravas, QuemNaoPodeUsarADoMotorTemASua)
{
    auto LNome = (fs::temp_directory_path() / "travas-XXXXXX").string();
    ASSERT_NE(nullptr, mkdtemp(LNome.data()));
    const fs::path LBase = LNome;
    fs::permissions(LBase, fs::perms::all);
    const auto LMotor = LBase / "firebird";
    const auto LUid = std::to_string(geteuid() == 0 ? 65534 : geteuid());
    const auto LPropria = LBase / ("firebird-" + LUid);

    EXPECT_EQ("", Escolhida(LMotor)); // the engine makes it
    fs::create_directory(LMotor);
    fs::permissions(LMotor, fs::perms::all);
    EXPECT_EQ("", Escolhida(LMotor));
    EXPECT_FALSE(fs::exists(LPropria));

    fs::permissions(LMotor, fs::perms::none);
    EXPECT_EQ("/ja/definida", Escolhida(LMotor, "/ja/definida"));
    EXPECT_FALSE(fs::exists(LPropria));
    EXPECT_EQ(LPropria, Escolhida(LMotor));
    EXPECT_EQ(LPropria, Escolhida(LMotor)); // and the next time again
    EXPECT_EQ(fs::perms::owner_all, fs::status(LPropria).permissions());

    // One that others may write to, and one that isn't a folder.
    fs::permissions(LPropria, fs::perms::all);
    EXPECT_EQ("", Escolhida(LMotor));
    fs::remove_all(LPropria);
    fs::create_directory_symlink("/tmp", LPropria);
    EXPECT_EQ("", Escolhida(LMotor));
    fs::permissions(LMotor, fs::perms::owner_all);
    fs::remove_all(LBase);
}

} // namespace
} // namespace tarvo::testes
