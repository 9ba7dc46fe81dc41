#include "output/c_relatorios.h"

#include <QIODevice>

namespace output {

namespace {

// A padding or cut that the old runtime refused (negative length): it ends the table there.
struct negative_length {};

const QByteArray crlf = QByteArrayLiteral("\r\n");
const QString two_blanks = QStringLiteral("  ");

QString blanks(int n) {
    if (n < 0) throw negative_length{};
    return QString(n, QLatin1Char(' '));
}

// Blanks added in place (the rows of a long list build no temporary texts).
void pad(QString& line, int n) {
    if (n < 0) throw negative_length{};
    line.resize(line.size() + n, QLatin1Char(' '));
}

// Lines are gathered and handed to the device in large pieces; a table cut short still gets
// every line that was complete.
class line_writer {
public:
    explicit line_writer(QIODevice& out) : out_(out) {}
    ~line_writer() { flush(); }
    void line(const QString& s) {
        buf_ += s.toUtf8();
        buf_ += crlf;
        if (buf_.size() >= (1 << 20)) flush();
    }
    void flush() {
        if (!buf_.isEmpty() && out_.isWritable()) out_.write(buf_);
        buf_.clear();
    }

private:
    QIODevice& out_;
    QByteArray buf_;
};

c_relatorios* slot = nullptr;

} // namespace

c_relatorios* relatorio() {
    return slot;
}
void set_relatorio(c_relatorios* r) {
    slot = r;
}

void c_relatorios::set_mLetraTXT(const QString& letra) {
    if (!letra.isEmpty()) letra_ = letra.left(1);
}

void c_relatorios::calcular_larguras(const platform::table_source& lista) {
    const int cols = lista.column_count();
    const int rows = lista.row_count();
    larguras_.assign(std::size_t(cols), 0);
    for (int c = 0; c < cols; ++c)
        larguras_[std::size_t(c)] = int(lista.column_text(c).size());
    for (int r = 0; r < rows; ++r) {
        for (int c = 0; c < cols; ++c) {
            const int limite = c == 0 ? limite_primeira_coluna : max_letra_;
            const int len = int(lista.text(r, c).size());
            int& w = larguras_[std::size_t(c)];
            if (len >= limite)
                w = limite; // also when the column was wider
            else if (len > w)
                w = len;
        }
    }
}

c_relatorios::resultado c_relatorios::Exportar_listaparaTXT(QIODevice& saida, const QString& /*arquivo*/,
                                                            const platform::table_source& lista,
                                                            bool cabecalho) {
    const int rows = lista.row_count();
    if (rows <= 0) return resultado::sem_linhas;
    calcular_larguras(lista);
    const int cols = int(larguras_.size());
    line_writer out(saida);
    QString line;
    try {
        if (cabecalho) {
            line.clear();
            for (int c = 0; c < cols; ++c) {
                const QString h = lista.column_text(c);
                line += h + blanks(larguras_[std::size_t(c)] - int(h.size())) + two_blanks;
            }
            out.line(line);
            line.clear();
            for (int c = 0; c < cols; ++c) {
                const int w = larguras_[std::size_t(c)];
                if (w < 0) throw negative_length{};
                line += letra_.repeated(w == 0 ? 1 : w) + two_blanks;
            }
            out.line(line);
        }
        for (int r = 0; r < rows; ++r) {
            line.resize(0); // keeps the room of the last line
            for (int c = 0; c < cols; ++c) {
                const QString t = lista.text(r, c);
                const int w = larguras_[std::size_t(c)];
                if (c == 0) {
                    // the first column is never cut: a longer text has no room and fails
                    if (w < t.size()) throw negative_length{};
                    line += t;
                    pad(line, w - int(t.size()));
                } else if (t.isEmpty()) {
                    pad(line, w);
                } else if (t.size() >= max_letra_) {
                    if (max_letra_ < 0) throw negative_length{};
                    line += QStringView(t).left(max_letra_);
                } else {
                    line += t;
                    pad(line, w - int(t.size()));
                }
                pad(line, 2);
            }
            out.line(line);
            bar(double(r + 1) / rows * 100.0);
        }
    } catch (const negative_length&) {
        return resultado::interrompido;
    }
    bar(0.001);
    return resultado::gravado;
}

c_relatorios::resultado c_relatorios::Exportar_listaparaHTML(QIODevice& saida,
                                                             const platform::table_source& lista,
                                                             const QString& /*arquivo*/) {
    const int rows = lista.row_count();
    if (rows <= 0) return resultado::sem_linhas;
    const int cols = lista.column_count();
    line_writer out(saida);
    // no escaping: the texts go in as the list shows them
    out.line(QStringLiteral("<table border='2' align='center'>") + QLatin1String("\r\n"));
    out.line(QStringLiteral("<tr>"));
    for (int c = 0; c < cols; ++c)
        out.line(QStringLiteral("<TH nowrap bgcolor='#FFFFCC'>") + lista.column_text(c) +
                 QStringLiteral("</th>"));
    out.line(QStringLiteral("</tr>"));
    for (int r = 0; r < rows; ++r) {
        out.line(QStringLiteral("<tr>"));
        for (int c = 0; c < cols; ++c) {
            const QString t = lista.text(r, c);
            if (c > 0 && t.isEmpty())
                out.line(QStringLiteral("<td nowrap>&nbsp;</td>"));
            else
                out.line(QStringLiteral("<td nowrap>") + t + QStringLiteral("&nbsp;</td>"));
        }
        out.line(QStringLiteral("</tr>"));
        bar(double(r + 1) / rows * 100.0);
    }
    out.line(QStringLiteral("</table>"));
    bar(1);
    return resultado::gravado;
}

} // namespace output
