#include "support/golden.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

namespace support {

namespace {

const QString arrow = QStringLiteral("  => ");

QString data_path(const QString& name) {
    return QStringLiteral(QUINTARA_TEST_DATA_DIR "/") + name;
}

bool updating() {
    return qEnvironmentVariable("QUINTARA_UPDATE_GOLDEN") == QLatin1String("1");
}

QString rewrite_command() {
    const auto* t = ::testing::UnitTest::GetInstance()->current_test_info();
    const QString test =
        t ? QString::fromUtf8(t->test_suite_name()) + QLatin1Char('.') + QString::fromUtf8(t->name())
          : QStringLiteral("<test>");
    return QStringLiteral("QUINTARA_UPDATE_GOLDEN=1 ctest --test-dir build -R '%1$'").arg(test);
}

// The first line where the two texts part, for the failure message.
QString first_difference(const QString& want, const QString& got) {
    const QStringList a = want.split(QLatin1Char('\n')), b = got.split(QLatin1Char('\n'));
    for (qsizetype i = 0; i < std::max(a.size(), b.size()); ++i) {
        const QString x = i < a.size() ? a[i] : QStringLiteral("<end>");
        const QString y = i < b.size() ? b[i] : QStringLiteral("<end>");
        if (x != y)
            return QStringLiteral("line %1\n  file: %2\n  now:  %3").arg(QString::number(i + 1), x, y);
    }
    return {};
}

::testing::AssertionResult compare(const QString& name, const QByteArray& bytes) {
    const QString path = data_path(name);
    QFile f(path);
    if (updating()) {
        QDir().mkpath(QFileInfo(path).path());
        if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return ::testing::AssertionFailure() << "cannot write " << path.toStdString();
        f.write(bytes);
        return ::testing::AssertionSuccess();
    }
    if (!f.open(QIODevice::ReadOnly))
        return ::testing::AssertionFailure() << "missing tests/data/" << name.toStdString()
                                             << "; to write it: " << rewrite_command().toStdString();
    const QByteArray want = f.readAll();
    if (want == bytes) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << "tests/data/" << name.toStdString() << " differs at "
           << first_difference(QString::fromUtf8(want), QString::fromUtf8(bytes)).toStdString()
           << "\nif the change is meant, rewrite it: " << rewrite_command().toStdString();
}

} // namespace

::testing::AssertionResult matches_golden(const QString& name, const QString& text) {
    return compare(name, text.toUtf8());
}

::testing::AssertionResult matches_golden(const QString& name, const QByteArray& bytes) {
    return compare(name, bytes);
}

::testing::AssertionResult matches_baseline(const QString& name,
                                            const std::function<QStringList(const QString&)>& run) {
    QFile f(data_path(name));
    if (!f.open(QIODevice::ReadOnly))
        return ::testing::AssertionFailure()
               << "missing tests/data/" << name.toStdString() << ": a baseline holds its own inputs";
    QString out;
    for (const QString& line : QString::fromUtf8(f.readAll()).split(QLatin1Char('\n'))) {
        if (line.startsWith(arrow)) continue;
        out += line + QLatin1Char('\n');
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) continue;
        for (const QString& r : run(line))
            out += arrow + r + QLatin1Char('\n');
    }
    out.chop(1); // the split gave one line more than the file ends with
    return compare(name, out.toUtf8());
}

::testing::AssertionResult file_matches_golden(const QString& name, const QString& path) {
    return compare(name, read_file(path));
}

QByteArray read_file(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QString table_text(const std::vector<QStringList>& rows) {
    QString out;
    for (const QStringList& r : rows)
        out += QLatin1Char('[') + r.join(QStringLiteral("] [")) + QStringLiteral("]\n");
    return out;
}

QStringList bracketed(const QString& line) {
    QStringList out;
    for (qsizetype open = line.indexOf(QLatin1Char('[')); open >= 0;) {
        const qsizetype close = line.indexOf(QLatin1Char(']'), open + 1);
        if (close < 0) break;
        out << line.mid(open + 1, close - open - 1);
        open = line.indexOf(QLatin1Char('['), close + 1);
    }
    return out;
}

QStringList pdf_pages(const QString& pdf) {
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
    if (!p.waitForFinished(60000) || p.exitCode() != 0) return {};
    QStringList pages = QString::fromUtf8(p.readAllStandardOutput()).split(QLatin1Char('\f'));
    if (!pages.isEmpty() && pages.last().trimmed().isEmpty()) pages.removeLast();
    return pages;
}

QStringList pdf_lines(const QString& pdf) {
    QStringList out;
    for (const QString& page : pdf_pages(pdf))
        for (const QString& l : page.split(QLatin1Char('\n')))
            if (!l.trimmed().isEmpty()) out << l.simplified();
    return out;
}

} // namespace support
