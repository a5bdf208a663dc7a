#pragma once

#include "trabalhador/contrato/UnTarvoESocialCamposHorario.h"

namespace tarvo::trabalhador {

/// Working hours of a contract. Source: the worker's schedule in TAB_HORARIOS, its days or its shifts, and the
/// partial time of SC00_EMPREGADOCFG 90/1/1 at the date. A load adds to Horario; a second one repeats the items.
class TTarvoESocialCamposHorContratual : public TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposHorContratual(std::int64_t AIDEmpregado, TDate ADataGeracao);

    /// For the caller: no load consults it.
    bool CarregarDadosDoHorario = true;
    TListaDeGrupos<TTarvoESocialCamposHorario> Horario;
    std::string QuantidadedHorasSemanais;
    std::int32_t CodigoHorario = 0;
    std::string DescricaoHorario;
    /// 1 fixed week, 2 every day alike, 4 shifts; the other kinds have no Horario.
    std::int32_t TipoJornada = 0;
    /// Hours of work and of rest of a shift.
    std::string RevezHrTrab;
    std::string RevezHrFolga;
    std::string DescricaoTipoJornada;
    std::int32_t tmpParc = 0;
    std::int64_t IdHorario = 0;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }
    std::string BuscarSQLDados() override;

private:
    void CarregarDadosHorario();
    void CarregarDiasDaSemana();
    void CarregarTurnos();
    void AdicionarHorario(std::int32_t ADiaSemana, std::int32_t ADia, std::string ACodigo);

    std::int64_t FIDEmpregado;
    TDate FDataGeracao;
};

} // namespace tarvo::trabalhador
