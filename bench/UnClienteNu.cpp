#include "bench/UnClienteNu.h"

#include <firebird/Interface.h>

#include <array>
#include <cstring>
#include <map>
#include <stdexcept>

#include "imports/banco/UnOvraFormaSql.h"

namespace tarvo::bancada {

namespace {

using namespace Firebird;

struct TLiberador {
    void operator()(IReferenceCounted* AInstancia) const { AInstancia->release(); }
};
template <class T>
using TReferencia = std::unique_ptr<T, TLiberador>;

IMaster* Mestre()
{
    static IMaster* LMestre = fb_get_master_interface();
    return LMestre;
}

class TStatus {
public:
    TStatus() : FStatus(Mestre()->getStatus()) {}
    ~TStatus() { FStatus.dispose(); }
    CheckStatusWrapper* operator&() { return &FStatus; }
    void Verificar()
    {
        if ((FStatus.getState() & IStatus::STATE_ERRORS) == 0)
            return;
        std::array<char, 4096> LTexto{};
        Mestre()->getUtilInterface()->formatStatus(LTexto.data(), LTexto.size(), &FStatus);
        throw std::runtime_error(LTexto.data());
    }

private:
    CheckStatusWrapper FStatus;
};

struct TPreparado {
    TReferencia<IStatement> Comando;
    TReferencia<IMessageMetadata> Saida;
    std::vector<unsigned char> Mensagem;
    bool TemCursor = false;
};

/// One use of a prepared statement: its parameters as texts.
struct TUso {
    TPreparado* Preparado = nullptr;
    TReferencia<IMessageMetadata> Entrada;
    std::vector<unsigned char> Mensagem;
    std::int64_t Linhas = 0;
};

} // namespace

struct TClienteNu::TImplementacao {
    TReferencia<IAttachment> Anexo;
    TReferencia<ITransaction> Transacao;
    std::map<std::string, TPreparado> Preparados;
    std::vector<TUso> Usos;

    void Iniciar()
    {
        TStatus LStatus;
        static constexpr unsigned char TPB[] = {isc_tpb_version3, isc_tpb_read_committed, isc_tpb_rec_version,
                                                isc_tpb_write, isc_tpb_nowait};
        Transacao.reset(Anexo->startTransaction(&LStatus, sizeof(TPB), TPB));
        LStatus.Verificar();
    }
    void Desfazer()
    {
        TStatus LStatus;
        Transacao->rollback(&LStatus);
        LStatus.Verificar();
        Transacao.release(); // freed by its end
    }

    TPreparado Preparar(const std::string& ASql)
    {
        TStatus LStatus;
        TPreparado LPreparado;
        LPreparado.Comando.reset(Anexo->prepare(&LStatus, Transacao.get(), static_cast<unsigned>(ASql.size()),
                                                ASql.c_str(), 3, IStatement::PREPARE_PREFETCH_METADATA));
        LStatus.Verificar();
        LPreparado.Saida.reset(LPreparado.Comando->getOutputMetadata(&LStatus));
        LStatus.Verificar();
        LPreparado.TemCursor = (LPreparado.Comando->getFlags(&LStatus) & IStatement::FLAG_HAS_CURSOR) != 0;
        LPreparado.Mensagem.resize(LPreparado.Saida->getMessageLength(&LStatus));
        LStatus.Verificar();
        return LPreparado;
    }

    std::int64_t Rodar(TPreparado& APreparado, IMessageMetadata* AEntrada, void* AParametros)
    {
        TStatus LStatus;
        if (!APreparado.TemCursor) {
            APreparado.Comando->execute(&LStatus, Transacao.get(), AEntrada, AParametros, APreparado.Saida.get(),
                                        APreparado.Mensagem.data());
            LStatus.Verificar();
            return -1;
        }
        TReferencia<IResultSet> LCursor(APreparado.Comando->openCursor(&LStatus, Transacao.get(), AEntrada, AParametros,
                                                                       APreparado.Saida.get(), 0));
        LStatus.Verificar();
        std::int64_t LLinhas = 0;
        while (LCursor->fetchNext(&LStatus, APreparado.Mensagem.data()) == IStatus::RESULT_OK)
            ++LLinhas;
        LStatus.Verificar();
        LCursor->close(&LStatus);
        LStatus.Verificar();
        LCursor.release(); // freed by its close
        return LLinhas;
    }

    static void Conferir(std::int64_t AEsperadas, std::int64_t ALinhas, const std::string& ASql)
    {
        if (ALinhas >= 0 && ALinhas != AEsperadas)
            throw std::runtime_error("Outras linhas na repetição de " + ASql);
    }

    /// The statement with every literal of its shape as a parameter; nothing when it doesn't prepare or answers otherwise.
    bool AcrescentarComParametros(const TComandoGravado& AGravado)
    {
        const auto LForma = LerFormaSql(AGravado.Sql);
        const auto LLevantar = LiteraisLevantaveis(AGravado.Sql, LForma);
        std::vector<std::string> LTextos;
        for (std::size_t i = 0; i < LLevantar.size(); ++i)
            if (LLevantar[i]) {
                const auto LValor = LerLiteralSql(AGravado.Sql, LForma.Literais[i]);
                LTextos.push_back(LValor.EhTexto ? LValor.Texto : std::to_string(LValor.Inteiro));
            }
        const auto LQuantidade = static_cast<unsigned>(LTextos.size());
        if (LQuantidade == 0)
            return false;
        try {
            const auto LSql = MontarSqlComParametros(AGravado.Sql, LForma, LLevantar);
            auto LOnde = Preparados.find(LSql);
            if (LOnde == Preparados.end())
                LOnde = Preparados.emplace(LSql, Preparar(LSql)).first;
            TUso LUso;
            LUso.Preparado = &LOnde->second;
            LUso.Linhas = AGravado.Linhas;
            TStatus LStatus;
            TReferencia<IMetadataBuilder> LMontador(Mestre()->getMetadataBuilder(&LStatus, LQuantidade));
            LStatus.Verificar();
            for (unsigned i = 0; i < LQuantidade; ++i) {
                LMontador->setType(&LStatus, i, SQL_VARYING + 1);
                LMontador->setLength(&LStatus, i, static_cast<unsigned>(LTextos[i].size()));
                LMontador->setCharSet(&LStatus, i, 4);
            }
            LUso.Entrada.reset(LMontador->getMetadata(&LStatus));
            LStatus.Verificar();
            LUso.Mensagem.resize(LUso.Entrada->getMessageLength(&LStatus));
            for (unsigned i = 0; i < LQuantidade; ++i) {
                auto* LValor = LUso.Mensagem.data() + LUso.Entrada->getOffset(&LStatus, i);
                const auto LTamanho = static_cast<ISC_USHORT>(LTextos[i].size());
                std::memcpy(LValor, &LTamanho, sizeof(LTamanho));
                std::memcpy(LValor + sizeof(LTamanho), LTextos[i].data(), LTextos[i].size());
            }
            LStatus.Verificar();
            if (const auto LLinhas = Rodar(*LUso.Preparado, LUso.Entrada.get(), LUso.Mensagem.data());
                LLinhas >= 0 && LLinhas != AGravado.Linhas)
                return false;
            Usos.push_back(std::move(LUso));
            return true;
        } catch (const std::runtime_error&) {
            return false;
        }
    }
};

TClienteNu::TClienteNu(const std::string& ABanco, const std::string& AUsuario, const std::string& ASenha)
    : FImplementacao(std::make_unique<TImplementacao>())
{
    TStatus LStatus;
    IXpbBuilder* LBloco = Mestre()->getUtilInterface()->getXpbBuilder(&LStatus, IXpbBuilder::DPB, nullptr, 0);
    LStatus.Verificar();
    LBloco->insertString(&LStatus, isc_dpb_lc_ctype, "UTF8");
    LBloco->insertString(&LStatus, isc_dpb_user_name, AUsuario.c_str());
    // The file keeps it: waiting for the disk at the end of each transaction is no part of what is measured.
    LBloco->insertInt(&LStatus, isc_dpb_force_write, 0);
    if (!ASenha.empty())
        LBloco->insertString(&LStatus, isc_dpb_password, ASenha.c_str());
    FImplementacao->Anexo.reset(Mestre()->getDispatcher()->attachDatabase(
        &LStatus, ABanco.c_str(), LBloco->getBufferLength(&LStatus), LBloco->getBuffer(&LStatus)));
    LBloco->dispose();
    LStatus.Verificar();
}

TClienteNu::~TClienteNu()
{
    FImplementacao->Usos.clear();
    FImplementacao->Preparados.clear();
    FImplementacao->Transacao.reset();
    TStatus LStatus;
    FImplementacao->Anexo->detach(&LStatus);
    FImplementacao->Anexo.release(); // freed by its detach
}

void TClienteNu::RodarPreparando(const std::vector<TComandoGravado>& AComandos)
{
    FImplementacao->Iniciar();
    for (const auto& LGravado : AComandos) {
        auto LPreparado = FImplementacao->Preparar(LGravado.Sql);
        TImplementacao::Conferir(LGravado.Linhas, FImplementacao->Rodar(LPreparado, nullptr, nullptr), LGravado.Sql);
    }
    FImplementacao->Desfazer();
}

void TClienteNu::PrepararTodos(const std::vector<TComandoGravado>& AComandos)
{
    FImplementacao->Usos.clear();
    FImplementacao->Preparados.clear();
    FImplementacao->Iniciar();
    for (const auto& LGravado : AComandos) {
        if (FImplementacao->AcrescentarComParametros(LGravado))
            continue;
        auto LOnde = FImplementacao->Preparados.find(LGravado.Sql);
        if (LOnde == FImplementacao->Preparados.end())
            LOnde = FImplementacao->Preparados.emplace(LGravado.Sql, FImplementacao->Preparar(LGravado.Sql)).first;
        TUso LUso;
        LUso.Preparado = &LOnde->second;
        LUso.Linhas = LGravado.Linhas;
        FImplementacao->Usos.push_back(std::move(LUso));
    }
    FImplementacao->Desfazer();
}

std::size_t TClienteNu::Preparados() const { return FImplementacao->Preparados.size(); }

void TClienteNu::RodarPreparados()
{
    FImplementacao->Iniciar();
    for (auto& LUso : FImplementacao->Usos)
        TImplementacao::Conferir(
            LUso.Linhas,
            FImplementacao->Rodar(*LUso.Preparado, LUso.Entrada.get(), LUso.Entrada ? LUso.Mensagem.data() : nullptr),
            "um comando preparado");
    FImplementacao->Desfazer();
}

} // namespace tarvo::bancada
