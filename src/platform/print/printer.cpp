#include "platform/print/printer.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>
#include <cmath>
#include <optional>

namespace platform {

namespace {

default_printer_target default_target;
print_target* current_target = nullptr;
print_preview* current_preview = nullptr;

} // namespace

print_target& print_destination() {
    return current_target ? *current_target : default_target;
}

void set_print_destination(print_target* t) {
    current_target = t;
}

print_preview* preview_destination() {
    return current_preview;
}

void set_preview_destination(print_preview* p) {
    current_preview = p;
}

print_target::outcome default_printer_target::prepare(QPrinter& p) {
    QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull()) {
        const QStringList names = QPrinterInfo::availablePrinterNames();
        if (names.isEmpty()) return no_printer;
        info = QPrinterInfo::printerInfo(names.first());
    }
    p.setOutputFormat(QPrinter::NativeFormat);
    p.setPrinterName(info.printerName());
    return ready;
}

print_target::outcome pdf_target::prepare(QPrinter& p) {
    const QPageLayout layout = p.pageLayout();
    p.setOutputFormat(QPrinter::PdfFormat);
    p.setOutputFileName(path_);
    p.setPageLayout(layout);
    ++jobs_;
    return ready;
}

QString printing_family(const QString& asked) {
    // The layouts were measured in the Windows core fonts. Where the machine lacks one, its
    // metric-compatible twin keeps every tab column and page break where the layout put them;
    // leaving the choice to the system would give a wider face and push columns off the page.
    static const struct {
        const char* asked;
        const char* twin;
    } twins[] = {{"arial", "Liberation Sans"},
                 {"helvetica", "Liberation Sans"},
                 {"times new roman", "Liberation Serif"},
                 {"courier new", "Liberation Mono"}};
    static const QStringList installed = QFontDatabase::families();
    const auto has = [&](const QString& family) { return installed.contains(family, Qt::CaseInsensitive); };
    if (has(asked)) return asked;
    const QString key = asked.trimmed().toLower();
    for (const auto& t : twins)
        if (key == QLatin1String(t.asked) && has(QLatin1String(t.twin))) return QLatin1String(t.twin);
    // a face the layouts never ask for: the sans twin rather than whatever the system picks
    return has(QStringLiteral("Liberation Sans")) ? QStringLiteral("Liberation Sans") : asked;
}

QFont twips_font(const QString& name, double points, bool bold) {
    QFont f(printing_family(name));
    f.setPixelSize(std::max(1, int(std::lround(points * 20))));
    f.setBold(bold);
    f.setHintingPreference(QFont::PreferNoHinting);
    return f;
}

QSizeF printable_size(const page_format& format) {
    const QPageLayout layout(QPageSize(format.size), format.orientation, format.margins_mm,
                             QPageLayout::Millimeter);
    return layout.paintRect(QPageLayout::Point).size() * 20;
}

// The average character of a font as the old printer measured tab columns: the letters and the
// blank weighted by how often they occur in text (0.44 of the size for Arial).
double tab_column_width(const QFontMetricsF& m) {
    static const struct {
        char c;
        int weight;
    } freq[] = {{'a', 64}, {'b', 14}, {'c', 27}, {'d', 35}, {'e', 100}, {'f', 20}, {'g', 14},
                {'h', 42}, {'i', 63}, {'j', 3},  {'k', 6},  {'l', 35},  {'m', 20}, {'n', 56},
                {'o', 56}, {'p', 17}, {'q', 4},  {'r', 49}, {'s', 56},  {'t', 71}, {'u', 31},
                {'v', 10}, {'w', 18}, {'x', 3},  {'y', 18}, {'z', 2},   {' ', 166}};
    double sum = 0;
    for (const auto& f : freq)
        sum += m.horizontalAdvance(QLatin1Char(f.c)) * f.weight;
    return sum / 1000.0;
}

struct printer::impl {
    std::unique_ptr<QPrinter> own;
    QPrinter* qp = nullptr;
    QPainter painter;
    QString error;
    bool active = false;
    int pages = 0;
    double scale_w = 0, scale_h = 0;

    QString font_name = QStringLiteral("Arial");
    double size = 10;
    bool bold = false;
    QFont font;
    std::optional<QFontMetricsF> metrics;
    double tab_width = 0;

    double x = 0, y = 0;

    void update_font() {
        font = platform::twips_font(font_name, size, bold);
        metrics.emplace(font);
        tab_width = tab_column_width(*metrics);
        if (active) painter.setFont(font);
    }
};

printer::printer() : d(std::make_unique<impl>()) {
    d->update_font();
}

printer::~printer() {
    if (d->active) d->painter.end();
}

printer::start_result printer::begin(const QString& job_name, const page_format& format,
                                     print_target& target) {
    if (d->active) EndDoc();
    d->own = std::make_unique<QPrinter>(QPrinter::HighResolution);
    d->qp = d->own.get();
    d->qp->setPageLayout(
        QPageLayout(QPageSize(format.size), format.orientation, format.margins_mm, QPageLayout::Millimeter));
    d->qp->setFullPage(format.full_page);
    d->qp->setDocName(job_name);
    switch (target.prepare(*d->qp)) {
    case print_target::cancelled:
        return cancelled;
    case print_target::no_printer:
        return no_printer;
    case print_target::ready:
        break;
    }
    return begin_on(*d->qp);
}

printer::start_result printer::begin_on(QPrinter& device) {
    if (d->active && d->qp != &device) EndDoc();
    if (d->own.get() != &device) d->own.reset();
    d->qp = &device;
    if (!d->painter.begin(d->qp)) {
        d->error = d->qp->outputFileName().isEmpty()
                       ? QStringLiteral("Não foi possível iniciar a impressão")
                       : QStringLiteral("Não foi possível gravar o arquivo ") + d->qp->outputFileName();
        return failed;
    }
    d->active = true;
    d->pages = 1;
    const double res = d->qp->resolution();
    d->painter.scale(res / 1440.0, res / 1440.0);
    const QPageLayout layout = d->qp->pageLayout();
    const QRectF paint =
        d->qp->fullPage() ? layout.fullRect(QPageLayout::Point) : layout.paintRect(QPageLayout::Point);
    d->scale_w = paint.width() * 20;
    d->scale_h = paint.height() * 20;
    d->x = d->y = 0;
    d->painter.setFont(d->font);
    d->painter.setPen(QPen(Qt::black, 10));
    return started;
}

QString printer::error_text() const {
    return d->error;
}
bool printer::active() const {
    return d->active;
}
int printer::pages() const {
    return d->pages;
}

void printer::EndDoc() {
    if (!d->active) return;
    d->painter.end();
    d->active = false;
}

void printer::abort() {
    if (!d->active) return;
    d->qp->abort();
    d->painter.end();
    d->active = false;
}

double printer::ScaleWidth() const {
    return d->scale_w;
}
double printer::ScaleHeight() const {
    return d->scale_h;
}

void printer::set_FontName(const QString& name) {
    d->font_name = name;
    d->update_font();
}
void printer::set_FontSize(double points) {
    d->size = points;
    d->update_font();
}
void printer::set_FontBold(bool bold) {
    d->bold = bold;
    d->update_font();
}
void printer::set_font(const QString& name, double points, bool bold) {
    d->font_name = name;
    d->size = points;
    d->bold = bold;
    d->update_font();
}
const QFont& printer::twips_font() const {
    return d->font;
}

double printer::CurrentX() const {
    return d->x;
}
double printer::CurrentY() const {
    return d->y;
}
void printer::set_CurrentX(double x) {
    d->x = x;
}
void printer::set_CurrentY(double y) {
    d->y = y;
}

double printer::TextWidth(const QString& text) const {
    return d->metrics->horizontalAdvance(text);
}
double printer::TextHeight() const {
    return d->metrics->lineSpacing();
}

void printer::print(const QString& text) {
    QString t = text;
    t.remove(QLatin1Char('\r'));
    const QStringList parts = t.split(QLatin1Char('\n'));
    for (qsizetype i = 0; i < parts.size(); ++i) {
        if (i > 0) new_line();
        if (parts[i].isEmpty()) continue;
        if (d->active) d->painter.drawText(QPointF(d->x, d->y + d->metrics->ascent()), parts[i]);
        d->x += TextWidth(parts[i]);
    }
}

void printer::new_line() {
    d->x = 0;
    d->y += TextHeight();
}

void printer::tab(int column) {
    const double target = std::max(column - 1, 0) * d->tab_width;
    if (d->x > target + 0.5) new_line();
    d->x = target;
}

void printer::NewPage() {
    if (d->active) {
        d->qp->newPage();
        ++d->pages;
    }
    d->x = d->y = 0;
}

void printer::draw_image(const QRectF& r, const QImage& image) {
    if (d->active && !image.isNull()) d->painter.drawImage(r, image);
}

QPainter& printer::painter() {
    return d->painter;
}

} // namespace platform
