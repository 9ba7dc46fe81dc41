#pragma once
// The one way to the data file. Each action calls conectarbanco first and then works on conexao.

#include "platform/sql/connection.h"
#include "platform/sql/recordset.h"
#include "store/names.h"

#include <QString>

namespace store {

extern sql::connection_ptr conexao;
extern qint16 tentativasconexao;

// Where the data file is: the program's folder, or the full path of the network setting.
QString caminho_dados(const QString& arquivo);

// Opens conexao; on failure retries (21 attempts, 800 ms apart), shows the critical message,
// turns network mode off and returns with conexao null.
void conectarbanco(const QString& arquivo, const QString& senha);
inline void conectarbanco() {
    conectarbanco(arquivo_dados, senha_dados);
}

// Adds the columns of the program's own to a file made before them (bancario.id_extrato), on
// conexao. Only the statement import needs them, and only it calls this: every other path leaves
// an older file as it is, byte for byte. Compiling a statement that names the column is the test,
// so it costs next to nothing once the column is there; a file that cannot take it (read-only)
// is left alone, and the import's own statements then fail with the engine's message.
void colunas_proprias();

// Closes conexao (the few callers that close it after their work).
void fecharconexao();

} // namespace store
