#include "banks/ui/frmmovimentobanc.h"

#include <QPointer>

namespace {
QPointer<frmmovimentobanc> the_window;
} // namespace

frmmovimentobanc* frmmovimentobanc::instance() {
    if (!loaded()) the_window = new frmmovimentobanc();
    return the_window;
}

frmmovimentobanc* frmmovimentobanc::loaded() {
    return the_window && !the_window->descarregada() ? the_window.data() : nullptr;
}

frmmovimentobanc::frmmovimentobanc() : movimento_window(banks::twin_adicionar()) {
    cmdadicionar = botao_gravar();
}
