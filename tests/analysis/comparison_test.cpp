// The comparison of years and months: the figures by status on fixed dates, the signed
// differences, the label slips, both twins, the files and the printed page.

#include "analysis/comparison.h"
#include "analysis/ui/frmcomparacao.h"
#include "platform/print/printer.h"
#include "support/golden.h"
#include "support/window_fixture.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class comparison : public support::window_fixture {
protected:
    void SetUp() override {
        window_fixture::SetUp();
        platform::set_print_destination(&pdf_);
        const char* linhas[] = {
            "pagar (estatus, data, Valor) VALUES ('Pendente', '2024/01/10', '10,00')",
            "pagar (estatus, data, Valor) VALUES ('PENDENTE', '2024/03/05', '5,50')",
            // an empty status and one with extra words count as completed
            "pagar (estatus, data, Valor) VALUES ('', '2024/03/20', '4,50')",
            "pagar (estatus, data, Valor) VALUES ('Pendente parcial', '2024/06/01', '1,00')",
            "pagar (estatus, data, Valor) VALUES ('Concluído', '2024/12/31', '100,00')",
            // a date written the other way round still holds the year
            "pagar (estatus, data, Valor) VALUES ('Concluído', '01/02/2024', '7,00')",
            "pagar (estatus, data, Valor) VALUES ('Concluído', '2025/03/01', '50,00')",
            "pagar (estatus, data, Valor) VALUES ('Pendente', '2025/03/15', '20,00')",
            "receber (estatus, data, Valor) VALUES ('Concluído', '2024/03/10', '300,00')",
        };
        for (const char* l : linhas)
            exec(u"INSERT INTO "_s + QString::fromUtf8(l));
    }
    void TearDown() override {
        delete frmcomparadesp::aberto();
        delete frmcompararec::aberto();
        platform::set_print_destination(nullptr);
        window_fixture::TearDown();
    }
    platform::pdf_target pdf_{path(u"comparacao.pdf"_s)};
};

TEST_F(comparison, years_figures_differences_and_files) {
    menu("mnucompdesp");
    frmcomparadesp* f = frmcomparadesp::aberto();
    ASSERT_TRUE(f && f->isVisible());
    EXPECT_EQ(f->windowTitle(), u"Comparação entre meses e anos - Despesas"_s);
    EXPECT_EQ(f->cboano1->currentText(), u"2026"_s);
    EXPECT_EQ(f->cbomes2->currentText(), u"novembro"_s);
    EXPECT_EQ(f->lblano1->text(), u"Resumo do ano de 2026"_s);
    EXPECT_EQ(f->lblmes2->text(), u"Resumo do mês de novembro/2026"_s);
    EXPECT_EQ(f->lblresultado->text(), u"Comparação entre o ano de 2026 e o ano de 2026"_s);

    f->cboano1->setCurrentText(u"2024"_s);
    f->cboano2->setCurrentText(u"2025"_s);
    f->cmdok->click();
    EXPECT_EQ(f->lblano1->text(), u"Resumo do ano de: 2024"_s);
    // the three panels, the plain text and the html twin
    EXPECT_TRUE(
        support::matches_golden(u"analysis/comparacao_paineis.txt"_s,
                                QStringList{f->txtano1->toPlainText(), f->txtano2o->toPlainText(),
                                            f->txtresultado->toPlainText(), f->txtresultadoo->toPlainText()}
                                    .join(u"\n=====\n"_s)));

    const struct {
        QPushButton* botao;
        const char* titulo;
        const char* filtro;
        const char* arquivo;
    } saidas[] = {{f->cmdtxtano, "Salvar comparação de despesas entre anos em txt",
                   "Arquivos de Texto(*.txt)|*.txt", "comparacao_anos.txt"},
                  {f->cmdhtmlano, "Salvar comparação de despesas por ano em html",
                   "Arquivos HTML (*.html)|*.html", "comparacao_anos.html"}};
    for (const auto& s : saidas)
        EXPECT_TRUE(saves([&] { s.botao->click(); }, QString::fromUtf8(s.titulo), QString::fromUtf8(s.filtro),
                          u"analysis/"_s + QString::fromUtf8(s.arquivo)));

    // the same year on both sides: nothing differs
    f->cboano2->setCurrentText(u"2024"_s);
    f->cmdok->click();
    EXPECT_TRUE(f->txtresultado->toPlainText().contains(u"Diferença de 0 cadastros\n"_s));
    EXPECT_TRUE(f->txtresultado->toPlainText().contains(u"Diferença de R$ 0,00\n"_s));
    EXPECT_FALSE(f->txtresultado->toPlainText().contains(u"Diferença de -"_s));
}

TEST_F(comparison, months_label_slips_twin_and_print) {
    menu("mnucomprec");
    frmcompararec* r = frmcompararec::aberto();
    ASSERT_TRUE(r);
    EXPECT_EQ(r->windowTitle(), u"Comparação entre meses e anos - Receitas"_s);
    r->cbomes1->setCurrentText(u"Março"_s);
    r->cboanomes1->setCurrentText(u"2024"_s);
    r->cbomes2->setCurrentText(u"julho"_s);
    r->cboanomes2->setCurrentText(u"2030"_s); // a month to come: all figures 0
    r->cmdmes->click();
    EXPECT_EQ(r->lblmes1->text(), u"Resumo do mês de: Março/2024"_s);
    EXPECT_EQ(r->lblmes2->text(), u"Resumo do ano de: julho/2030"_s);
    EXPECT_EQ(r->lblresultado2->text(), u"Comparação entre o mês de Março/2024 e o mês de julho/2030"_s);
    EXPECT_TRUE(r->txtmes1->toPlainText().startsWith(
        u"Total de receitas cadastradas: 1\n\nValor total de receitas: R$ 300,00\n\n"_s));
    EXPECT_TRUE(r->txtmes2->toPlainText().endsWith(u"Valor total de receitas concluídas: R$ 0,00"_s));
    EXPECT_TRUE(r->txtresultado2->toPlainText().startsWith(
        u"Total de receitas cadastradas: mês de Março/2024 (1) - mês de: julho/2030 (0)\n"
        u"Diferença de -1 cadastros\n\nValor total de receitas: mês de Março/2024 (R$ 300,00)"_s));

    // the text title names the years on the month tab too
    const QString arquivo = path(u"meses.txt"_s);
    prompts_.answer_text(arquivo);
    r->cmdtxtmes->click();
    EXPECT_EQ(prompts_.records().at(0).title, u"Salvar comparação de receitas entre meses em txt"_s);
    EXPECT_TRUE(QString::fromUtf8(support::read_file(arquivo))
                    .startsWith(u"Comparação de receitas entre anos\r\n"_s));

    r->cmdimprimirmes->click();
    QStringList impresso = support::pdf_lines(pdf_.path());
    impresso.removeIf([](const QString& l) { return l.contains(u"-----"_s); });
    const QStringList inicio = {u"Comparação de receitas entre meses"_s,
                                u"Quintara organizando a sua vida financeira!"_s,
                                u"Resumo do mês de: Março/2024"_s, u"Total de receitas cadastradas: 1"_s};
    EXPECT_EQ(impresso.mid(0, inicio.size()), inicio) << impresso.join(u'\n').toStdString();
    EXPECT_TRUE(impresso.contains(u"Resumo do ano de: julho/2030"_s));
    EXPECT_TRUE(impresso.contains(u"Diferença de -R$ 300,00"_s));
    EXPECT_TRUE(impresso.contains(u"Gerado segunda-feira, 23 de novembro de 2026 às 10:00:00"_s))
        << impresso.join(u'\n').toStdString();

    r->cmdsairmes->click();
    EXPECT_EQ(frmcompararec::aberto(), nullptr);
}

} // namespace
