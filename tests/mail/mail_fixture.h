#pragma once
// Rows of the three ledgers for the e-mail tests, and the e-mail window opened from its menu item.

#include "mail/ui/frmviaemail.h"
#include "mail/via_email.h"
#include "platform/smtp.h"
#include "shell/principal_api.h"
#include "support/fixture.h"
#include "support/golden.h"

#include <QCoreApplication>
#include <QFile>
#include <QLineEdit>

#include <ostream>

namespace mail_test {

class fixture : public support::fixture {
protected:
    void SetUp() override {
        support::fixture::SetUp();
        const char* rows[] = {
            "INSERT INTO pagar (estatus, origem, fornecedor, data, descricao, documento, Valor, vencimento, "
            "moeda) "
            "VALUES ('Pendente', 'Caixa', 'Papelaria Sol', '2026/11/01', 'Papel A4', 'NF 12', '1.234,565', "
            "'2026/11/30', 'R$')",
            "INSERT INTO pagar (estatus, origem, fornecedor, data, descricao, documento, Valor, vencimento, "
            "moeda) "
            "VALUES ('Concluído', 'Itaú', 'Luz SA', '2026/10/05', 'Conta de luz', '', '250,5', '2026/10/10', "
            "'R$')",
            "INSERT INTO pagar (estatus, origem, fornecedor, data, descricao, documento, Valor, vencimento, "
            "moeda) "
            "VALUES ('pendente', 'Caixa', 'Loja X', '2025/12/31', 'Antiga', '', '10,00', '2026/01/05', "
            "'US$')",
            "INSERT INTO receber (estatus, origem, cliente, data, descricao, documento, Valor, vencimento, "
            "moeda) "
            "VALUES ('Outro', 'Caixa', 'Cliente A', '2026/11/20', 'Serviço', 'R 1', '500,00', '2026/12/01', "
            "'R$')",
            "INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) VALUES "
            "('Concluído', 'Caixa', ' - ', '2026/11/02', 'Depósito', 'inicial', '1.000,00')",
            "INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) VALUES "
            "('Concluído', 'Itaú', 'Caixa', '2026/11/03', 'Transferência entre contas', '', '200,00')",
            "INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) VALUES "
            "('Pendente', 'Caixa', ' - ', '2026/11/04', 'Retirada', 'saque', '50,00')",
        };
        for (const char* r : rows)
            exec(QString::fromUtf8(r));
        platform::set_mailer(&mailer_);
    }
    void TearDown() override {
        if (frmviaemail* w = frmviaemail::aberta()) delete w;
        platform::set_mailer(nullptr);
        support::fixture::TearDown();
    }
    // The window as the menu opens it, with the sender's data typed in.
    frmviaemail* abrir(const char* item, const QString& servidor = QStringLiteral("smtp.example.com")) {
        shell::run_action(QString::fromLatin1(item));
        frmviaemail* w = frmviaemail::aberta();
        if (!w) return nullptr;
        for (QLineEdit* t : {w->txtnome, w->txtnome2})
            t->setText(QStringLiteral("Ana"));
        for (QLineEdit* t : {w->txtemail, w->txtemail2})
            t->setText(QStringLiteral("ana@quintara.test"));
        for (QLineEdit* t : {w->txtservidor, w->txtservidor2})
            t->setText(servidor);
        return w;
    }
    static QString ler_arquivo(const QString& path) { return support::read_text(path); }

    platform::recording_mailer mailer_;
};

} // namespace mail_test
