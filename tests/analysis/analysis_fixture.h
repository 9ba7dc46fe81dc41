#pragma once
// Rows of every ledger around 23/11/2026 and the windows the analysis members leave open.

#include "shell/principal_api.h"
#include "support/fixture.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

namespace testing_analysis {

class analysis_fixture : public support::fixture {
protected:
    void TearDown() override {
        std::vector<QPointer<QWidget>> abertas;
        for (QWidget* w : QApplication::topLevelWidgets())
            abertas.emplace_back(w);
        for (const auto& w : abertas)
            delete w.data();
        QCoreApplication::processEvents();
        support::fixture::TearDown();
    }

    void pagar(const char* data, const char* estatus, const char* valor,
               const char* fornecedor = "Fornecedor A", const char* descricao = "Aluguel") {
        exec(QStringLiteral("INSERT INTO pagar (estatus, origem, fornecedor, data, descricao, documento, "
                            "informacoes, Valor, vencimento, moeda) VALUES ('%1', 'Caixa', '%2', '%3', '%4', "
                            "'D1', 'obs', '%5', '2026/11/30', 'R$')")
                 .arg(QString::fromUtf8(estatus), QString::fromUtf8(fornecedor), QString::fromUtf8(data),
                      QString::fromUtf8(descricao), QString::fromUtf8(valor)));
    }
    void receber(const char* data, const char* estatus, const char* valor,
                 const char* cliente = "Cliente A") {
        exec(QStringLiteral(
                 "INSERT INTO receber (estatus, origem, cliente, data, descricao, documento, "
                 "informacoes, Valor, vencimento, moeda) VALUES ('%1', 'Banco', '%2', '%3', 'Vendas', "
                 "'R1', '', '%4', '23/11/2026', 'US$')")
                 .arg(QString::fromUtf8(estatus), QString::fromUtf8(cliente), QString::fromUtf8(data),
                      QString::fromUtf8(valor)));
    }
    void bancario(const char* data, const char* estatus, const char* valor) {
        exec(QStringLiteral(
                 "INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) "
                 "VALUES ('%1', 'Caixa', ' - ', '%2', 'Depósito', 'inf', '%3')")
                 .arg(QString::fromUtf8(estatus), QString::fromUtf8(data), QString::fromUtf8(valor)));
    }

    // Today: four expenses (one lower-case "pendente", one other status), one of this month, one
    // of this year, one of last year.
    void despesas_do_periodo() {
        pagar("2026/11/23", "Pendente", "1.000,00");
        pagar("2026/11/23", "Concluído", "10,005");
        pagar("2026/11/23", "pendente", "5,00");
        pagar("2026/11/23", "Cancelado", "7,00");
        pagar("2026/11/02", "Pendente", "100,00");
        pagar("2026/03/10", "Concluído", "50,00");
        pagar("2025/11/23", "Pendente", "3,00");
    }

    template <class W> W* janela(const char* nome) {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == QLatin1String(nome) && w->isVisible()) return qobject_cast<W*>(w);
        return nullptr;
    }
};

} // namespace testing_analysis
