#include "registers/ui/frmcompromisso.h"

#include "platform/clock.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/list_view.h"
#include "registers/compromissos.h"
#include "registers/ui/frmcadcompromisso.h"
#include "store/conexao.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>

#include <exception>

namespace {

QPointer<frmcompromisso> the_window;

// Data, Hora, Título do compromisso, Local do compromisso, Estatus
void colunas(list_view* l) {
    l->add_column(QStringLiteral("Data"), 1300, list_view::tag_date);
    l->add_column(QStringLiteral("Hora"), 900);
    l->add_column(QStringLiteral("Título do compromisso"), 3600);
    l->add_column(QStringLiteral("Local do compromisso"), 3000);
    l->add_column(QStringLiteral("Estatus"), 1200);
}

constexpr int coluna_titulo = 2;

} // namespace

void montar_lista_compromissos(list_view* l) {
    colunas(l);
    QFont f = l->font();
    f.setFamily(QStringLiteral("Arial"));
    l->set_list_font(f);
}

frmcompromisso* frmcompromisso::mostrar() {
    if (!the_window) {
        the_window = new frmcompromisso();
        the_window->Carregartudo();
    }
    show_window(the_window);
    return the_window;
}

frmcompromisso* frmcompromisso::carregada() {
    return the_window.data();
}

frmcompromisso::frmcompromisso()
    : list_window("frmcompromisso", QStringLiteral("Lista de compromissos"), new list_view),
      lstcompromisso(lista_), cbodata1(named(new date_field, "cbodata1")),
      cbodata2(named(new date_field, "cbodata2")),
      cmdfiltrar(named(new QPushButton(QStringLiteral("Verificar")), "cmdfiltrar")),
      cmdtudo(named(new QPushButton(QStringLiteral("Mostrar tudo")), "cmdtudo")),
      mnupopup(named(new QMenu(this), "mnupopup")) {
    lstcompromisso->setObjectName(QStringLiteral("lstcompromisso"));
    montar_lista_compromissos(lstcompromisso);
    lbltopo->setText(registers::topo_todos);

    novo_botao("novo", QStringLiteral("Novo"), [this] { adicionar(); });
    novo_botao("editar", QStringLiteral("Editar"), [this] { editar(); });
    novo_botao("remover", QStringLiteral("Remover"), [this] { remover(); });
    tbrbarra->addSeparator();
    novo_botao("txt", QStringLiteral("Salvar em TXT"), [this] { txt(); });
    novo_botao("html", QStringLiteral("Salvar em HTML"), [this] { HTML(); });
    novo_botao("imprimir", QStringLiteral("Imprimir"), [this] { Imprimir(); });

    const auto item = [this](const char* name, const QString& caption, void (frmcompromisso::*run)()) {
        QAction* a = mnupopup->addAction(caption);
        a->setObjectName(QString::fromLatin1(name));
        connect(a, &QAction::triggered, this, [this, run] { (this->*run)(); });
        return a;
    };
    mnuadicionar = item("mnuadicionar", QStringLiteral("Adicionar compromisso"), &frmcompromisso::adicionar);
    mnueditar = item("mnueditar", QStringLiteral("Editar compromisso"), &frmcompromisso::editar);
    mnuremover = item("mnuremover", QStringLiteral("Remover compromisso"), &frmcompromisso::remover);
    mnupopup->addSeparator();
    mnuimprimir = item("mnuimprimir", QStringLiteral("Imprimir lista"), &frmcompromisso::Imprimir);
    mnuhtml = item("mnuhtml", QStringLiteral("Salvar em HTML"), &frmcompromisso::HTML);
    mnutxt = item("mnutxt", QStringLiteral("Salvar em TXT"), &frmcompromisso::txt);

    auto* filtro = new QHBoxLayout;
    filtro->addWidget(new QLabel(QStringLiteral("Mostrar compromissos entre a data de:")));
    filtro->addWidget(cbodata1);
    filtro->addWidget(new QLabel(QStringLiteral("e")));
    filtro->addWidget(cbodata2);
    filtro->addWidget(cmdfiltrar);
    filtro->addWidget(cmdtudo);
    filtro->addStretch(1);
    auto* v = new QVBoxLayout(this);
    v->addWidget(tbrbarra);
    v->addLayout(filtro);
    v->addWidget(lbltopo);
    v->addWidget(lstcompromisso, 1);
    v->addWidget(barraprogresso);
    resize(820, 480);

    lstcompromisso->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(lstcompromisso, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { mnupopup->popup(lstcompromisso->viewport()->mapToGlobal(at)); });
    connect(lstcompromisso, &list_view::row_double_clicked, this, [this](int) { editar(); });
    connect(lstcompromisso, &list_view::header_clicked, this,
            [this](int c) { lstcompromisso->ordenarlista(c); });
    connect(cmdfiltrar, &QPushButton::clicked, this, [this] { Carregarfiltro(); });
    connect(cmdtudo, &QPushButton::clicked, this, [this] { Carregartudo(); });

    // the client list's letters
    atalhos_ = new atalhos(this);
    atalhos_->add(QLatin1Char('A'), [this] { mnuadicionar->trigger(); })
        .add(QLatin1Char('E'), [this] { mnueditar->trigger(); })
        .add(QLatin1Char('I'), [this] { mnuimprimir->trigger(); })
        .add(QLatin1Char('R'), [this] { mnuremover->trigger(); })
        .add(QLatin1Char('S'), [this] { mnuhtml->trigger(); })
        .add(QLatin1Char('T'), [this] { mnutxt->trigger(); });

    carregar_fundo();
}

frmcompromisso::~frmcompromisso() {
    if (the_window == this) the_window = nullptr;
}

void frmcompromisso::encher(const QString& comando) {
    lstcompromisso->clear_rows();
    lstcompromisso->add_rows(registers::carregar(comando, platform::today()));
}

void frmcompromisso::Carregartudo() {
    encher(registers::comando_todos());
    lbltopo->setText(registers::topo_todos);
}

void frmcompromisso::Carregarfiltro() {
    if (cbodata1->text().isEmpty() || cbodata2->text().isEmpty()) {
        platform::msgbox(registers::datas_vazias, platform::exclamation, QStringLiteral("Erro"));
        return;
    }
    const QDate de = cbodata1->date();
    const QDate ate = cbodata2->date();
    encher(registers::comando_filtro(de, ate));
    lbltopo->setText(registers::topo_filtro(cbodata1->text(), cbodata2->text(), de, ate));
}

QString frmcompromisso::titulo_selecionado() const {
    const int row = lstcompromisso->selected_row();
    return row < 0 ? QString() : lstcompromisso->text(row, coluna_titulo);
}

void frmcompromisso::adicionar() {
    frmcadcompromisso::instance()->adicionar_novo();
}

void frmcompromisso::editar() {
    if (lstcompromisso->selected_row() < 0) return;
    const QString titulo = titulo_selecionado();
    registers::compromisso c;
    try {
        store::conectarbanco();
        if (!registers::ler(titulo, c)) return;
    } catch (const std::exception&) {
        // a title the statement cannot hold (an apostrophe) opens nothing, and says nothing
        return;
    }
    frmcadcompromisso::instance()->editar_existente(titulo, c);
}

void frmcompromisso::remover() {
    if (lstcompromisso->selected_row() < 0) return;
    const QString titulo = titulo_selecionado();
    if (platform::msgbox(registers::pergunta_remover, platform::yes_no | platform::question,
                         QStringLiteral("Remover")) != platform::answer_yes)
        return;
    // errors are ignored: a statement that fails removes nothing
    platform::ignore_errors([&] {
        store::conectarbanco();
        registers::remover(titulo);
    });
    Carregartudo();
}

list_window::saida saida_compromissos(const QString& topo, const QString& total) {
    using output::formato_relatorio;
    list_window::saida s;
    s.titulo_txt = registers::titulo_salvar(formato_relatorio::txt);
    s.filtro_txt = registers::filtro_salvar(formato_relatorio::txt);
    s.titulo_html = registers::titulo_salvar(formato_relatorio::html);
    s.filtro_html = registers::filtro_salvar(formato_relatorio::html);
    s.moldura = registers::moldura(topo, total);
    s.titulo_impressao = registers::titulo_lista;
    s.lblfiltro = QStringLiteral("Filtrado por: ") + topo;
    s.lblestatus = total;
    s.lblsumario1 = output::slogan_relatorio();
    s.lblsumario2 = output::nome_relatorio();
    return s;
}

list_window::saida frmcompromisso::textos_saida() const {
    return saida_compromissos(lbltopo->text(), registers::total_compromissos(lstcompromisso->row_count()));
}
