#include "banks/ui/frmeditarbancario.h"
#include "banks/ui/frmmovimentobanc.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/key_input.h"
#include "platform/widgets/list_view.h"
#include "platform/widgets/money_field.h"
#include "shell/ui/frmprincipal.h"
#include "store/config.h"
#include "support/fixture.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include <gtest/gtest.h>

namespace {

const QString bancario_colunas =
    QStringLiteral("SELECT estatus, origem, destino, data, movimento, informacoes, Valor FROM bancario");

// Records, with each message box, whether the window asking was still on top.
class topmost_probe : public platform::scripted_prompts {
public:
    QWidget* window = nullptr;
    std::vector<bool> on_top;
    int msgbox(const QString& text, int style, const QString& title) override {
        on_top.push_back(window && window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        return scripted_prompts::msgbox(text, style, title);
    }
};

class movement_windows : public support::fixture {
protected:
    void SetUp() override {
        support::fixture::SetUp();
        exec("INSERT INTO banco (banco, informacoes, saldo) VALUES ('Itaú', ' ', '100,00'), "
             "('Bradesco', ' ', '0,00'), ('Caixa', ' ', '50,00')");
    }
    void TearDown() override {
        delete frmmovimentobanc::aberto();
        delete frmeditarbancario::aberto();
        if (frmprincipal::exists()) delete frmprincipal::instance();
        QCoreApplication::processEvents();
        support::fixture::TearDown();
    }

    template <class T> static T* ctl(QWidget* w, const char* name) {
        auto* c = w->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(c, nullptr) << name;
        return c;
    }
    static QComboBox* box(QWidget* w, const char* name) { return ctl<QComboBox>(w, name); }
    static QLineEdit* edit(QWidget* w, const char* name) { return ctl<QLineEdit>(w, name); }
    static date_field* data(QWidget* w) { return ctl<date_field>(w, "txtdata"); }
    static QPushButton* button(QWidget* w, const char* name) { return ctl<QPushButton>(w, name); }

    // A choice made with the mouse: the box's click routine runs.
    static void choose(QComboBox* c, const QString& text) {
        const int i = c->findText(text);
        ASSERT_GE(i, 0) << text.toStdString();
        c->setCurrentIndex(i);
        Q_EMIT c->activated(i);
    }
    static void type_in(QWidget* field, const QString& text) {
        if (auto* e = qobject_cast<QLineEdit*>(field)) e->clear();
        keys::type(field, text);
    }

    frmmovimentobanc* abrir_adicionar() {
        frmprincipal::instance()->adicionarmovimento();
        frmmovimentobanc* w = frmmovimentobanc::aberto();
        EXPECT_NE(w, nullptr);
        return w;
    }
    // The list loaded and the row of the code selected, as the user leaves it before editing.
    frmeditarbancario* abrir_editar(const QString& codigo) {
        frmprincipal* p = frmprincipal::instance();
        p->carregarbancario();
        for (int r = 0; r < p->lstmovimento->row_count(); ++r)
            if (p->lstmovimento->text(r, 0) == codigo) p->lstmovimento->select_row(r);
        p->alterarmovimento();
        frmeditarbancario* w = frmeditarbancario::aberto();
        EXPECT_NE(w, nullptr);
        return w;
    }
};

TEST_F(movement_windows, adding_opens_with_today_the_last_account_and_no_target) {
    frmmovimentobanc* w = abrir_adicionar();
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Adicionar Movimento Bancário"));
    EXPECT_TRUE(w->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(data(w)->text(), QStringLiteral("23/11/2026"));
    EXPECT_EQ(box(w, "cbomovimento")->currentText(), QStringLiteral("Depósito"));
    EXPECT_EQ(box(w, "cboestatus")->currentText(), QStringLiteral("Pendente"));
    for (const char* name : {"cboorigem", "cbodestino"}) {
        QComboBox* c = box(w, name);
        // the boxes end on the last account, their lists in the table's order
        EXPECT_EQ(c->currentText(), QStringLiteral("Caixa")) << name;
        ASSERT_EQ(c->count(), 3) << name;
        EXPECT_EQ(c->itemText(0), QStringLiteral("Itaú")) << name;
    }
    EXPECT_TRUE(box(w, "cbodestino")->isHidden());
    EXPECT_EQ(edit(w, "txtinfo")->toolTip(), QStringLiteral("Informações adicionais sobre a transação"));
    // adding again while it is open brings the same window
    frmprincipal::instance()->adicionarmovimento();
    EXPECT_EQ(frmmovimentobanc::aberto(), w);
}

TEST_F(movement_windows, adding_each_kind_writes_its_row_and_reloads_the_movement_tab) {
    const struct {
        const char* movimento;
        const char* origem;
        const char* destino;
        const char* valor;
        const char* info;
        const char* estatus;
        const char* row;
    } cases[] = {
        {"Depósito", "Itaú", "Caixa", "1234,5", "salário", "Concluído",
         "Concluído|Itaú| - |2026/11/23|Depósito|salário |1.234,50"},
        {"Retirada", "Bradesco", "Itaú", "80", "  ", "Pendente",
         "Pendente|Bradesco| - |2026/11/23|Retirada| |80,00"},
        {"Transferência entre contas", "Itaú", "Bradesco", "1.000,00", " para a poupança ", "Concluído",
         "Concluído|Itaú|Bradesco|2026/11/23|Transferência entre contas|para a poupança |1.000,00"},
        // to itself: stored, nothing checks it
        {"Transferência entre contas", "Caixa", "Caixa", "5", "", "Pendente",
         "Pendente|Caixa|Caixa|2026/11/23|Transferência entre contas| |5,00"},
    };
    QStringList esperado;
    for (const auto& c : cases) {
        frmmovimentobanc* w = abrir_adicionar();
        ASSERT_NE(w, nullptr);
        choose(box(w, "cbomovimento"), QString::fromUtf8(c.movimento));
        EXPECT_EQ(box(w, "cbodestino")->isHidden(),
                  QString::fromUtf8(c.movimento) != "Transferência entre contas");
        choose(box(w, "cboorigem"), QString::fromUtf8(c.origem));
        choose(box(w, "cbodestino"), QString::fromUtf8(c.destino));
        type_in(ctl<QLineEdit>(w, "txtvalor"), QString::fromUtf8(c.valor));
        edit(w, "txtinfo")->setText(QString::fromUtf8(c.info));
        choose(box(w, "cboestatus"), QString::fromUtf8(c.estatus));
        button(w, "cmdadicionar")->click();

        esperado << QString::fromUtf8(c.row);
        EXPECT_EQ(rows(bancario_colunas), esperado) << c.movimento;
        EXPECT_EQ(frmmovimentobanc::aberto(), nullptr) << "unloaded after storing";
        QCoreApplication::processEvents();
    }
    EXPECT_TRUE(prompts_.boxes().empty()) << "no success message";
    frmprincipal* p = frmprincipal::instance();
    EXPECT_EQ(p->xtab->currentIndex(), 2);
    EXPECT_EQ(p->lstmovimento->row_count(), 4);
}

TEST_F(movement_windows, the_target_is_written_only_for_a_transfer_whatever_the_box_showed) {
    frmmovimentobanc* w = abrir_adicionar();
    ASSERT_NE(w, nullptr);
    choose(box(w, "cbomovimento"), "Transferência entre contas");
    EXPECT_FALSE(box(w, "cbodestino")->isHidden());
    choose(box(w, "cbodestino"), "Bradesco");
    choose(box(w, "cbomovimento"), "Depósito");
    EXPECT_TRUE(box(w, "cbodestino")->isHidden());
    EXPECT_EQ(box(w, "cbodestino")->currentText(), QStringLiteral("Bradesco")) << "hidden, it keeps its text";
    type_in(ctl<QLineEdit>(w, "txtvalor"), "10");
    button(w, "cmdadicionar")->click();
    EXPECT_EQ(rows("SELECT origem, destino FROM bancario"), QStringList{"Caixa| - "});
}

TEST_F(movement_windows, with_no_account_the_origin_is_stored_as_a_hyphen) {
    exec("DELETE FROM banco");
    frmmovimentobanc* w = abrir_adicionar();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(box(w, "cboorigem")->currentText(), QString());
    type_in(ctl<QLineEdit>(w, "txtvalor"), "7,5");
    button(w, "cmdadicionar")->click();
    EXPECT_EQ(rows(bancario_colunas), QStringList{"Pendente|-| - |2026/11/23|Depósito| |7,50"});
}

TEST_F(movement_windows, blank_fields_are_reported_with_each_windows_wording_and_nothing_is_written) {
    exec("INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) VALUES "
         "('Pendente', 'Itaú', ' - ', '2026/11/16', 'Depósito', ' ', '10,00')");
    const QStringList antes = rows(bancario_colunas);
    topmost_probe probe;
    platform::set_prompts(&probe);
    struct {
        QWidget* window;
        const char* store;
        const char* valor_msg;
        const char* data_msg;
    } cases[] = {
        {abrir_adicionar(), "cmdadicionar", "O campo valor deve preenchido!",
         "O campo data deve preenchido!"},
        {abrir_editar("1"), "cmdeditar", "O campo valor deve ser preenchido!",
         "O campo data deve ser preenchido!"},
    };
    for (const auto& c : cases) {
        ASSERT_NE(c.window, nullptr);
        probe.window = c.window;
        probe.clear();
        probe.on_top.clear();
        ctl<QLineEdit>(c.window, "txtvalor")->setText("   ");
        button(c.window, c.store)->click();
        ctl<QLineEdit>(c.window, "txtvalor")->setText("12,00");
        data(c.window)->clear();
        button(c.window, c.store)->click();
        ASSERT_EQ(probe.boxes().size(), 2u) << c.store;
        EXPECT_EQ(probe.boxes()[0].text, QString::fromUtf8(c.valor_msg));
        EXPECT_EQ(probe.boxes()[1].text, QString::fromUtf8(c.data_msg));
        for (const auto& b : probe.boxes()) {
            EXPECT_EQ(b.title, QStringLiteral("Erro"));
            EXPECT_EQ(b.style, platform::exclamation);
        }
        // the box is not hidden behind the window, which is on top again after it
        EXPECT_EQ(probe.on_top, (std::vector<bool>{false, false}));
        EXPECT_TRUE(c.window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        EXPECT_TRUE(c.window->isVisible());
    }
    EXPECT_EQ(rows(bancario_colunas), antes);
    platform::set_prompts(&prompts_);
}

TEST_F(movement_windows, editing_a_transfer_into_a_withdrawal_clears_the_target) {
    exec("INSERT INTO bancario (\"código\", estatus, origem, destino, data, movimento, informacoes, Valor) "
         "VALUES "
         "(12, 'Pendente', 'Itaú', 'Caixa', '2026/11/16', 'Transferência entre contas', 'reserva ', "
         "'1.250,00'), "
         "(112, 'Pendente', 'Itaú', 'Caixa', '2026/11/16', 'Transferência entre contas', 'outra ', '3,00')");
    frmeditarbancario* w = abrir_editar("12");
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(frmprincipal::instance()->codigoselecionado, 12.0);
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Editar Movimento bancário"));
    EXPECT_TRUE(w->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(data(w)->text(), QStringLiteral("16/11/2026"));
    EXPECT_EQ(box(w, "cbomovimento")->currentText(), QStringLiteral("Transferência entre contas"));
    EXPECT_EQ(box(w, "cboorigem")->currentText(), QStringLiteral("Itaú"));
    EXPECT_EQ(box(w, "cbodestino")->currentText(), QStringLiteral("Caixa"));
    EXPECT_FALSE(box(w, "cbodestino")->isHidden());
    EXPECT_EQ(edit(w, "txtvalor")->text(), QStringLiteral("R$ 1.250,00"));
    EXPECT_EQ(edit(w, "txtinfo")->text(), QStringLiteral("reserva "));
    EXPECT_EQ(box(w, "cboestatus")->currentText(), QStringLiteral("Pendente"));
    // the accounts in name order
    EXPECT_EQ(box(w, "cboorigem")->itemText(0), QStringLiteral("Bradesco"));

    choose(box(w, "cbomovimento"), "Retirada");
    EXPECT_TRUE(box(w, "cbodestino")->isHidden());
    choose(box(w, "cboestatus"), "Concluído");
    // the "R$ " the window showed is read on writing
    button(w, "cmdeditar")->click();
    EXPECT_TRUE(prompts_.boxes().empty());
    EXPECT_EQ(frmeditarbancario::aberto(), nullptr);
    EXPECT_EQ(
        rows("SELECT \"código\", estatus, origem, destino, data, movimento, informacoes, Valor FROM bancario "
             "ORDER BY \"código\""),
        (QStringList{"12|Concluído|Itaú| - |2026/11/16|Retirada|reserva |1.250,00",
                     "112|Pendente|Itaú|Caixa|2026/11/16|Transferência entre contas|outra |3,00"}));
    EXPECT_EQ(frmprincipal::instance()->xtab->currentIndex(), 2);
}

TEST_F(movement_windows, editing_shows_the_target_only_for_a_transfer_and_an_empty_list_does_nothing) {
    frmprincipal* p = frmprincipal::instance();
    p->carregarbancario();
    p->alterarmovimento();
    EXPECT_EQ(frmeditarbancario::aberto(), nullptr);

    exec("INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) VALUES "
         "('Concluído', 'Itaú', ' - ', '16/11/2026', 'Depósito', ' ', '10,00')");
    frmeditarbancario* w = abrir_editar("1");
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(box(w, "cbodestino")->isHidden());
    EXPECT_EQ(box(w, "cbodestino")->currentText(), QStringLiteral(" - "));
    // a date stored the other way round is shown the same
    EXPECT_EQ(data(w)->text(), QStringLiteral("16/11/2026"));
}

TEST_F(movement_windows, a_failed_write_keeps_the_window_open_with_every_field_as_typed) {
    // origem left empty: the adding window marks it before it writes, the editing one only once
    // the row is open, which it never is here
    exec("INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) VALUES "
         "('Pendente', 'Itaú', ' - ', '2026/11/16', 'Depósito', ' ', '10,00')");
    struct {
        QWidget* window;
        const char* store;
        const char* origem_after;
    } cases[] = {{abrir_adicionar(), "cmdadicionar", "-"}, {abrir_editar("1"), "cmdeditar", ""}};
    exec("DROP TABLE bancario");
    for (const auto& c : cases) {
        ASSERT_NE(c.window, nullptr);
        prompts_.clear();
        choose(box(c.window, "cbomovimento"), "Transferência entre contas");
        box(c.window, "cboorigem")->setEditText(QString());
        choose(box(c.window, "cbodestino"), "Bradesco");
        data(c.window)->set_text("20/11/2026");
        type_in(ctl<QLineEdit>(c.window, "txtvalor"), "99,9");
        edit(c.window, "txtinfo")->setText(" anotado ");
        choose(box(c.window, "cboestatus"), "Concluído");
        button(c.window, c.store)->click();

        ASSERT_EQ(prompts_.boxes().size(), 1u) << c.store;
        EXPECT_EQ(prompts_.boxes()[0].title, QStringLiteral("Erro"));
        EXPECT_EQ(prompts_.boxes()[0].style, platform::exclamation);
        EXPECT_TRUE(
            prompts_.boxes()[0].text.startsWith("Ocorreu o seguinte erro ao tentar cadastrar os dados: "));
        EXPECT_TRUE(prompts_.boxes()[0].text.contains("bancario")) << prompts_.boxes()[0].text.toStdString();
        EXPECT_TRUE(c.window->isVisible());
        EXPECT_EQ(box(c.window, "cbomovimento")->currentText(), QStringLiteral("Transferência entre contas"));
        EXPECT_EQ(box(c.window, "cboorigem")->currentText(), QString::fromUtf8(c.origem_after));
        EXPECT_EQ(box(c.window, "cbodestino")->currentText(), QStringLiteral("Bradesco"));
        EXPECT_FALSE(box(c.window, "cbodestino")->isHidden());
        EXPECT_EQ(data(c.window)->text(), QStringLiteral("20/11/2026"));
        EXPECT_EQ(edit(c.window, "txtvalor")->text(), QStringLiteral("99,9"));
        EXPECT_EQ(edit(c.window, "txtinfo")->text(), QStringLiteral(" anotado "));
        EXPECT_EQ(box(c.window, "cboestatus")->currentText(), QStringLiteral("Concluído"));
    }
    EXPECT_NE(frmmovimentobanc::aberto(), nullptr);
    EXPECT_NE(frmeditarbancario::aberto(), nullptr);
}

TEST_F(movement_windows, a_movement_removed_meanwhile_or_a_date_that_is_no_date_fails_with_the_error) {
    exec("INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) VALUES "
         "('Pendente', 'Itaú', ' - ', '2026/11/16', 'Depósito', ' ', '10,00')");
    frmeditarbancario* w = abrir_editar("1");
    ASSERT_NE(w, nullptr);
    exec("DELETE FROM bancario");
    w->cboorigem->setEditText(QString());
    w->cmdeditar->click();
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].text,
              QStringLiteral("Ocorreu o seguinte erro ao tentar cadastrar os dados: "
                             "BOF ou EOF é True ou o registro atual foi excluído."));
    // the row was opened (and found empty): the editing window marks the missing origin now
    EXPECT_EQ(w->cboorigem->currentText(), QStringLiteral("-"));
    EXPECT_TRUE(rows(bancario_colunas).isEmpty());

    prompts_.clear();
    frmmovimentobanc* a = abrir_adicionar();
    ASSERT_NE(a, nullptr);
    type_in(a->txtvalor, "10");
    type_in(a->txtdata->line_edit(), "31/02/2026");
    a->cmdadicionar->click();
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].text,
              QStringLiteral("Ocorreu o seguinte erro ao tentar cadastrar os dados: Tipo incompatível"));
    EXPECT_EQ(a->txtdata->typed_text(), QStringLiteral("31/02/2026"));
    EXPECT_TRUE(rows(bancario_colunas).isEmpty());
}

TEST_F(movement_windows, with_the_main_page_data_off_the_list_is_not_reloaded) {
    store::save_setting(store::secao_config, "ExibirPrincipal", "0");
    frmmovimentobanc* w = abrir_adicionar();
    ASSERT_NE(w, nullptr);
    type_in(w->txtvalor, "3");
    w->cmdadicionar->click();
    EXPECT_EQ(rows(bancario_colunas).size(), 1);
    EXPECT_EQ(frmmovimentobanc::aberto(), nullptr);
    frmprincipal* p = frmprincipal::instance();
    EXPECT_EQ(p->xtab->currentIndex(), 0);
    EXPECT_EQ(p->lstmovimento->row_count(), 0);
}

TEST_F(movement_windows, alt_keys_store_and_cancel_and_other_letters_do_nothing) {
    exec("INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) VALUES "
         "('Pendente', 'Itaú', ' - ', '2026/11/16', 'Depósito', ' ', '10,00')");
    // frmmovimentobanc: A adds, C cancels; E is not its letter
    frmmovimentobanc* a = abrir_adicionar();
    ASSERT_NE(a, nullptr);
    type_in(a->txtvalor, "4");
    keys::alt(a->txtvalor, 'e');
    EXPECT_EQ(frmmovimentobanc::aberto(), a);
    keys::alt(a->txtinfo, 'a');
    EXPECT_EQ(frmmovimentobanc::aberto(), nullptr);
    EXPECT_EQ(rows(bancario_colunas).size(), 2);
    QCoreApplication::processEvents();
    a = abrir_adicionar();
    ASSERT_NE(a, nullptr);
    type_in(a->txtvalor, "4");
    keys::alt(a->cbomovimento, 'c');
    EXPECT_EQ(frmmovimentobanc::aberto(), nullptr);
    EXPECT_EQ(rows(bancario_colunas).size(), 2);

    // frmeditarbancario: E edits with cmdeditar, C cancels; A is not its letter
    frmeditarbancario* e = abrir_editar("1");
    ASSERT_NE(e, nullptr);
    type_in(e->txtvalor, "77");
    keys::alt(e->txtvalor, 'a');
    EXPECT_EQ(frmeditarbancario::aberto(), e);
    keys::alt(e, 'e');
    EXPECT_EQ(frmeditarbancario::aberto(), nullptr);
    EXPECT_EQ(rows("SELECT Valor FROM bancario WHERE \"código\" = 1"), QStringList{"77,00"});
    QCoreApplication::processEvents();
    e = abrir_editar("1");
    ASSERT_NE(e, nullptr);
    type_in(e->txtvalor, "1");
    keys::alt(e->cboestatus, 'c');
    EXPECT_EQ(frmeditarbancario::aberto(), nullptr);
    EXPECT_EQ(rows("SELECT Valor FROM bancario WHERE \"código\" = 1"), QStringList{"77,00"});
}

TEST_F(movement_windows, fields_take_the_focus_colours_and_the_date_steps_back_from_the_top) {
    frmmovimentobanc* w = abrir_adicionar();
    ASSERT_NE(w, nullptr);
    keys::show_active(w);
    const QColor amarelo = bgr_colour(cor_foco);
    const QColor branco = bgr_colour(cor_normal);
    w->txtvalor->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    ASSERT_TRUE(w->txtvalor->hasFocus());
    EXPECT_EQ(w->txtvalor->palette().color(QPalette::Base), amarelo);
    // Enter goes on as Tab
    keys::enter(w->txtvalor);
    QCoreApplication::processEvents();
    EXPECT_TRUE(w->txtinfo->hasFocus());
    EXPECT_EQ(w->txtvalor->palette().color(QPalette::Base), branco);
    EXPECT_EQ(w->txtinfo->palette().color(QPalette::Base), amarelo);

    // in the date field the window is no longer on top, and the other fields are white
    w->txtdata->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    EXPECT_EQ(w->txtdata->line_edit()->palette().color(QPalette::Base), amarelo);
    EXPECT_EQ(w->txtinfo->palette().color(QPalette::Base), branco);
    EXPECT_FALSE(w->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    w->cboestatus->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    EXPECT_EQ(w->txtdata->line_edit()->palette().color(QPalette::Base), branco);
    EXPECT_EQ(w->cboestatus->palette().color(QPalette::Base), amarelo);
    EXPECT_TRUE(w->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

} // namespace
