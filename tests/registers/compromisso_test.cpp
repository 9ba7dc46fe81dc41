// The diary through its windows, on fixed dates: what the lists show, what is written, the exported
// files byte for byte and the printed list read back.

#include "platform/print/printer.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/list_view.h"
#include "registers/compromissos.h"
#include "registers/ui/frmcadcompromisso.h"
#include "registers/ui/frmcalendario.h"
#include "registers/ui/frmcompromisso.h"
#include "registers/ui/frmretcompromisso.h"
#include "shell/principal_api.h"
#include "support/fixture.h"
#include "support/golden.h"

#include <QAction>
#include <QApplication>
#include <QCalendarWidget>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using registers::relatorio_compromissos;

namespace {

class compromissos : public support::fixture {
protected:
    void SetUp() override {
        support::fixture::SetUp();
        pdf_.set_path(path(u"lista.pdf"_s));
        platform::set_print_destination(&pdf_);
    }
    void TearDown() override {
        platform::set_print_destination(nullptr);
        for (QWidget* w : QApplication::topLevelWidgets())
            w->deleteLater();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        support::fixture::TearDown();
    }
    void add(const QString& data, const QString& titulo, const QString& local = u"Sala 2"_s) {
        exec(u"INSERT INTO compromisso (data, hora, Titulo, local, descricao) VALUES "
             u"('%1', '14:00', '%2', '%3', 'pauta')"_s.arg(data, QString(titulo).replace(u'\'', u"''"_s),
                                                           local));
    }
    QStringList tabela() { return rows(u"SELECT data, hora, Titulo, local, descricao FROM compromisso"_s); }
    static QStringList linha(list_view* l, int r) {
        QStringList out;
        for (int c = 0; c < l->column_count(); ++c)
            out << l->text(r, c);
        return out;
    }
    static void alt(QWidget* w, Qt::Key k) {
        QKeyEvent e(QEvent::KeyPress, k, Qt::AltModifier);
        QApplication::sendEvent(w, &e);
    }
    platform::pdf_target pdf_{QString()};
};

TEST_F(compromissos, statements_and_labels) {
    const QDate hoje(2026, 11, 23);
    const QString sql[] = {
        registers::comando_todos(),
        registers::comando_filtro(QDate(2026, 11, 1), QDate(2026, 11, 30)),
        registers::comando_editar_lista(u"Dentista"_s),
        registers::comando_editar_cadastro(u"Dentista"_s),
        registers::comando_remover(u"Dentista"_s),
        registers::comando_relatorio(relatorio_compromissos::dia, hoje),
        registers::comando_relatorio(relatorio_compromissos::geral, hoje),
        registers::comando_relatorio(relatorio_compromissos::mes, hoje),
        registers::topo_filtro(u"30/11/2026"_s, u"01/11/2026"_s, QDate(2026, 11, 30), QDate(2026, 11, 1)),
    };
    QString out;
    for (const QString& s : sql)
        out += s + u'\n';
    EXPECT_TRUE(support::matches_golden(u"registers/compromisso_comandos.txt"_s, out));
    const QString dias[][2] = {{u"2026/11/23"_s, u"0 dias"_s},       {u"2026/11/22"_s, u"-1 dias"_s},
                               {u"24/11/2026"_s, u"1 dias"_s},       {u"1900/01/01"_s, u"-46347 dias"_s},
                               {u"9999/12/31"_s, u"2912116 dias"_s}, {u"amanhã"_s, QString()}};
    for (const auto& d : dias)
        EXPECT_EQ(registers::dias_restantes(d[0], hoje), d[1]) << qPrintable(d[0]);
}

TEST_F(compromissos, the_list_filter_and_the_toolbar_and_popup_names) {
    add(u"2026/11/24"_s, u"Banco"_s);
    add(u"2026/11/22"_s, u"Dentista"_s);
    add(u"2027/02/01"_s, u"Viagem"_s);
    ASSERT_TRUE(shell::run_action(u"mnucomp"_s));
    frmcompromisso* w = frmcompromisso::carregada();
    ASSERT_TRUE(w && w->isVisible());
    EXPECT_EQ(w->windowTitle(), u"Lista de compromissos"_s);
    EXPECT_EQ(w->lbltopo->text(), u"Exibindo todos os compromissos"_s);
    ASSERT_EQ(w->lstcompromisso->row_count(), 3);
    EXPECT_EQ(linha(w->lstcompromisso, 0),
              (QStringList{u"22/11/2026"_s, u"14:00"_s, u"Dentista"_s, u"Sala 2"_s, u"-1 dias"_s}));
    EXPECT_EQ(w->lstcompromisso->text(1, 4), u"1 dias"_s);
    for (const char* k : {"novo", "editar", "remover", "txt", "html", "imprimir"})
        EXPECT_TRUE(w->botao(QString::fromLatin1(k))) << k;
    QStringList popup;
    for (QAction* a : w->mnupopup->actions())
        if (!a->isSeparator()) popup << a->objectName() + u":"_s + a->text();
    EXPECT_EQ(popup, (QStringList{u"mnuadicionar:Adicionar compromisso"_s, u"mnueditar:Editar compromisso"_s,
                                  u"mnuremover:Remover compromisso"_s, u"mnuimprimir:Imprimir lista"_s,
                                  u"mnuhtml:Salvar em HTML"_s, u"mnutxt:Salvar em TXT"_s}));

    w->cbodata1->set_text(u"01/11/2026"_s);
    w->cmdfiltrar->click();
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].text, u"As datas devem ser preenchidas!"_s);
    EXPECT_EQ(prompts_.boxes()[0].title, u"Erro"_s);
    EXPECT_EQ(prompts_.boxes()[0].style, platform::exclamation);
    EXPECT_EQ(w->lstcompromisso->row_count(), 3);
    w->cbodata2->set_text(u"23/11/2026"_s);
    w->cmdfiltrar->click();
    EXPECT_EQ(w->lbltopo->text(), u"Filtrando dados entre as datas de 01/11/2026 e 23/11/2026 - 22 dias"_s);
    ASSERT_EQ(w->lstcompromisso->row_count(), 1);
    EXPECT_EQ(w->lstcompromisso->text(0, 2), u"Dentista"_s);
    w->cmdtudo->click();
    EXPECT_EQ(w->lstcompromisso->row_count(), 3);
}

TEST_F(compromissos, add_trims_all_but_the_description_and_an_edit_keeps_every_title) {
    add(u"2026/11/24"_s, u"Reunião"_s, u"Sala 1"_s);
    add(u"2026/12/01"_s, u"Reunião"_s, u"Sala 9"_s);
    add(u"2026/12/05"_s, u"Outra"_s);
    frmcompromisso* w = frmcompromisso::mostrar();
    alt(w->lstcompromisso, Qt::Key_A);
    frmcadcompromisso* f = frmcadcompromisso::carregada();
    ASSERT_TRUE(f && f->isVisible());
    EXPECT_EQ(f->windowTitle(), u"Cadastrar novo compromisso"_s);
    EXPECT_EQ(f->cmdok->text(), u"&Adicionar compromisso"_s);
    EXPECT_EQ(f->cbodata->text(), u"23/11/2026"_s);
    f->cbodata->set_text(u"31/12/2199"_s);
    f->txthora->setText(u" 09:30 "_s);
    f->txttitulo->setText(u"  D'Ávila  "_s);
    f->txtlocal->setText(u" Centro "_s);
    f->txtdescricao->setPlainText(u"  levar contrato  "_s);
    alt(f->txttitulo, Qt::Key_I);
    EXPECT_FALSE(f->isVisible());
    EXPECT_EQ(tabela().last(), u"2199/12/31|09:30|D'Ávila|Centro|  levar contrato  "_s);
    ASSERT_EQ(w->lstcompromisso->row_count(), 4);
    EXPECT_EQ(w->lstcompromisso->text(3, 4), u"63225 dias"_s);

    // the title is the identity: both "Reunião" rows take the edit, and their title stays
    w->lstcompromisso->select_row(0);
    Q_EMIT w->lstcompromisso->row_double_clicked(0);
    f = frmcadcompromisso::carregada();
    EXPECT_EQ(f->windowTitle(), u"Editar compromisso"_s);
    EXPECT_EQ(f->cmdok->text(), u"&Editar compromisso"_s);
    EXPECT_EQ(f->txtlocal->text(), u"Sala 1"_s);
    f->txttitulo->setText(u"Novo título"_s);
    f->txtlocal->setText(u" Auditório "_s);
    f->cmdok->click();
    EXPECT_EQ(tabela().mid(0, 3), (QStringList{u"2026/11/24|14:00|Reunião|Auditório|pauta"_s,
                                               u"2026/11/24|14:00|Reunião|Auditório|pauta"_s,
                                               u"2026/12/05|14:00|Outra|Sala 2|pauta"_s}));
    // no field is required: an empty appointment is stored as it stands, and nothing is said
    w->adicionar();
    f->cbodata->clear();
    f->cmdok->click();
    EXPECT_EQ(tabela().last(), u"||||"_s);
    EXPECT_TRUE(prompts_.boxes().empty());
}

TEST_F(compromissos, removal_takes_every_row_of_the_title_and_an_apostrophe_fails_in_silence) {
    add(u"2026/11/24"_s, u"Reunião"_s);
    add(u"2026/12/01"_s, u"Reunião"_s);
    add(u"2026/12/02"_s, u"D'Ávila"_s);
    frmcompromisso* w = frmcompromisso::mostrar();
    w->lstcompromisso->select_row(2);
    prompts_.answer(platform::answer_no);
    w->botao(u"remover"_s)->trigger();
    EXPECT_EQ(tabela().size(), 3);
    w->mnuremover->trigger(); // Yes: the apostrophe breaks the statement, and nothing is said
    w->botao(u"editar"_s)->trigger();
    EXPECT_EQ(frmcadcompromisso::carregada(), nullptr);
    EXPECT_EQ(tabela().size(), 3);
    ASSERT_EQ(prompts_.boxes().size(), 2u);
    EXPECT_EQ(prompts_.boxes()[1].text,
              u"Tem certeza que deseja remover o item selecionado do banco de dados?"_s);
    EXPECT_EQ(prompts_.boxes()[1].title, u"Remover"_s);
    EXPECT_EQ(prompts_.boxes()[1].style, platform::yes_no | platform::question);
    w->lstcompromisso->select_row(0);
    alt(w->lstcompromisso, Qt::Key_R);
    EXPECT_EQ(tabela(), QStringList{u"2026/12/02|14:00|D'Ávila|Sala 2|pauta"_s});
    EXPECT_EQ(w->lstcompromisso->row_count(), 1);
}

TEST_F(compromissos, failed_saves_keep_the_editor_open_with_their_wording) {
    add(u"2026/11/24"_s, u"Reunião"_s);
    frmcompromisso* w = frmcompromisso::mostrar();
    w->lstcompromisso->select_row(0);
    w->editar();
    frmcadcompromisso* f = frmcadcompromisso::carregada();
    exec(u"DROP TABLE compromisso"_s);
    f->cmdok->click();
    w->adicionar();
    f->cmdok->click();
    ASSERT_EQ(prompts_.boxes().size(), 2u);
    EXPECT_TRUE(
        prompts_.boxes()[0].text.startsWith(u"Ocorreu o seguinte erro ao tentar editar os dados: "_s));
    EXPECT_TRUE(
        prompts_.boxes()[1].text.startsWith(u"Ocorreu o seguinte erro ao tentar cadastrar os dados: "_s));
    EXPECT_EQ(prompts_.boxes()[1].title, u"Erro"_s);
    EXPECT_TRUE(f->isVisible());
}

TEST_F(compromissos, exports_and_print_of_the_list) {
    add(u"2026/11/23"_s, u"Dentista"_s);
    add(u"2026/12/24"_s, u"Ceia & <família>"_s, u"Casa da vó"_s);
    frmcompromisso* w = frmcompromisso::mostrar();
    const struct {
        Qt::Key letra;
        QString titulo, filtro, arquivo;
    } saidas[] = {
        {Qt::Key_T, u"Salvar lista de compromissos em txt"_s, u"Arquivos de Texto(*.txt)|*.txt"_s,
         u"lista.txt"_s},
        {Qt::Key_S, u"Salvar lista de compromissos em html"_s, u"Arquivos HTML(*.html)|*.html"_s,
         u"lista.html"_s},
    };
    for (const auto& s : saidas) {
        const auto salvar = [&] {
            prompts_.answer(platform::answer_no);
            alt(w, s.letra);
        };
        EXPECT_TRUE(saves(salvar, s.titulo, s.filtro, u"registers/"_s + s.arquivo));
    }
    alt(w, Qt::Key_I);
    const QStringList texto = support::pdf_lines(pdf_.path());
    EXPECT_EQ(texto.mid(0, 5),
              (QStringList{u"LISTA DE COMPROMISSO"_s, u"Filtrado por: Exibindo todos os compromissos"_s,
                           u"Data Hora Título do compromisso Local do compromisso Estatus"_s,
                           u"23/11/2026 14:00 Dentista Sala 2 0 dias"_s,
                           u"24/12/2026 14:00 Ceia & <família> Casa da vó 31 dias"_s}));
    EXPECT_TRUE(texto.contains(u"Total de compromissos: 2"_s));
    EXPECT_TRUE(texto.contains(u"Quintara"_s));

    // an empty list prints nothing and says so
    exec(u"DELETE FROM compromisso"_s);
    w->Carregartudo();
    prompts_.clear();
    w->mnuimprimir->trigger();
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].text, u"Não há registros a imprimir"_s);
}

TEST_F(compromissos, the_three_report_items_and_the_calendar) {
    add(u"2026/11/23"_s, u"Dentista"_s);
    add(u"2026/11/30"_s, u"Banco"_s);
    add(u"2025/01/10"_s, u"Antigo"_s);
    const struct {
        const char* item;
        int linhas;
        QString topo;
    } itens[] = {
        {"mnuretcompdia", 1,
         u"Mostrando todos os compromissos de hoje - segunda-feira, 23 de novembro de 2026"_s},
        {"mnuretcompmes", 0, u"Mostrando todos os compromissos do mês - novembro"_s},
        {"mnuretcompgeral", 3, u"Mostrando todos os compromissos "_s},
    };
    for (const auto& i : itens) {
        ASSERT_TRUE(shell::run_action(QString::fromLatin1(i.item)));
        frmretcompromisso* w = frmretcompromisso::carregada();
        ASSERT_TRUE(w && w->isVisible());
        EXPECT_EQ(w->windowTitle(), u"Relatórios de compromissos"_s);
        EXPECT_EQ(w->lstcompromisso->row_count(), i.linhas) << i.item;
        EXPECT_EQ(w->lbltopo->text(), i.topo);
        EXPECT_EQ(w->findChild<QLabel*>(u"lblbaixo"_s)->text(), u"Total de compromissos: %1"_s.arg(i.linhas));
    }
    frmretcompromisso* w = frmretcompromisso::carregada();
    prompts_.answer_text(path(u"relatorio.txt"_s));
    w->botao(u"txt"_s)->trigger();
    EXPECT_TRUE(support::file_matches_golden(u"registers/relatorio.txt"_s, path(u"relatorio.txt"_s)));
    ASSERT_TRUE(shell::run_action(u"mnucal"_s));
    frmcalendario* cal = nullptr;
    for (QWidget* t : QApplication::topLevelWidgets())
        if (auto* c = qobject_cast<frmcalendario*>(t)) cal = c;
    ASSERT_TRUE(cal && cal->isVisible());
    EXPECT_EQ(cal->windowTitle(), u"Calendário"_s);
    EXPECT_EQ(cal->calendario->selectedDate(), QDate(2026, 11, 23));
    w->botao(u"fechar"_s)->trigger();
    EXPECT_FALSE(w->isVisible());
}

} // namespace
