#include "platform/ini_document.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <atomic>

namespace platform {

namespace {

std::atomic<int> reads{0};
std::atomic<int> writes{0};

QString unescape(const QString& v) {
    QString out;
    out.reserve(v.size());
    for (int i = 0; i < v.size(); ++i) {
        if (v[i] == QLatin1Char('\\') && i + 1 < v.size()) {
            const QChar n = v[++i];
            if (n == QLatin1Char('n'))
                out += QLatin1Char('\n');
            else if (n == QLatin1Char('r'))
                out += QLatin1Char('\r');
            else
                out += n;
        } else {
            out += v[i];
        }
    }
    return out;
}

QString escape(const QString& v) {
    QString out;
    out.reserve(v.size());
    for (QChar c : v) {
        if (c == QLatin1Char('\\'))
            out += QStringLiteral("\\\\");
        else if (c == QLatin1Char('\n'))
            out += QStringLiteral("\\n");
        else if (c == QLatin1Char('\r'))
            out += QStringLiteral("\\r");
        else
            out += c;
    }
    return out;
}

} // namespace

ini_document ini_document::parse(const QByteArray& utf8, bool escaped) {
    ini_document doc(escaped);
    doc.sections_.push_back({});
    const QString text = QString::fromUtf8(utf8);
    const auto lines = text.split(QLatin1Char('\n'));
    for (QString l : lines) {
        // line ends of any system, doubled ones too: a rewrite must read the same
        while (l.endsWith(QLatin1Char('\r')))
            l.chop(1);
        const QString t = l.trimmed();
        if (t.startsWith(QLatin1Char('[')) && t.endsWith(QLatin1Char(']'))) {
            doc.sections_.push_back({t.mid(1, t.size() - 2), {}});
            continue;
        }
        line ln;
        ln.raw = l;
        const qsizetype eq = l.indexOf(QLatin1Char('='));
        if (!t.isEmpty() && !t.startsWith(QLatin1Char(';')) && !t.startsWith(QLatin1Char('#')) && eq > 0) {
            ln.key = l.left(eq).trimmed();
            QString v = l.mid(eq + 1);
            if (escaped) {
                v = unescape(v);
            } else {
                v = v.trimmed();
                if (v.size() >= 2 && ((v.startsWith(QLatin1Char('"')) && v.endsWith(QLatin1Char('"'))) ||
                                      (v.startsWith(QLatin1Char('\'')) && v.endsWith(QLatin1Char('\'')))))
                    v = v.mid(1, v.size() - 2);
            }
            ln.value = v;
        }
        doc.sections_.back().lines.push_back(ln);
    }
    // a trailing newline leaves one empty line behind
    auto& last = doc.sections_.back().lines;
    if (!last.empty() && last.back().key.isEmpty() && last.back().raw.isEmpty()) last.pop_back();
    return doc;
}

QByteArray ini_document::serialize() const {
    QString out;
    bool first = true;
    for (const auto& s : sections_) {
        if (!first || !s.name.isEmpty()) {
            if (!out.isEmpty() && !out.endsWith(QStringLiteral("\n\n"))) out += QLatin1Char('\n');
            out += QLatin1Char('[') + s.name + QStringLiteral("]\n");
        }
        first = false;
        for (const auto& l : s.lines) {
            if (l.key.isEmpty()) {
                if (!l.raw.trimmed().isEmpty()) out += l.raw + QLatin1Char('\n');
            } else if (!l.changed) {
                // quotes and blanks around a value read back the same only as they were written
                out += l.raw + QLatin1Char('\n');
            } else {
                out += l.key + QLatin1Char('=') + (escaped_ ? escape(l.value) : l.value) + QLatin1Char('\n');
            }
        }
    }
    return out.toUtf8();
}

const ini_document::section_block* ini_document::find(const QString& section) const {
    for (std::size_t i = 1; i < sections_.size(); ++i)
        if (sections_[i].name.compare(section, Qt::CaseInsensitive) == 0) return &sections_[i];
    return nullptr;
}

ini_document::section_block* ini_document::find(const QString& section) {
    return const_cast<section_block*>(std::as_const(*this).find(section));
}

std::optional<QString> ini_document::get(const QString& section, const QString& key) const {
    const section_block* s = find(section);
    if (!s) return std::nullopt;
    for (const auto& l : s->lines)
        if (!l.key.isEmpty() && l.key.compare(key, Qt::CaseInsensitive) == 0) return l.value;
    return std::nullopt;
}

void ini_document::set(const QString& section, const QString& key, const QString& value) {
    if (sections_.empty()) sections_.push_back({});
    section_block* s = find(section);
    if (!s) {
        sections_.push_back({section, {}});
        s = &sections_.back();
    }
    for (auto& l : s->lines)
        if (!l.key.isEmpty() && l.key.compare(key, Qt::CaseInsensitive) == 0) {
            l.value = value;
            l.changed = true;
            return;
        }
    s->lines.push_back({QString(), key, value, true});
}

int ini_reads() {
    return reads;
}

int ini_writes() {
    return writes;
}

ini_document read_ini(const QString& path, bool escaped) {
    ++reads;
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) return ini_document::parse(QByteArray(), escaped);
    return ini_document::parse(f.readAll(), escaped);
}

bool write_ini(const QString& path, const ini_document& doc) {
    ++writes;
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile f(path);
    if (!f.open(QIODevice::WriteOnly)) return false;
    f.write(doc.serialize());
    return f.commit();
}

} // namespace platform
