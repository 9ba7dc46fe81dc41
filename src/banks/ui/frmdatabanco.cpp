#include "banks/ui/frmdatabanco.h"

#include "banks/ui/frmestbanco.h"
#include "banks/ui/report_dialogs.h"
#include "platform/prompts.h"
#include "platform/text/vb_text.h"
#include "platform/widgets/date_field.h"

#include <QPointer>
#include <QPushButton>

namespace {
QPointer<frmdatabanco> the_window;
}

frmdatabanco* frmdatabanco::instance() {
    if (!the_window) the_window = new frmdatabanco();
    return the_window;
}

frmdatabanco::frmdatabanco() : QWidget(nullptr, Qt::Window) {
    cbodata1 = new date_field;
    cbodata2 = new date_field;
    cmdvisualizar = new QPushButton;
    banks::montar_dialogo_de_datas(this, "frmdatabanco", QStringLiteral("Selecionar data"),
                                   {{QStringLiteral("Data inicial:"), cbodata1, "cbodata1"},
                                    {QStringLiteral("Data final:"), cbodata2, "cbodata2"}},
                                   cmdvisualizar);
    connect(cmdvisualizar, &QPushButton::clicked, this, &frmdatabanco::visualizar);
}

void frmdatabanco::mostrar() {
    banks::mostrar_dialogo(this);
}

void frmdatabanco::visualizar() {
    const QDate d1 = cbodata1->date(), d2 = cbodata2->date();
    if (!d1.isValid() || !d2.isValid()) {
        platform::msgbox(QStringLiteral("Selecione a data inicial e a data final!"), platform::exclamation,
                         QStringLiteral("Data"));
        return;
    }
    frmestbanco* e = frmestbanco::instance();
    banks::mostrar_dialogo(e);
    e->geral(vb::ymd(d1), vb::ymd(d2));
    close();
}
