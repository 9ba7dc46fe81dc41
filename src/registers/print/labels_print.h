#pragma once
// rlt_Etiquetas: the labels laid out on the sheet from the caller's statement, through the fields of
// CamposEtiqueta, on the screen first or straight to the printer. Places are measured on the sheet
// in millimetres, the fields inside a label in twips.

#include "registers/labels.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace output {
class progress;
}
namespace platform {
class printer;
}

namespace registers {

// The label field's font.
inline const QString fonte_etiqueta = QStringLiteral("Arial");
inline constexpr double tamanho_fonte_etiqueta = 8;

// Draws the labels onto an open job whose origin is the corner of the sheet: `pular` empty labels,
// then one label per row of `textos` (one text per field of `campos`).
void desenhar_etiquetas(platform::printer& p, const grade_etiquetas& g,
                        const std::vector<campo_etiqueta>& campos, const std::vector<QStringList>& textos,
                        int pular, output::progress* barra = nullptr);

class rlt_Etiquetas {
public:
    void set_Altura(double v) { c_.Altura = v; }
    void set_Largura(double v) { c_.Largura = v; }
    void set_MargemEsquerda(double v) { c_.MargemEsquerda = v; }
    void set_MargemSuperior(double v) { c_.MargemSuperior = v; }
    void set_MargemInferior(double v) { c_.MargemInferior = v; }
    void set_Colunas(int v) { c_.Colunas = v; }
    void set_LinhaInicio(int v) { c_.LinhaInicio = v; }
    void set_ColunaInicio(int v) { c_.ColunaInicio = v; }
    // The report's paper-size code: 1 letter (the paper of these sheets), 9 A4.
    void set_Papel(int codigo) { papel_ = codigo; }
    // On the screen first (the print preview), or straight to the printer.
    void set_Visualizar(bool v) { visualizar_ = v; }
    void set_progresso(output::progress* b) { barra_ = b; }

    // The print action. Failures are told in a box titled "Impressão". True when the labels were
    // drawn (on the screen or on paper).
    bool imprimir(const QString& comando);
    // Reads the layout of the label's fields (the detail section's width cuts the boxes). Throws.
    void Config();

    const std::vector<campo_etiqueta>& campos() const { return campos_; }

private:
    bool desenhar(const grade_etiquetas& g, const std::vector<QStringList>& textos, int pular);

    config_etiquetas c_;
    int papel_ = 1;
    bool visualizar_ = false;
    output::progress* barra_ = nullptr;
    std::vector<campo_etiqueta> campos_;
};

} // namespace registers
