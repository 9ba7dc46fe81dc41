#pragma once
// A data file with accounts and rows written straight into it, for the account reports' tests.

#include "support/fixture.h"
#include "support/golden.h"

#include <QApplication>
#include <QPointer>
#include <QProcess>
#include <QRegularExpression>
#include <QWidget>

#include <vector>

namespace testing_banks {

class bank_file : public support::fixture {
protected:
    // The windows a test opened go with it (a window may take others with it: guarded).
    void TearDown() override {
        QList<QPointer<QWidget>> abertas;
        for (QWidget* w : QApplication::topLevelWidgets())
            abertas << w;
        for (const QPointer<QWidget>& w : abertas)
            delete w.data();
        support::fixture::TearDown();
    }
    void conta(const QString& nome, const QString& saldo, const QString& info = QStringLiteral("Conta")) {
        exec(QStringLiteral("INSERT INTO banco (banco, informacoes, saldo) VALUES ('%1', '%2', '%3')")
                 .arg(quoted(nome), info, saldo));
    }
    // An expense (pagar) or income (receber) row.
    void entrada(const QString& tabela, const QString& estatus, const QString& origem, const QString& valor,
                 const QString& data, const QString& descricao = QStringLiteral("x"),
                 const QString& vencimento = QStringLiteral("01/12/2026")) {
        const QString contato =
            tabela == QLatin1String("pagar") ? QStringLiteral("fornecedor") : QStringLiteral("cliente");
        exec(QStringLiteral(
                 "INSERT INTO %1 (estatus, origem, %2, data, descricao, documento, informacoes, Valor, "
                 "vencimento, moeda) VALUES ('%3', '%4', 'Contato', '%5', '%6', 'D1', 'info', '%7', "
                 "'%8', 'R$')")
                 .arg(tabela, contato, estatus, quoted(origem), data, descricao, valor, vencimento));
    }
    void movimento(const QString& estatus, const QString& tipo, const QString& origem, const QString& destino,
                   const QString& valor, const QString& data) {
        exec(QStringLiteral(
                 "INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) "
                 "VALUES ('%1', '%2', '%3', '%4', '%5', 'obs', '%6')")
                 .arg(estatus, quoted(origem), quoted(destino), data, tipo, valor));
    }

    static QString quoted(QString s) { return s.replace(QLatin1Char('\''), QStringLiteral("''")); }
};

// The words of a printed PDF with their page and top-left corner in points.
struct pdf_word {
    int page;
    double x, y;
    QString text;
};
inline std::vector<pdf_word> pdf_words(const QString& pdf) {
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), pdf, QStringLiteral("-")});
    if (!p.waitForFinished(60000) || p.exitCode() != 0) return {};
    static const QRegularExpression word(
        QStringLiteral("<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\"[^>]*>([^<]*)</word>"));
    std::vector<pdf_word> out;
    int page = -1;
    for (const QString& l : QString::fromUtf8(p.readAllStandardOutput()).split(QLatin1Char('\n'))) {
        if (l.contains(QLatin1String("<page "))) ++page;
        const auto m = word.match(l);
        if (m.hasMatch())
            out.push_back({page, m.captured(1).toDouble(), m.captured(2).toDouble(), m.captured(3)});
    }
    return out;
}

} // namespace testing_banks
