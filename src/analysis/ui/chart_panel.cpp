#include "analysis/ui/chart_panel.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>
#include <QValueAxis>

#include <cmath>

bar_chart::bar_chart(QWidget* parent) : QChartView(parent) {
    auto* c = new QChart;
    c->legend()->hide();
    c->setAnimationOptions(QChart::NoAnimation);
    set_ = new QBarSet(QString());
    set_->setColor(QColor(0x33, 0x66, 0xcc));
    set_->setLabelColor(Qt::black);
    auto* series = new QBarSeries;
    series->append(set_);
    series->setLabelsVisible(true);
    series->setLabelsPosition(QAbstractBarSeries::LabelsOutsideEnd);
    c->addSeries(series);
    categorias_ = new QBarCategoryAxis;
    valores_ = new QValueAxis;
    valores_->setLabelFormat(QStringLiteral("%.0f"));
    c->addAxis(categorias_, Qt::AlignBottom);
    c->addAxis(valores_, Qt::AlignLeft);
    series->attachAxis(categorias_);
    series->attachAxis(valores_);
    // the view made a chart of its own, which is ours to delete once replaced
    QChart* own = chart();
    setChart(c);
    delete own;
    setRenderHint(QPainter::Antialiasing);
    setMinimumSize(560, 340);
    ajustar_eixo();
}

void bar_chart::set_title(const QString& t) {
    chart()->setTitle(t);
}

QString bar_chart::title() const {
    return chart()->title();
}

void bar_chart::set_columns(const QStringList& labels) {
    set_->remove(0, set_->count());
    for (qsizetype i = 0; i < labels.size(); ++i)
        set_->append(0.0);
    categorias_->setCategories(labels);
    ajustar_eixo();
}

int bar_chart::column_count() const {
    return int(set_->count());
}

void bar_chart::set_column_label(int column, const QString& label) {
    QStringList c = categorias_->categories();
    if (column < 0 || column >= c.size()) return;
    c[column] = label;
    categorias_->setCategories(c);
}

QString bar_chart::column_label(int column) const {
    const QStringList c = categorias_->categories();
    return column >= 0 && column < c.size() ? c[column] : QString();
}

void bar_chart::set_data(int column, double value) {
    if (column < 0 || column >= set_->count()) return;
    set_->replace(column, value);
    ajustar_eixo();
}

double bar_chart::data(int column) const {
    return column >= 0 && column < set_->count() ? set_->at(column) : 0.0;
}

void bar_chart::ajustar_eixo() {
    double lo = 0, hi = 0;
    for (int i = 0; i < set_->count(); ++i) {
        lo = std::min(lo, set_->at(i));
        hi = std::max(hi, set_->at(i));
    }
    // a round step of 1, 2 or 5 times a power of ten, about five steps, room above the tallest bar
    // for its label; a whole-number axis for counts
    const double alcance = std::max(1.0, (hi - lo) * 1.15);
    const double bruto = alcance / 5;
    const double potencia = std::pow(10.0, std::floor(std::log10(bruto)));
    double passo = potencia;
    for (double m : {1.0, 2.0, 5.0, 10.0})
        if (m * potencia >= bruto) {
            passo = m * potencia;
            break;
        }
    passo = std::max(1.0, passo);
    const double baixo = lo < 0 ? std::floor(lo * 1.15 / passo) * passo : 0;
    const double alto = std::max(passo, std::ceil(hi * 1.15 / passo) * passo);
    valores_->setRange(baixo, alto);
    valores_->setTickCount(int(std::lround((alto - baixo) / passo)) + 1);
}

QImage bar_chart::picture(double scale) const {
    const QSize s = size().isEmpty() ? QSize(640, 400) : size();
    QImage img((QSizeF(s) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::white);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    // the view renders its scene into the picture, vectors scaled, nothing grabbed from the screen
    const_cast<bar_chart*>(this)->render(&p, QRectF(QPointF(0, 0), QSizeF(img.size())),
                                         QRect(QPoint(0, 0), s));
    return img;
}

label_pairs::label_pairs(QWidget* parent) : QWidget(parent) {
    grid_ = new QGridLayout(this);
    grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setColumnStretch(1, 1);
}

label_pairs::pair label_pairs::add(const char* caption_name, const QString& caption, const char* value_name,
                                   const QString& value) {
    auto* c = new QLabel(caption, this);
    c->setObjectName(QString::fromLatin1(caption_name));
    auto* v = new QLabel(value, this);
    v->setObjectName(QString::fromLatin1(value_name));
    QFont bold = v->font();
    bold.setBold(true);
    v->setFont(bold);
    const int row = int(pairs_.size());
    grid_->addWidget(c, row, 0);
    grid_->addWidget(v, row, 1);
    pairs_.push_back({c, v});
    return pairs_.back();
}

chart_panel::chart_panel(const char* chart_name, QWidget* parent) : QWidget(parent) {
    chart = new bar_chart(this);
    chart->setObjectName(QString::fromLatin1(chart_name));
    heading = new QLabel(this);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    figures = new label_pairs(this);
    auto* v = new QVBoxLayout(this);
    v->setContentsMargins(0, 0, 0, 0);
    v->addWidget(chart, 1);
    v->addWidget(heading);
    v->addWidget(figures);
}

void figure_labels::build(label_pairs* into, const std::array<QString, 6>& captions) {
    static const char* const caption_names[] = {"lbl1", "lbl2", "lbl3", "lbl4", "lbl5", "lbl6"};
    static const char* const value_names[] = {"lbltotalcad", "lbltotal",    "lbltotalpg",
                                              "lblqtdpg",    "lbltotalpen", "lblqtdpen"};
    QLabel** values[] = {&lbltotalcad, &lbltotal, &lbltotalpg, &lblqtdpg, &lbltotalpen, &lblqtdpen};
    for (int i = 0; i < 6; ++i) {
        const label_pairs::pair p = into->add(caption_names[i], captions[std::size_t(i)], value_names[i]);
        lbl[i] = p.caption;
        *values[i] = p.value;
    }
}

void figure_labels::set_captions(const std::array<QString, 6>& captions) {
    for (int i = 0; i < 6; ++i)
        lbl[i]->setText(captions[std::size_t(i)]);
}

void figure_labels::set_values(const std::array<QString, 6>& values) {
    QLabel* const v[] = {lbltotalcad, lbltotal, lbltotalpg, lblqtdpg, lbltotalpen, lblqtdpen};
    for (int i = 0; i < 6; ++i)
        v[i]->setText(values[std::size_t(i)]);
}

std::vector<std::pair<QString, QString>> figure_labels::lines() const {
    QLabel* const v[] = {lbltotalcad, lbltotal, lbltotalpg, lblqtdpg, lbltotalpen, lblqtdpen};
    std::vector<std::pair<QString, QString>> out;
    for (int i = 0; i < 6; ++i)
        out.emplace_back(lbl[i]->text(), v[i]->text());
    return out;
}
