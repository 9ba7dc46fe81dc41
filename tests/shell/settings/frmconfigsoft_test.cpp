#include "platform/autostart.h"
#include "platform/widgets/list_view.h"
#include "shell/principal_api.h"
#include "shell/ui/frmconfigsoft.h"
#include "shell/ui/frmlogin.h"
#include "shell/ui/frmprincipal.h"
#include "store/conexao.h"
#include "store/config.h"
#include "support/fixture.h"
#include "support/key_input.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {

class configsoft : public support::fixture {
protected:
    void SetUp() override {
        support::fixture::SetUp();
        exec(QStringLiteral("UPDATE login_inicia SET exigirlogin='0'"));
        store::save_setting(store::secao_configuracoes, QStringLiteral("Exibir dica do dia"),
                            QStringLiteral("0"));
        store::save_setting(store::secao_config, QStringLiteral("AlertasVencimento"), QStringLiteral("0"));
    }
    void TearDown() override {
        if (frmconfigsoft* w = frmconfigsoft::aberto()) delete w;
        if (frmprincipal::exists()) delete frmprincipal::instance();
        frmlogin::descarregar();
        QCoreApplication::processEvents();
        support::fixture::TearDown();
    }
    frmconfigsoft* abrir() {
        shell::run_action(QStringLiteral("mnuconfigsoft"));
        return frmconfigsoft::aberto();
    }
    static QString s(const QString& secao, const char* chave) {
        return store::setting(secao, QString::fromUtf8(chave), QStringLiteral("<nada>"));
    }
    static QString c(const char* chave) { return s(store::secao_config, chave); }
};

TEST_F(configsoft, opening_shows_the_stored_options_and_the_local_file_outside_network_mode) {
    store::save_setting(store::secao_config, QStringLiteral("Corescolhida2"), QStringLiteral("7"));
    store::save_setting(store::secao_config, QStringLiteral("Ordem"), QStringLiteral("DESC"));
    frmconfigsoft* w = abrir();
    ASSERT_TRUE(w);
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Configurações do software"));
    EXPECT_EQ(w->txtnome->text(), QStringLiteral("Seu nome e ou empresa"));
    EXPECT_EQ(w->cboffonte->currentText(), QStringLiteral("Arial"));
    EXPECT_EQ(w->cboftamanho->currentText(), QStringLiteral("10"));
    EXPECT_GT(w->cboffonte->count(), 0); // the machine's fonts
    EXPECT_TRUE(w->optcorfundo2[7]->isChecked());
    EXPECT_EQ(w->findChildren<QRadioButton*>(QStringLiteral("optcorfundo1")).size(), 12);
    EXPECT_TRUE(w->optdesc->isChecked());
    EXPECT_FALSE(w->chkdica->isChecked());
    EXPECT_FALSE(w->chkalertavenc->isChecked());
    EXPECT_TRUE(w->chkatualizar->isChecked());
    EXPECT_FALSE(w->chkrede->isChecked());
    EXPECT_EQ(w->txtbd->text(), path(QStringLiteral("dados.qntbd")));
    EXPECT_FALSE(w->txtbd->isEnabled());
    EXPECT_FALSE(w->cmdlocal->isEnabled());
}

TEST_F(configsoft, each_control_writes_its_setting_at_once) {
    frmconfigsoft* w = abrir();
    ASSERT_TRUE(w);
    w->optcorfonte[11]->click();
    w->optcorfundo1[2]->click();
    w->optcorfundo2[9]->click();
    w->chkdica->click();
    w->chkatualizar->click();
    w->optdesc->click();
    w->chkalertavenc->click();
    const struct {
        const char* chave;
        const char* valor;
    } esperado[] = {{"Corescolhidafonte", "11"}, {"Corfonte", "8388608"}, {"Corescolhida", "2"},
                    {"CorFundo1", "12640511"},   {"Corescolhida2", "9"},  {"CorFundo2", "0"},
                    {"AtualizarSaldo", "0"},     {"Ordem", "DESC"},       {"AlertasVencimento", "1"}};
    for (const auto& e : esperado)
        EXPECT_EQ(c(e.chave), QString::fromLatin1(e.valor)) << e.chave;
    EXPECT_EQ(s(store::secao_configuracoes, "Exibir dica do dia"), QStringLiteral("1"));

    // clearing the alerts box writes only the misspelt key: the alerts stay on
    w->chkalertavenc->click();
    EXPECT_EQ(c("AertasVencimento"), QStringLiteral("0"));
    EXPECT_EQ(c("AlertasVencimento"), QStringLiteral("1"));
    w->chkiniciar->click();
    EXPECT_EQ(c("Iniciar"), QStringLiteral("1"));
    QFile entrada(platform::autostart_file(QStringLiteral("Quintara")));
    ASSERT_TRUE(entrada.open(QIODevice::ReadOnly));
    EXPECT_TRUE(entrada.readAll().contains("Exec=" + path(QString()).toUtf8()));

    w->cmdsair->click();
    QCoreApplication::processEvents();
    w = abrir();
    EXPECT_TRUE(w->chkalertavenc->isChecked()); // checked again
    EXPECT_TRUE(w->optcorfundo1[2]->isChecked());
}

TEST_F(configsoft, names_and_fonts_are_written_when_the_field_is_left_and_keys_are_discarded) {
    frmconfigsoft* w = abrir();
    ASSERT_TRUE(w);
    keys::show_active(w);
    w->txtnome->setFocus();
    w->txtnome->setText(QStringLiteral("Padaria Boa"));
    EXPECT_EQ(s(store::secao_relatorio, "nome"), QStringLiteral("<nada>"));
    w->cboffonte->setFocus(); // leaves txtnome
    EXPECT_EQ(s(store::secao_relatorio, "nome"), QStringLiteral("Padaria Boa"));
    keys::type(w->cboffonte, QStringLiteral("zz"));
    EXPECT_EQ(w->cboffonte->currentText(), QStringLiteral("Arial"));
    w->cboffonte->setEditText(QStringLiteral("DejaVu Sans"));
    w->cboftamanho->setFocus();
    EXPECT_EQ(c("Fontenome"), QStringLiteral("DejaVu Sans"));
    w->cboftamanho->setCurrentIndex(w->cboftamanho->findText(QStringLiteral("14")));
    w->txtslogan->setFocus();
    EXPECT_EQ(c("TamanhoFonte"), QStringLiteral("14"));
    w->txtslogan->setText(QStringLiteral("Pão quente"));
    w->close(); // the field in use is left by closing too
    EXPECT_EQ(s(store::secao_relatorio, "slogan"), QStringLiteral("Pão quente"));
}

TEST_F(configsoft, the_main_window_follows_at_its_activation) {
    exec(
        QStringLiteral("INSERT INTO pagar (estatus, data, Valor) VALUES ('Pendente', '2026/11/23', '1,00')"));
    frmlogin::instance()->abrir();
    frmprincipal* p = frmprincipal::instance();
    frmconfigsoft* w = abrir();
    ASSERT_TRUE(w);
    EXPECT_TRUE(p->cmdconfbanc->isEnabled());
    w->chkdica->click();
    w->chkatualizar->click();
    w->chkiniciar->click();
    w->chkalertavenc->click(); // on
    w->optcorfonte[10]->click();
    w->optcorfundo1[6]->click();
    w->cmdsair->click();
    p->CarregarConfigSoft();
    EXPECT_TRUE(p->item(QStringLiteral("mnudicadia"))->isChecked());
    EXPECT_FALSE(p->item(QStringLiteral("mnuatualizarsaldo"))->isChecked());
    EXPECT_TRUE(p->item(QStringLiteral("mnuiniciar"))->isChecked());
    EXPECT_TRUE(p->item(QStringLiteral("mnualertavenc"))->isChecked());
    // the colours reach the lists without a restart (blue-green-red numbers)
    EXPECT_EQ(p->lstpagar->model()->index(0, 0).data(Qt::ForegroundRole).value<QColor>(),
              QColor(0xFF, 0x80, 0x00));
    EXPECT_EQ(p->lstpagar->palette().color(QPalette::Base), QColor(0xC0, 0xFF, 0xC0));

    w = abrir();
    w->chkiniciar->click();
    w->chkalertavenc->click(); // cleared: the menu keeps the alerts on
    p->CarregarConfigSoft();
    EXPECT_FALSE(p->item(QStringLiteral("mnuiniciar"))->isChecked());
    EXPECT_TRUE(p->item(QStringLiteral("mnualertavenc"))->isChecked());
}

TEST_F(configsoft, network_mode_points_the_connection_at_the_chosen_file) {
    const QString rede = path(QStringLiteral("rede.qntbd"));
    support::copy_fresh_data_file(rede);
    exec(QStringLiteral("INSERT INTO banco (banco, saldo) VALUES ('Local', '0')"));
    frmconfigsoft* w = abrir();
    ASSERT_TRUE(w);
    w->chkrede->click();
    EXPECT_EQ(c("EmRede"), QStringLiteral("1"));
    EXPECT_EQ(c("RedeLocal"), path(QStringLiteral("dados.qntbd")));
    EXPECT_TRUE(w->cmdlocal->isEnabled());
    prompts_.answer_text(rede);
    w->cmdlocal->click();
    ASSERT_FALSE(prompts_.records().empty());
    EXPECT_EQ(prompts_.records().back().title, QStringLiteral("Abrir Banco de dados em rede"));
    EXPECT_EQ(prompts_.records().back().filter,
              QStringLiteral("Arquivos de Banco de dados do software|*.qntbd"));
    EXPECT_EQ(w->txtbd->text(), rede);
    EXPECT_EQ(c("RedeLocal"), rede);
    store::conectarbanco();
    sql::recordset rs;
    rs.open(QStringLiteral("SELECT * FROM banco WHERE banco = 'Local'"), store::conexao);
    EXPECT_TRUE(rs.eof()); // the network file, not the local one

    w->chkrede->click();
    EXPECT_EQ(c("EmRede"), QStringLiteral("0"));
    EXPECT_EQ(c("RedeLocal"), QStringLiteral("SemRede"));
    EXPECT_FALSE(w->txtbd->isEnabled());
    EXPECT_EQ(w->txtbd->text(), path(QStringLiteral("dados.qntbd")));
}

} // namespace
