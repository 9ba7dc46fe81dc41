#include "banks/ui/frmconfextrato.h"

#include "banks/ui/frmextrato.h"
#include "banks/ui/report_dialogs.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/text/vb_text.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/form_builders.h"
#include "shell/principal_api.h"
#include "store/conexao.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

namespace {
QPointer<frmconfextrato> the_window;
}

frmconfextrato* frmconfextrato::instance() {
    if (!the_window) the_window = new frmconfextrato();
    return the_window;
}

frmconfextrato::frmconfextrato() : QWidget(nullptr, Qt::Window) {
    cboorigem = chosen_box("cboorigem");
    cbodata1 = new date_field;
    cbodata2 = new date_field;
    chkdestino = named(new QCheckBox(QStringLiteral("Incluír banco de destino no relatório")), "chkdestino");
    cmdvisualizar = new QPushButton;
    banks::montar_dialogo_de_datas(this, "frmconfextrato", QStringLiteral("Extrato bancário"),
                                   {{QStringLiteral("Data inicial:"), cbodata1, "cbodata1"},
                                    {QStringLiteral("Data final:"), cbodata2, "cbodata2"}},
                                   cmdvisualizar);
    if (auto* form = findChild<QFormLayout*>()) {
        form->insertRow(0, QStringLiteral("Banco/Caixa:"), cboorigem);
        form->addRow(QString(), chkdestino);
    }
    setTabOrder(cboorigem, cbodata1->line_edit());
    connect(cmdvisualizar, &QPushButton::clicked, this, &frmconfextrato::visualizar);
    carregar_contas();
}

void frmconfextrato::carregar_contas() {
    QStringList nomes;
    store::conectarbanco();
    platform::ignore_errors([&] {
        sql::recordset rs;
        rs.open(QStringLiteral("select * from banco"), store::conexao, sql::keyset, sql::read_only);
        const int banco = rs.index_of(store::coluna::banco);
        for (; !rs.eof(); rs.move_next())
            nomes << rs.text(banco);
    });
    cboorigem->clear();
    cboorigem->addItems(nomes);
    // the account chosen in the main window's list, when there is one
    const shell::principal_api* p = shell::principal();
    const int i = p ? int(nomes.indexOf(p->bancoselecionado)) : -1;
    cboorigem->setCurrentIndex(i);
    cboorigem->setEditText(i >= 0 ? nomes[i] : QString());
}

void frmconfextrato::mostrar() {
    banks::mostrar_dialogo(this);
}

void frmconfextrato::visualizar() {
    const QDate d1 = cbodata1->date(), d2 = cbodata2->date();
    const QString conta = cboorigem->currentText();
    if (!d1.isValid() || !d2.isValid() || conta.isEmpty()) {
        platform::msgbox(QStringLiteral("Preencha todos os dados!"), platform::exclamation,
                         QStringLiteral("Extrato"));
        return;
    }
    frmextrato* e = frmextrato::instance();
    banks::mostrar_dialogo(e);
    platform::ignore_errors([&] {
        e->carregar(conta, vb::ymd(d1), vb::ymd(d2), chkdestino->isChecked(),
                    banks::filtro_extrato(cbodata1->typed_text(), cbodata2->typed_text(), d1.daysTo(d2)));
    });
    close();
}
