#include "registers/ui/actions.h"

#include "registers/ui/frmcadcontato.h"
#include "registers/ui/frmcalendario.h"
#include "registers/ui/frmcompromisso.h"
#include "registers/ui/frmcontatos.h"
#include "registers/ui/frmfincontato.h"
#include "registers/ui/frmretcompromisso.h"
#include "shell/principal_api.h"

namespace registers {

namespace {

void abrir_lista(contato c) {
    frmcontatos* f = frmcontatos::instance(c);
    f->show();
    f->raise();
    f->activateWindow();
    f->Carregartudo();
}

void abrir_historico(contato c) {
    frmfincontato* f = frmfincontato::instance(c);
    f->mostrar();
    f->carregarcli();
}

// The quick add of the entry windows: both captions say "Adicionar".
void abrir_ficha(contato c) {
    const QString botao = textos(c).botao_adicionar;
    frmcadcontato::instance(c)->abrir(botao, botao);
}

} // namespace

void register_actions() {
    using r = relatorio_compromissos;
    shell::register_action(QStringLiteral("mnucomp"), [] { frmcompromisso::mostrar(); });
    shell::register_action(QStringLiteral("mnucal"), [] { frmcalendario::mostrar(); });
    shell::register_action(QStringLiteral("mnuretcompdia"),
                           [] { frmretcompromisso::instance()->preencher(r::dia); });
    shell::register_action(QStringLiteral("mnuretcompgeral"),
                           [] { frmretcompromisso::instance()->preencher(r::geral); });
    shell::register_action(QStringLiteral("mnuretcompmes"),
                           [] { frmretcompromisso::instance()->preencher(r::mes); });

    shell::register_action(QStringLiteral("mnuclientes"), [] { abrir_lista(contato::cliente); });
    shell::register_action(QStringLiteral("mnufornecedores"), [] { abrir_lista(contato::fornecedor); });
    shell::register_action(QStringLiteral("mnufincli"), [] { abrir_historico(contato::cliente); });
    shell::register_action(QStringLiteral("mnufinforn"), [] { abrir_historico(contato::fornecedor); });
    shell::register_action(QStringLiteral("frmcadcli"), [] { abrir_ficha(contato::cliente); });
    shell::register_action(QStringLiteral("frmcadforn"), [] { abrir_ficha(contato::fornecedor); });
}

} // namespace registers
