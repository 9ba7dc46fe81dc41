// The accounts list of the main window: balances worked out at each refresh, and the summary.
#include "banks/balance.h"
#include "platform/widgets/frmcarregando.h"
#include "platform/widgets/list_view.h"
#include "shell/ui/frmprincipal.h"

#include <QPlainTextEdit>

#include <optional>

namespace {

void definir_colunas(list_view* l) {
    l->add_column(QStringLiteral("Banco/Caixa"), 2800);
    l->add_column(QStringLiteral("Saldo atual"), 1800, list_view::tag_number);
    l->add_column(QStringLiteral("Informações"), 3600);
    l->add_column(QStringLiteral("Saldo inicial"), 1800, list_view::tag_number);
}

} // namespace

void frmprincipal::carregarbancos() {
    if (carregando_bancos_) return;
    carregando_bancos_ = true;
    struct fim {
        bool& flag;
        ~fim() { flag = false; }
    } fim_{carregando_bancos_};
    if (lstcaixabanco->column_count() == 0) definir_colunas(lstcaixabanco);
    const bool atualizar = banks::atualizar_saldo();
    lstcaixabanco->clear_rows();
    std::optional<waiting_window> espera;
    banks::account_rows_hooks hooks;
    hooks.before_walk = [&](int contas) {
        espera.emplace(
            this, QStringLiteral("Atualizando saldo bancario ...\nCarregando caixas e banco ..."),
            QStringLiteral("Aguarde enquanto o software carrega os bancos e caixas cadastros e atualiza "
                           "o saldo disponível em cada banco, este processo pode demorar dependendo do "
                           "tamanho do banco de dados."));
        espera->set_range(0, contas);
    };
    hooks.progress = [&](int feitas) {
        if (espera) espera->set_value(feitas);
    };
    std::vector<QStringList> rows = banks::account_rows(atualizar, hooks);
    lstcaixabanco->add_rows(std::move(rows));
    if (espera)
        espera.reset(); // yields, then unloads it
    else if (atualizar)
        waiting_window::yield();
    resumocaixa();
}

void frmprincipal::resumocaixa() {
    std::vector<QStringList> rows;
    const int n = lstcaixabanco->row_count();
    const int colunas = lstcaixabanco->column_count();
    rows.reserve(std::size_t(n));
    for (int r = 0; r < n; ++r) {
        QStringList row;
        for (int c = 0; c < colunas; ++c)
            row << lstcaixabanco->text(r, c);
        rows.push_back(row);
    }
    txtresucaixa->setPlainText(banks::resumo_caixa(rows));
}
