#pragma once
// Copies of the data file: the backup to a place the user chooses, the restore of such a copy.
// Every copy goes through a temporary file beside its destination that is renamed over it at the
// end, so a copy that fails or is cut short leaves the destination as it was.

#include <QString>

#include <functional>
#include <stdexcept>

namespace shell {

// A copy that failed; what() is the description the "Erro" box shows.
struct copy_error : std::runtime_error {
    using std::runtime_error::runtime_error;
    QString description() const { return QString::fromUtf8(what()); }
};

using copy_progress = std::function<void(qint64 done, qint64 total)>;

// Throws copy_error. Copying a file onto itself is refused, as the system's copy refused it.
void copiar_arquivo(const QString& origem, const QString& destino, const copy_progress& progresso = {});

// The data file in the program's folder: the one a backup saves (also in network mode) and a
// restore replaces.
QString arquivo_local();
// Where a restore keeps the file it replaced, so that restoring the wrong file loses nothing.
QString arquivo_anterior();

// Both close the connection first and throw copy_error; the caller connects again.
void realizar_backup(const QString& destino, const copy_progress& progresso = {});
void restaurar_backup(const QString& origem, const copy_progress& progresso = {});

} // namespace shell
