#include "entries/ui/frmadicionar.h"

#include "platform/clock.h"
#include "platform/prompts.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/money_field.h"
#include "platform/widgets/single_window.h"
#include "shell/principal_api.h"
#include "store/conexao.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace {
QPointer<frmadicionar> the_window;
} // namespace

frmadicionar* frmadicionar::instance() {
    return single_window(the_window, [] { return new frmadicionar; });
}

frmadicionar* frmadicionar::aberto() {
    return loaded_window(the_window);
}

frmadicionar::frmadicionar()
    : entry_form(QStringLiteral("frmadicionar"), entries::banks_for_adding(),
                 QStringLiteral("&inserir despesa")) {
    chkcontinuar =
        new QCheckBox(QStringLiteral("Não atualizar o banco de dados agora para continuar inserindo contas"));
    chkcontinuar->setObjectName(QStringLiteral("chkcontinuar"));
    chkcontinuar->setToolTip(
        QStringLiteral("Marque está opção para que o software não carregue o banco de dados "
                       "e você possa continuar inserindo dados."));
    montar(chkcontinuar);
    // opening: today as the entry's date; nothing written yet
    txtdata->set_date(platform::today());
    inserido = false;
}

void frmadicionar::gravar(shell::ledger k, const entries::entry_fields& f) {
    sql::recordset rs;
    rs.open(shell::traits(k).tabela, store::conexao, sql::keyset, sql::pessimistic);
    rs.add_new();
    entries::write_columns(rs, k, f);
    rs.update();
}

void frmadicionar::depois_de_gravar(shell::ledger k) {
    if (chkcontinuar->isChecked()) {
        msgbox_over(this, entries::saved_message(k), platform::information, QStringLiteral("Cadastrada"));
        txtvencimento->clear();
        txtinfo->clear();
        txtvalor->clear();
        txtdocumento->clear();
        cbotipo->setEditText(QString());
        inserido = true;
        return;
    }
    inserido = true;
    hide();
    shell::recarregar_principal(k, false);
    descarregar();
}

void frmadicionar::ao_descarregar() {
    if (!inserido) return;
    // the caption never reads "adicionar despesas": the income list is what closing reloads
    shell::principal_api* p = shell::principal();
    if (!p) return;
    const auto which = windowTitle().toLower() == QLatin1String("adicionar despesas")
                           ? shell::ledger::pagar
                           : shell::ledger::receber;
    p->carregar(which);
    p->carregar_filtros(which);
}
