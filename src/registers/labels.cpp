#include "registers/labels.h"

#include "platform/sql/recordset.h"
#include "platform/text/vb_text.h"
#include "store/conexao.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>
#include <map>

namespace registers {

namespace {

struct modelo {
    const char* nome;
    folha_etiquetas folha;
};

// The widths are the step from one column to the next (the label and the gap after it).
const modelo modelos[] = {
    {"Pimaco 6080/6180", {25.4, 69.8, 4.8, 12.7, 12.7, 3, QStringLiteral("Carta")}},
    {"Pimaco 6081/6181/6281/62581", {25.4, 106.3, 4.8, 12.7, 12.7, 2, QStringLiteral("Carta")}},
    {"Pimaco 6082/6182/6282/62582", {33.9, 106.3, 4.0, 21.2, 21.2, 2, QStringLiteral("Carta")}},
    {"Pimaco 6083/6183/6283", {50.8, 106.3, 4.0, 12.7, 12.7, 2, QStringLiteral("Carta")}},
    {"Pimaco 6084/6184/6284", {84.7, 106.3, 4.0, 12.7, 12.7, 2, QStringLiteral("Carta")}},
};
constexpr int modelo_padrao = 2; // 6082

// The measures come to a tenth of a millimetre: a label may end within that of the bottom margin
// (the 6082 sheet holds seven rows).
constexpr double folga_mm = 0.5;

} // namespace

QStringList modelos_etiqueta() {
    QStringList l;
    for (const modelo& m : modelos)
        l << QString::fromUtf8(m.nome);
    return l;
}

folha_etiquetas carregarmodelo(const QString& nome) {
    for (const modelo& m : modelos)
        if (nome == QString::fromUtf8(m.nome)) return m.folha;
    return modelos[modelo_padrao].folha;
}

std::optional<double> ler_duplo(const QString& texto) {
    try {
        const auto v = vb::cdbl(texto);
        if (v && std::isfinite(*v)) return v;
    } catch (const std::exception&) {
    }
    return std::nullopt;
}

std::optional<int> ler_inteiro(const QString& texto) {
    const auto v = ler_duplo(texto);
    if (!v) return std::nullopt;
    const double r = std::nearbyint(*v); // half to even, as CInt rounds
    if (r < -32768.0 || r > 32767.0) return std::nullopt;
    return int(r);
}

QString texto_medida(double v) {
    return vb::cstr(v);
}

QString carregarEtiquetas(const QString& texto, tipo_medida tipo, const QString& padrao) {
    if (tipo == tipo_medida::inteiro) {
        const auto v = ler_inteiro(texto);
        return v ? QString::number(*v) : padrao;
    }
    const auto v = ler_duplo(texto);
    return v ? texto_medida(*v) : padrao;
}

int etiquetas_a_pular(const config_etiquetas& c) {
    const int coluna = std::min(c.ColunaInicio, c.Colunas);
    return std::max(0, (c.LinhaInicio - 1) * c.Colunas + coluna - 1);
}

double grade_etiquetas::x(long long n) const {
    const long long pos = n % por_folha();
    return esquerda + double(pos % colunas) * (largura + espaco);
}

double grade_etiquetas::y(long long n) const {
    const long long linha = (n % por_folha()) / colunas; // whole rows above the label
    return topo + double(linha) * altura;
}

std::optional<grade_etiquetas> montar_grade(const config_etiquetas& c, double largura_papel,
                                            double altura_papel) {
    if (!(c.Altura > 0) || !(c.Largura > 0) || c.Colunas < 1) return std::nullopt;
    grade_etiquetas g;
    g.altura = c.Altura;
    g.largura = c.Largura;
    g.esquerda = std::max(0.0, c.MargemEsquerda);
    g.topo = std::max(0.0, c.MargemSuperior);
    g.colunas = c.Colunas;
    // what the columns leave of the sheet's width, with a right margin equal to the left one, goes
    // between them: none on the models, whose widths already hold the gap
    if (g.colunas > 1)
        g.espaco =
            std::max(0.0, (largura_papel - 2 * g.esquerda - g.colunas * g.largura) / double(g.colunas - 1));
    const double util = altura_papel - g.topo - std::max(0.0, c.MargemInferior);
    g.linhas = int(std::floor((util + folga_mm) / g.altura));
    if (g.linhas < 1) return std::nullopt;
    // every column must start on the sheet
    if (g.esquerda + (g.colunas - 1) * (g.largura + g.espaco) >= largura_papel) return std::nullopt;
    return g;
}

std::vector<campo_etiqueta> ler_campos_etiqueta(double largura_twips) {
    sql::recordset rs;
    rs.open(QStringLiteral("SELECT * FROM CamposEtiqueta"), store::conexao, sql::static_cursor);
    std::map<int, campo_etiqueta> caixas;
    for (; !rs.eof(); rs.move_next()) {
        campo_etiqueta c;
        c.Index = int(vb::val(rs.text(QStringLiteral("Index"))));
        c.Campo = rs.text(QStringLiteral("Campo"));
        c.Top = vb::val(rs.text(QStringLiteral("Top")));
        c.Left = vb::val(rs.text(QStringLiteral("Left")));
        c.Width = vb::val(rs.text(QStringLiteral("Width")));
        c.Formato = rs.text(QStringLiteral("Formato"));
        if (c.Left + c.Width > largura_twips) c.Width = std::max(0.0, largura_twips - c.Left);
        caixas[c.Index] = c;
    }
    rs.close();
    std::vector<campo_etiqueta> out;
    out.reserve(caixas.size());
    for (auto& [indice, c] : caixas)
        out.push_back(std::move(c));
    return out;
}

QString formatar_campo(const QString& valor, const QString& formato) {
    if (formato.isEmpty() || valor.isEmpty()) return valor;
    if (formato == QLatin1String(">")) return valor.toUpper();
    if (formato == QLatin1String("<")) return valor.toLower();
    const QString f = formato.toLower();
    // the money patterns ("##,##0.00", "R$ #,##0.00"): what stands before the digits is a prefix
    if (formato.endsWith(QLatin1String("0.00"))) {
        qsizetype inicio = 0;
        while (inicio < formato.size() && formato[inicio] != QLatin1Char('#') &&
               formato[inicio] != QLatin1Char('0'))
            ++inicio;
        try {
            if (const auto v = vb::ccur(valor)) return vb::format_money_prefixed(*v, formato.left(inicio));
        } catch (const std::exception&) {
        }
        return valor;
    }
    if (f.contains(QLatin1Char('d')) || f.contains(QLatin1Char('m')) || f.contains(QLatin1Char('y'))) {
        const QDateTime dt = vb::cdatetime(valor);
        return dt.isValid() ? vb::format_datetime(dt, formato) : valor;
    }
    return valor;
}

QString texto_campo(const sql::recordset& rs, const campo_etiqueta& c) {
    if (c.Campo == QLatin1String("cidade"))
        return rs.text(QStringLiteral("cidade")) + QStringLiteral(" / ") + rs.text(QStringLiteral("estado"));
    return formatar_campo(rs.text(c.Campo), c.Formato);
}

} // namespace registers
