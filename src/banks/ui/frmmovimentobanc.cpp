#include "banks/ui/frmmovimentobanc.h"
#include "platform/widgets/single_window.h"

namespace {
QPointer<frmmovimentobanc> the_window;
} // namespace

frmmovimentobanc* frmmovimentobanc::instance() {
    return single_window(the_window, [] { return new frmmovimentobanc; });
}

frmmovimentobanc* frmmovimentobanc::aberto() {
    return loaded_window(the_window);
}

frmmovimentobanc::frmmovimentobanc() : movimento_window(banks::twin_adicionar()) {
    cmdadicionar = botao_gravar();
}
