#pragma once
// The diary without its windows: the statements, the rows of the appointment lists with their
// day count, the label texts, and adding, editing and removing by title. The title is a row's
// identity, so rows that share a title are edited and removed together.

#include "output/report_frame.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <vector>

namespace registers {

// --- statements
QString comando_todos();                                   // Carregartudo
QString comando_filtro(const QDate& de, const QDate& ate); // Carregarfiltro
QString comando_editar_lista(const QString& titulo);       // the list's editar reads the row
QString comando_editar_cadastro(const QString& titulo);    // frmcadcompromisso's editar rewrites it
QString comando_remover(const QString& titulo);

// --- the three report feeders of the main menu
enum class relatorio_compromissos { dia, geral, mes };
QString comando_relatorio(relatorio_compromissos r, const QDate& hoje);
QString topo_relatorio(relatorio_compromissos r, const QDate& hoje);
QString total_compromissos(int linhas); // "Total de compromissos: 3"

// --- label texts of frmcompromisso
inline const QString topo_todos = QStringLiteral("Exibindo todos os compromissos");
// "Filtrando dados entre as datas de 01/11/2026 e 30/11/2026 - 29 dias": the dates as typed
QString topo_filtro(const QString& de, const QString& ate, const QDate& data_de, const QDate& data_ate);

// --- rows
// The day count: the appointment's date less today, "1 dias", "0 dias", "-1 dias"; empty when the
// stored text is no date.
QString dias_restantes(const QString& data, const QDate& hoje);
// Data (dd/mm/yyyy), Hora, Título, Local, Estatus (the day count).
std::vector<QStringList> carregar(const QString& comando, const QDate& hoje);

// --- one appointment
struct compromisso {
    QDate data; // invalid: an empty date
    QString hora, titulo, local, descricao;
};
// The first row of the title, for the editor; false when none. Throws sql::error.
bool ler(const QString& titulo, compromisso& c);
// A new row: the date as yyyy/mm/dd, hora, Titulo and local trimmed, descricao as typed. Throws.
void adicionar(const compromisso& c);
// Every row of the title takes the fields but the title, which stays. Returns the rows rewritten.
// Throws sql::error.
int editar(const QString& titulo, const compromisso& c);
// Removes every row of the title. Throws sql::error.
void remover(const QString& titulo);

inline const QString erro_cadastrar =
    QStringLiteral("Ocorreu o seguinte erro ao tentar cadastrar os dados: ");
inline const QString erro_editar = QStringLiteral("Ocorreu o seguinte erro ao tentar editar os dados: ");
inline const QString datas_vazias = QStringLiteral("As datas devem ser preenchidas!");
inline const QString pergunta_remover =
    QStringLiteral("Tem certeza que deseja remover o item selecionado do banco de dados?");

// --- output
inline const QString titulo_lista = QStringLiteral("LISTA DE COMPROMISSO");
QString titulo_salvar(output::formato_relatorio f);
QString filtro_salvar(output::formato_relatorio f);
// The export frame: the title, and the closing block with the label and the count.
output::list_frame moldura(const QString& topo, const QString& total);

} // namespace registers
