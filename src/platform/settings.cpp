#include "platform/settings.h"

#include "platform/ini_document.h"

#include <QDir>
#include <QStandardPaths>

namespace platform {

namespace {
QString root_override;
}

void set_settings_root(const QString& dir) {
    root_override = dir;
}

QString config_root() {
    if (!root_override.isEmpty()) return root_override;
    QString base = qEnvironmentVariable("XDG_CONFIG_HOME");
    if (base.isEmpty()) base = QDir::homePath() + QStringLiteral("/.config");
    return base;
}

QString settings_file(const QString& app) {
    return config_root() + QLatin1Char('/') + app + QLatin1Char('/') + app + QStringLiteral(".ini");
}

QString get_setting(const QString& app, const QString& section, const QString& key, const QString& fallback) {
    return read_ini(settings_file(app), true).get(section, key).value_or(fallback);
}

void save_setting(const QString& app, const QString& section, const QString& key, const QString& value) {
    const QString path = settings_file(app);
    ini_document doc = read_ini(path, true);
    doc.set(section, key, value);
    write_ini(path, doc); // a settings write never fails visibly
}

profile_file::profile_file(const QString& arquivo) : arquivo_(arquivo), doc_(read_ini(arquivo, false)) {}

QString profile_file::lerini(const QString& secao, const QString& chave, const QString& padrao) const {
    return doc_.get(secao, chave).value_or(padrao).left(254);
}

void profile_file::gravarini(const QString& secao, const QString& chave, const QString& valor) {
    QString v = valor;
    v.replace(QLatin1Char('\n'), QLatin1Char(' ')).replace(QLatin1Char('\r'), QLatin1Char(' '));
    doc_.set(secao, chave, v);
    mudou_ = true;
}

void profile_file::gravar() {
    if (mudou_) write_ini(arquivo_, doc_);
    mudou_ = false;
}

QString lerini(const QString& secao, const QString& chave, const QString& padrao, const QString& arquivo) {
    return profile_file(arquivo).lerini(secao, chave, padrao);
}

void gravarini(const QString& secao, const QString& chave, const QString& valor, const QString& arquivo) {
    profile_file f(arquivo);
    f.gravarini(secao, chave, valor);
    f.gravar();
}

} // namespace platform
