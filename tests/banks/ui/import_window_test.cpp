// The statement import window as the user drives it: from the main menu, a file chosen in the file
// dialog, the preview, the import and what the main window shows after it.
#include "support/window_fixture.h"

#include "banks/ui/frmimportarextrato.h"

#include <QGroupBox>

namespace {

QString amostra(const char* nome) {
    return QStringLiteral(QUINTARA_TEST_DATA_DIR "/extratos/") + QString::fromUtf8(nome);
}

class import_window : public support::window_fixture {
protected:
    void SetUp() override {
        window_fixture::SetUp();
        conta(u"Bradesco"_s, u"100,00"_s);
        conta(u"Itaú"_s, u"0,00"_s);
    }
    void TearDown() override {
        delete frmimportarextrato::aberto();
        window_fixture::TearDown();
    }
    // Opened from the main menu, the account chosen, the file picked in the dialog.
    frmimportarextrato* abrir(const char* arquivo, const QString& conta = u"Itaú"_s) {
        QAction* item = p->findChild<QAction*>(u"mnuimportarextrato"_s);
        EXPECT_TRUE(item && item->isEnabled());
        if (item) item->trigger();
        frmimportarextrato* w = frmimportarextrato::aberto();
        EXPECT_NE(w, nullptr);
        choose(w->cboconta, conta);
        prompts_.answer_text(amostra(arquivo));
        click(w, "cmdprocurar");
        return w;
    }
    QStringList situacoes(frmimportarextrato* w) {
        QStringList s;
        for (int r = 0; r < w->lstprevia->row_count(); ++r)
            s << w->lstprevia->text(r, 5);
        return s;
    }
};

TEST_F(import_window, the_preview_then_the_import_then_nothing_new_the_second_time) {
    frmimportarextrato* w = abrir("conta_xml_utf8.ofx");
    EXPECT_FALSE(w->fracsv->isVisible());
    ASSERT_EQ(w->lstprevia->row_count(), 5);
    EXPECT_EQ((QStringList{w->lstprevia->text(1, 0), w->lstprevia->text(1, 1), w->lstprevia->text(1, 2),
                           w->lstprevia->text(1, 3), w->lstprevia->text(1, 4)}),
              (QStringList{u"06/11/2026"_s, u"Retirada"_s, u"150,75"_s, u"Pagamento de boleto - Condomínio"_s,
                           u"Concluído"_s}));
    EXPECT_TRUE(w->cmdimportar->isEnabled());
    click(w, "cmdimportar");
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes().back().text, u"5 movimento(s) importado(s) para \"Itaú\"."_s);
    // the bank tab and the balances were reloaded
    EXPECT_EQ(p->lstmovimento->row_count(), 5);
    const int itau = int(column(p->lstcaixabanco).indexOf(u"Itaú"_s));
    QStringList linha;
    for (int c = 0; c < p->lstcaixabanco->column_count(); ++c)
        linha << p->lstcaixabanco->text(itau, c);
    EXPECT_TRUE(linha.contains(u"R$ 114,69"_s)) << qPrintable(linha.join(u'|'));
    // the preview now knows them, and importing again writes nothing
    EXPECT_EQ(situacoes(w), QStringList(5, u"Já gravado: fica de fora"_s));
    EXPECT_FALSE(w->cmdimportar->isEnabled());
    delete w;
    prompts_.clear();
    w = abrir("conta_xml_utf8.ofx");
    w->importar();
    EXPECT_EQ(prompts_.boxes().back().text,
              u"Todos os movimentos deste extrato já estão gravados; nada foi gravado."_s);
    EXPECT_EQ(rows(u"SELECT count(*) FROM bancario"_s), QStringList{u"5"_s});
}

TEST_F(import_window, bad_files_and_another_bank_account_say_why_and_write_nothing) {
    const struct {
        const char* arquivo;
        const char* trecho;
    } casos[] = {
        {"truncado.ofx", "incompleto ou danificado"},
        {"nao_e_extrato.ofx", "não é um extrato OFX"},
        {"valor_enorme.ofx", "passa do maior valor"},
    };
    for (const auto& c : casos) {
        prompts_.clear();
        frmimportarextrato* w = abrir(c.arquivo);
        ASSERT_EQ(prompts_.boxes().size(), 1u) << c.arquivo;
        EXPECT_TRUE(prompts_.boxes().back().text.contains(QString::fromUtf8(c.trecho))) << c.arquivo;
        EXPECT_FALSE(w->cmdimportar->isEnabled()) << c.arquivo;
        EXPECT_EQ(w->lstprevia->row_count(), 0) << c.arquivo;
        delete w;
    }
    // Itaú was fed from one bank account; a statement of another is refused for it
    abrir("conta_corrente_sgml_latin1.ofx")->importar();
    delete frmimportarextrato::aberto();
    prompts_.clear();
    frmimportarextrato* w = abrir("conta_xml_utf8.ofx");
    EXPECT_TRUE(w->lblresumo->text().contains(u"Escolha a conta certa"_s))
        << qPrintable(w->lblresumo->text());
    w->importar();
    EXPECT_TRUE(prompts_.boxes().back().text.contains(u"98765-4"_s));
    EXPECT_EQ(rows(u"SELECT count(*) FROM bancario"_s), QStringList{u"6"_s});
}

TEST_F(import_window, csv_columns_chosen_are_remembered_for_the_account) {
    frmimportarextrato* w = abrir("poupanca_pontoevirgula_latin1.csv", u"Bradesco"_s);
    EXPECT_FALSE(w->fracsv->isHidden());
    EXPECT_EQ(w->cbocoldata->currentText(), u"Data"_s);
    EXPECT_EQ(w->cbocolcredito->currentText(), u"Crédito"_s);
    EXPECT_EQ(w->lstprevia->row_count(), 4);
    // a wrong choice: the description as the date; the message names the line and nothing can be written
    choose(w->cbocoldata, u"Histórico"_s);
    EXPECT_TRUE(w->lblresumo->text().contains(u"linha 3"_s)) << qPrintable(w->lblresumo->text());
    EXPECT_FALSE(w->cmdimportar->isEnabled());
    choose(w->cbocoldata, u"Data"_s);
    choose(w->cbocoldescricao, u"Documento"_s);
    w->importar();
    EXPECT_EQ(rows(u"SELECT informacoes FROM bancario ORDER BY data LIMIT 1"_s), QStringList{u"000123 "_s});
    delete w;
    // the next file of the same account opens with the same choice, another account with the guess
    w = abrir("poupanca_pontoevirgula_latin1.csv", u"Bradesco"_s);
    EXPECT_EQ(w->cbocoldescricao->currentText(), u"Documento"_s);
    choose(w->cboconta, u"Itaú"_s);
    EXPECT_EQ(w->cbocoldescricao->currentText(), u"Histórico"_s);
}

} // namespace
