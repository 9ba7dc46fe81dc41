// The two movement windows: what they open with, what their store button writes and reloads, and
// how they fail. The columns and messages themselves are in tests/data/banks/texts.txt.
#include "support/window_fixture.h"

#include "platform/widgets/field_helpers.h"

namespace {

const QString bancario = "SELECT estatus, origem, destino, data, movimento, informacoes, Valor FROM bancario";

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

class movement_windows : public support::window_fixture {
protected:
    void SetUp() override {
        window_fixture::SetUp();
        exec("INSERT INTO banco (banco, informacoes, saldo) VALUES ('Itaú', ' ', '100,00'), "
             "('Bradesco', ' ', '0,00'), ('Caixa', ' ', '50,00')");
    }
    void movimento(const char* valores) {
        exec(QStringLiteral("INSERT INTO bancario (\"código\", estatus, origem, destino, data, movimento, "
                            "informacoes, Valor) VALUES %1")
                 .arg(QString::fromUtf8(valores)));
    }
    frmmovimentobanc* adicionar() {
        p->adicionarmovimento();
        EXPECT_NE(frmmovimentobanc::aberto(), nullptr);
        return frmmovimentobanc::aberto();
    }
    // The list loaded and the row of the code selected, as the user leaves it before editing.
    frmeditarbancario* editar(const QString& codigo) {
        p->carregarbancario();
        p->lstmovimento->select_row(column(p->lstmovimento).indexOf(codigo));
        p->alterarmovimento();
        EXPECT_NE(frmeditarbancario::aberto(), nullptr);
        return frmeditarbancario::aberto();
    }
    static void type_in(QLineEdit* e, const QString& text) {
        e->clear();
        keys::type(e, text);
    }
    // What the fields show, in tab order; the target only while it is shown.
    static QString fields(movimento_window* w) {
        return QStringList{w->cbomovimento->currentText(),
                           w->cboorigem->currentText(),
                           w->cbodestino->isHidden() ? "(hidden) " + w->cbodestino->currentText()
                                                     : w->cbodestino->currentText(),
                           w->txtdata->text(),
                           w->txtvalor->text(),
                           w->txtinfo->text(),
                           w->cboestatus->currentText()}
            .join(" | ");
    }
};

TEST_F(movement_windows, adding_opens_with_today_the_last_account_and_no_target) {
    frmmovimentobanc* w = adicionar();
    ASSERT_TRUE(w && w->isVisible());
    EXPECT_EQ(w->windowTitle(), "Adicionar Movimento Bancário");
    EXPECT_TRUE(w->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    // the boxes end on the last account, their lists in the table's order
    EXPECT_EQ(fields(w), "Depósito | Caixa | (hidden) Caixa | 23/11/2026 |  |  | Pendente");
    EXPECT_EQ(items(w->cboorigem), (QStringList{"Itaú", "Bradesco", "Caixa"}));
    EXPECT_EQ(w->txtinfo->toolTip(), "Informações adicionais sobre a transação");
    // adding again while it is open brings the same window
    p->adicionarmovimento();
    EXPECT_EQ(frmmovimentobanc::aberto(), w);
}

TEST_F(movement_windows, adding_writes_the_row_unloads_and_reloads_the_movement_tab) {
    frmmovimentobanc* w = adicionar();
    choose(w->cbomovimento, "Transferência entre contas");
    EXPECT_FALSE(w->cbodestino->isHidden());
    choose(w->cboorigem, "Itaú");
    choose(w->cbodestino, "Bradesco");
    type_in(w->txtvalor, "1.000,00");
    w->txtinfo->setText(" para a poupança ");
    choose(w->cboestatus, "Concluído");
    w->cmdadicionar->click();
    EXPECT_EQ(rows(bancario), QStringList{"Concluído|Itaú|Bradesco|2026/11/23|Transferência entre contas|"
                                          "para a poupança |1.000,00"});
    EXPECT_EQ(frmmovimentobanc::aberto(), nullptr);
    EXPECT_TRUE(prompts_.boxes().empty()) << "no success message";
    EXPECT_EQ(p->xtab->currentIndex(), 2);
    EXPECT_EQ(p->lstmovimento->row_count(), 1);
}

TEST_F(movement_windows, the_target_is_written_only_for_a_transfer_and_no_account_is_a_hyphen) {
    frmmovimentobanc* w = adicionar();
    choose(w->cbomovimento, "Transferência entre contas");
    choose(w->cbodestino, "Bradesco");
    choose(w->cbomovimento, "Depósito");
    // hidden, the box keeps its text: the rule on writing decides what destino holds
    EXPECT_EQ(fields(w), "Depósito | Caixa | (hidden) Bradesco | 23/11/2026 |  |  | Pendente");
    w->cboorigem->setEditText(QString());
    type_in(w->txtvalor, "10");
    w->cmdadicionar->click();
    EXPECT_EQ(rows("SELECT origem, destino FROM bancario"), QStringList{"-| - "});
}

TEST_F(movement_windows, blank_fields_are_reported_over_the_window_and_nothing_is_written) {
    movimento("(1, 'Pendente', 'Itaú', ' - ', '2026/11/16', 'Depósito', ' ', '10,00')");
    topmost_probe probe;
    platform::set_prompts(&probe);
    for (movimento_window* w :
         {static_cast<movimento_window*>(adicionar()), static_cast<movimento_window*>(editar("1"))}) {
        probe.window = w;
        probe.clear();
        probe.on_top.clear();
        w->txtvalor->setText("   ");
        w->findChild<QPushButton*>(w->twin().store_button)->click();
        ASSERT_EQ(probe.boxes().size(), 1u);
        EXPECT_EQ(probe.boxes()[0].text, w->twin().valor_vazio);
        EXPECT_EQ(probe.boxes()[0].title, "Erro");
        EXPECT_EQ(probe.boxes()[0].style, platform::exclamation);
        // the box is not hidden behind the window, which is on top again after it
        EXPECT_EQ(probe.on_top, std::vector<bool>{false});
        EXPECT_TRUE(w->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        EXPECT_TRUE(w->isVisible());
    }
    EXPECT_EQ(rows(bancario).size(), 1);
    platform::set_prompts(&prompts_);
}

TEST_F(movement_windows, editing_fills_the_fields_and_rewrites_the_row_of_its_code) {
    movimento("(12, 'Pendente', 'Itaú', 'Caixa', '2026/11/16', 'Transferência entre contas', 'reserva ', "
              "'1.250,00'), (112, 'Pendente', 'Itaú', 'Caixa', '2026/11/16', 'Transferência entre contas', "
              "'outra ', '3,00'), (5, 'Concluído', 'Itaú', ' - ', '16/11/2026', 'Depósito', ' ', '10,00')");
    // a date stored the other way round is shown the same; the target only for a transfer
    EXPECT_EQ(fields(editar("5")), "Depósito | Itaú | (hidden)  -  | 16/11/2026 | R$ 10,00 |   | Concluído");
    delete frmeditarbancario::aberto();
    frmeditarbancario* w = editar("12");
    EXPECT_EQ(p->codigoselecionado, 12.0);
    EXPECT_EQ(w->windowTitle(), "Editar Movimento bancário");
    EXPECT_EQ(fields(w),
              "Transferência entre contas | Itaú | Caixa | 16/11/2026 | R$ 1.250,00 | reserva  | Pendente");
    // the accounts in name order
    EXPECT_EQ(items(w->cboorigem), (QStringList{"Bradesco", "Caixa", "Itaú"}));
    choose(w->cbomovimento, "Retirada");
    EXPECT_TRUE(w->cbodestino->isHidden());
    choose(w->cboestatus, "Concluído");
    p->xtab->setCurrentIndex(0);
    // the "R$ " the window showed is read on writing
    keys::alt(w, 'e');
    EXPECT_TRUE(prompts_.boxes().empty());
    EXPECT_EQ(frmeditarbancario::aberto(), nullptr);
    EXPECT_EQ(rows("SELECT \"código\", destino, movimento, estatus, Valor FROM bancario ORDER BY 1"),
              (QStringList{"5| - |Depósito|Concluído|10,00", "12| - |Retirada|Concluído|1.250,00",
                           "112|Caixa|Transferência entre contas|Pendente|3,00"}));
    EXPECT_EQ(p->xtab->currentIndex(), 2);
}

TEST_F(movement_windows, a_failed_write_keeps_the_window_open_with_every_field_as_typed) {
    // origem left empty: the adding window marks it before it writes, the editing one only once the
    // row is open, which it never is here
    movimento("(1, 'Pendente', 'Itaú', ' - ', '2026/11/16', 'Depósito', ' ', '10,00')");
    movimento_window* windows[] = {adicionar(), editar("1")};
    exec("DROP TABLE bancario");
    for (movimento_window* w : windows) {
        prompts_.clear();
        choose(w->cbomovimento, "Transferência entre contas");
        w->cboorigem->setEditText(QString());
        choose(w->cbodestino, "Bradesco");
        w->txtdata->set_text("20/11/2026");
        type_in(w->txtvalor, "99,9");
        w->txtinfo->setText(" anotado ");
        w->findChild<QPushButton*>(w->twin().store_button)->click();
        ASSERT_EQ(prompts_.boxes().size(), 1u);
        EXPECT_TRUE(
            prompts_.boxes()[0].text.startsWith("Ocorreu o seguinte erro ao tentar cadastrar os dados: "));
        EXPECT_TRUE(prompts_.boxes()[0].text.contains("bancario"));
        EXPECT_TRUE(w->isVisible());
        EXPECT_EQ(fields(w),
                  QStringLiteral("Transferência entre contas | %1 | Bradesco | 20/11/2026 | 99,9 | "
                                 " anotado  | Pendente")
                      .arg(w->twin().origem_mark_first ? "-" : ""));
    }
}

TEST_F(movement_windows, a_movement_removed_meanwhile_or_a_date_that_is_no_date_fails_with_the_error) {
    movimento("(1, 'Pendente', 'Itaú', ' - ', '2026/11/16', 'Depósito', ' ', '10,00')");
    frmeditarbancario* w = editar("1");
    exec("DELETE FROM bancario");
    w->cboorigem->setEditText(QString());
    w->cmdeditar->click();
    EXPECT_EQ(boxes(), QStringList{"Erro: Ocorreu o seguinte erro ao tentar cadastrar os dados: "
                                   "BOF ou EOF é True ou o registro atual foi excluído."});
    // the row was opened (and found empty): the editing window marks the missing origin now
    EXPECT_EQ(w->cboorigem->currentText(), "-");

    prompts_.clear();
    frmmovimentobanc* a = adicionar();
    type_in(a->txtvalor, "10");
    type_in(a->txtdata->line_edit(), "31/02/2026");
    a->cmdadicionar->click();
    EXPECT_EQ(boxes(),
              QStringList{"Erro: Ocorreu o seguinte erro ao tentar cadastrar os dados: Tipo incompatível"});
    EXPECT_EQ(a->txtdata->typed_text(), "31/02/2026");
    EXPECT_TRUE(rows(bancario).isEmpty());
}

TEST_F(movement_windows, alt_keys_store_and_cancel_and_the_other_twins_letter_does_nothing) {
    movimento("(1, 'Pendente', 'Itaú', ' - ', '2026/11/16', 'Depósito', ' ', '10,00')");
    const auto aberta = [](bool adding) -> movimento_window* {
        return adding ? static_cast<movimento_window*>(frmmovimentobanc::aberto())
                      : static_cast<movimento_window*>(frmeditarbancario::aberto());
    };
    for (const auto& [adding, store_key, other] : {std::tuple{true, 'a', 'e'}, std::tuple{false, 'e', 'a'}}) {
        for (char key : {other, 'c', store_key}) {
            movimento_window* w = aberta(adding) ? aberta(adding)
                                  : adding       ? static_cast<movimento_window*>(adicionar())
                                                 : editar("1");
            type_in(w->txtvalor, "77");
            keys::alt(w->txtinfo, key);
            EXPECT_EQ(aberta(adding) == nullptr, key != other) << key;
            settle();
        }
    }
    // each store key wrote once: a new row and the edit of the first
    EXPECT_EQ(rows("SELECT Valor FROM bancario ORDER BY \"código\""), (QStringList{"77,00", "77,00"}));
}

TEST_F(movement_windows, the_date_field_steps_back_from_the_top_while_in_use) {
    frmmovimentobanc* w = adicionar();
    keys::show_active(w);
    w->txtdata->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    EXPECT_FALSE(w->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(w->txtinfo->palette().color(QPalette::Base), bgr_colour(cor_normal));
    w->cboestatus->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    EXPECT_TRUE(w->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

} // namespace
