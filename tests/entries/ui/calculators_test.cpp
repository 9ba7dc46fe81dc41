// The interest calculators: the readings of their fields, the currency type and its limits, the
// instalment table, and the two windows' messages.

#include "entries/juros.h"
#include "entries/ui/frmjurosdesconto.h"
#include "entries/ui/frmjurosparcelado.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/list_view.h"
#include "shell/principal_api.h"
#include "support/fixture.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <tuple>

using namespace Qt::Literals::StringLiterals;

namespace {

using entries::calcular_juros_desconto;
using entries::calcular_parcelas;

const QDate hoje(2026, 11, 23);

TEST(juros_desconto, amounts_read_by_their_leading_number_and_the_currency_limits) {
    // total, rate, interest or discount, txtresultado, txtnovovalor ("" where the step overflowed)
    const std::tuple<const char*, const char*, bool, const char*, const char*> rows[] = {
        {"1000", "10", true, "R$ 100,00", "R$ 1.100,00"},
        {"1000", "10", false, "R$ 100,00", "R$ 900,00"},
        {"1.234,56", "10", true, "R$ 0,12", "R$ 1,36"},  // "1.234,56" reads 1.234
        {"100,50", "10", true, "R$ 10,00", "R$ 110,00"}, // "100,50" reads 100
        {"100", "150", false, "R$ 150,00", "R$ -50,00"}, // a discount above the amount: no warning
        {"abc", "x1", true, "R$ 0,00", "R$ 0,00"},
        {"250", "2.5", true, "R$ 6,25", "R$ 256,25"},
        {"1e300", "10", true, "", ""},                                 // the amount itself
        {"900000000000000", "2", true, "", ""},                        // amount times rate
        {"922337203685477", "1", true, "R$ 9.223.372.036.854,77", ""}, // the new amount
    };
    for (const auto& [total, taxa, juros, resultado, novo] : rows) {
        const auto r = calcular_juros_desconto(QString::fromUtf8(total), QString::fromUtf8(taxa), juros);
        EXPECT_EQ(r.erro, !*novo) << total;
        EXPECT_EQ(r.resultado.value_or(QString()), QString::fromUtf8(resultado)) << total;
        EXPECT_EQ(r.novovalor.value_or(QString()), QString::fromUtf8(novo)) << total;
    }
}

TEST(juros_parcelado, instalments_and_counts_below_one) {
    // amount, count, days, fixed interest, rows, interest, total
    const std::tuple<const char*, const char*, const char*, bool, const char*, const char*, const char*>
        rows[] = {
            {"1000", "3", "30", false,
             "1ª 23/12/2026 R$ 433,3333|2ª 22/01/2027 R$ 433,3333|3ª 21/02/2027 R$ 433,3333", "300", "1300"},
            {"1000", "2", "30", true, "1ª 23/12/2026 R$ 550|2ª 22/01/2027 R$ 550", "100", "1100"},
            // "1.000,50" reads 1; half a day shows the time
            {"1.000,50", "2", "0.5", true, "1ª 23/11/2026 12:00:00 R$ 0,55|2ª 24/11/2026 R$ 0,55", "0,1",
             "1,1"},
            // below one: no rows, no division, the totals all the same
            {"1000", "0", "30", true, "", "100", "1100"},
            {"1000", "0,9", "30", true, "", "100", "1100"},
            {"1000", "-2", "30", false, "", "-200", "800"},
        };
    for (const auto& [valor, n, dias, fixo, linhas, juros, total] : rows) {
        const auto r = calcular_parcelas(QString::fromUtf8(valor), QString::fromUtf8(n),
                                         QString::fromUtf8(dias), hoje, u"10"_s, fixo);
        QStringList feitas;
        for (const auto& p : r.parcelas)
            feitas << p.numero + u" "_s + p.vencimento + u" "_s + p.valor;
        EXPECT_FALSE(r.erro);
        EXPECT_EQ(feitas.join(u"|"_s), QString::fromUtf8(linhas)) << valor << " " << n;
        EXPECT_EQ(r.valorjuros, QString::fromUtf8(juros));
        EXPECT_EQ(r.totaljuros, QString::fromUtf8(total));
    }
}

TEST(juros_parcelado, every_failure_is_the_date_message) {
    struct row {
        const char *valor, *parcelas, *dias;
        QDate data;
        bool limpa;
        std::size_t linhas;
    };
    const row rows[] = {
        {"1000", "3", "30", QDate(), false, 0},  // no date: not even the list changes
        {"1000", "99999", "30", hoje, true, 0},  // a count the 16-bit counter cannot reach
        {"1e300", "2", "30", hoje, true, 0},     // an instalment past the currency
        {"1000", "3", "1000000", hoje, true, 2}, // a due date past 9999: the rows before it stay
    };
    for (const row& w : rows) {
        SCOPED_TRACE(w.parcelas);
        const auto r = calcular_parcelas(QString::fromUtf8(w.valor), QString::fromUtf8(w.parcelas),
                                         QString::fromUtf8(w.dias), w.data, u"10"_s, true);
        EXPECT_TRUE(r.erro);
        EXPECT_EQ(r.limpa, w.limpa);
        EXPECT_EQ(r.parcelas.size(), w.linhas);
        EXPECT_FALSE(r.totaljuros);
    }
}

class calculators : public support::fixture {
protected:
    void TearDown() override {
        delete frmjurosdesconto::instance();
        delete frmjurosparcelado::instance();
        support::fixture::TearDown();
    }
};

TEST_F(calculators, the_windows_from_the_menu_relabel_fill_and_warn) {
    ASSERT_TRUE(shell::run_action(u"mnujurosdesc"_s));
    frmjurosdesconto* d = frmjurosdesconto::instance();
    EXPECT_EQ(d->cboorigem->currentText() + d->lbltipo->text(), u"JurosJuros:"_s);
    d->cboorigem->setCurrentIndex(1);
    d->cboorigem_click();
    EXPECT_EQ(d->lbltipo->text() + d->lblporcentagem->text(), u"Desconto:Total de desconto:"_s);
    d->txttotal->setText(u"1000"_s);
    d->txtporcentagem->setText(u"10"_s);
    d->cmdcalcular->click();
    EXPECT_EQ(d->txtnovovalor->text(), u"R$ 900,00"_s);
    d->txttotal->setText(u"99999999999999999999"_s);
    d->cmdcalcular->click();
    EXPECT_EQ(d->txtresultado->text(), u"R$ 100,00"_s); // left as it was

    ASSERT_TRUE(shell::run_action(u"mnujurosparcelas"_s));
    frmjurosparcelado* f = frmjurosparcelado::instance();
    EXPECT_TRUE(f->optfixo->isChecked());
    f->txtvalor->setText(u"1000"_s);
    f->txtparcelas->setText(u"3"_s);
    f->txtdias->setText(u"30"_s);
    f->txtjurosmes->setText(u"10"_s);
    f->txtdata->set_text(u"23/11/2026"_s);
    f->optmes->setChecked(true);
    f->cmdcalcular->click();
    ASSERT_EQ(f->lstmeses->row_count(), 3);
    EXPECT_EQ(f->lstmeses->text(2, 0) + f->lstmeses->text(2, 1) + f->lstmeses->text(2, 2),
              u"3ª21/02/2027R$ 433,3333"_s);
    EXPECT_EQ(f->txtvalorjuros->text() + u"|"_s + f->txttotaljuros->text(), u"300|1300"_s);
    // a date that does not exist: the message, the list as it was
    f->txtdata->set_text(u"31/02/2027"_s);
    f->cmdcalcular->click();
    EXPECT_EQ(f->lstmeses->row_count(), 3);

    QStringList caixas;
    for (const auto& b : prompts_.boxes())
        caixas << b.title + u": "_s + b.text + (b.style == platform::exclamation ? u" (!)"_s : u""_s);
    EXPECT_EQ(caixas, QStringList({u"Erro: Valores muito altos para serem calculados! (!)"_s,
                                   u"Erro: A data digitada é invalida! (!)"_s}));
}

} // namespace
