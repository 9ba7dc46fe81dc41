#include "support/fixture.h"

#include "app/actions.h"
#include "platform/random.h"
#include "platform/settings.h"
#include "store/conexao.h"
#include "store/data_file.h"
#include "store/program_dir.h"
#include "support/golden.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace support {

void copy_fresh_data_file(const QString& path) {
    // built once per test program, copied after: the copy keeps its salt, so its key is derived once
    static QTemporaryDir templ;
    static const QString made = [] {
        const QString p = templ.path() + u"/dados.qntbd"_s;
        store::create_data_file(p);
        return p;
    }();
    QFile::remove(path);
    if (!QFile::copy(made, path)) throw std::runtime_error("cannot copy the data file");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
}

void fixture::SetUp() {
    ASSERT_TRUE(dir_.isValid());
    copy_fresh_data_file(path(u"dados.qntbd"_s));
    QFile::copy(QStringLiteral(QUINTARA_DATA_DIR "/dicas.txt"), path(u"dicas.txt"_s));
    QFile::copy(QStringLiteral(QUINTARA_DATA_DIR "/fundo.gif"), path(u"fundo.gif"_s));
    QDir().mkpath(path(u"config"_s));
    store::set_program_dir(dir_.path());
    platform::set_settings_root(path(u"config"_s));
    platform::set_clock(&clock_);
    platform::set_random_source([] { return 0.0; });
    platform::set_prompts(&prompts_);
    platform::set_shell(&shell_);
    static const bool registered = (app::register_actions(), true);
    (void)registered;
}

void fixture::TearDown() {
    store::conexao.reset();
    platform::set_clock(nullptr);
    platform::set_random_source({});
    platform::set_prompts(nullptr);
    platform::set_shell(nullptr);
    platform::set_settings_root(QString());
    store::set_program_dir(QString());
}

QString fixture::settings_file() const {
    return platform::settings_file(u"Quintara"_s);
}

void fixture::exec(const QString& statement) {
    auto c = sql::connection::open(path(u"dados.qntbd"_s), store::senha_dados.toUtf8());
    c->execute(statement);
}

QStringList fixture::rows(const QString& statement) {
    auto c = sql::connection::open(path(u"dados.qntbd"_s), store::senha_dados.toUtf8());
    sql::recordset rs;
    rs.open(statement, c);
    QStringList out;
    for (; !rs.eof(); rs.move_next()) {
        QStringList f;
        for (int i = 0; i < rs.field_count(); ++i)
            f << rs.text(i);
        out << f.join(QLatin1Char('|'));
    }
    return out;
}

::testing::AssertionResult fixture::saves(const std::function<void()>& salvar, const QString& titulo,
                                          const QString& filtro, const QString& golden) {
    prompts_.clear();
    const QString arquivo = path(golden.section(QLatin1Char('/'), -1));
    prompts_.answer_text(arquivo);
    salvar();
    const auto& r = prompts_.records();
    if (r.size() != 2)
        return ::testing::AssertionFailure() << r.size() << " prompts instead of the dialog and the question";
    if (r[0].title != titulo || r[0].filter != filtro)
        return ::testing::AssertionFailure()
               << "dialog " << r[0].title.toStdString() << " | " << r[0].filter.toStdString();
    if (r[1].title != QStringLiteral("Visualizar"))
        return ::testing::AssertionFailure() << "question " << r[1].title.toStdString();
    return file_matches_golden(golden, arquivo);
}

} // namespace support
