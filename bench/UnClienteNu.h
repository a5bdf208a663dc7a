#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tarvo::bancada {

/// A statement as a load ran it.
struct TComandoGravado {
    std::string Sql;
    /// Rows read or changed; another number in a repetition is an error of the measure.
    std::int64_t Linhas = 0;
};

/// A client of the database with nothing of the library's: what the same statements cost without it. It turns the
/// database's forced writes off, for everybody. Failures are std::runtime_error.
class TClienteNu {
public:
    TClienteNu(const std::string& ABanco, const std::string& AUsuario, const std::string& ASenha);
    ~TClienteNu();

    /// Runs the statements in order in one transaction, each prepared anew, and undoes.
    void RodarPreparando(const std::vector<TComandoGravado>& AComandos);
    /// Prepares the statements once: those of one shape share a prepared one, with their literals as parameters.
    /// A statement whose rows would differ so keeps its literals.
    void PrepararTodos(const std::vector<TComandoGravado>& AComandos);
    /// Prepared statements that PrepararTodos made.
    std::size_t Preparados() const;
    /// Runs again what PrepararTodos prepared, in order in one transaction, and undoes.
    void RodarPreparados();

private:
    struct TImplementacao;
    std::unique_ptr<TImplementacao> FImplementacao;
};

} // namespace tarvo::bancada
