#pragma once
// The main window opened as at start (no login, no tip, no alerts), the entry and account
// windows reached through it, and rows put straight into the data file.

#include "banks/ui/frmbanco.h"
#include "banks/ui/frmeditarbanco.h"
#include "entries/ui/frmadicionar.h"
#include "entries/ui/frmeditar.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/list_view.h"
#include "platform/widgets/money_field.h"
#include "shell/ui/frmlogin.h"
#include "shell/ui/frmprincipal.h"
#include "store/config.h"
#include "support/fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>

namespace support {

class window_fixture : public fixture {
protected:
    void SetUp() override {
        fixture::SetUp();
        store::save_setting(store::secao_configuracoes, QStringLiteral("Exibir dica do dia"),
                            QStringLiteral("0"));
        store::save_setting(store::secao_config, QStringLiteral("AlertasVencimento"), QStringLiteral("0"));
        exec(QStringLiteral("UPDATE login_inicia SET exigirlogin='0'"));
        frmlogin::instance()->abrir();
        p = frmprincipal::instance();
        prompts_.clear();
    }
    void TearDown() override {
        delete frmadicionar::aberto();
        delete frmeditar::aberto();
        delete frmbanco::aberto();
        delete frmeditarbanco::aberto();
        if (frmprincipal::exists()) delete frmprincipal::instance();
        frmlogin::descarregar();
        settle();
        fixture::TearDown();
    }
    // Lets unloaded windows go.
    static void settle() {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    template <class T> static T* child(QWidget* w, const char* name) {
        T* c = w->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(c, nullptr) << name;
        return c;
    }
    static QComboBox* combo(QWidget* w, const char* name) { return child<QComboBox>(w, name); }
    static QLineEdit* edit(QWidget* w, const char* name) { return child<QLineEdit>(w, name); }
    static date_field* date(QWidget* w, const char* name) { return child<date_field>(w, name); }
    static void click(QWidget* w, const char* name) { child<QPushButton>(w, name)->click(); }

    void conta(const QString& nome, const QString& saldo) {
        exec(QStringLiteral("INSERT INTO banco (banco, informacoes, saldo) VALUES ('%1', ' ', '%2')")
                 .arg(nome, saldo));
    }
    void nomes(const QString& tabela, const QString& coluna, const QStringList& lista) {
        for (const QString& n : lista)
            exec(QStringLiteral("INSERT INTO %1 (%2) VALUES ('%3')").arg(tabela, coluna, n));
    }
    static QStringList items(QComboBox* c) {
        QStringList out;
        for (int i = 0; i < c->count(); ++i)
            out << c->itemText(i);
        return out;
    }
    static std::vector<QStringList> list_rows(const list_view* l) {
        std::vector<QStringList> out;
        for (int r = 0; r < l->row_count(); ++r) {
            QStringList row;
            for (int c = 0; c < l->column_count(); ++c)
                row << l->text(r, c);
            out.push_back(row);
        }
        return out;
    }
    QStringList boxes() const {
        QStringList out;
        for (const auto& b : prompts_.boxes())
            out << b.title + QStringLiteral(": ") + b.text;
        return out;
    }

    frmprincipal* p = nullptr;
};

} // namespace support
