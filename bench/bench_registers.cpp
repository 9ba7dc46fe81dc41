// The client list and a client's history on a file of 10,000 clients and 100,000 income rows:
// opening the list window filled and painted, a search refilling it, a history verified.
#include "generator/data_generator.h"
#include "platform/settings.h"
#include "platform/widgets/list_view.h"
#include "registers/ui/frmcontatos.h"
#include "registers/ui/frmfincontato.h"
#include "store/conexao.h"
#include "store/data_file.h"
#include "store/program_dir.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

using registers::contato;

void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// What the main menu's item does: the window made, shown, loaded and painted.
void BM_abrir_lista_clientes(benchmark::State& state) {
    for (auto _ : state) {
        frmcontatos* f = frmcontatos::instance(contato::cliente);
        f->resize(1000, 600);
        f->show();
        f->Carregartudo();
        f->lstcontato->viewport()->repaint();
        QCoreApplication::processEvents();
        state.counters["rows"] = f->lstcontato->row_count();
        state.PauseTiming();
        f->close();
        settle();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_abrir_lista_clientes)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

// Typing one letter into the search box: the statement, the rows, the list painted.
void BM_busca(benchmark::State& state) {
    frmcontatos* f = frmcontatos::instance(contato::cliente);
    f->resize(1000, 600);
    f->show();
    f->Carregartudo();
    const char* textos[] = {"a", "silva", "zzz"};
    const QString texto = QString::fromLatin1(textos[state.range(0)]);
    for (auto _ : state) {
        state.PauseTiming();
        f->txtbusca->setText(QString());
        state.ResumeTiming();
        f->txtbusca->setText(texto);
        f->lstcontato->viewport()->repaint();
        QCoreApplication::processEvents();
    }
    state.counters["rows"] = f->lstcontato->row_count();
    f->close();
    settle();
}
BENCHMARK(BM_busca)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

// A client's history over 100,000 income rows: the names, then one client verified.
void BM_historico(benchmark::State& state) {
    frmfincontato* h = frmfincontato::instance(contato::cliente);
    h->show();
    for (auto _ : state) {
        h->carregarcli();
        h->cbonome->setCurrentIndex(h->cbonome->count() / 2);
        h->cbonome_click(h->cbonome->count() / 2);
        h->cmdverificar_click();
        QCoreApplication::processEvents();
    }
    state.counters["rows"] = h->lista->row_count();
    h->close();
    settle();
}
BENCHMARK(BM_historico)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir dir;
    store::set_program_dir(dir.path());
    platform::set_settings_root(dir.path() + QStringLiteral("/config"));
    const QString file = dir.path() + QStringLiteral("/dados.qntbd");
    store::create_data_file(file);
    generator::options o;
    o.despesas = 0;
    o.receitas = 100000;
    o.movimentos = 0;
    o.clientes = 10000;
    o.fornecedores = 50;
    generator::fill_file(file, o);
    // the generator's names run out before 10,000: the rest are numbered copies
    store::conectarbanco();
    for (int i = 2; i < 20; ++i)
        store::conexao->execute(
            QStringLiteral(
                "INSERT INTO cliente (nome, tipo, cpf, nascimento, pais, estado, cidade, bairro, "
                "endereco, tel, tel2, cel, site, email, insc, local, adicionais) SELECT nome || ' %1', "
                "tipo, cpf, nascimento, pais, estado, cidade, bairro, endereco, tel, tel2, cel, site, "
                "email, insc, local, adicionais FROM cliente WHERE (SELECT count(*) FROM cliente) < 10000 "
                "AND nome NOT LIKE '% _' AND nome NOT LIKE '% __' LIMIT 10000 - (SELECT count(*) FROM "
                "cliente)")
                .arg(i));
    store::fecharconexao();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
