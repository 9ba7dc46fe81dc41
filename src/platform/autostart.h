#pragma once
// The one registry entry of the program, the run-at-start value, kept on this desktop as an
// autostart file ($XDG_CONFIG_HOME/autostart/<name>.desktop).

#include <QString>

#include <cstdint>

namespace platform {

enum registry_root : std::uint32_t {
    no_root = 0,
    hkey_classes_root = 0x80000000u,
    hkey_current_user = 0x80000001u,
    hkey_local_machine = 0x80000002u,
    hkey_users = 0x80000003u,
    hkey_performance_data = 0x80000004u,
    hkey_current_config = 0x80000005u,
    hkey_dyn_data = 0x80000006u,
};

inline const QString run_key =
    QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\MICROSOFT\\WINDOWS\\CURRENTVERSION\\RUN");

std::uint32_t raizregistro(const QString& nome);
// Splits at the first "\"; a path not starting with "HKEY_" or ending in "\" shows
// "Incorrect Format:" and returns false.
bool dividirchave(const QString& caminho, std::uint32_t& raiz, QString& subchave);
// Sets a text value; on this desktop only the run entry has a home. An empty value means
// "off": the entry is rewritten, not removed.
void gravarregistro(const QString& caminho, const QString& nome, const QString& valor);

QString autostart_file(const QString& nome);

} // namespace platform
