#include "output/print/list_report.h"

#include "platform/clock.h"
#include "platform/print/printer.h"
#include "platform/prompts.h"
#include "platform/text/vb_text.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <cmath>

namespace output {

namespace {

constexpr int erro_impressora = 482; // the old runtime's number for a printer failure
constexpr double gap_header = 60;    // between the filter line and the headings
constexpr double foot_gap = 60;      // between the last line of a page and the foot rule
constexpr double end_gap = 120;      // between the last row and the totals
constexpr double image_size = 1300;  // side of the contact's picture

const QString titulo_impressao = QStringLiteral("Impressão");

// The pieces of a page, measured once per report.
struct geometry {
    QFont title, filter, contact, contact_bold, heading, detail, foot, status, summary;
    double w = 0, h = 0;
    double title_h = 0, filter_h = 0, contact_h = 0, row_h = 0, heading_h = 0, foot_h = 0;
    double head_h = 0; // everything above the first row
    double avail = 0;  // rows' room on a page
    std::vector<int> cols;
    std::vector<double> left;
    std::vector<double> width;

    geometry(const list_report& r, double scale_w, double scale_h) : w(scale_w), h(scale_h) {
        const QString arial = QStringLiteral("Arial");
        title = platform::twips_font(arial, 14, true);
        filter = platform::twips_font(arial, 9);
        contact = platform::twips_font(arial, 9);
        contact_bold = platform::twips_font(arial, 9, true);
        heading = platform::twips_font(r.fonte, r.tamanho_fonte, true);
        detail = platform::twips_font(r.fonte, r.tamanho_fonte);
        foot = platform::twips_font(arial, 8);
        status = platform::twips_font(arial, 9, true);
        summary = platform::twips_font(arial, 8);
        title_h = QFontMetricsF(title).lineSpacing();
        filter_h = QFontMetricsF(filter).lineSpacing();
        if (r.form == report_form::rlt_historico)
            contact_h = std::max(4 * QFontMetricsF(contact).lineSpacing(), image_size) + 60;
        row_h = r.Altura > 0 ? r.Altura : QFontMetricsF(detail).lineSpacing();
        heading_h = std::max(row_h, QFontMetricsF(heading).lineSpacing());
        foot_h = foot_gap + 40 + QFontMetricsF(foot).lineSpacing();
        head_h = title_h + filter_h + contact_h + gap_header + heading_h + 60;
        avail = h - foot_h - head_h;

        // hidden columns (width 0) take no room; the others follow each other with the gap
        const double espaco = r.espaco > 0 ? r.espaco : 60;
        double x = 0;
        const int n = r.Grid ? r.Grid->column_count() : 0;
        for (int c = 0; c < n; ++c) {
            const double cw = r.Grid->column_width(c);
            if (!(cw > 0)) continue;
            cols.push_back(c);
            left.push_back(x);
            width.push_back(cw);
            x += cw + espaco;
        }
    }

    double text_height(const QFont& f, const QString& t) const {
        if (t.isEmpty()) return 0;
        return QFontMetricsF(f).boundingRect(QRectF(0, 0, w, 1e9), Qt::TextWordWrap, t).height();
    }
    double end_height(const list_report& r) const {
        return end_gap + text_height(status, r.lblestatus) + text_height(summary, r.lblsumario1) +
               (r.form == report_form::rlt_impressao ? 0 : text_height(summary, r.lblsumario2));
    }
};

// Detail fields drawn fast: a text whose width (from a table of character advances) fits its
// field goes out as a plain run; only a text that may overflow is laid out and cut at the field.
class field_writer {
public:
    explicit field_writer(const QFont& f) : metrics_(f), ascent_(metrics_.ascent()) {
        for (int c = 0; c < 256; ++c)
            advance_[c] = metrics_.horizontalAdvance(QChar(c));
        slack_ = metrics_.averageCharWidth();
    }
    void draw(QPainter& pt, const QRectF& r, Qt::Alignment align, const QString& text) const {
        if (text.isEmpty()) return;
        double w = 0;
        for (QChar ch : text) {
            if (ch.unicode() > 255) return slow(pt, r, align, text);
            w += advance_[ch.unicode()];
        }
        if (w + slack_ > r.width()) return slow(pt, r, align, text);
        double x = r.left();
        if (align & Qt::AlignRight)
            x = r.right() - w;
        else if (align & Qt::AlignHCenter)
            x = r.left() + (r.width() - w) / 2;
        pt.drawText(QPointF(x, r.top() + (r.height() - metrics_.height()) / 2 + ascent_), text);
    }

private:
    static void slow(QPainter& pt, const QRectF& r, Qt::Alignment align, const QString& text) {
        pt.drawText(r, int(align | Qt::AlignVCenter | Qt::TextSingleLine), text);
    }
    QFontMetricsF metrics_;
    double ascent_;
    double slack_ = 0;
    double advance_[256];
};

platform::page_format format_of(const list_report& r) {
    platform::page_format f;
    // code 6 is the A4 sheet; the others are taken as it too
    f.size = QPageSize::A4;
    f.orientation = r.orientacao == 2 ? QPageLayout::Landscape : QPageLayout::Portrait;
    f.margins_mm = QMarginsF(r.margem_esquerda * 10, r.margem_superior * 10, r.margem_direita * 10,
                             r.margem_inferior * 10);
    return f;
}

Qt::Alignment align_of(const list_report& r, int col) {
    if (col < int(r.alinhamento.size())) return r.alinhamento[std::size_t(col)] & Qt::AlignHorizontal_Mask;
    return Qt::AlignLeft;
}

// Page head: title, filter line, the contact block, the headings.
double draw_head(QPainter& pt, const list_report& r, const geometry& g) {
    double y = 0;
    pt.setFont(g.title);
    pt.drawText(QRectF(0, y, g.w, g.title_h), Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine,
                r.rpf_Titulo);
    y += g.title_h;
    pt.setFont(g.filter);
    pt.drawText(QRectF(0, y, g.w, g.filter_h), Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine,
                r.lblfiltro);
    y += g.filter_h;
    if (r.form == report_form::rlt_historico) {
        const contact_block& c = r.contato;
        const double line = QFontMetricsF(g.contact).lineSpacing();
        const double half = (g.w - image_size - 120) / 2;
        const auto field = [&](double x, double yy, const QString& caption, const QString& value) {
            pt.setFont(g.contact_bold);
            pt.drawText(QPointF(x, yy + QFontMetricsF(g.contact_bold).ascent()), caption);
            const double cw = QFontMetricsF(g.contact_bold).horizontalAdvance(caption) + 80;
            pt.setFont(g.contact);
            pt.drawText(QPointF(x + cw, yy + QFontMetricsF(g.contact).ascent()), value);
        };
        const double top = y + 30;
        field(0, top, QStringLiteral("Nome do cliente:"), c.nome);
        field(0, top + line, QStringLiteral("Tipo de cliente:"), c.tipo);
        field(half, top + line, QStringLiteral("CPF/CNPJ:"), c.cpf);
        field(0, top + 2 * line, QStringLiteral("Telefone:"), c.tel);
        field(half, top + 2 * line, QStringLiteral("Celular/Nextel:"), c.cel);
        field(0, top + 3 * line, QStringLiteral("Inscrição estadual:"), c.insc);
        field(half, top + 3 * line, QStringLiteral("Data de nascimento:"), c.nascimento);
        if (!c.imagem.isEmpty()) {
            const QImage img(c.imagem);
            if (!img.isNull()) pt.drawImage(QRectF(g.w - image_size, top, image_size, image_size), img);
        }
        y += g.contact_h;
    }
    y += gap_header;
    pt.setFont(g.heading);
    for (std::size_t i = 0; i < g.cols.size(); ++i)
        pt.drawText(QRectF(g.left[i], y, g.width[i], g.heading_h),
                    align_of(r, g.cols[i]) | Qt::AlignVCenter | Qt::TextSingleLine,
                    r.Grid->column_text(g.cols[i]));
    y += g.heading_h + 20;
    pt.drawLine(QPointF(0, y), QPointF(g.w, y));
    return y + 40;
}

void draw_foot(QPainter& pt, const geometry& g, const QString& emitido, int page, int pages) {
    const double y = g.h - g.foot_h + foot_gap;
    pt.drawLine(QPointF(0, y), QPointF(g.w, y)); // lneRod
    pt.setFont(g.foot);
    const double base = y + 40 + QFontMetricsF(g.foot).ascent();
    pt.drawText(QPointF(60, base), emitido); // rpfCab1
    pt.drawText(QPointF(g.w - 2650, base),   // rpfRod2
                QStringLiteral("Página atual: ") + QString::number(page) + QStringLiteral(" de ") +
                    QString::number(pages));
}

void draw_end(QPainter& pt, const list_report& r, const geometry& g, double y) {
    y += end_gap;
    const auto block = [&](const QFont& f, const QString& t) {
        if (t.isEmpty()) return;
        const double hh = g.text_height(f, t);
        pt.setFont(f);
        pt.drawText(QRectF(0, y, g.w, hh), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, t);
        y += hh;
    };
    block(g.status, r.lblestatus);
    block(g.summary, r.lblsumario1);
    if (r.form != report_form::rlt_impressao) block(g.summary, r.lblsumario2);
}

bool paginate(const geometry& g, const list_report& r, report_pages& out) {
    out = {};
    if (g.avail < g.row_h) return false;
    const int n = r.Grid ? r.Grid->row_count() : 0;
    out.rows_per_page = int(std::floor(g.avail / g.row_h));
    out.pages = std::max(1, (n + out.rows_per_page - 1) / out.rows_per_page);
    const int on_last = n - (out.pages - 1) * out.rows_per_page;
    if (on_last * g.row_h + g.end_height(r) > g.avail) ++out.pages; // the totals go on a page of their own
    return true;
}

void show_code(int code) {
    platform::msgbox(report_error_text(code), platform::information, titulo_impressao);
}

} // namespace

list_report nova_impressao(report_form form, const platform::table_source* grid) {
    list_report r;
    r.form = form;
    r.Grid = grid;
    if (form == report_form::rlt_historico) r.orientacao = 1;
    return r;
}

QString report_error_text(int code) {
    switch (code) {
    case 0:
        return QStringLiteral("É necessário existir uma impressora instalada no Windows");
    case 1:
        return QStringLiteral("Não há registros a imprimir");
    case 2:
        return QStringLiteral("Não foi definida a seção de detalhe do relatório");
    case 3:
        return QStringLiteral("A configuração das seções de grupos está incorreta");
    case 4:
        return QStringLiteral("Foi definido um cursor do tipo Forward-Only para o recordset do relatório.");
    case 5:
        return QStringLiteral(
            "A página configurada para o relatório não possuí espaço suficiente para a impressão");
    case 6:
        return QStringLiteral("Já existe um relatório em andamento");
    default:
        return {};
    }
}

bool paginate(double scale_height, const list_report& r, report_pages& out) {
    const QSizeF size = platform::printable_size(format_of(r));
    return paginate(geometry(r, size.width(), scale_height), r, out);
}

int draw_list_report(platform::printer& p, const list_report& r) {
    if (!r.Grid) return sem_detalhe;
    const int n = r.Grid->row_count();
    if (n <= 0) return sem_registros;
    const geometry g(r, p.ScaleWidth(), p.ScaleHeight());
    report_pages pages;
    if (!paginate(g, r, pages)) return pagina_pequena;

    const QDateTime agora = platform::now();
    const QString emitido = QStringLiteral("Emitido em ") + vb::long_date(agora.date()) +
                            QStringLiteral(" às ") + vb::long_time(agora.time());
    QPainter& pt = p.painter();
    const field_writer fields(g.detail);
    int row = 0;
    for (int page = 1; page <= pages.pages; ++page) {
        if (page > 1) p.NewPage();
        double y = draw_head(pt, r, g);
        pt.setFont(g.detail);
        const int last = std::min(n, row + pages.rows_per_page);
        for (; row < last; ++row) {
            for (std::size_t i = 0; i < g.cols.size(); ++i)
                fields.draw(pt, QRectF(g.left[i], y, g.width[i], g.row_h), align_of(r, g.cols[i]),
                            r.Grid->text(row, g.cols[i]));
            y += g.row_h;
        }
        if (page == pages.pages) draw_end(pt, r, g, y);
        draw_foot(pt, g, emitido, page, pages.pages);
    }
    return -1;
}

bool Executar(const list_report& r) {
    static bool em_andamento = false;
    if (!r.Grid) return false;
    if (em_andamento) {
        show_code(relatorio_em_andamento);
        return false;
    }
    if (r.Grid->row_count() <= 0) {
        show_code(sem_registros);
        return false;
    }
    const platform::page_format format = format_of(r);
    {
        // a page that holds no line is refused before any job starts
        report_pages pages;
        const QSizeF size = platform::printable_size(format);
        if (!paginate(geometry(r, size.width(), size.height()), r, pages)) {
            show_code(pagina_pequena);
            return false;
        }
    }
    em_andamento = true;
    struct reset {
        bool& flag;
        ~reset() { flag = false; }
    } guard{em_andamento};
    try {
        platform::printer p;
        switch (p.begin(r.rpf_Titulo, format)) {
        case platform::printer::no_printer:
            show_code(sem_impressora);
            return false;
        case platform::printer::cancelled:
            return false;
        case platform::printer::failed:
            platform::msgbox(QStringLiteral("Erro não previsto:") + QString::number(erro_impressora) +
                                 QStringLiteral("\r\n") + p.error_text(),
                             platform::critical, titulo_impressao);
            return false;
        case platform::printer::started:
            break;
        }
        const int code = draw_list_report(p, r);
        if (code >= 0) {
            p.abort();
            show_code(code);
            return false;
        }
        p.EndDoc();
        return true;
    } catch (const std::exception& e) {
        platform::msgbox(QStringLiteral("Erro não previsto:") + QString::number(erro_impressora) +
                             QStringLiteral("\r\n") + QString::fromUtf8(e.what()),
                         platform::critical, titulo_impressao);
        return false;
    }
}

} // namespace output
