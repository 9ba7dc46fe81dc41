#include "banks/ui/frmsaldodia.h"

#include "banks/ui/frmestbanco.h"
#include "banks/ui/report_dialogs.h"
#include "platform/prompts.h"
#include "platform/text/vb_text.h"
#include "platform/widgets/date_field.h"

#include <QPointer>
#include <QPushButton>

namespace {
QPointer<frmsaldodia> the_window;
}

frmsaldodia* frmsaldodia::instance() {
    if (!the_window) the_window = new frmsaldodia();
    return the_window;
}

frmsaldodia::frmsaldodia() : QWidget(nullptr, Qt::Window) {
    cbodata1 = new date_field;
    cmdvisualizar = new QPushButton;
    banks::montar_dialogo_de_datas(this, "frmsaldodia", QStringLiteral("Selecione o dia final"),
                                   {{QStringLiteral("Data final:"), cbodata1, "cbodata1"}}, cmdvisualizar);
    connect(cmdvisualizar, &QPushButton::clicked, this, &frmsaldodia::visualizar);
}

void frmsaldodia::mostrar() {
    banks::mostrar_dialogo(this);
}

void frmsaldodia::visualizar() {
    const QDate d = cbodata1->date();
    if (!d.isValid()) {
        platform::msgbox(QStringLiteral("Selecione a data final!"), platform::exclamation,
                         QStringLiteral("Data"));
        return;
    }
    frmestbanco* e = frmestbanco::instance();
    banks::mostrar_dialogo(e);
    e->nodia(vb::ymd(d));
    close();
}
