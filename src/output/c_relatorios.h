#pragma once
// The report exporter: turns the rows of a list into a padded text table or an HTML table and
// appends it to whatever the caller has open. It never opens or closes a file.

#include "platform/table_source.h"

#include <QString>

#include <cstdint>
#include <vector>

class QIODevice;

namespace output {

// A progress bar as the exports drive it (values 0..100), without knowing any widget.
class progress {
public:
    virtual ~progress() = default;
    virtual void set_value(double percent) = 0;
    virtual void set_visible(bool) {}
};

class c_relatorios {
public:
    // sem_linhas: the list had no rows and nothing was written. interrompido: a padding came out
    // negative (a first-column text over 35 characters, a header wider than its cut column); the
    // table ends at that row and the caller carries on with its footer.
    enum class resultado { sem_linhas, gravado, interrompido };

    // The chosen file name is only carried along; the device is where the lines go.
    resultado Exportar_listaparaTXT(QIODevice& saida, const QString& arquivo,
                                    const platform::table_source& lista, bool cabecalho = true);
    resultado Exportar_listaparaHTML(QIODevice& saida, const platform::table_source& lista,
                                     const QString& arquivo = {});

    // Only the first character counts; an empty text leaves the rule as it was.
    void set_mLetraTXT(const QString& letra);
    QString mLetraTXT() const { return letra_; }
    void set_Max_LetraForFields(std::int16_t n) { max_letra_ = n; }
    std::int16_t Max_LetraForFields() const { return max_letra_; }

    // nullptr drops the bar.
    void set_Progresbar(progress* bar) { bar_ = bar; }
    progress* Progresbar() const { return bar_; }

    // The widths of the last text export, in characters.
    const std::vector<int>& larguras() const { return larguras_; }

    static constexpr int limite_primeira_coluna = 35;

private:
    void calcular_larguras(const platform::table_source& lista);
    void bar(double v) {
        if (bar_) bar_->set_value(v);
    }

    std::vector<int> larguras_;
    QString letra_ = QStringLiteral("*");
    std::int16_t max_letra_ = 9999;
    progress* bar_ = nullptr;
};

// The one instance of the open report window (empty when none is open).
c_relatorios* relatorio();
void set_relatorio(c_relatorios* r);

} // namespace output
