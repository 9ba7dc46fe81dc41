#pragma once
// The printer: a print job drawn through QPainter onto a QPrinter, measured in twips (1440 to the
// inch) from the top left of the printable area, with the text state and the Print/Tab/NewPage
// steps of the old printer object. Where a job goes (the system printer, the choice of a print
// dialog, a PDF file) is decided by the print destination, which tests point at a PDF file.

#include <QFont>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QSizeF>
#include <QString>

#include <functional>
#include <memory>

class QImage;
class QPainter;
class QPrinter;

namespace platform {

struct page_format {
    QPageSize::PageSizeId size = QPageSize::A4;
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
    // left, top, right, bottom, in millimetres
    QMarginsF margins_mm{10, 10, 10, 10};
    // Positions from the corner of the sheet whatever the printer cannot reach (labels, whose
    // places are measured on the sheet).
    bool full_page = false;
};

// Readies a printer for one job.
class print_target {
public:
    enum outcome { ready, cancelled, no_printer };
    virtual ~print_target() = default;
    virtual outcome prepare(QPrinter& p) = 0;
};

// The destination of every print job; the system's default printer unless another was set.
print_target& print_destination();
void set_print_destination(print_target* t); // nullptr restores the default printer

class default_printer_target : public print_target {
public:
    outcome prepare(QPrinter& p) override;
};

// Every job into one PDF file (tests, and "print to file").
class pdf_target : public print_target {
public:
    explicit pdf_target(QString path) : path_(std::move(path)) {}
    outcome prepare(QPrinter& p) override;
    const QString& path() const { return path_; }
    void set_path(const QString& p) { path_ = p; }
    int jobs() const { return jobs_; }

private:
    QString path_;
    int jobs_ = 0;
};

class printer;

// Shows a job on the screen before it goes to paper: draw is called for the pages shown, and again
// when the user prints from there.
class print_preview {
public:
    virtual ~print_preview() = default;
    virtual void show(const QString& job_name, const page_format& format,
                      const std::function<void(printer&)>& draw) = 0;
};
// The preview of the desktop, or nullptr (no screen): callers then print to the destination.
print_preview* preview_destination();
void set_preview_destination(print_preview* p);

// A font measured in twips: its pixel size is the point size in twentieths of a point.
QFont twips_font(const QString& name, double points, bool bold = false);
// The family a page is drawn in for the one a layout asks: the asked one when installed, else its
// metric-compatible twin (Arial -> Liberation Sans), the same on every machine.
QString printing_family(const QString& asked);
// Where the printable area of a format lies, in twips: its size (no job needed).
QSizeF printable_size(const page_format& format);

class printer {
public:
    enum start_result { started, cancelled, no_printer, failed };

    printer();
    ~printer();
    printer(const printer&) = delete;
    printer& operator=(const printer&) = delete;

    start_result begin(const QString& job_name, const page_format& format,
                       print_target& target = print_destination());
    // A job drawn onto a printer someone else holds (a print preview's).
    start_result begin_on(QPrinter& device);
    // Why begin failed.
    QString error_text() const;
    bool active() const;
    // Ends the job (EndDoc); abort drops it.
    void EndDoc();
    void abort();
    int pages() const;

    // The printable area, in twips.
    double ScaleWidth() const;
    double ScaleHeight() const;

    // Text state; sizes in points.
    void set_FontName(const QString& name);
    void set_FontSize(double points);
    void set_FontBold(bool bold);
    void set_font(const QString& name, double points, bool bold = false);
    // The font to draw with in twips (its pixel size is the size in twentieths of a point).
    const QFont& twips_font() const;

    double CurrentX() const;
    double CurrentY() const;
    void set_CurrentX(double x);
    void set_CurrentY(double y);
    double TextWidth(const QString& text) const;
    double TextHeight() const;

    // Print text; (the position stays on the line). Line breaks in the text start new lines.
    void print(const QString& text);
    // Print alone: ends the line.
    void new_line();
    // Tab(n): column n of the current font's average character (letters weighted by how often
    // they occur, as the old printer measured), column 1 at the left edge;
    // a column already passed moves to the next line.
    void tab(int column);
    void NewPage();

    // Free drawing in twips (the report forms), on an active job.
    void draw_image(const QRectF& r, const QImage& image);
    QPainter& painter();

private:
    struct impl;
    std::unique_ptr<impl> d;
};

} // namespace platform
