#pragma once
// The chooser that adds one name at a time to a list of another window (the integrated report's
// filters): what the caller asks of it, the names it offers, and the way the caller reaches it.

#include <QString>
#include <QStringList>

#include <functional>

namespace registers {

struct pedido_lista {
    QString caption;  // the chooser's caption
    QString titulo;   // its lbltitulo
    QString consulta; // the statement of the names
    QString campo;    // the field read from each row
    QString tipo;     // the word that tells the caller's list
    // Runs on cmdadicionar with the tipo and the text of the box.
    std::function<void(const QString& tipo, const QString& texto)> adicionar;
};

// The field of every row of the statement, read-only through conectarbanco. Throws sql::error.
QStringList ler_lista(const QString& consulta, const QString& campo);

// The window that serves a request, set when it is registered. abrir_lista is false when none is;
// an error of its loading reaches the caller.
void set_abridor_lista(std::function<void(const pedido_lista&)> abridor);
bool abrir_lista(const pedido_lista& pedido);

} // namespace registers
