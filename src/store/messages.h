#pragma once
// The texts of failures that windows of several subsystems show alike.

#include "platform/errors.h"

#include <QString>

#include <exception>

namespace store {

// "Ocorreu o seguinte erro ao tentar cadastrar os dados: " and the failure's description: the
// "Erro" box of every window that writes a row.
inline QString save_error_message(const QString& description) {
    return QStringLiteral("Ocorreu o seguinte erro ao tentar cadastrar os dados: ") + description;
}
inline QString save_error_message(const std::exception& e) {
    return save_error_message(platform::error_text(e));
}

} // namespace store
