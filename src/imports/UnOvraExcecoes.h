#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace tarvo {

/// Root of every failure that the library reports. `what()` is the Portuguese text for the user, in UTF-8.
class Exception : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A text that is no number, no date or no valid format.
class EConvertError : public Exception {
public:
    using Exception::Exception;
};

/// A division by zero; the tree never holds infinity or NaN.
class EZeroDivide : public Exception {
public:
    EZeroDivide();
};

/// A sum or a conversion that leaves the range of its type.
class EIntOverflow : public Exception {
public:
    using Exception::Exception;
};

/// Use of a child that is null, or of a group that was built without the base's construction.
class EAccessViolation : public Exception {
public:
    explicit EAccessViolation(const std::string& AOque);
};

/// A key that a dictionary already has.
class EListError : public Exception {
public:
    using Exception::Exception;
};

/// Call of an operation that only a subclass implements.
class EAbstractError : public Exception {
public:
    using Exception::Exception;
};

/// Failure reported by the database engine, with the engine's text unchanged.
class EDatabaseError : public Exception {
public:
    EDatabaseError(const std::string& ATexto, std::int64_t ACodigo, std::string ASqlState);

    /// The engine's code of the first error of the chain (an `isc_` number); 0 when there is none.
    std::int64_t Codigo() const { return FCodigo; }
    /// The five-character SQLSTATE.
    const std::string& SqlState() const { return FSqlState; }

private:
    std::int64_t FCodigo;
    std::string FSqlState;
};

/// Raises EAccessViolation where a load needs a child that is null.
template <class T>
T& Existente(T* AInstancia, const char* ANome)
{
    if (AInstancia == nullptr)
        throw EAccessViolation(ANome);
    return *AInstancia;
}

} // namespace tarvo
