#pragma once

#include "framework/UnTarvoESocialCamposGrupoBase.h"
#include "remuneracao/s1200/UnTarvoESocialCamposDmDevS1200.h"
#include "remuneracao/s1200/UnTarvoESocialCamposIdeTrabalhadorS1200.h"
#include "remuneracao/s1200/UnTarvoESocialCamposS1200IOP.h"

namespace tarvo::remuneracao {

/// S-1200: the remuneration of a worker, by CPF, in a month of an employer. Walks the categories of the CPF's contracts
/// and provider records, and makes a demonstrative of each payroll run and receipt of the month that holds something.
///
/// Single use: a further load adds every demonstrative again. After a load the parameter object holds the month, and
/// the last run and worker. EConvertError when a category code or the employer's code is no number.
class TTarvoESocialCamposS1200 : public TTarvoESocialCamposGrupoBase {
public:
    /// Copies the CPF of the parameter object, which stays the caller's and must outlive the event.
    explicit TTarvoESocialCamposS1200(TTarvoESocialCamposS1200IOP& AinfoBind1200);

    TTarvoESocialCamposIdeTrabalhadorS1200 IdeTrabalhador;
    TListaDeGrupos<TTarvoESocialCamposDmDevS1200> dmDev;

    void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr) override;

    static const TPropriedades& Tabela();

protected:
    const TPropriedades& Propriedades() const override { return Tabela(); }

private:
    void BuscarCategoriasEmpregado();
    void BuscarListaIdTrabalhadorPorCategoria(std::int32_t ACategoria);
    void CarregarItensdmDev(std::int32_t ACategoria);
    void CarregarFolhas(std::int32_t ACategoria);
    void CarregarRecibos(std::int32_t ACategoria);
    void GuardarSePossuiInformacao(std::unique_ptr<TTarvoESocialCamposDmDevS1200> ADmDev);

    TTarvoESocialCamposS1200IOP& FInfoBind;
    std::vector<std::int64_t> FCategorias;
    const TListaCamposModificados* FListaCamposModificados = nullptr;
};

} // namespace tarvo::remuneracao
