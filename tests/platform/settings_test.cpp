#include "platform/autostart.h"
#include "platform/settings.h"
#include "support/fixture.h"
#include "support/golden.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using settings = support::fixture;

using support::read_text;

TEST_F(settings, keys_ignore_case_and_sections_stay_apart) {
    const QString app = u"Quintara"_s;
    EXPECT_EQ(platform::get_setting(app, u"Configurações"_s, u"OrdemM"_s, u"true"_s), u"true"_s);
    platform::save_setting(app, u"Configurações"_s, u"VisualizarDadosbancario"_s, u"2"_s);
    EXPECT_EQ(platform::get_setting(app, u"Configurações"_s, u"VisualizarDadosBancario"_s, u"0"_s), u"2"_s);
    platform::save_setting(app, u"configuracoes"_s, u"Exibir dica do dia"_s, u"0"_s);
    platform::save_setting(app, u"Configurações\\relatorio"_s, u"nome"_s, u"Padaria Pão & Mel"_s);
    EXPECT_EQ(platform::get_setting(app, u"Configurações"_s, u"Exibir dica do dia"_s, u"1"_s), u"1"_s);
    EXPECT_EQ(platform::get_setting(app, u"Configurações"_s, u"nome"_s, u"?"_s), u"?"_s);
    EXPECT_EQ(platform::get_setting(app, u"CONFIGURACOES"_s, u"exibir DICA do dia"_s, u"1"_s), u"0"_s);
    // a value keeps line breaks and backslashes, and the file is plain text a user can read
    platform::save_setting(app, u"Configurações"_s, u"RedeLocal"_s, u"\\\\srv\\dados\nx"_s);
    EXPECT_EQ(platform::get_setting(app, u"Configurações"_s, u"redelocal"_s, QString()),
              u"\\\\srv\\dados\nx"_s);
    const QString text = read_text(settings_file());
    EXPECT_TRUE(text.contains(u"[Configurações\\relatorio]\nnome=Padaria Pão & Mel\n"_s)) << qPrintable(text);
    EXPECT_TRUE(text.contains(u"VisualizarDadosbancario=2"_s));
}

TEST_F(settings, nothing_is_cached_between_reads) {
    const QString app = u"Quintara"_s;
    platform::save_setting(app, u"Configurações"_s, u"FiltroP"_s, u"Mês anterior"_s);
    QFile f(settings_file());
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("[Configurações]\nFiltroP=Próximo mês\n");
    f.close();
    EXPECT_EQ(platform::get_setting(app, u"Configurações"_s, u"FiltroP"_s, QString()), u"Próximo mês"_s);
}

TEST_F(settings, profile_files_read_write_and_truncate) {
    const QString ini = path(u"pagar.ini"_s);
    EXPECT_EQ(platform::lerini(u"TAMANHO"_s, u"data"_s, u"1319,8111"_s, ini), u"1319,8111"_s);
    platform::gravarini(u"TAMANHO"_s, u"data"_s, u"1500,5"_s, ini);
    platform::gravarini(u"POSICAO"_s, u"posicao1"_s, u"3"_s, ini);
    platform::gravarini(u"tamanho"_s, u"DATA"_s, u"1600"_s, ini);
    EXPECT_EQ(platform::lerini(u"TAMANHO"_s, u"data"_s, QString(), ini), u"1600"_s);
    EXPECT_EQ(read_text(ini), u"[TAMANHO]\ndata=1600\n\n[POSICAO]\nposicao1=3\n"_s);
    platform::gravarini(u"X"_s, u"longo"_s, QString(300, QLatin1Char('a')), ini);
    EXPECT_EQ(platform::lerini(u"X"_s, u"longo"_s, QString(), ini).size(), 254);
}

TEST_F(settings, run_entry_maps_to_an_autostart_file) {
    std::uint32_t root = 0;
    QString sub;
    EXPECT_TRUE(platform::dividirchave(platform::run_key, root, sub));
    EXPECT_EQ(root, platform::hkey_local_machine);
    EXPECT_EQ(sub, u"SOFTWARE\\MICROSOFT\\WINDOWS\\CURRENTVERSION\\RUN"_s);
    EXPECT_FALSE(platform::dividirchave(u"SOFTWARE\\X"_s, root, sub));
    EXPECT_FALSE(platform::dividirchave(u"HKEY_CURRENT_USER\\X\\"_s, root, sub));
    ASSERT_EQ(prompts_.boxes().size(), 2u);
    EXPECT_EQ(prompts_.boxes()[0].text, u"Incorrect Format:\n\nSOFTWARE\\X"_s);
    EXPECT_EQ(platform::raizregistro(u"HKEY_DYN_DATA"_s), platform::hkey_dyn_data);
    EXPECT_EQ(platform::raizregistro(u"HKEY_NADA"_s), platform::no_root);

    platform::gravarregistro(platform::run_key, u"Quintara"_s, u"/opt/quintara/quintara"_s);
    const QString file = platform::autostart_file(u"Quintara"_s);
    EXPECT_TRUE(read_text(file).contains(u"Exec=/opt/quintara/quintara\n"_s));
    EXPECT_TRUE(read_text(file).contains(u"Hidden=false"_s));
    // off: rewritten with the empty text, not removed
    platform::gravarregistro(platform::run_key, u"Quintara"_s, QString());
    EXPECT_TRUE(QFile::exists(file));
    EXPECT_TRUE(read_text(file).contains(u"Exec=\n"_s));
    EXPECT_TRUE(read_text(file).contains(u"Hidden=true"_s));
    // other keys have no place on this desktop and are left alone
    platform::gravarregistro(u"HKEY_CURRENT_USER\\Software\\Outro"_s, u"Outro"_s, u"x"_s);
    EXPECT_FALSE(QFile::exists(platform::autostart_file(u"Outro"_s)));
}

} // namespace
