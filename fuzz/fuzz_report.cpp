// The text and HTML report writer on any list: no crash, and a table written whole has its lines
// of one width and one cell per column and row.
#include "fuzz_check.h"
#include "output/c_relatorios.h"
#include "output/report_frame.h"
#include "platform/clock.h"
#include "platform/settings.h"
#include "store/config.h"

#include <QBuffer>
#include <QTemporaryDir>

#include <vector>

namespace {

class table : public platform::table_source {
public:
    std::vector<QString> headings;
    std::vector<double> widths;
    std::vector<std::vector<QString>> cells;
    int column_count() const override { return int(headings.size()); }
    QString column_text(int c) const override { return headings[std::size_t(c)]; }
    double column_width(int c) const override { return widths[std::size_t(c)]; }
    int row_count() const override { return int(cells.size()); }
    QString text(int r, int c) const override { return cells[std::size_t(r)][std::size_t(c)]; }
};

void set_up() {
    static QTemporaryDir dir;
    static platform::fixed_clock clock(QDateTime(QDate(2026, 11, 23), QTime(10, 0)));
    static const bool done = [] {
        platform::set_settings_root(dir.path());
        platform::set_clock(&clock);
        return true;
    }();
    (void)done;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    set_up();
    if (size < 4) return 0;
    // four bytes of shape: columns, the character limit of a field, the rule's letter, the frame
    const int columns = 1 + data[0] % 6;
    const auto limite = std::int16_t((data[1] << 8 | data[2]) % 200 - 20);
    const bool movimento = data[3] & 1;
    const QString text = fuzz::text_of(data + 4, size - 4);
    const QStringList lines = text.split(QLatin1Char('\n'));

    table t;
    const QStringList head = lines.front().split(QLatin1Char('\t'));
    for (int c = 0; c < columns; ++c) {
        t.headings.push_back(c < head.size() ? head[c] : QString());
        t.widths.push_back(c == 0 ? 0 : 1000);
    }
    for (qsizetype r = 1; r < lines.size() && r < 60; ++r) {
        const QStringList f = lines[r].split(QLatin1Char('\t'));
        std::vector<QString> row;
        for (int c = 0; c < columns; ++c)
            row.push_back(c < f.size() ? QString(f[c]).remove(QLatin1Char('\r')) : QString());
        t.cells.push_back(std::move(row));
    }
    for (auto& h : t.headings)
        h.remove(QLatin1Char('\r'));

    output::c_relatorios exportador;
    exportador.set_Max_LetraForFields(limite);
    exportador.set_mLetraTXT(head.size() > columns ? head[columns] : QString());
    {
        QBuffer buf;
        buf.open(QIODevice::WriteOnly);
        const auto r = exportador.Exportar_listaparaTXT(buf, QString(), t, true);
        fuzz::require((r == output::c_relatorios::resultado::sem_linhas) == t.cells.empty(),
                      "rows and result disagree");
        if (r == output::c_relatorios::resultado::gravado) {
            QStringList out = QString::fromUtf8(buf.data()).split(QStringLiteral("\r\n"));
            out.removeLast();
            fuzz::require(out.size() == qsizetype(t.cells.size()) + 2, "a table line is missing");
            // the rule gives a column of no width one character all the same
            qsizetype empty_columns = 0;
            for (int w : exportador.larguras())
                empty_columns += w == 0 ? 1 : 0;
            for (qsizetype i = 0; i < out.size(); ++i)
                fuzz::require(out[i].size() == out.front().size() + (i == 1 ? empty_columns : 0),
                              "table lines differ in width", out.front(), out[i]);
        }
    }
    {
        QBuffer buf;
        buf.open(QIODevice::WriteOnly);
        if (exportador.Exportar_listaparaHTML(buf, t) == output::c_relatorios::resultado::gravado)
            fuzz::require(buf.data().count("<td nowrap>") == qsizetype(t.cells.size()) * columns,
                          "an HTML cell is missing");
    }
    // the whole frame, with the texts around the table taken from the list too
    store::save_setting(store::secao_relatorio, QStringLiteral("nome"), head.value(0));
    output::report_texts texts;
    texts.janela = movimento ? output::janela_relatorio::movimento : output::janela_relatorio::relatorio;
    texts.caption = head.value(1);
    texts.tipo = head.value(2);
    texts.subtitulo = lines.value(1);
    texts.totais = lines.back();
    QBuffer txt, html;
    txt.open(QIODevice::WriteOnly);
    html.open(QIODevice::WriteOnly);
    output::write_text_report(txt, texts, &t, exportador);
    output::write_html_report(html, texts, &t, exportador);
    fuzz::require(html.data().startsWith("\xEF\xBB\xBF<html>"), "the HTML frame does not begin as it must");
    return 0;
}
