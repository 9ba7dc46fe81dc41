#include "output/ui/report_instances.h"

#include "output/ui/frmmovimento.h"
#include "output/ui/frmrelatorio.h"
#include "platform/widgets/single_window.h"
#include "shell/principal_api.h"

#include <QPointer>

namespace output {

namespace {

QWidget* dono() {
    shell::principal_api* p = shell::principal();
    return p ? p->janela() : nullptr;
}

// closing unloads it, and with it the exporter's slot
template <class W> W* unica(QPointer<W>& w) {
    return single_window(w, [] { return new W(dono()); });
}

QPointer<frmrelatorio> relatorio_;
QPointer<frmmovimento> movimento_;

} // namespace

frmrelatorio* relatorio_unico() {
    return unica(relatorio_);
}

frmmovimento* movimento_unico() {
    return unica(movimento_);
}

} // namespace output
