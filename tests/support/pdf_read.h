#pragma once
// Printed pages read back: the text of each page as pdftotext lays it out, the words with their
// boxes on the sheet, and a page rendered to a picture.

#include "support/golden.h"

#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <vector>

namespace support {

// A word on a page, its box in millimetres from the sheet's top left corner.
struct pdf_word {
    int page = 0;
    QString text;
    double x = 0, y = 0, right = 0, bottom = 0;
};

// pdftotext -bbox: every word with its box.
inline std::vector<pdf_word> pdf_words(const QString& pdf) {
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), pdf, QStringLiteral("-")});
    std::vector<pdf_word> out;
    if (!p.waitForFinished(120000) || p.exitCode() != 0) return out;
    const QString html = QString::fromUtf8(p.readAllStandardOutput());
    static const QRegularExpression tag(QStringLiteral(
        R"re(<page |<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">([^<]*)</word>)re"));
    constexpr double mm = 25.4 / 72.0;
    int page = -1;
    for (auto it = tag.globalMatch(html); it.hasNext();) {
        const auto m = it.next();
        if (m.captured(0).startsWith(QLatin1String("<page"))) {
            ++page;
            continue;
        }
        out.push_back({page, m.captured(5).replace(QStringLiteral("&amp;"), QStringLiteral("&")),
                       m.captured(1).toDouble() * mm, m.captured(2).toDouble() * mm,
                       m.captured(3).toDouble() * mm, m.captured(4).toDouble() * mm});
    }
    return out;
}

// One page (1-based) rendered in grey at the resolution given, by pdftoppm.
inline QImage pdf_render(const QString& pdf, int page, int dpi) {
    QTemporaryDir dir;
    QProcess p;
    const QString base = dir.path() + QStringLiteral("/p");
    p.start(QStringLiteral("pdftoppm"),
            {QStringLiteral("-gray"), QStringLiteral("-png"), QStringLiteral("-r"), QString::number(dpi),
             QStringLiteral("-f"), QString::number(page), QStringLiteral("-l"), QString::number(page),
             QStringLiteral("-singlefile"), pdf, base});
    if (!p.waitForFinished(120000) || p.exitCode() != 0) return {};
    return QImage(base + QStringLiteral(".png"));
}

} // namespace support
