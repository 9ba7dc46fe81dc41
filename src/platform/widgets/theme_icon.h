#pragma once
// An icon of the desktop's icon theme by its name, or the program's own picture of the same name
// where the theme has none (or the desktop has no theme).

#include <QIcon>
#include <QString>

QIcon theme_icon(const QString& name);

// The program's own picture alone (what theme_icon falls back to); null for an unknown name.
QIcon own_icon(const QString& name);
