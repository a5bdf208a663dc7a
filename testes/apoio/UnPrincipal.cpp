#include <gtest/gtest.h>

#include "apoio/UnBancoDeTeste.h"
#include "imports/banco/UnOvraUtilsDbFirebird.h"

int main(int argc, char** argv)
{
    tarvo::PrepararPastaDeTravas();
    ::testing::InitGoogleTest(&argc, argv);
    const int LResultado = RUN_ALL_TESTS();
    // While the client library still lives: at the end of the process its own order of ending is not ours to know.
    tarvo::testes::FecharConexoes();
    return LResultado;
}
