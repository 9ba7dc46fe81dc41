#pragma once
// Mailing labels: the sheet models, the readings of the measure fields, the fields of a label as the
// data file lays them out (CamposEtiqueta), and where each label falls on the sheet. Lengths of the
// sheet are in millimetres; the places of the fields inside a label in twips, as the layout rows
// hold them.

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace sql {
class recordset;
}

namespace registers {

// The sheet (modEtiquetas).
struct folha_etiquetas {
    double Altura = 0;
    double Largura = 0;
    double MargemEsquerda = 0;
    double MargemSuperior = 0;
    double MargemInferior = 0;
    double Colunas = 0;
    QString Papel;
};

// The models in the order of cmbModelo.
QStringList modelos_etiqueta();
// The sheet of a model; a text that names none gives the 6082 sheet (also the one of the opening).
folha_etiquetas carregarmodelo(const QString& modelo);

// carregarEtiquetas: a field's text read as a 16-bit integer (tipo 2) or a double (tipo 5) and
// written back; padrao when it cannot be read.
enum class tipo_medida { inteiro = 2, duplo = 5 };
QString carregarEtiquetas(const QString& texto, tipo_medida tipo, const QString& padrao);
// CInt and CDbl of a field's text under the Brazilian rules.
std::optional<int> ler_inteiro(const QString& texto);
std::optional<double> ler_duplo(const QString& texto);
// A number as a field shows it ("25,4").
QString texto_medida(double v);

// What the report form is handed.
struct config_etiquetas {
    double Altura = 0, Largura = 0, MargemEsquerda = 0, MargemSuperior = 0, MargemInferior = 0;
    int Colunas = 1, LinhaInicio = 1, ColunaInicio = 1;
};

// The empty labels before the first address: (line - 1) x columns + column - 1, the column first cut
// down to the number of columns.
int etiquetas_a_pular(const config_etiquetas& c);

// Where the labels fall on a sheet of the given size (millimetres).
struct grade_etiquetas {
    double altura = 0, largura = 0; // one label
    double esquerda = 0, topo = 0;  // the first label's corner
    double espaco = 0;              // between two columns
    int colunas = 0, linhas = 0;    // on one sheet
    int por_folha() const { return colunas * linhas; }
    // Label n (0-based, empty ones counted): its sheet, and its corner on that sheet.
    int folha(long long n) const { return int(n / por_folha()); }
    double x(long long n) const;
    double y(long long n) const;
};
// Nothing when not one label has room on the sheet (the report's "no room" code).
std::optional<grade_etiquetas> montar_grade(const config_etiquetas& c, double largura_papel,
                                            double altura_papel);

// One text box of a label (a row of CamposEtiqueta): the field of the list's table, its place in
// twips, its format.
struct campo_etiqueta {
    int Index = 0;
    QString Campo;
    double Top = 0, Left = 0, Width = 0;
    QString Formato;
};
// Config: the rows of "SELECT * FROM CamposEtiqueta"; a later row of the same Index sets that box
// again. A box that would pass the label's right edge (largura_twips) is cut to what remains.
// Throws sql::error.
std::vector<campo_etiqueta> ler_campos_etiqueta(double largura_twips);

// The text of a field for the current record: "cidade" prints cidade, " / " and estado; any other
// field its value as it stands, through the field's format. Throws when the table has no such field.
QString texto_campo(const sql::recordset& rs, const campo_etiqueta& c);
// Format of a label field: ">" and "<" for the case, date patterns on dates, the money patterns on
// amounts; a value the format does not fit stays as it is.
QString formatar_campo(const QString& valor, const QString& formato);

} // namespace registers
