#pragma once
#include <QString>

namespace store {

// The folder of the program, where the data file, the layout files, dicas.txt and fundo.gif live.
QString program_dir();
void set_program_dir(const QString& dir); // empty: the executable's folder again
// A name in the old form ("\pagar.ini") inside the program's folder.
QString program_path(const QString& name);

} // namespace store
