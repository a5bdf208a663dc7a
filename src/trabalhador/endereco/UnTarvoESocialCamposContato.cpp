#include "trabalhador/endereco/UnTarvoESocialCamposContato.h"

#include "imports/consultas/UnTarvoConsultasGeral.h"
#include "imports/valores/UnOvraFormat.h"
#include "imports/valores/UnTarvoUtilsStrings.h"

namespace tarvo::trabalhador {

namespace {

/// The first two rows that count, as they stand.
template <class TConta>
void BuscarContatos(const std::string& ASql, const char* ACampo, std::string& APrincipal, std::string& AAlternativo,
                    TConta AConta)
{
    APrincipal.clear();
    AAlternativo.clear();
    for (const auto LCds = TTarvoConsultasGeral::BuscarRegistros(ASql); !LCds->Eof(); LCds->Next()) {
        auto LContato = LCds->FieldByName(ACampo).AsString();
        if (!AConta(LContato))
            continue;
        if (APrincipal.empty())
            APrincipal = std::move(LContato);
        else if (AAlternativo.empty())
            AAlternativo = std::move(LContato);
        else
            break;
    }
}

} // namespace

TTarvoESocialCamposContato::TTarvoESocialCamposContato(std::int64_t AIDEmpregado)
    : TTarvoESocialCamposGrupoBase("{A8E43DBD-7104-4D97-8860-7DE8450A4E8F}"), FIDEmpregado(AIDEmpregado)
{}

const TPropriedades& TTarvoESocialCamposContato::Tabela()
{
    using Eu = TTarvoESocialCamposContato;
    static const TPropriedades tabela{
        {"FonePrincipal", &Eu::FonePrincipal},
        {"FoneAlternativo", &Eu::FoneAlternativo},
        {"EmailPrincipal", &Eu::EmailPrincipal},
        {"EmailAlternativo", &Eu::EmailAlternativo},
        {"FoneCadEmpregado", &Eu::FoneCadEmpregado, TFieldRelacionado("FONE")},
    };
    return tabela;
}

std::string TTarvoESocialCamposContato::BuscarSQLDados()
{
    static constexpr std::string_view SQL = R"(SELECT EMPREGADOS.FONE
FROM EMPREGADOS
WHERE EMPREGADOS.IDEMPREGADO = %0:d)";
    return Format(SQL, FIDEmpregado);
}

void TTarvoESocialCamposContato::AtribuirValoresManualmente()
{
    BuscarFones();
    BuscarEmails();
}

void TTarvoESocialCamposContato::BuscarFones()
{
    static constexpr std::string_view SQL = R"(SELECT FP_EMPREGADOSCONTATO.CONTATO AS FONE
FROM FP_EMPREGADOSCONTATO
WHERE FP_EMPREGADOSCONTATO.IDEMPREGADO = %0:d
  AND FP_EMPREGADOSCONTATO.TIPOCONTATO IN (1, 2)
ORDER BY FP_EMPREGADOSCONTATO.IDEMPREGADO, FP_EMPREGADOSCONTATO.IDEMPREGADOSCONTATO)";
    // A telephone of punctuation only doesn't count; one that counts keeps its punctuation. In the order of their keys,
    // with the worker before them: by the key alone the engine would walk the whole index of the keys.
    BuscarContatos(Format(SQL, FIDEmpregado), "FONE", FonePrincipal, FoneAlternativo, [](const std::string& AFone) {
        return !TTarvoUtilsStrings::RemoverCaracteresEspeciais(AFone, true).empty();
    });
}

void TTarvoESocialCamposContato::BuscarEmails()
{
    static constexpr std::string_view SQL = R"(SELECT FP_EMPREGADOSCONTATO.CONTATO AS EMAIL
FROM FP_EMPREGADOSCONTATO
WHERE FP_EMPREGADOSCONTATO.IDEMPREGADO = %0:d
  AND FP_EMPREGADOSCONTATO.TIPOCONTATO = 4
ORDER BY FP_EMPREGADOSCONTATO.IDEMPREGADO, FP_EMPREGADOSCONTATO.IDEMPREGADOSCONTATO)";
    BuscarContatos(Format(SQL, FIDEmpregado), "EMAIL", EmailPrincipal, EmailAlternativo,
                   [](const std::string& AEmail) { return !AEmail.empty(); });
}

} // namespace tarvo::trabalhador
