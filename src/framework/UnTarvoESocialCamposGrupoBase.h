#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "framework/UnOvraSerializacaoObject.h"
#include "framework/UnTarvoESocialCamposAtributosProp.h"
#include "framework/UnTarvoESocialCamposConversoresAtributo.h"
#include "imports/banco/UnOvraClientDataSet.h"

namespace tarvo {

/// GUIDs of the groups that are to be read again.
using TListaCamposModificados = std::vector<std::string>;

/// Base of every group of every event. A subclass gives its GUID, its table of properties and, where it reads, its
/// statement; the base runs it into the group's own dataset and copies the first row into the bound properties.
///
/// A load raises what the engine raises (EDatabaseError), EConvertError for a text that is no date on a date
/// property, and Exception for a converter that nobody registered. Properties assigned before stay. A missing row is
/// no failure: the properties keep what they had. A tree belongs to one thread and is neither copied nor moved.
class TTarvoESocialCamposGrupoBase {
public:
    TTarvoESocialCamposGrupoBase(const TTarvoESocialCamposGrupoBase&) = delete;
    TTarvoESocialCamposGrupoBase& operator=(const TTarvoESocialCamposGrupoBase&) = delete;
    virtual ~TTarvoESocialCamposGrupoBase();

    /// Loads the group, and in an override its children. With a list that is not empty only the groups whose GUID is
    /// on it (exactly as written) are read; the children are walked all the same.
    virtual void CarregarDados(const TListaCamposModificados* AListaCamposModificados = nullptr);
    /// Adds to TListaSql the statements that write the properties back, as they now stand. The base adds none.
    virtual void ReverterDados();

    /// Copies the current row of a dataset into the bound properties.
    void SetarValoresDoCdsNasProperties(const TOvraClientDataSet& ACdsDados);
    /// Adds a converter of the group's own; EListError when the class has one already.
    void RegistrarConversor(TClasseConversor AClasse, TConversor AConversor);
    void RegistrarConversor(TClasseConversor AClasse);

    /// The tree as JSON; keys are the property names, in declared order.
    ISuperObject ToJson(TSuperRttiContext* ctx = nullptr) const;

    /// False leaves the group out of loads; its children are loaded all the same.
    bool CarregarDadosDoGrupo() const { return FCarregarDadosDoGrupo; }
    void SetCarregarDadosDoGrupo(bool AValor) { FCarregarDadosDoGrupo = AValor; }
    std::string_view GuidClasse() const { return FGuidClasse; }
    const TPropriedades& PropriedadesDaClasse() const { return Propriedades(); }

    /// The properties of the class, known without an instance; a class that adds some hides this one. A group that has
    /// none keeps the base's empty table.
    static const TPropriedades& Tabela();

    /// The moment of construction, local time.
    TDateTime DataGeracao;

protected:
    struct TSemConstrucaoDaBase {};

    /// AGuid is a literal; the text must outlive the group.
    explicit TTarvoESocialCamposGrupoBase(std::string_view AGuid);
    /// For the few groups that skip the base's construction: no GUID, no dataset, not taking part in loads.
    explicit TTarvoESocialCamposGrupoBase(TSemConstrucaoDaBase);

    /// The Tabela of the instance's own class.
    virtual const TPropriedades& Propriedades() const { return Tabela(); }
    /// The statement of the group; empty for a group that doesn't read.
    virtual std::string BuscarSQLDados();
    /// Sets what a binding can't; runs after the binding, with the dataset still open.
    virtual void AtribuirValoresManualmente();

    /// Runs a statement into the group's dataset; an empty one leaves it closed.
    void AtualizarCdsDados(const std::string& ASql);
    /// The group's dataset; EAccessViolation in a group without the base's construction.
    TOvraClientDataSetWithConnection& CdsDados();

private:
    void AtribuirValorAPropriedade(const TPropriedade& APropriedade, const TFieldRelacionado& AField,
                                   const TOvraClientDataSet& ACdsDados);
    ITarvoESocialCamposConversoresBase& BuscarConversor(TClasseConversor AClasse) const;

    bool FCarregarDadosDoGrupo = false;
    TDicionarioDeConversores FConversoresProprios;
    std::unique_ptr<TOvraClientDataSetWithConnection> FCdsDados;
    std::string_view FGuidClasse;
};

} // namespace tarvo
