#pragma once
// Counting and summing rows by their status word, the way every summary of the ledgers does it.
// Three ways to class a row and three ways to sum its amount:
//   classes::exato       "Pendente" exactly is pending, every other word is settled (lists,
//                        per-contact statistics, cash flow, per-month views)
//   classes::tres_vias   case-blind "pendente" / "concluído"; any other word counts in neither
//                        class, only in the total (charts and statistics)
//   classes::minusculas  the lower-cased word "pendente" is pending, every other word settled
//                        (the comparisons of months and years)
//   soma::moeda  each amount through "##,##0.00" (to the cent), summed in the currency type
//   soma::dupla  each amount through "##,##0.00", summed as doubles
//   soma::bruta  each amount as read, summed as doubles
// An amount that is no number is skipped, as the old sums skipped a failing addition; the row
// still counts.

#include "platform/text/vb_text.h"

#include <QString>

#include <optional>

namespace analysis {

enum class classes { exato, tres_vias, minusculas };
enum class soma { moeda, dupla, bruta };
enum class classe { pendente, concluido, outro };

classe classificar(const QString& estatus, classes modo);

// A stored amount through "##,##0.00" and read back: rounded to the cent, half away from zero.
// nullopt for text that is no amount.
std::optional<vb::currency> valor_formatado(const QString& stored);
// The text of that format ("1.234,50"), or the stored text itself when it is no amount.
QString texto_valor(const QString& stored);

class status_tally {
public:
    explicit status_tally(classes c = classes::exato, soma s = soma::moeda) : classes_(c), soma_(s) {}

    // One row: classes it, counts it and adds its amount. Returns the class.
    classe add(const QString& estatus, const QString& valor);
    // The same with the amount already read through the format (nullopt: not summed).
    classe add(const QString& estatus, const std::optional<vb::currency>& formatado, const QString& valor);

    long n() const { return n_total_; }
    long n(classe c) const { return parte(c).n; }
    // Sums as numbers, and as "##,##0.00" text.
    double total() const { return valor(total_); }
    double soma_de(classe c) const { return valor(parte(c)); }
    QString texto_total() const { return texto(total_); }
    QString texto(classe c) const { return texto(parte(c)); }
    // In the currency type (soma::moeda only; zero otherwise).
    vb::currency moeda_total() const { return total_.moeda; }
    vb::currency moeda(classe c) const { return parte(c).moeda; }

private:
    struct parcela {
        long n = 0;
        vb::currency moeda;
        double dupla = 0;
    };
    const parcela& parte(classe c) const {
        return c == classe::pendente ? pendente_ : c == classe::concluido ? concluido_ : outro_;
    }
    parcela& parte(classe c) { return const_cast<parcela&>(std::as_const(*this).parte(c)); }
    double valor(const parcela& p) const { return soma_ == soma::moeda ? p.moeda.to_double() : p.dupla; }
    QString texto(const parcela& p) const;
    void somar(parcela& p, const std::optional<vb::currency>& formatado, const QString& valor);

    classes classes_;
    soma soma_;
    long n_total_ = 0;
    parcela total_, pendente_, concluido_, outro_;
};

} // namespace analysis
