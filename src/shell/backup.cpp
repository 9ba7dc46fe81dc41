#include "shell/backup.h"

#include "store/conexao.h"
#include "store/program_dir.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <filesystem>
#include <system_error>

using namespace Qt::Literals::StringLiterals;

namespace shell {

namespace {

[[noreturn]] void falha(const QString& texto) {
    throw copy_error(texto.toStdString());
}

// Why a file could not be opened or written, in the words of the program.
[[noreturn]] void falha_destino(const QString& destino, QFileDevice::FileError erro) {
    const QFileInfo fi(destino);
    const QFileInfo pasta(fi.absolutePath());
    if (!pasta.exists()) falha(u"Caminho não encontrado: "_s + QDir::toNativeSeparators(fi.absolutePath()));
    if (erro == QFileDevice::OpenError || erro == QFileDevice::PermissionsError ||
        !QFileInfo(pasta.absoluteFilePath()).isWritable() || (fi.exists() && !fi.isWritable()))
        falha(u"Permissão negada: "_s + QDir::toNativeSeparators(destino));
    falha(u"Erro ao gravar o arquivo (disco cheio?): "_s + QDir::toNativeSeparators(destino));
}

} // namespace

void copiar_arquivo(const QString& origem, const QString& destino, const copy_progress& progresso) {
    const QFileInfo oi(origem);
    if (!oi.isFile()) falha(u"Arquivo não encontrado: "_s + QDir::toNativeSeparators(origem));
    const QFileInfo di(destino);
    if (di.exists() && oi.canonicalFilePath() == di.canonicalFilePath())
        falha(u"Permissão negada: o arquivo de origem e o de destino são o mesmo ("_s +
              QDir::toNativeSeparators(destino) + u")"_s);
    if (di.isDir()) falha(u"Permissão negada: "_s + QDir::toNativeSeparators(destino) + u" é uma pasta"_s);

    QFile in(origem);
    if (!in.open(QIODevice::ReadOnly)) falha(u"Permissão negada: "_s + QDir::toNativeSeparators(origem));
    QSaveFile out(destino);
    out.setDirectWriteFallback(false); // never write over the destination in place
    if (!out.open(QIODevice::WriteOnly)) falha_destino(destino, out.error());

    const qint64 total = in.size();
    qint64 feito = 0;
    QByteArray bloco(1 << 20, Qt::Uninitialized);
    for (;;) {
        const qint64 n = in.read(bloco.data(), bloco.size());
        if (n < 0) falha(u"Erro ao ler o arquivo: "_s + QDir::toNativeSeparators(origem));
        if (n == 0) break;
        if (out.write(bloco.constData(), n) != n) falha_destino(destino, out.error());
        feito += n;
        if (progresso) progresso(feito, total);
    }
    if (!out.commit()) falha_destino(destino, out.error());
}

QString arquivo_local() {
    return store::program_path(u"/dados.qntbd"_s);
}

QString arquivo_anterior() {
    return store::program_path(u"/dados.qntbd.anterior"_s);
}

void realizar_backup(const QString& destino, const copy_progress& progresso) {
    store::fecharconexao();
    copiar_arquivo(arquivo_local(), destino, progresso);
}

void restaurar_backup(const QString& origem, const copy_progress& progresso) {
    store::fecharconexao();
    const QString local = arquivo_local();
    if (QFileInfo(origem).exists() && QFileInfo(local).exists() &&
        QFileInfo(origem).canonicalFilePath() == QFileInfo(local).canonicalFilePath())
        return; // the file is already where it goes
    // the chosen file is staged first: it may be the very file that keeps the one it replaces
    const QString preparado = store::program_path(u"/dados.qntbd.restaurando"_s);
    copiar_arquivo(origem, preparado, progresso);
    if (QFileInfo::exists(local)) copiar_arquivo(local, arquivo_anterior());
    std::error_code erro;
    std::filesystem::rename(QFile::encodeName(preparado).toStdString(),
                            QFile::encodeName(local).toStdString(), erro);
    if (erro) {
        QFile::remove(preparado);
        falha_destino(local, QFileDevice::RenameError);
    }
}

} // namespace shell
