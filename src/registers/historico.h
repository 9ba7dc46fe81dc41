#pragma once
// The financial history of one client (receber) or one supplier (pagar): the twins' words, the
// statements, the rows, the tally and its line, the contact block of the printed history.

#include "platform/text/vb_text.h"
#include "registers/contatos.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace registers {

struct historico_textos {
    QString janela;          // frmfincli
    QString caption;         // the window's caption
    QString statement_nomes; // the names of cbonome and the keys of cboid
    QString prefixo;         // the ledger statement up to the name
    QString lista;           // lstreceber / lstpagar
    QString rotulo;          // lblreceberest / lblpagarest
    QString total;           // " cadastrados  -  Total de lucros: R$ "
    QString feito;           // "  -  Total recebido: R$ "
    QString nenhum;          // no name chosen
    QString carregando;      // the waiting window's title
    QString arquivo_nome;    // "Cliente: " in the text file
    QString pagina_nome;     // "fornecedor: " in the page, lower case on the supplier twin
    QString titulo_impressao;
    QString dialogo_txt, dialogo_html;
    QString explicacao; // lblcliente
};
const historico_textos& historico(contato c);

enum class situacao { tudo, pendente, concluido };

QString statement_historico(contato c, const QString& nome, situacao s);
// The contact's own row, read when a name is chosen (for the picture).
QString statement_contato(contato c, const QString& nome);
// The contact block of the print, by the key of cboid.
QString statement_bloco(contato c, const QString& codigo);
// " Estatus: Exibindo todos os dados" and the like.
QString linha_situacao(situacao s);

// The list's columns.
QStringList colunas_historico();
// One row: date, document, centre, account, currency and amount, status, notes.
QStringList linha_historico(const sql::recordset& rs);

// Counts and sums: "Pendente" as written goes to the pending sum, every other status to the
// other; each amount is rounded through the money format before it is added.
struct apuracao {
    long quantidade = 0;
    vb::currency total, feito, pendente;
    void somar(const QString& estatus, const QString& valor);
};
QString linha_totais(contato c, const apuracao& a);
// What the totals label shows before anything is verified.
QString totais_iniciais();

struct historico_carregado {
    std::vector<QStringList> linhas;
    apuracao soma;
};
// Runs the statement and walks the rows. Throws sql::error.
historico_carregado carregar_historico(const QString& statement);

// The contact block of the print (name given), read from the row of the key; empty fields when
// the key finds none. Throws sql::error.
struct bloco_contato {
    QString nome, tipo, cpf, tel, cel, insc, nascimento;
};
bloco_contato ler_bloco(contato c, const QString& nome, const QString& codigo);

} // namespace registers
