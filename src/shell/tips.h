#pragma once
// The tip of the day without its window: the tips file, the choice of a tip, the text shown when
// the file is missing.

#include "platform/random.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace shell {

// The key, in the lower-case section "configuracoes", that shows the tip at start ("1") or not.
inline const QString chave_dica = QStringLiteral("Exibir dica do dia");

// "dicas.txt" in the program's folder.
QString tips_file();

// LoadTips without the window: nullopt for an empty name or a file that does not exist (a folder
// does not count as a file); otherwise every line of the file, empty ones included, in order.
// A file that exists but cannot be read gives no lines.
std::optional<QStringList> read_tips(const QString& arquivo);

// The 1-based index of the next tip: the integer part of count times a random number, plus 1.
// The number comes from rnd, or from the program's source when rnd is empty. A source that
// strays out of [0, 1) is held inside the collection.
int pick_tip(int count, const platform::random_source& rnd = {});

// What lblTipText shows when the tips file cannot be found.
QString missing_tips_text(const QString& arquivo);

} // namespace shell
