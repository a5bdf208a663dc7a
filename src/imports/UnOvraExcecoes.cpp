#include "imports/UnOvraExcecoes.h"

namespace tarvo {

EZeroDivide::EZeroDivide() : Exception("Divisão por zero") {}

EAccessViolation::EAccessViolation(const std::string& AOque) : Exception("Acesso a objeto não criado: " + AOque) {}

EDatabaseError::EDatabaseError(const std::string& ATexto, std::int64_t ACodigo, std::string ASqlState)
    : Exception(ATexto), FCodigo(ACodigo), FSqlState(std::move(ASqlState))
{}

} // namespace tarvo
