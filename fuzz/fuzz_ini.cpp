// The layout files and the settings file on any content: no crash, a rewrite reads back the same,
// and a value saved is the value read.
#include "fuzz_check.h"
#include "platform/ini_document.h"
#include "platform/settings.h"
#include "shell/column_layout.h"
#include "store/program_dir.h"

#include <QFile>
#include <QTemporaryDir>

#include <cmath>

namespace {

QTemporaryDir& dir() {
    static QTemporaryDir d;
    static const bool set = [] {
        store::set_program_dir(d.path());
        platform::set_settings_root(d.path());
        return true;
    }();
    (void)set;
    return d;
}

void write_file(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    if (f.open(QIODevice::WriteOnly | QIODevice::Truncate)) f.write(bytes);
}

// A name a writer can use and find again: one line, no blanks at its ends.
bool usable_name(const QString& s, bool key) {
    if (s.isEmpty() || s != s.trimmed() || s.contains(QLatin1Char('\n')) || s.contains(QLatin1Char('\r')))
        return false;
    if (key)
        return !s.contains(QLatin1Char('=')) && !s.startsWith(QLatin1Char('[')) &&
               !s.startsWith(QLatin1Char(';')) && !s.startsWith(QLatin1Char('#'));
    return !s.contains(QLatin1Char(']')) && !s.contains(QLatin1Char('['));
}

void check_document(const QByteArray& bytes, bool escaped) {
    const platform::ini_document doc = platform::ini_document::parse(bytes, escaped);
    const QByteArray once = doc.serialize();
    const QByteArray twice = platform::ini_document::parse(once, escaped).serialize();
    fuzz::require(once == twice, "a rewritten file reads otherwise", QString::fromUtf8(once),
                  QString::fromUtf8(twice));
}

void check_layout(const QByteArray& bytes) {
    write_file(store::program_path(shell::traits(shell::ledger::pagar).layout), bytes);
    shell::column_layout l = shell::read_layout(shell::ledger::pagar);
    // a saved layout reads back the same, up to the seven digits a width is written with
    for (int round = 0; round < 2; ++round) {
        shell::write_layout(shell::ledger::pagar, l);
        const shell::column_layout back = shell::read_layout(shell::ledger::pagar);
        fuzz::require(back.positions == l.positions, "positions do not read back");
        for (std::size_t i = 0; i < l.widths.size(); ++i)
            fuzz::require(std::fabs(back.widths[i] - l.widths[i]) <= 1e-6 * std::fabs(l.widths[i]) + 1e-30,
                          "a width does not read back", shell::single_text(l.widths[i]),
                          shell::single_text(back.widths[i]));
        l = back;
    }
}

void check_setting(const QByteArray& bytes, const QString& section, const QString& key,
                   const QString& value) {
    const QString app = QStringLiteral("Fuzz");
    write_file(platform::settings_file(app), bytes);
    platform::save_setting(app, section, key, value);
    fuzz::require(platform::get_setting(app, section, key, QStringLiteral("-")) == value,
                  "a saved setting reads otherwise", section + QLatin1Char('/') + key, value);
    // a profile file keeps one line per value: breaks become blanks, and blanks at the ends go
    write_file(dir().path() + QStringLiteral("/p.ini"), bytes);
    platform::gravarini(section, key, value, dir().path() + QStringLiteral("/p.ini"));
    QString flat = value;
    flat.replace(QLatin1Char('\n'), QLatin1Char(' ')).replace(QLatin1Char('\r'), QLatin1Char(' '));
    flat = flat.trimmed();
    const bool quoted =
        flat.size() >= 2 && ((flat.startsWith(QLatin1Char('"')) && flat.endsWith(QLatin1Char('"'))) ||
                             (flat.startsWith(QLatin1Char('\'')) && flat.endsWith(QLatin1Char('\''))));
    if (!quoted)
        fuzz::require(platform::lerini(section, key, QStringLiteral("-"),
                                       dir().path() + QStringLiteral("/p.ini")) == flat.left(254),
                      "a profile value reads otherwise", value);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    dir();
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    check_document(bytes, true);
    check_document(bytes, false);
    check_layout(bytes);
    // the last three lines name a section, a key and a value to write into the file
    const QList<QByteArray> lines = bytes.split('\n');
    if (lines.size() >= 3) {
        const QString section = QString::fromUtf8(lines[lines.size() - 3]);
        const QString key = QString::fromUtf8(lines[lines.size() - 2]);
        const QString value =
            QString::fromUtf8(lines.back()).replace(QStringLiteral("\\n"), QStringLiteral("\n"));
        if (usable_name(section, false) && usable_name(key, true)) check_setting(bytes, section, key, value);
    }
    return 0;
}
