#include "analysis/period.h"

#include "platform/text/vb_text.h"

namespace analysis {

namespace {

const char* const meses[] = {"Janeiro", "Fevereiro", "Março",    "Abril",   "Maio",     "Junho",
                             "Julho",   "Agosto",    "Setembro", "Outubro", "Novembro", "Dezembro"};

// The word without accents and in lower case, so "MARÇO", "marco" and "Março" meet.
QString sem_acentos(const QString& s) {
    QString d = s.trimmed().toLower().normalized(QString::NormalizationForm_D);
    QString out;
    out.reserve(d.size());
    for (QChar c : d)
        if (c.category() != QChar::Mark_NonSpacing) out += c;
    return out;
}

} // namespace

QString dois_digitos(int n) {
    return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0'));
}

QString valor_periodo(periodo p, const QDate& hoje) {
    switch (p) {
    case periodo::dia:
        return vb::ymd(hoje);
    case periodo::mes:
        return vb::format_date(hoje, QStringLiteral("yyyy/mm"));
    case periodo::ano:
        return vb::format_date(hoje, QStringLiteral("yyyy"));
    case periodo::tudo:
        break;
    }
    return {};
}

QStringList nomes_meses(bool julho_minusculo) {
    QStringList out;
    for (const char* m : meses)
        out << QString::fromUtf8(m);
    if (julho_minusculo) out[6] = QStringLiteral("julho");
    return out;
}

int numero_mes(const QString& palavra) {
    const QString p = sem_acentos(palavra);
    if (p.isEmpty()) return 0;
    bool ok = false;
    const int n = p.toInt(&ok);
    if (ok) return n >= 1 && n <= 12 ? n : 0;
    for (int i = 0; i < 12; ++i) {
        const QString m = sem_acentos(QString::fromUtf8(meses[i]));
        if (p == m || (p.size() == 3 && m.startsWith(p))) return i + 1;
    }
    return 0;
}

QDate data_do_mes(const QString& mes, const QString& ano) {
    const int m = numero_mes(mes);
    bool ok = false;
    const int a = ano.trimmed().toInt(&ok);
    if (!m || !ok || a < 100 || a > 9999) return {};
    return QDate(a, m, 1);
}

int dias_no_mes(const QDate& d) {
    return d.isValid() ? d.daysInMonth() : 0;
}

qint64 dias_entre(const QDate& a, const QDate& b) {
    return a.isValid() && b.isValid() ? a.daysTo(b) : 0;
}

QStringList anos(int primeiro, int ultimo) {
    QStringList out;
    for (int a = primeiro; a <= ultimo; ++a)
        out << QString::number(a);
    return out;
}

} // namespace analysis
