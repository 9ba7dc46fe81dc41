#pragma once
// Clients and suppliers: the twins' differences as one table, the statements of the list, the
// form and the removal, the list's rows, and the columns the form writes in their order.

#include "platform/sql/recordset.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace registers {

enum class contato { cliente, fornecedor };

// Everything in which the supplier windows differ from the client windows, slips included.
struct contato_textos {
    QString tabela;            // cliente, fornecedor
    QString janela_lista;      // frmcliente
    QString janela_ficha;      // frmcadcli
    QString janela_historico;  // frmfincli
    QString titulo_lista;      // the list window's caption
    QString campo_nome;        // first field of cbotipo and cbofiltro, and the list's name column
    QString campo_tipo;        // the list's type column
    QString topo_abertura;     // lbltopo when the window opens
    QString topo_tudo;         // lbltopo after Carregartudo
    QString caption_novo;      // the form's caption when the list adds
    QString botao_adicionar;   // the caption of cmdok that makes the form add
    QString caption_editar;    // both captions when editing
    QString obrigatorio;       // the required-name message
    QString rotulo_nome;       // the form's name label
    QString rotulo_tipo;       // the form's type label
    QString cabecalho_arquivo; // first line of the text and HTML files
    QString titulo_impressao;  // heading of the printed list
    QString dialogo_txt;
    QString dialogo_html;
    QString mnunovo, mnueditar, mnuremover, mnumaladireta, mnufin;
    bool alarga_chave; // the toolbar's txt and html widen the hidden key column
};
const contato_textos& textos(contato c);

// Where a field of the sort or search boxes is kept ("CEP" is `tel`, "Telefone" is `tel2`).
// Empty for a text the boxes do not offer.
QString coluna_busca(const QString& campo);
QString coluna_ordem(const QString& campo);
// The sort and search boxes' items.
QStringList itens_busca(contato c);
QStringList itens_ordem(contato c);

// Carregartudo: always ascending, whatever cboordem says.
QString statement_tudo(contato c, const QString& cbofiltro);
// Carregarfiltro: the search text goes in as typed.
QString statement_filtro(contato c, const QString& cbotipo, const QString& txtbusca, const QString& cbofiltro,
                         const QString& cboordem);
QString topo_filtro(const QString& cbotipo, const QString& txtbusca);
QString statement_registro(contato c, const QString& codigo); // the list's edit
QString statement_ficha(contato c, const QString& codigo);    // the form's edit
QString statement_remover(contato c, const QString& codigo);
// The value lists of txtestado, txtcidade, txtbairro and txtpais, in that order.
std::vector<QString> statements_distintos(contato c);

// The list's columns: heading and width in twips (the key's is 0).
struct coluna {
    QString texto;
    double largura;
};
std::vector<coluna> colunas_lista(contato c);
// One row of lstcontato from the current record.
QStringList linha_contato(const sql::recordset& rs);
// The rows of a statement. Throws sql::error.
std::vector<QStringList> carregar_contatos(const QString& statement);

// What the form holds, as typed.
struct ficha {
    QString nome, cpf, nascimento; // nascimento as dd/mm/yyyy, or empty
    QString pais, estado, cidade, bairro, endereco, tel, tel2, cel, site, email, insc;
    QString local, adicionais;
    bool pessoa_fisica = true;
};
// Sets the row's columns: on adding in the form's order, on editing with `adicionais` after `tipo`.
void gravar_ficha(sql::recordset& rs, const ficha& f, bool adicionando);

// The order in which the edit fills the form, `data` included: the table has no such column,
// so the birth date is never read back.
const QStringList& ordem_leitura();

} // namespace registers
