#pragma once

#include "trabalhador/documentos/UnTarvoESocialCamposDocumentos.h"
#include "trabalhador/endereco/UnTarvoESocialCamposContato.h"
#include "trabalhador/endereco/UnTarvoESocialCamposEndereco.h"
#include "trabalhador/pessoa/UnTarvoESocialCamposAposentadoria.h"
#include "trabalhador/pessoa/UnTarvoESocialCamposDependente.h"
#include "trabalhador/pessoa/UnTarvoESocialCamposInfoDeficiencia.h"
#include "trabalhador/pessoa/UnTarvoESocialCamposNascimento.h"
#include "trabalhador/pessoa/UnTarvoESocialCamposTrabEstrangeiro.h"

namespace tarvo::trabalhador {

/// Personal data of a worker, the same tree in S-2200, S-2205, S-2100 and S-2300. Source: EMPREGADOS, with the tables
/// 9993 (civil status) and 9994 (race and colour) that turn the payroll's texts into the layout's codes.
class TTarvoESocialCamposTrabalhador : public TTarvoESocialCamposGrupoBase {
public:
    explicit TTarvoESocialCamposTrabalhador(std::int64_t AIDEmpregado);

    std::string Cpf;
    std::string Nis;
    std::string Nome;
    std::string Sexo;
    std::string SexoDesc;
    std::string RacaCor;
    std::string RacaCorDesc;
    std::string EstadoCivil;
    /// Empty for every worker: the statement names the column otherwise. See EstadoCivil, CodigoESocialEstadoCivil.
    std::string EstadoCivilDesc;
    std::string GrauInstrucao;
    std::string GrauInstrucaoDesc;
    std::string NomeSocial;
    std::string PrimeiroEmprego;
    TTarvoESocialCamposNascimento Nascimento;
    TTarvoESocialCamposDocumentos Documentos;
    TTarvoESocialCamposEndereco Endereco;
    TTarvoESocialCamposTrabEstrangeiro TrabEstrangeiro;
    TTarvoESocialCamposInfoDeficiencia InfoDeficiencia;
    /// Made anew by each load; a reference to an item doesn't outlive the next one.
    TListaDeGrupos<TTarvoESocialCamposDependente> Dependentes;
    TTarvoESocialCamposAposentadoria Aposentadoria;
    TTarvoESocialCamposContato Contato;
    /// False: a load leaves Dependentes empty.
    bool CarregarDadosDeDependentes = true;
    std::string CodigoEsocialRacaCor;
    std::string CodigoESocialEstadoCivil;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;
    /// Leaves one dependant of id 0, not loaded, in the list.
    void CriarDependenteUnico();

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    void CarregarDadosDependentes();

    std::int64_t FIDEmpregado;
};

} // namespace tarvo::trabalhador
