#pragma once
// The main window opened as at start (no login, no tip, no alerts), the windows reached through
// it, and rows put straight into the data file. Every window test uses it.

#include "banks/ui/frmbanco.h"
#include "banks/ui/frmeditarbancario.h"
#include "banks/ui/frmeditarbanco.h"
#include "banks/ui/frmmovimentobanc.h"
#include "entries/ui/frmadicionar.h"
#include "entries/ui/frmeditar.h"
#include "entries/ui/frmmultiplos.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/list_view.h"
#include "platform/widgets/money_field.h"
#include "shell/ui/frmlogin.h"
#include "shell/ui/frmprincipal.h"
#include "store/config.h"
#include "support/fixture.h"
#include "support/key_input.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace support {

class window_fixture : public fixture {
protected:
    void SetUp() override {
        fixture::SetUp();
        store::save_setting(store::secao_configuracoes, u"Exibir dica do dia"_s, u"0"_s);
        store::save_setting(store::secao_config, u"AlertasVencimento"_s, u"0"_s);
        exec(u"UPDATE login_inicia SET exigirlogin='0'"_s);
        frmlogin::instance()->abrir();
        p = frmprincipal::instance();
        prompts_.clear();
    }
    void TearDown() override {
        delete frmadicionar::aberto();
        delete frmeditar::aberto();
        delete frmmultiplos::aberto();
        delete frmbanco::aberto();
        delete frmeditarbanco::aberto();
        delete frmmovimentobanc::aberto();
        delete frmeditarbancario::aberto();
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
    // A choice made with the mouse: the box's click routine runs.
    static void choose(QComboBox* c, const QString& text) {
        const int i = c->findText(text);
        ASSERT_GE(i, 0) << text.toStdString();
        c->setCurrentIndex(i);
        Q_EMIT c->activated(i);
    }
    // A main-menu item, triggered as a click would (it must be enabled).
    void menu(const char* name) {
        QAction* a = p->findChild<QAction*>(QString::fromLatin1(name));
        ASSERT_TRUE(a && a->isEnabled()) << name;
        a->trigger();
    }
    // A pop-up item of the main window, triggered as a click would (it must be enabled).
    void popup(const char* menu, const char* name) {
        QMenu* m = p->findChild<QMenu*>(QString::fromLatin1(menu));
        QAction* a = m ? m->findChild<QAction*>(QString::fromLatin1(name)) : nullptr;
        ASSERT_TRUE(a && a->isEnabled()) << name;
        a->trigger();
    }

    void conta(const QString& nome, const QString& saldo) {
        exec(u"INSERT INTO banco (banco, informacoes, saldo) VALUES ('%1', ' ', '%2')"_s.arg(nome, saldo));
    }
    void nomes(const QString& tabela, const QString& coluna, const QStringList& lista) {
        for (const QString& n : lista)
            exec(u"INSERT INTO %1 (%2) VALUES ('%3')"_s.arg(tabela, coluna, n));
    }
    // A pending entry of pagar or receber dated data, due 2026/12/10, worth valor.
    void entrada(const QString& tabela, const QString& data, const QString& estatus = u"Pendente"_s,
                 const QString& origem = u"Caixa"_s, const QString& valor = u"30,00"_s) {
        exec(QStringLiteral("INSERT INTO %1 (estatus, origem, %2, data, descricao, documento, informacoes, "
                            "Valor, vencimento, moeda) VALUES ('%3', '%4', 'Fulano', '%5', 'Aluguel', ' ', "
                            "' ', '%6', '2026/12/10', 'R$')")
                 .arg(tabela, tabela == QLatin1String("pagar") ? u"fornecedor"_s : u"cliente"_s, estatus,
                      origem, data, valor));
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
    // A column of a list, top to bottom.
    static QStringList column(const list_view* l, int c = 0) {
        QStringList out;
        for (int r = 0; r < l->row_count(); ++r)
            out << l->text(r, c);
        return out;
    }

    frmprincipal* p = nullptr;
};

} // namespace support
