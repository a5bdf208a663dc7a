#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"

namespace tarvo::trabalhador {

/// Place of work of a domestic worker at a date: the address of the establishment. Source:
/// SP_BUSCARALOCACAOEMPREGADO, FILIAIS, with the kind of street and the name of the municipality.
class TTarvoESocialCamposLocalTrabDom : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposLocalTrabDom(std::int64_t AIDEmpregado, TDate ADataGeracao);

    std::int32_t IDFilial = 0;
    std::int32_t TipoLogradouroID = 0;
    std::string TipoLogradouroCod;
    std::string TipoLogradouroAbrev;
    std::string TipoLogradouroDesc;
    std::string DescricaoLogradouro;
    std::string NumeroLogradouro;
    std::string Complemento;
    std::string Bairro;
    std::string Cep;
    std::string CodigoMunic;
    std::string NomeMunicipio;
    std::string Uf;
    std::string Contrato;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    std::int64_t FIDEmpregado;
    TDate FDataGeracao;
};

} // namespace tarvo::trabalhador
