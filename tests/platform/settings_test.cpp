#include "platform/autostart.h"
#include "platform/settings.h"
#include "support/fixture.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

using settings = support::fixture;

QString file_text(const QString& p) {
    QFile f(p);
    if (!f.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(f.readAll());
}

TEST_F(settings, keys_ignore_case_and_sections_stay_apart) {
    const QString app = QStringLiteral("Quintara");
    EXPECT_EQ(platform::get_setting(app, QStringLiteral("Configurações"), QStringLiteral("OrdemM"),
                                    QStringLiteral("true")),
              QStringLiteral("true"));
    platform::save_setting(app, QStringLiteral("Configurações"), QStringLiteral("VisualizarDadosbancario"),
                           QStringLiteral("2"));
    EXPECT_EQ(platform::get_setting(app, QStringLiteral("Configurações"),
                                    QStringLiteral("VisualizarDadosBancario"), QStringLiteral("0")),
              QStringLiteral("2"));
    platform::save_setting(app, QStringLiteral("configuracoes"), QStringLiteral("Exibir dica do dia"),
                           QStringLiteral("0"));
    platform::save_setting(app, QStringLiteral("Configurações\\relatorio"), QStringLiteral("nome"),
                           QStringLiteral("Padaria Pão & Mel"));
    EXPECT_EQ(platform::get_setting(app, QStringLiteral("Configurações"),
                                    QStringLiteral("Exibir dica do dia"), QStringLiteral("1")),
              QStringLiteral("1"));
    EXPECT_EQ(platform::get_setting(app, QStringLiteral("Configurações"), QStringLiteral("nome"),
                                    QStringLiteral("?")),
              QStringLiteral("?"));
    EXPECT_EQ(platform::get_setting(app, QStringLiteral("CONFIGURACOES"),
                                    QStringLiteral("exibir DICA do dia"), QStringLiteral("1")),
              QStringLiteral("0"));
    // a value keeps line breaks and backslashes, and the file is plain text a user can read
    platform::save_setting(app, QStringLiteral("Configurações"), QStringLiteral("RedeLocal"),
                           QStringLiteral("\\\\srv\\dados\nx"));
    EXPECT_EQ(
        platform::get_setting(app, QStringLiteral("Configurações"), QStringLiteral("redelocal"), QString()),
        QStringLiteral("\\\\srv\\dados\nx"));
    const QString text = file_text(settings_file());
    EXPECT_TRUE(text.contains(QStringLiteral("[Configurações\\relatorio]\nnome=Padaria Pão & Mel\n")))
        << qPrintable(text);
    EXPECT_TRUE(text.contains(QStringLiteral("VisualizarDadosbancario=2")));
}

TEST_F(settings, nothing_is_cached_between_reads) {
    const QString app = QStringLiteral("Quintara");
    platform::save_setting(app, QStringLiteral("Configurações"), QStringLiteral("FiltroP"),
                           QStringLiteral("Mês anterior"));
    QFile f(settings_file());
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("[Configurações]\nFiltroP=Próximo mês\n");
    f.close();
    EXPECT_EQ(
        platform::get_setting(app, QStringLiteral("Configurações"), QStringLiteral("FiltroP"), QString()),
        QStringLiteral("Próximo mês"));
}

TEST_F(settings, profile_files_read_write_and_truncate) {
    const QString ini = path(QStringLiteral("pagar.ini"));
    EXPECT_EQ(
        platform::lerini(QStringLiteral("TAMANHO"), QStringLiteral("data"), QStringLiteral("1319,8111"), ini),
        QStringLiteral("1319,8111"));
    platform::gravarini(QStringLiteral("TAMANHO"), QStringLiteral("data"), QStringLiteral("1500,5"), ini);
    platform::gravarini(QStringLiteral("POSICAO"), QStringLiteral("posicao1"), QStringLiteral("3"), ini);
    platform::gravarini(QStringLiteral("tamanho"), QStringLiteral("DATA"), QStringLiteral("1600"), ini);
    EXPECT_EQ(platform::lerini(QStringLiteral("TAMANHO"), QStringLiteral("data"), QString(), ini),
              QStringLiteral("1600"));
    EXPECT_EQ(file_text(ini), QStringLiteral("[TAMANHO]\ndata=1600\n\n[POSICAO]\nposicao1=3\n"));
    platform::gravarini(QStringLiteral("X"), QStringLiteral("longo"), QString(300, QLatin1Char('a')), ini);
    EXPECT_EQ(platform::lerini(QStringLiteral("X"), QStringLiteral("longo"), QString(), ini).size(), 254);
}

TEST_F(settings, run_entry_maps_to_an_autostart_file) {
    std::uint32_t root = 0;
    QString sub;
    EXPECT_TRUE(platform::dividirchave(platform::run_key, root, sub));
    EXPECT_EQ(root, platform::hkey_local_machine);
    EXPECT_EQ(sub, QStringLiteral("SOFTWARE\\MICROSOFT\\WINDOWS\\CURRENTVERSION\\RUN"));
    EXPECT_FALSE(platform::dividirchave(QStringLiteral("SOFTWARE\\X"), root, sub));
    EXPECT_FALSE(platform::dividirchave(QStringLiteral("HKEY_CURRENT_USER\\X\\"), root, sub));
    ASSERT_EQ(prompts_.boxes().size(), 2u);
    EXPECT_EQ(prompts_.boxes()[0].text, QStringLiteral("Incorrect Format:\n\nSOFTWARE\\X"));
    EXPECT_EQ(platform::raizregistro(QStringLiteral("HKEY_DYN_DATA")), platform::hkey_dyn_data);
    EXPECT_EQ(platform::raizregistro(QStringLiteral("HKEY_NADA")), platform::no_root);

    platform::gravarregistro(platform::run_key, QStringLiteral("Quintara"),
                             QStringLiteral("/opt/quintara/quintara"));
    const QString file = platform::autostart_file(QStringLiteral("Quintara"));
    EXPECT_TRUE(file_text(file).contains(QStringLiteral("Exec=/opt/quintara/quintara\n")));
    EXPECT_TRUE(file_text(file).contains(QStringLiteral("Hidden=false")));
    // off: rewritten with the empty text, not removed
    platform::gravarregistro(platform::run_key, QStringLiteral("Quintara"), QString());
    EXPECT_TRUE(QFile::exists(file));
    EXPECT_TRUE(file_text(file).contains(QStringLiteral("Exec=\n")));
    EXPECT_TRUE(file_text(file).contains(QStringLiteral("Hidden=true")));
    // other keys have no place on this desktop and are left alone
    platform::gravarregistro(QStringLiteral("HKEY_CURRENT_USER\\Software\\Outro"), QStringLiteral("Outro"),
                             QStringLiteral("x"));
    EXPECT_FALSE(QFile::exists(platform::autostart_file(QStringLiteral("Outro"))));
}

} // namespace
