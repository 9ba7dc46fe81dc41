#pragma once
// The chart panel of the chart windows: a bar chart of one row of data columns (a title, a label
// and a value per column, the value axis fitted to the data), a heading, and caption/value label
// pairs under it. The chart renders itself to a picture for printing; the clipboard is never used.

#include <QChartView>
#include <QImage>
#include <QStringList>
#include <QWidget>

#include <array>
#include <utility>
#include <vector>

class QBarCategoryAxis;
class QBarSet;
class QGridLayout;
class QLabel;
class QValueAxis;

class bar_chart : public QChartView {
    Q_OBJECT
public:
    explicit bar_chart(QWidget* parent = nullptr);

    void set_title(const QString& t);
    QString title() const;
    // The columns and their labels; every value back to 0.
    void set_columns(const QStringList& labels);
    int column_count() const;
    void set_column_label(int column, const QString& label);
    QString column_label(int column) const;
    void set_data(int column, double value);
    double data(int column) const;

    // The chart as it stands on the screen, drawn at scale times its size.
    QImage picture(double scale = 2.0) const;

private:
    void ajustar_eixo();
    QBarSet* set_;
    QBarCategoryAxis* categorias_;
    QValueAxis* valores_;
};

// Caption and value labels, one pair a line, both named for the window's routines and tests.
class label_pairs : public QWidget {
    Q_OBJECT
public:
    explicit label_pairs(QWidget* parent = nullptr);
    struct pair {
        QLabel* caption;
        QLabel* value;
    };
    pair add(const char* caption_name, const QString& caption, const char* value_name,
             const QString& value = QString());
    const std::vector<pair>& pairs() const { return pairs_; }

private:
    QGridLayout* grid_;
    std::vector<pair> pairs_;
};

// The six figures of a period's rows beside their captions (lbl1..lbl6), as frmgrafico and
// frmestatisticas show them: lbltotalcad, lbltotal, lbltotalpg, lblqtdpg, lbltotalpen, lblqtdpen.
struct figure_labels {
    QLabel* lbl[6] = {};
    QLabel* lbltotalcad = nullptr;
    QLabel* lbltotal = nullptr;
    QLabel* lbltotalpg = nullptr;
    QLabel* lblqtdpg = nullptr;
    QLabel* lbltotalpen = nullptr;
    QLabel* lblqtdpen = nullptr;

    void build(label_pairs* into, const std::array<QString, 6>& captions);
    void set_captions(const std::array<QString, 6>& captions);
    // Values of the count labels and the sum labels, in the order of the pairs.
    void set_values(const std::array<QString, 6>& values);
    // The pairs as printed: caption, value.
    std::vector<std::pair<QString, QString>> lines() const;
};

class chart_panel : public QWidget {
    Q_OBJECT
public:
    explicit chart_panel(const char* chart_name, QWidget* parent = nullptr);
    bar_chart* chart;
    QLabel* heading; // over the pairs
    label_pairs* figures;
};
