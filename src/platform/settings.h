#pragma once
// The per-user settings store: application, section, key, text value. Sections and keys are
// found without regard to case; every read goes to the file, so nothing is cached.
// The file is $XDG_CONFIG_HOME/<application>/<application>.ini.

#include "platform/ini_document.h"

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

// A profile file read once for many keys in a row, and written back once: what lerini and
// gravarini do key by key, at the cost of one pass over the file however many keys there are.
class profile_file {
public:
    explicit profile_file(const QString& arquivo);
    QString lerini(const QString& secao, const QString& chave, const QString& padrao) const;
    void gravarini(const QString& secao, const QString& chave, const QString& valor);
    // Writes the file when a key changed; a failed write is silent, as gravarini's is.
    void gravar();

private:
    QString arquivo_;
    ini_document doc_;
    bool mudou_ = false;
};

} // namespace platform
