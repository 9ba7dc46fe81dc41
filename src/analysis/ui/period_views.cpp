#include "analysis/ui/period_views.h"

#include "analysis/period_summary.h"
#include "analysis/register_summary.h"
#include "analysis/ui/frmestatisticas.h"
#include "analysis/ui/frmestforncli.h"
#include "analysis/ui/frmgrafico.h"
#include "output/ui/frmmovimento.h"
#include "output/ui/frmrelatorio.h"
#include "output/ui/report_instances.h"
#include "platform/clock.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/frmcarregando.h"
#include "platform/widgets/list_view.h"
#include "shell/principal_api.h"
#include "store/config.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QScreen>

#include <optional>

namespace analysis {

namespace {

using shell::ledger;

// The report windows keep the size they were made with (show_form would fit them to their hint);
// the first time they come over the middle of the window the user was in.
void trazer(QWidget* w) {
    if (!w->isVisible() && !w->property("quintara_placed").toBool()) {
        QWidget* sobre = QApplication::activeWindow();
        QRect area = sobre && sobre != w ? sobre->frameGeometry() : QRect();
        if (!area.isValid())
            if (const QScreen* tela = QGuiApplication::primaryScreen()) area = tela->availableGeometry();
        if (area.isValid()) w->move(area.center() - QPoint(w->width() / 2, w->height() / 2));
        w->setProperty("quintara_placed", true);
    }
    w->show();
    w->raise();
    w->activateWindow();
}

void sem_dados(const QString& texto) {
    platform::msgbox(texto, platform::exclamation, QStringLiteral("Info"));
}

void movimento(const membro& m) {
    frmmovimento* w = output::movimento_unico();
    const auto lista = m.tabela == ledger::pagar     ? frmmovimento::lista::pagar
                       : m.tabela == ledger::receber ? frmmovimento::lista::receber
                                                     : frmmovimento::lista::movimento;
    w->setWindowTitle(m.caption);
    w->mostrar_lista(lista);
    trazer(w);
    if (m.tabela == ledger::bancario) {
        // read as a number and not used
        (void)store::setting(store::secao_config, QStringLiteral("VisualizarDadosBancario"),
                             QStringLiteral("0"))
            .toDouble();
    }
    const QString texto = consulta(m, platform::today());
    w->lista_de(lista)->clear_rows();
    std::optional<waiting_window> espera;
    lista_lida r = ler_lista(
        m, texto,
        [&](long n) {
            // the year bank member shows the window without its words
            espera.emplace(w, m.titulo, m.titulo.isEmpty() ? QString() : texto_carregando);
            espera->set_range(0, int(n));
        },
        [&](long i) {
            if (espera) espera->set_value(int(i));
        });
    espera.reset();
    const QDateTime agora = platform::now();
    if (r.vazio) {
        w->preencher(lista, {}, {m.caption, QString(), linha_sem_dados(m.tabela)});
        return;
    }
    w->preencher(lista, std::move(r.linhas),
                 {m.caption, linha_periodo(m, agora), linha_totais(m, r.tally, agora)});
}

void relatorio(const membro& m) {
    lista_lida r = ler_lista(m, consulta(m, platform::today()));
    if (r.vazio) {
        sem_dados(m.sem_dados);
        return;
    }
    frmrelatorio* w = output::relatorio_unico();
    const auto lista = m.tabela == ledger::pagar     ? frmrelatorio::lista::pagar
                       : m.tabela == ledger::receber ? frmrelatorio::lista::receber
                                                     : frmrelatorio::lista::movimento;
    const QDateTime agora = platform::now();
    w->preencher(
        lista, std::move(r.linhas),
        {m.caption, tipo_relatorio(m.tabela), linha_periodo(m, agora), linha_totais(m, r.tally, agora)});
    trazer(w);
}

void grafico(const membro& m) {
    frmgrafico* g = frmgrafico::instance();
    g->limpar();
    g->setWindowTitle(m.caption);
    g->mgrafico->set_title(m.titulo);
    if (const auto r = rotulos_de(m.palavras, m.quantidade)) g->definir_rotulos(*r);
    if (m.tabela == ledger::bancario) g->lblestatistica->setText(titulo_estatistica_receber);
    show_form(g);
    const contagem c = contar(consulta(m, platform::today()));
    if (c.vazio) {
        sem_dados(m.sem_dados);
        return;
    }
    g->mostrar_figuras(figuras_de(c.tally));
}

void estatistica(const membro& m) {
    frmestatisticas* e = frmestatisticas::instance();
    e->limpar();
    e->setWindowTitle(m.caption);
    if (const auto r = rotulos_de(m.palavras, m.quantidade)) e->definir_rotulos(*r);
    show_form(e);
    const contagem c = contar(consulta(m, platform::today()));
    if (c.vazio) {
        sem_dados(m.sem_dados);
        return;
    }
    e->mostrar_figuras(figuras_de(c.tally));
}

} // namespace

void executar_membro(const membro& m) {
    platform::ignore_errors([&] {
        switch (m.v) {
        case vista::movimento:
            movimento(m);
            break;
        case vista::relatorio:
            relatorio(m);
            break;
        case vista::grafico:
            grafico(m);
            break;
        case vista::estatistica:
            estatistica(m);
            break;
        }
    });
}

void executar_estatistica_cadastro(const estatistica_cadastro& e) {
    platform::ignore_errors([&] {
        std::optional<waiting_window> espera;
        QWidget* sobre = nullptr;
        if (shell::principal_api* p = shell::principal()) sobre = p->janela();
        resumo_cadastro r = resumir_cadastro(
            e,
            [&](long n) {
                espera.emplace(sobre, QStringLiteral("Carregando estatísticas"), texto_carregando);
                espera->set_range(0, int(n));
            },
            [&](long i) {
                if (espera) espera->set_value(int(i));
            });
        espera.reset();
        if (r.vazio) {
            platform::msgbox(msg_sem_cadastro, platform::exclamation, titulo_sem_cadastro);
            return;
        }
        frmestforncli* w = frmestforncli::instance();
        const auto lista = e.lista == lista_cadastro::clientes       ? frmestforncli::lista::cliente
                           : e.lista == lista_cadastro::fornecedores ? frmestforncli::lista::fornecedor
                                                                     : frmestforncli::lista::planos;
        w->preencher(lista, std::move(r.linhas), e.caption, r.geral);
        trazer(w);
    });
}

void relatorio_contatos(bool clientes) {
    platform::ignore_errors([&] {
        lista_contatos r = ler_contatos(clientes ? consulta_clientes : consulta_fornecedores);
        if (r.vazio) {
            sem_dados(QStringLiteral("Nenhum cliente cadastrado!"));
            return;
        }
        frmrelatorio* w = output::relatorio_unico();
        const long n = long(r.linhas.size());
        w->preencher(
            clientes ? frmrelatorio::lista::clientes : frmrelatorio::lista::fornecedores, std::move(r.linhas),
            {clientes ? QStringLiteral("Relatório de clientes") : QStringLiteral("Relatório de fornecedores"),
             clientes ? QStringLiteral("CLIENTES") : QStringLiteral("FORNECEDORES"),
             QStringLiteral("........................."),
             QStringLiteral("Total de clientes cadastrados: ") + QString::number(n)});
        trazer(w);
    });
}

} // namespace analysis
