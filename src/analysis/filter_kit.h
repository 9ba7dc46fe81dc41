#pragma once
// The pieces of the filter panels (a check box per criterion, the control beside it), on the side
// of the statement: the word a criterion gives, the LIKE fragment that wraps it in '%…%', the
// date-range clause with the joiner that follows it, the check of the two dates, and the values
// that fill a pick list from a statement. Windows gather the controls' state; the widget half is
// platform/widgets/filter_panel.h.

#include <QDate>
#include <QString>
#include <QStringList>

#include <optional>

namespace analysis {

// The word of a criterion: the control's text while its check box is ticked, empty otherwise.
inline QString palavra_criterio(bool marcado, const QString& texto) {
    return marcado ? texto : QString();
}
// "<coluna> like('%<palavra>%')": an empty word gives '%%', which matches any text but not an
// empty column (NULL). The word goes in through the one helper for values, so an apostrophe makes
// the statement fail rather than change its shape.
QString like_contem(const QString& coluna, const QString& palavra, bool espaco_antes_do_parentese = false);

// The date criterion: "WHERE Data BETWEEN 'yyyy/mm/dd' AND 'yyyy/mm/dd' " and the joiner " AND ",
// or, unticked, nothing and the joiner " WHERE ".
struct clausula_datas {
    QString clausula;
    QString juncao;
};
// nullopt when the box is ticked and either date is missing (the caller shows its message).
std::optional<clausula_datas> clausula_entre_datas(bool marcado, const QDate& inicio, const QDate& fim,
                                                   const QString& coluna = QStringLiteral("Data"));
// The message of a ticked date criterion with a date missing (title "Erro", exclamation).
inline const QString msg_datas_grafico =
    QStringLiteral("Selecione as que deseja filtrar(data de inicio e data final).");

// The texts of one column of a statement's rows, in the order read, for a pick list. Connects
// first; a statement that fails gives what was read before the failure (usually nothing).
QStringList valores_da_consulta(const QString& consulta, const QString& coluna);

} // namespace analysis
