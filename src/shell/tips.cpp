#include "shell/tips.h"

#include "store/program_dir.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <cmath>

namespace shell {

QString tips_file() {
    return store::program_path(QStringLiteral("\\dicas.txt"));
}

namespace {

// The delivered file is UTF-8; one saved by an old editor in the Western code page still reads.
QString decode(const QByteArray& bytes) {
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString text = utf8(bytes);
    if (utf8.hasError()) text = QString::fromLatin1(bytes);
    if (text.startsWith(QChar(0xFEFF))) text.remove(0, 1);
    return text;
}

} // namespace

std::optional<QStringList> read_tips(const QString& arquivo) {
    if (arquivo.isEmpty() || !QFileInfo(arquivo).isFile()) return std::nullopt;
    QFile f(arquivo);
    if (!f.open(QIODevice::ReadOnly)) return QStringList();
    const QString text = decode(f.readAll());
    QStringList lines;
    // a line ends at CR LF, CR or LF; the end of the file after a line break opens no new line
    qsizetype start = 0;
    const qsizetype n = text.size();
    for (qsizetype i = 0; i < n; ++i) {
        const QChar c = text.at(i);
        if (c != QLatin1Char('\r') && c != QLatin1Char('\n')) continue;
        lines.append(text.mid(start, i - start));
        if (c == QLatin1Char('\r') && i + 1 < n && text.at(i + 1) == QLatin1Char('\n')) ++i;
        start = i + 1;
    }
    if (start < n) lines.append(text.mid(start));
    return lines;
}

int pick_tip(int count, const platform::random_source& rnd) {
    double r = rnd ? rnd() : platform::rnd();
    if (!(r >= 0.0)) r = 0.0; // NaN too
    int index = int(std::floor(double(count) * r)) + 1;
    if (count > 0 && index > count) index = count;
    return index;
}

QString missing_tips_text(const QString& arquivo) {
    return QStringLiteral("não foi possível encontrar o arquivo de dicas ") + arquivo + QLatin1Char('\n') +
           QStringLiteral("a reinstalação do software pode corrigir o problema. ");
}

} // namespace shell
