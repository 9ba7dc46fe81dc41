#pragma once
// Reports and statistics sent to the user's own address: the checks before a send, the
// statements, the attachment file with the ledgers, the HTML bodies and the message itself.

#include "platform/smtp.h"

#include <QDate>
#include <QString>

#include <functional>

class QIODevice;

namespace mail {

// Settings of the e-mail window (section "Configurações"), with the defaults of their reads.
namespace chave {
inline const QString pagar = QStringLiteral("email-pagar");
inline const QString receber = QStringLiteral("email-receber");
inline const QString bancario = QStringLiteral("email-bancario");
inline const QString pagar2 = QStringLiteral("email-pagar2");
inline const QString receber2 = QStringLiteral("email-receber2");
inline const QString bancario2 = QStringLiteral("email-bancario2");
inline const QString entredatas = QStringLiteral("email-entredatas");
inline const QString entredatas2 = QStringLiteral("email-entredatas2");
inline const QString tiporet = QStringLiteral("email-tiporet");
inline const QString nome = QStringLiteral("email-nome");
inline const QString email = QStringLiteral("email-email");
inline const QString servidor = QStringLiteral("email-servidor");
inline const QString login = QStringLiteral("email-login");
inline const QString senha = QStringLiteral("email-senha");
} // namespace chave
inline const QString padrao_email = QStringLiteral("seu.nome@example.com");
inline const QString padrao_servidor = QStringLiteral("smtp.example.com");

QString ler(const QString& chave, const QString& padrao);
void gravar(const QString& chave, const QString& valor);

inline const QString arquivo_anexo = QStringLiteral("relatório via-email.txt");
QString caminho_anexo(); // in the program's folder

inline const QString assunto_relatorio = QStringLiteral("Relatorio do Quintara");
inline const QString assunto_estatisticas = QStringLiteral("Estatisticas do Quintara");

// The status option of the report page, as saved in email-tiporet.
enum class tipo_ret { todos, pendentes, concluidos };
QString texto_tipo(tipo_ret t);
tipo_ret tipo_de(const QString& salvo);

struct ledgers {
    bool pagar = true, receber = true, bancario = true;
};

// What one page holds when its send button is pressed.
struct pagina {
    ledgers incluir;
    bool por_data = false;
    QDate inicio, fim; // invalid: the picker is empty
    QString nome, email, servidor;
};

// The first thing that stops a send, as the "Erro" box says it: both dates empty while the date
// filter is on, then the blank fields. Empty: the send goes on.
QString erro_envio(const pagina& p);
// "Servidor Seu Nome Seu E-mail " for the blank ones (blanks only count as blank).
QString campos_faltando(const pagina& p);

// The statements. The status clause and the joint form are rejected by the data file's engine,
// so a status or combined filter gives an empty section: the file has always come out so.
QString clausula_status(tipo_ret t);
QString clausula_datas(bool por_data, const QDate& inicio, const QDate& fim);
QString consulta(const QString& tabela, tipo_ret t, bool por_data, const QDate& inicio, const QDate& fim);

// Progress of the file: the rows of the ledger being read (value, maximum). May let window
// events run.
using progresso = std::function<void(int valor, int maximo)>;

// CarregarDadosRelatorio: the ticked ledgers, each with its heading, table and totals, appended
// to the open file. A ledger whose statement fails or finds nothing leaves no trace.
void CarregarDadosRelatorio(QIODevice& arquivo, const pagina& p, tipo_ret t, const progresso& barra = {});
// The whole attachment: first line, the ledgers, the "Gerado dia" stamp, the name and the
// maker's address. False when the file could not be written.
bool escrever_anexo(const QString& caminho, const pagina& p, tipo_ret t, const progresso& barra = {});

// The HTML bodies. The report's date line follows the statistics page's box (datas_est) and the
// report page's pickers: so it has always been.
QString corpo_relatorio(const pagina& p, tipo_ret t, bool datas_est);
// CarregarDadosEstatisticas: the figures of the ticked ledgers as HTML.
QString CarregarDadosEstatisticas(const pagina& p);
QString corpo_estatisticas(const pagina& p);

// The message as the window hands it over: sender and recipient are the one typed address, and
// the stored login and password always go along.
platform::mail_message mensagem(const pagina& p, const QString& assunto, const QString& corpo,
                                const QString& anexo);

// The maker's address at the foot of the mails and the file.
QString site_fabricante();

} // namespace mail
