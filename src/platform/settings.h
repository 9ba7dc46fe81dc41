#pragma once
// The per-user settings store: application, section, key, text value. Sections and keys are
// found without regard to case; every read goes to the file, so nothing is cached.
// The file is $XDG_CONFIG_HOME/<application>/<application>.ini.

#include <QString>

namespace platform {

QString get_setting(const QString& app, const QString& section, const QString& key, const QString& fallback);
void save_setting(const QString& app, const QString& section, const QString& key, const QString& value);

QString settings_file(const QString& app);
// Where the settings files live; empty restores the user's configuration folder (tests).
void set_settings_root(const QString& dir);
QString config_root();

// The old profile files: section and key found without regard to case, values cut at 254
// characters as the fixed buffer of 255 did.
QString lerini(const QString& secao, const QString& chave, const QString& padrao, const QString& arquivo);
void gravarini(const QString& secao, const QString& chave, const QString& valor, const QString& arquivo);

} // namespace platform
