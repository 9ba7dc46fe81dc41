// Projections and targets: the figures of a month against a target on fixed dates, the status
// sentences, both panels, the files and the printed page.

#include "analysis/projection.h"
#include "analysis/ui/frmprojecao.h"
#include "platform/print/printer.h"
#include "support/golden.h"
#include "support/window_fixture.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

QString linha(const QString& texto, const QString& inicio) {
    for (const QString& l : texto.split(u"\r\n"_s))
        if (l.startsWith(inicio)) return l;
    return {};
}

TEST(projection_figures, status_sentences_and_daily_means) {
    const auto& d = analysis::projecao_despesas();
    const auto c = [](qint64 cents) { return vb::currency::from_cents(cents); };
    const struct {
        vb::currency total, meta;
        int dias;
        const char* estatus;
        const char* meta_diaria;
        const char* media_diaria;
    } cases[] = {
        {c(0), c(100000), 31, "Estatus: Faltam -R$ 1.000,00 para atingir sua meta!", "Meta diária: R$ 32,26",
         "Média diária efetivada: R$ 0,00"},
        {c(0), c(0), 30, "Estatus: A meta foi atingida!", "Meta diária: R$ 0,00",
         "Média diária efetivada: R$ 0,00"},
        {c(12345), c(12345), 31, "Estatus: A meta foi atingida!", "Meta diária: R$ 3,98",
         "Média diária efetivada: R$ 3,98"},
        {c(12345), c(10000), 28, "Estatus: A meta foi atingida com sobra de R$ 23,45", "Meta diária: R$ 3,57",
         "Média diária efetivada: R$ 4,41"},
        // no days: the means stay at 0 and nothing divides
        {c(12345), c(10000), 0, "Estatus: A meta foi atingida com sobra de R$ 23,45", "Meta diária: R$ 0,00",
         "Média diária efetivada: R$ 0,00"},
        // a huge target
        {c(1), c(90000000000000), 31, "Estatus: Faltam -R$ 899.999.999.999,99 para atingir sua meta!",
         "Meta diária: R$ 29.032.258.064,52", "Média diária efetivada: R$ 0,00"},
    };
    for (const auto& x : cases) {
        const analysis::resultado_projecao r =
            analysis::montar_projecao(d, u"Março"_s, u"2024"_s, x.total, x.dias, x.meta);
        EXPECT_EQ(linha(r.texto, u"Estatus: "_s), QString::fromUtf8(x.estatus));
        EXPECT_EQ(linha(r.texto, u"Meta diária: "_s), QString::fromUtf8(x.meta_diaria));
        EXPECT_EQ(linha(r.texto, u"Média diária efetivada: "_s), QString::fromUtf8(x.media_diaria));
    }
    EXPECT_EQ(analysis::comando_projecao(analysis::projecao_receitas(), QDate(2024, 7, 1)),
              u"Select * from receber where (estatus like 'Concluído') AND (data like '%2024/07/%')"_s);
}

class projection : public support::window_fixture {
protected:
    void SetUp() override {
        window_fixture::SetUp();
        platform::set_print_destination(&pdf_);
        const char* linhas[] = {
            "pagar (estatus, data, vencimento, Valor) VALUES ('Concluído', '2024/03/05', '2024/03/05', "
            "'100,00')",
            // settled in March, due in April: the date decides
            "pagar (estatus, data, vencimento, Valor) VALUES ('Concluído', '2024/03/20', '2024/04/10', "
            "'23,45')",
            "pagar (estatus, data, vencimento, Valor) VALUES ('Pendente', '2024/03/10', '2024/03/10', "
            "'500,00')",
            "pagar (estatus, data, vencimento, Valor) VALUES ('Concluído', '2024/03/30', '2024/03/30', "
            "'abc')",
            "pagar (estatus, data, vencimento, Valor) VALUES ('Concluído', '2024/04/01', '2024/04/01', "
            "'7,00')",
            "receber (estatus, data, vencimento, Valor) VALUES ('Concluído', '2024/07/15', '2024/07/15', "
            "'1.500,50')",
        };
        for (const char* l : linhas)
            exec(u"INSERT INTO "_s + QString::fromUtf8(l));
    }
    void TearDown() override {
        delete frmprojecao::aberto();
        platform::set_print_destination(nullptr);
        window_fixture::TearDown();
    }
    frmprojecao* abrir(const char* item) {
        menu(item);
        return frmprojecao::aberto();
    }
    platform::pdf_target pdf_{path(u"projecao.pdf"_s)};
};

TEST_F(projection, expenses_panel_result_files_and_print) {
    frmprojecao* f = abrir("mnumetadesp");
    ASSERT_TRUE(f && f->isVisible());
    EXPECT_EQ(f->windowTitle(), u"Projeções e Metas - Despesas"_s);
    EXPECT_TRUE(f->desp.pic->isVisible());
    EXPECT_FALSE(f->rec.pic->isVisible());
    EXPECT_EQ(f->desp.cbomes->currentText(), u"novembro"_s);
    EXPECT_EQ(f->desp.cboano->currentText(), u"2026"_s);
    EXPECT_EQ(f->desp.txtvalor->text(), u"R$ 00,00"_s);
    EXPECT_EQ(items(f->desp.cbomes).at(6), u"julho"_s);

    f->desp.cbomes->setCurrentText(u"Março"_s);
    f->desp.cboano->setCurrentText(u"2024"_s);
    f->desp.txtvalor->setText(u"R$ 1.000,00"_s);
    f->desp.cmdverificar->click();
    EXPECT_EQ(f->desp.txtresultado->toPlainText(),
              u"\nValor da projeção: R$ 1.000,00\nMeta diária: R$ 32,26\nValor Efetivado: R$ 123,45\n"
              u"Média diária efetivada: R$ 3,98\nEstatus: Faltam -R$ 876,55 para atingir sua meta!\n\n"
              u"Informações Adicionais \nData escolhida: Mês de Março de 2024\nDias no mês: 31 dias \n"
              u"* Está projeção é baseada apenas em despesas concluídas."_s);

    const struct {
        QPushButton* botao;
        const char* titulo;
        const char* filtro;
        const char* arquivo;
    } saidas[] = {{f->desp.cmdtxt, "Salvar projeções e metas de despesas em txt",
                   "Arquivos de Texto(*.txt)|*.txt", "projecao_despesas.txt"},
                  {f->desp.cmdhtml, "Salvar projeções e metas de despesas em html",
                   "Arquivos HTML (*.html)|*.html", "projecao_despesas.html"}};
    for (const auto& s : saidas)
        EXPECT_TRUE(saves([&] { s.botao->click(); }, QString::fromUtf8(s.titulo), QString::fromUtf8(s.filtro),
                          u"analysis/"_s + QString::fromUtf8(s.arquivo)));

    f->desp.cmdimprimir->click();
    QStringList impresso = support::pdf_lines(pdf_.path());
    impresso.removeIf([](const QString& l) { return l.contains(u"-----"_s); });
    const QStringList inicio = {u"Projeções e Metas de despesas"_s,
                                u"Quintara organizando a sua vida financeira!"_s, u"Projeção e Meta"_s,
                                u"Valor da projeção: R$ 1.000,00"_s};
    EXPECT_EQ(impresso.mid(0, inicio.size()), inicio) << impresso.join(u'\n').toStdString();
    EXPECT_TRUE(impresso.contains(u"* Está projeção é baseada apenas em despesas concluídas."_s));
    EXPECT_TRUE(impresso.contains(u"Gerado segunda-feira, 23 de novembro de 2026 às 10:00:00"_s));
}

TEST_F(projection, income_panel_months_and_bad_input) {
    frmprojecao* f = abrir("mnumetarec");
    ASSERT_TRUE(f);
    EXPECT_EQ(f->windowTitle(), u"Projeções e Metas - Receitas"_s);
    EXPECT_TRUE(f->rec.pic->isVisible());
    EXPECT_FALSE(f->desp.pic->isVisible());
    const auto verificar = [f](const QString& mes, const QString& ano, const QString& meta) {
        f->rec.cbomes->setCurrentText(mes);
        f->rec.cboano->setCurrentText(ano);
        f->rec.txtvalor->setText(meta);
        f->rec.cmdverificar->click();
        return f->rec.resultado;
    };
    QString r = verificar(u"julho"_s, u"2024"_s, u"R$ 1.500,50"_s);
    EXPECT_EQ(linha(r, u"Valor Efetivado: "_s), u"Valor Efetivado: R$ 1.500,50"_s);
    EXPECT_EQ(linha(r, u"Estatus: "_s), u"Estatus: A meta foi atingida!"_s);
    EXPECT_EQ(linha(r, u"Dias no mês: "_s), u"Dias no mês: 31 dias "_s);
    EXPECT_TRUE(r.endsWith(u"* Está projeção é baseada apenas em receitas concluídas."_s));
    EXPECT_TRUE(f->rec.html.contains(u"<b>Estatus:</b> A meta foi atingida!<br><br>"_s));
    EXPECT_EQ(linha(verificar(u"Fevereiro"_s, u"2024"_s, u"R$ 00,00"_s), u"Dias no mês: "_s),
              u"Dias no mês: 29 dias "_s);
    EXPECT_EQ(linha(verificar(u"Fevereiro"_s, u"2023"_s, u"R$ 00,00"_s), u"Dias no mês: "_s),
              u"Dias no mês: 28 dias "_s);
    // a month to come divides by the whole month; a target that does not read counts as none
    r = verificar(u"Dezembro"_s, u"2030"_s, u"R$ xyz"_s);
    EXPECT_EQ(linha(r, u"Valor da projeção: "_s), u"Valor da projeção: R$ 0,00"_s);
    EXPECT_EQ(linha(r, u"Estatus: "_s), u"Estatus: A meta foi atingida!"_s);
    // a month word that is not understood: no days, no rows, the rest still shown
    r = verificar(u"Marco Polo"_s, u"2024"_s, u"R$ 310,00"_s);
    EXPECT_EQ(linha(r, u"Dias no mês: "_s), u"Dias no mês: 0 dias "_s);
    EXPECT_EQ(linha(r, u"Meta diária: "_s), u"Meta diária: R$ 0,00"_s);
    EXPECT_EQ(linha(r, u"Estatus: "_s), u"Estatus: Faltam -R$ 310,00 para atingir sua meta!"_s);
    // the value field once left
    const std::pair<const char*, const char*> campos[] = {
        {",50", "R$ 00,00"}, {"", "R$ 00,00"}, {"1234,5", "R$ 1.234,50"}, {"R$ 1.000,00", "R$ 1.000,00"}};
    for (const auto& [dado, visto] : campos)
        EXPECT_EQ(analysis::meta_ao_sair(QString::fromUtf8(dado)), QString::fromUtf8(visto)) << dado;
}

} // namespace
