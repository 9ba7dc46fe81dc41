#include "platform/autostart.h"

#include "platform/prompts.h"
#include "platform/settings.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace platform {

std::uint32_t raizregistro(const QString& nome) {
    static const struct {
        const char* name;
        std::uint32_t root;
    } roots[] = {{"HKEY_CLASSES_ROOT", hkey_classes_root},
                 {"HKEY_CURRENT_USER", hkey_current_user},
                 {"HKEY_LOCAL_MACHINE", hkey_local_machine},
                 {"HKEY_USERS", hkey_users},
                 {"HKEY_PERFORMANCE_DATA", hkey_performance_data},
                 {"HKEY_CURRENT_CONFIG", hkey_current_config},
                 {"HKEY_DYN_DATA", hkey_dyn_data}};
    for (const auto& r : roots)
        if (nome.compare(QLatin1String(r.name), Qt::CaseInsensitive) == 0) return r.root;
    return no_root;
}

bool dividirchave(const QString& caminho, std::uint32_t& raiz, QString& subchave) {
    if (!caminho.toUpper().startsWith(QLatin1String("HKEY_")) || caminho.endsWith(QLatin1Char('\\'))) {
        msgbox(QStringLiteral("Incorrect Format:\n\n") + caminho);
        return false;
    }
    const qsizetype sep = caminho.indexOf(QLatin1Char('\\'));
    if (sep < 0) {
        raiz = raizregistro(caminho);
        subchave.clear();
    } else {
        raiz = raizregistro(caminho.left(sep));
        subchave = caminho.mid(sep + 1);
    }
    return true;
}

QString autostart_file(const QString& nome) {
    return config_root() + QStringLiteral("/autostart/") + nome + QStringLiteral(".desktop");
}

void gravarregistro(const QString& caminho, const QString& nome, const QString& valor) {
    std::uint32_t raiz = no_root;
    QString sub;
    if (!dividirchave(caminho, raiz, sub)) return;
    const bool run_entry = (raiz == hkey_local_machine || raiz == hkey_current_user) &&
                           sub.compare(QStringLiteral("SOFTWARE\\MICROSOFT\\WINDOWS\\CURRENTVERSION\\RUN"),
                                       Qt::CaseInsensitive) == 0;
    if (!run_entry) return; // no other key has a place here
    const QString path = autostart_file(nome);
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile f(path);
    if (!f.open(QIODevice::WriteOnly)) return; // silent, as a refused registry write was
    QString exec = valor;
    if (exec.contains(QLatin1Char(' '))) exec = QLatin1Char('"') + exec + QLatin1Char('"');
    const bool on = !valor.isEmpty();
    const QString text = QStringLiteral("[Desktop Entry]\nType=Application\nName=%1\nExec=%2\nHidden=%3\n"
                                        "X-GNOME-Autostart-enabled=%4\n")
                             .arg(nome, exec, on ? QStringLiteral("false") : QStringLiteral("true"),
                                  on ? QStringLiteral("true") : QStringLiteral("false"));
    f.write(text.toUtf8());
    f.commit();
}

} // namespace platform
