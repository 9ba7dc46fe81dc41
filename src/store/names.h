#pragma once
// The names the data file, the settings and the rows share.

#include <QString>

namespace store {

inline const QString app_title = QStringLiteral("Quintara");

// The data file, with the separator that precedes it, and its password.
inline const QString arquivo_dados = QStringLiteral("\\dados.qntbd");
inline const QString arquivo_dados_antigo = QStringLiteral("\\dados.qnpbd");
inline const QString senha_dados = QStringLiteral("7qwtzbnr3p8c!&#°m");

// Settings sections: three, kept apart.
inline const QString secao_config = QStringLiteral("Configurações");
inline const QString secao_relatorio = QStringLiteral("Configurações\\relatorio");
inline const QString secao_configuracoes = QStringLiteral("configuracoes");
// The program's own: how each account's statements are read.
inline const QString secao_importacao = QStringLiteral("Configurações\\importacao");

namespace tabela {
inline const QString pagar = QStringLiteral("pagar");
inline const QString receber = QStringLiteral("receber");
inline const QString bancario = QStringLiteral("bancario");
inline const QString banco = QStringLiteral("banco");
inline const QString cliente = QStringLiteral("cliente");
inline const QString fornecedor = QStringLiteral("fornecedor");
inline const QString pcontapagar = QStringLiteral("pcontapagar");
inline const QString pcontareceber = QStringLiteral("pcontareceber");
inline const QString compromisso = QStringLiteral("compromisso");
inline const QString login = QStringLiteral("login");
inline const QString login_inicia = QStringLiteral("login_inicia");
inline const QString fpagamento = QStringLiteral("fpagamento");
inline const QString campos_etiqueta = QStringLiteral("CamposEtiqueta");
} // namespace tabela

namespace coluna {
inline const QString codigo = QStringLiteral("código");
inline const QString codigo_login = QStringLiteral("codigo");
inline const QString estatus = QStringLiteral("estatus");
inline const QString origem = QStringLiteral("origem");
inline const QString destino = QStringLiteral("destino");
inline const QString fornecedor = QStringLiteral("fornecedor");
inline const QString cliente = QStringLiteral("cliente");
inline const QString data = QStringLiteral("data");
inline const QString descricao = QStringLiteral("descricao");
inline const QString documento = QStringLiteral("documento");
inline const QString informacoes = QStringLiteral("informacoes");
inline const QString valor = QStringLiteral("Valor");
inline const QString vencimento = QStringLiteral("vencimento");
inline const QString moeda = QStringLiteral("moeda");
inline const QString pagamento = QStringLiteral("pagamento");
inline const QString movimento = QStringLiteral("movimento");
inline const QString banco = QStringLiteral("banco");
inline const QString saldo = QStringLiteral("saldo");
inline const QString nome = QStringLiteral("nome");
inline const QString senha = QStringLiteral("senha");
inline const QString exigirlogin = QStringLiteral("exigirlogin");
inline const QString hora = QStringLiteral("hora");
inline const QString titulo = QStringLiteral("Titulo");
inline const QString local = QStringLiteral("local");
// The program's own: the bank's id of an imported statement line (bancario).
inline const QString id_extrato = QStringLiteral("id_extrato");
} // namespace coluna

namespace palavra {
inline const QString pendente = QStringLiteral("Pendente");
inline const QString concluido = QStringLiteral("Concluído");
inline const QString deposito = QStringLiteral("Depósito");
inline const QString retirada = QStringLiteral("Retirada");
inline const QString transferencia = QStringLiteral("Transferência entre contas");
inline const QString sem_origem = QStringLiteral("-");
inline const QString sem_destino = QStringLiteral(" - ");
} // namespace palavra

} // namespace store
