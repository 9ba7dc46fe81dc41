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

using namespace Qt::Literals::StringLiterals;

namespace {

using entries::calcular_juros_desconto;
using entries::calcular_parcelas;

const QDate hoje(2026, 11, 23);

QStringList rows_of(const entries::parcelamento& r) {
    QStringList out;
    for (const auto& p : r.parcelas)
        out << p.numero + u" "_s + p.vencimento + u" "_s + p.valor;
    return out;
}

TEST(juros_desconto, amounts_read_by_their_leading_number) {
    struct row {
        const char* total;
        const char* taxa;
        bool juros;
        const char* resultado;
        const char* novo;
    };
    const row rows[] = {
        {"1000", "10", true, "R$ 100,00", "R$ 1.100,00"},
        {"1000", "10", false, "R$ 100,00", "R$ 900,00"},
        // "1.234,56" reads 1.234, "100,50" reads 100
        {"1.234,56", "10", true, "R$ 0,12", "R$ 1,36"},
        {"100,50", "10", true, "R$ 10,00", "R$ 110,00"},
        // a discount above the amount: a negative amount and no warning
        {"100", "150", false, "R$ 150,00", "R$ -50,00"},
        {"abc", "x1", true, "R$ 0,00", "R$ 0,00"},
        {"250", "2.5", true, "R$ 6,25", "R$ 256,25"},
    };
    for (const row& r : rows) {
        SCOPED_TRACE(r.total);
        const auto out =
            calcular_juros_desconto(QString::fromUtf8(r.total), QString::fromUtf8(r.taxa), r.juros);
        EXPECT_FALSE(out.erro);
        EXPECT_EQ(out.resultado, QString::fromUtf8(r.resultado));
        EXPECT_EQ(out.novovalor, QString::fromUtf8(r.novo));
    }
}

TEST(juros_desconto, amounts_past_the_currency_stop_where_they_overflow) {
    // the amount itself
    auto r = calcular_juros_desconto(u"1e300"_s, u"10"_s, true);
    EXPECT_TRUE(r.erro);
    EXPECT_FALSE(r.resultado);
    // amount times rate
    r = calcular_juros_desconto(u"900000000000000"_s, u"2"_s, true);
    EXPECT_TRUE(r.erro);
    EXPECT_FALSE(r.resultado);
    // the interest fits, the new amount does not: the first field is already written
    r = calcular_juros_desconto(u"922337203685477"_s, u"1"_s, true);
    EXPECT_TRUE(r.erro);
    EXPECT_EQ(r.resultado, u"R$ 9.223.372.036.854,77"_s);
    EXPECT_FALSE(r.novovalor);
}

TEST(juros_parcelado, instalments_of_the_two_kinds_of_interest) {
    auto r = calcular_parcelas(u"1000"_s, u"3"_s, u"30"_s, hoje, u"10"_s, false);
    ASSERT_FALSE(r.erro);
    EXPECT_EQ(rows_of(r), QStringList({u"1ª 23/12/2026 R$ 433,3333"_s, u"2ª 22/01/2027 R$ 433,3333"_s,
                                       u"3ª 21/02/2027 R$ 433,3333"_s}));
    EXPECT_EQ(r.valorjuros, u"300"_s);
    EXPECT_EQ(r.totaljuros, u"1300"_s);

    r = calcular_parcelas(u"1000"_s, u"3"_s, u"30"_s, hoje, u"10"_s, true);
    EXPECT_EQ(r.parcelas.front().valor, u"R$ 366,6667"_s);
    EXPECT_EQ(r.valorjuros, u"100"_s);
    EXPECT_EQ(r.totaljuros, u"1100"_s);

    // "1.000,50" reads 1; half a day shows the time
    r = calcular_parcelas(u"1.000,50"_s, u"2"_s, u"0.5"_s, hoje, u"0"_s, true);
    EXPECT_EQ(rows_of(r), QStringList({u"1ª 23/11/2026 12:00:00 R$ 0,5"_s, u"2ª 24/11/2026 R$ 0,5"_s}));
}

TEST(juros_parcelado, counts_below_one_fill_no_rows_but_the_totals) {
    for (const char* n : {"0", "-2", "0,9", "abc"}) {
        SCOPED_TRACE(n);
        const auto r = calcular_parcelas(u"1000"_s, QString::fromUtf8(n), u"30"_s, hoje, u"10"_s, true);
        EXPECT_FALSE(r.erro);
        EXPECT_TRUE(r.limpa);
        EXPECT_TRUE(r.parcelas.empty());
        EXPECT_EQ(r.totaljuros, u"1100"_s);
    }
    // monthly interest grows with the count, also a negative one
    const auto r = calcular_parcelas(u"1000"_s, u"-2"_s, u"30"_s, hoje, u"10"_s, false);
    EXPECT_EQ(r.valorjuros, u"-200"_s);
    EXPECT_EQ(r.totaljuros, u"800"_s);
}

TEST(juros_parcelado, every_failure_is_the_date_message) {
    // no date: nothing changes, not even the list
    auto r = calcular_parcelas(u"1000"_s, u"3"_s, u"30"_s, QDate(), u"10"_s, true);
    EXPECT_TRUE(r.erro);
    EXPECT_FALSE(r.limpa);
    // a count the 16-bit counter cannot reach
    r = calcular_parcelas(u"1000"_s, u"99999"_s, u"30"_s, hoje, u"10"_s, true);
    EXPECT_TRUE(r.erro);
    EXPECT_TRUE(r.limpa);
    EXPECT_TRUE(r.parcelas.empty());
    EXPECT_FALSE(r.totaljuros);
    // an instalment past the currency
    r = calcular_parcelas(u"1e300"_s, u"2"_s, u"30"_s, hoje, u"10"_s, true);
    EXPECT_TRUE(r.erro);
    EXPECT_TRUE(r.parcelas.empty());
    // a due date past the year 9999: the rows before it stay
    r = calcular_parcelas(u"1000"_s, u"3"_s, u"1000000"_s, hoje, u"10"_s, true);
    EXPECT_TRUE(r.erro);
    EXPECT_EQ(r.parcelas.size(), 2u);
    EXPECT_FALSE(r.totaljuros);
}

class calculators : public support::fixture {
protected:
    void TearDown() override {
        delete frmjurosdesconto::instance();
        delete frmjurosparcelado::instance();
        support::fixture::TearDown();
    }
};

TEST_F(calculators, the_discount_window_relabels_and_warns_of_overflow) {
    ASSERT_TRUE(shell::run_action(u"mnujurosdesc"_s));
    frmjurosdesconto* f = frmjurosdesconto::instance();
    EXPECT_TRUE(f->isVisible());
    EXPECT_EQ(f->windowTitle(), u"Calculo de juros e descontos"_s);
    EXPECT_EQ(f->cboorigem->currentText(), u"Juros"_s);
    f->cboorigem->setCurrentIndex(1);
    f->cboorigem_click();
    EXPECT_EQ(f->lbltipo->text(), u"Desconto:"_s);
    EXPECT_EQ(f->lblporcentagem->text(), u"Total de desconto:"_s);
    f->txttotal->setText(u"1000"_s);
    f->txtporcentagem->setText(u"10"_s);
    f->cmdcalcular->click();
    EXPECT_EQ(f->txtresultado->text(), u"R$ 100,00"_s);
    EXPECT_EQ(f->txtnovovalor->text(), u"R$ 900,00"_s);
    EXPECT_TRUE(prompts_.boxes().empty());

    f->txttotal->setText(u"99999999999999999999"_s);
    f->cmdcalcular->click();
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, u"Erro"_s);
    EXPECT_EQ(prompts_.boxes()[0].style, platform::exclamation);
    EXPECT_EQ(prompts_.boxes()[0].text, u"Valores muito altos para serem calculados!"_s);
    EXPECT_EQ(f->txtresultado->text(), u"R$ 100,00"_s);
}

TEST_F(calculators, the_instalment_window_fills_its_list_and_warns_of_any_failure) {
    ASSERT_TRUE(shell::run_action(u"mnujurosparcelas"_s));
    frmjurosparcelado* f = frmjurosparcelado::instance();
    EXPECT_TRUE(f->isVisible());
    EXPECT_TRUE(f->optfixo->isChecked());
    f->txtvalor->setText(u"1000"_s);
    f->txtparcelas->setText(u"3"_s);
    f->txtdias->setText(u"30"_s);
    f->txtjurosmes->setText(u"10"_s);
    f->txtdata->set_text(u"23/11/2026"_s);
    f->optmes->setChecked(true);
    f->cmdcalcular->click();
    ASSERT_EQ(f->lstmeses->row_count(), 3);
    EXPECT_EQ(f->lstmeses->text(2, 0), u"3ª"_s);
    EXPECT_EQ(f->lstmeses->text(2, 1), u"21/02/2027"_s);
    EXPECT_EQ(f->lstmeses->text(2, 2), u"R$ 433,3333"_s);
    EXPECT_EQ(f->txtvalorjuros->text(), u"300"_s);
    EXPECT_EQ(f->txttotaljuros->text(), u"1300"_s);

    // a date that does not exist: the message, the list as it was
    f->txtdata->set_text(u"31/02/2027"_s);
    f->cmdcalcular->click();
    EXPECT_EQ(f->lstmeses->row_count(), 3);
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].text, u"A data digitada é invalida!"_s);
    EXPECT_EQ(prompts_.boxes()[0].title, u"Erro"_s);
}

} // namespace
