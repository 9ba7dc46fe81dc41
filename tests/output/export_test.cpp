// The exported report files: the tables of c_relatorios and the frames around them, compared
// byte for byte with frames written by hand.

#include "output/c_relatorios.h"
#include "output/report_frame.h"
#include "store/config.h"
#include "support/fixture.h"
#include "support/golden.h"
#include "support/test_table.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;
using testing_output::table_of;
using testing_output::test_table;

namespace {

using support::read_file;

QStringList lines_of(const QByteArray& b) {
    QString s = QString::fromUtf8(b);
    if (s.endsWith(u"\r\n"_s)) s.chop(2);
    return s.split(u"\r\n"_s);
}

struct recorded_bar : output::progress {
    std::vector<double> values;
    std::vector<bool> shown;
    void set_value(double v) override { values.push_back(v); }
    void set_visible(bool v) override { shown.push_back(v); }
};

test_table pagar_list() {
    return table_of({u"Data"_s, u"Descrição"_s, u"Doc."_s, u"Fornecedor"_s, u"Venc."_s, u"Valor"_s,
                     u"Estatus"_s, u"Origem"_s, u"Informações adicionais"_s},
                    {
                        {u"02/11/2026"_s, u"Aluguel"_s, QString(), u"Imobiliária Sol"_s, u"05/11/2026"_s,
                         u"R$ 1.200,00"_s, u"Concluído"_s, u"Banco do Brasil"_s, QString()},
                        {u"10/11/2026"_s, u"Energia elétrica"_s, u"NF 123"_s, u"Companhia de Luz"_s,
                         u"15/11/2026"_s, u"R$ 150,00"_s, u"Pendente"_s, u"Caixa"_s, QString()},
                        {u"20/11/2026"_s, u"Água & esgoto <casa>"_s, u"\"A\""_s, u"Saneamento"_s,
                         u"25/11/2026"_s, u"R$ 80,50"_s, u"Pendente"_s, u"Caixa"_s, QString()},
                    });
}

test_table movimento_list() {
    return table_of({u"Data"_s, u"Tipo de movimento"_s, u"Conta origem"_s, u"Conta destino"_s, u"Valor"_s,
                     u"Estatus"_s, u"Informações"_s},
                    {
                        {u"01/11/2026"_s, u"Depósito"_s, u"Caixa"_s, u" - "_s, u"R$ 500,00"_s, u"Concluído"_s,
                         u"troco"_s},
                        {u"03/11/2026"_s, u"Transferência entre contas"_s, u"Caixa"_s, u"Banco do Brasil"_s,
                         u"R$ 1.000,00"_s, u"Pendente"_s, QString()},
                    });
}

output::report_texts pagar_texts() {
    output::report_texts t;
    t.janela = output::janela_relatorio::relatorio;
    t.caption = u"Relatório de movimento mensal (despesas)"_s;
    t.tipo = u"CONTAS A PAGAR"_s;
    t.subtitulo = u"Período: novembro de 2026"_s;
    t.totais =
        u"Total de cadastros no período: 3\r\nTotal de despesas: R$ 1.430,50 - Total pago: R$ 1.200,00 - "
        u"Total pendente: R$ 230,50"_s;
    return t;
}

output::report_texts movimento_texts() {
    output::report_texts t;
    t.janela = output::janela_relatorio::movimento;
    t.caption = u"Movimento do mês - bancario"_s;
    t.subtitulo = u"not written by this window"_s;
    t.totais = u"Total de movimentos: 2 - Valor total: R$ 1.500,00"_s;
    return t;
}

QByteArray frame(output::formato_relatorio f, const output::report_texts& t, const platform::table_source* l,
                 output::c_relatorios& c) {
    QBuffer b;
    b.open(QIODevice::WriteOnly);
    if (f == output::formato_relatorio::txt)
        output::write_text_report(b, t, l, c);
    else
        output::write_html_report(b, t, l, c);
    return b.data();
}

QByteArray text_table(output::c_relatorios& c, const test_table& t) {
    QBuffer b;
    b.open(QIODevice::WriteOnly);
    c.Exportar_listaparaTXT(b, QString(), t, true);
    return b.data();
}

class export_test : public support::fixture {};

} // namespace

TEST_F(export_test, frames_as_the_golden_files_hold_them) {
    const test_table pagar = pagar_list();
    const test_table movimento = movimento_list();
    const test_table vazia = table_of({u"Nome do cliente"_s, u"CPF/CNPJ"_s}, {});
    const output::report_texts clientes{.janela = output::janela_relatorio::relatorio,
                                        .caption = u"Relatório"_s,
                                        .tipo = u"clientes"_s,
                                        .subtitulo = u"........................."_s,
                                        .totais = u"Total de clientes cadastrados: 0"_s};
    const struct {
        output::formato_relatorio f;
        output::report_texts texts;
        const test_table* list;
        QString file;
    } rows[] = {
        {output::formato_relatorio::txt, pagar_texts(), &pagar, u"relatorio_pagar.txt"_s},
        {output::formato_relatorio::html, pagar_texts(), &pagar, u"relatorio_pagar.html"_s},
        {output::formato_relatorio::txt, movimento_texts(), &movimento, u"movimento_bancario.txt"_s},
        {output::formato_relatorio::html, movimento_texts(), &movimento, u"movimento_bancario.html"_s},
        {output::formato_relatorio::txt, clientes, &vazia, u"relatorio_vazio.txt"_s},
        // the HTML frame is complete without a table
        {output::formato_relatorio::html, pagar_texts(), &vazia, u"relatorio_vazio.html"_s},
    };
    for (const auto& r : rows) {
        output::c_relatorios c;
        EXPECT_TRUE(support::matches_golden(u"output/"_s + r.file, frame(r.f, r.texts, r.list, c)));
    }
}

// The tables alone, text and HTML, as tests/data/output/tables.txt holds them.
TEST_F(export_test, tables_widths_cuts_rules_and_cells) {
    const QString t35(35, u'x'), t36(36, u'y');
    const struct {
        const char* caso;
        test_table t;
        QString letra;
        std::int16_t max = 9999;
    } cases[] = {
        // the rule's letter (only the first counts) and the columns cut to 4
        {"cut to four",
         table_of({u"A"_s, u"Col"_s, u"B"_s, u"Vazia"_s},
                  {{u"1"_s, u"abcdefgh"_s, u"xy"_s, {}}, {u"22"_s, u"ab"_s, u"abc"_s, {}}}),
         u"=-"_s, 4},
        // a heading wider than its cut column: the header row fails, no table
        {"heading over the cut", table_of({u"A"_s, u"Coluna"_s}, {{u"1"_s, u"abcdefgh"_s}}), u"="_s, 4},
        // a column with no heading and no text still has a one-letter rule; an empty letter keeps the star
        {"blank column", table_of({u"X"_s, QString()}, {{u"1"_s, QString()}}), QString()},
        // exactly 35 fits; a first column over 35 ends the table at that row
        {"first column over 35",
         table_of({u"Nome"_s, u"Valor"_s},
                  {{u"a"_s, u"1"_s}, {t35, u"2"_s}, {t36, u"3"_s}, {u"depois"_s, u"4"_s}}),
         QString()},
        {"long heading cut back to 35", table_of({QString(40, u'H'), u"V"_s}, {{t36, u"1"_s}}), QString()},
        {"long heading that stands", table_of({QString(40, u'H'), u"V"_s}, {{u"curto"_s, u"1"_s}}),
         QString()},
        {"hidden column", test_table({{u"id"_s, 0}, {u"Nome do cliente"_s, 2000}}, {{u"7"_s, u"Ana"_s}}),
         QString()},
        // HTML cells pass unchanged, empty cells get a blank
        {"html as it stands", table_of({u"<b>"_s, u"B"_s}, {{u"a \"q\" & <i>x</i> 'y'"_s, QString()}}),
         QString()},
        {"empty list", table_of({u"A"_s}, {}), QString()},
    };
    const char* const results[] = {"no rows", "written", "interrupted"};
    QString out;
    for (const auto& c : cases) {
        output::c_relatorios x;
        x.set_mLetraTXT(c.letra);
        x.set_Max_LetraForFields(c.max);
        QBuffer txt, html;
        txt.open(QIODevice::WriteOnly);
        html.open(QIODevice::WriteOnly);
        const auto rt = x.Exportar_listaparaTXT(txt, QString(), c.t, true);
        const auto rh = x.Exportar_listaparaHTML(html, c.t);
        out += u"== %1: text %2, html %3\n"_s.arg(QLatin1String(c.caso), QLatin1String(results[int(rt)]),
                                                  QLatin1String(results[int(rh)])) +
               QString::fromUtf8(txt.data() + html.data()).replace(u"\r\n"_s, u"\u21b5\n"_s);
    }
    EXPECT_TRUE(support::matches_golden(u"output/tables.txt"_s, out));
}

TEST_F(export_test, the_frame_carries_on_with_its_footer_after_a_broken_table) {
    const test_table t = table_of({u"Nome"_s}, {{u"a"_s}, {QString(36, u'y')}});
    output::report_texts texts = pagar_texts();
    texts.totais = u"TOTAIS"_s;
    output::c_relatorios c;
    const QStringList framed = lines_of(frame(output::formato_relatorio::txt, texts, &t, c));
    const qsizetype at = framed.indexOf(QRegularExpression(u"^a +$"_s));
    ASSERT_GT(at, 0);
    EXPECT_EQ(framed.mid(at + 1, 3), (QStringList{QString(), u"TOTAIS"_s, QString()}));
    EXPECT_EQ(framed.last(), output::site_relatorio());
}

TEST_F(export_test, progress_bar_follows_the_rows_and_ends_at_0_001_or_1) {
    test_table t = table_of({u"A"_s}, {{u"1"_s}, {u"2"_s}, {u"3"_s}, {u"4"_s}});
    output::c_relatorios c;
    recorded_bar bar;
    c.set_Progresbar(&bar);
    text_table(c, t);
    EXPECT_EQ(bar.values, (std::vector<double>{25, 50, 75, 100, 0.001}));
    bar.values.clear();
    QBuffer b;
    b.open(QIODevice::WriteOnly);
    c.Exportar_listaparaHTML(b, t);
    EXPECT_EQ(bar.values, (std::vector<double>{25, 50, 75, 100, 1}));
    // a table cut short leaves the bar where it stopped
    bar.values.clear();
    t.rows[2][0] = QString(40, u'z');
    text_table(c, t);
    EXPECT_EQ(bar.values, (std::vector<double>{25, 50}));
    // an empty list leaves it alone
    bar.values.clear();
    text_table(c, table_of({u"A"_s}, {}));
    EXPECT_TRUE(bar.values.empty());
}

TEST_F(export_test, footer_reads_the_settings_at_each_use) {
    EXPECT_EQ(output::nome_relatorio(), u"Quintara"_s);
    store::save_setting(store::secao_relatorio, u"nome"_s, u"Padaria Pão & Cia"_s);
    store::save_setting(store::secao_relatorio, u"slogan"_s, u"O melhor pão do bairro"_s);
    store::save_setting(store::secao_relatorio, u"site"_s, u"http://padaria.example"_s);
    test_table t = table_of({u"A"_s}, {{u"1"_s}});
    output::c_relatorios c;
    const QStringList txt = lines_of(frame(output::formato_relatorio::txt, pagar_texts(), &t, c));
    EXPECT_EQ(txt.mid(txt.size() - 5),
              (QStringList{QString(), u"Padaria Pão & Cia"_s, QString(), u"O melhor pão do bairro"_s,
                           u"http://padaria.example"_s}));
    const QString html = QString::fromUtf8(frame(output::formato_relatorio::html, pagar_texts(), &t, c));
    EXPECT_TRUE(
        html.contains(u"<b>Padaria Pão & Cia</b><br>\r\n<br>\r\nO melhor pão do bairro<br>\r\n"
                      u"<p><a href='http://padaria.example'>http://padaria.example</a></p><br>\r\n"_s));
}

TEST_F(export_test, save_asks_writes_and_offers_to_open) {
    const test_table pagar = pagar_list();
    output::c_relatorios c;
    recorded_bar bar;
    c.set_Progresbar(&bar);
    const QString file = path(u"relatório.html"_s);
    QFile old(file);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write(QByteArray(10000, 'x')); // replaced, not appended to
    old.close();
    prompts_.answer_text(file);
    prompts_.answer(platform::answer_yes);
    EXPECT_EQ(output::salvar_relatorio(output::formato_relatorio::html, pagar_texts(), &pagar, c), file);
    EXPECT_TRUE(support::file_matches_golden(u"output/relatorio_pagar.html"_s, file));
    const auto& rec = prompts_.records();
    ASSERT_EQ(rec.size(), 2u);
    EXPECT_EQ(std::tuple(rec[0].kind, rec[0].title, rec[0].filter),
              std::tuple(
                  u"save_file"_s, output::save_title(output::formato_relatorio::html),
                  output::save_filter(output::janela_relatorio::relatorio, output::formato_relatorio::html)));
    EXPECT_EQ(std::tuple(rec[1].title, rec[1].text, rec[1].style),
              std::tuple(u"Visualizar"_s,
                         u"Os dados foram salvos com sucesso para arquivo, deseja abrir o arquivo agora?"_s,
                         int(platform::yes_no | platform::question)));
    EXPECT_EQ(shell_.opened, QStringList{file});
    EXPECT_EQ(bar.shown, (std::vector<bool>{true, false}));

    // the movement window's filter; "No" leaves the file closed
    prompts_.clear();
    shell_.opened.clear();
    prompts_.answer_text(path(u"mov.txt"_s));
    prompts_.answer(platform::answer_no);
    const test_table mov = movimento_list();
    output::salvar_relatorio(output::formato_relatorio::txt, movimento_texts(), &mov, c);
    EXPECT_EQ(prompts_.records()[0].filter,
              output::save_filter(output::janela_relatorio::movimento, output::formato_relatorio::txt));
    EXPECT_TRUE(support::file_matches_golden(u"output/movimento_bancario.txt"_s, path(u"mov.txt"_s)));
    EXPECT_TRUE(shell_.opened.isEmpty());
}

TEST_F(export_test, cancelled_dialog_writes_nothing_and_asks_nothing) {
    const test_table pagar = pagar_list();
    output::c_relatorios c;
    prompts_.answer_text(QString());
    EXPECT_TRUE(output::salvar_relatorio(output::formato_relatorio::txt, pagar_texts(), &pagar, c).isEmpty());
    ASSERT_EQ(prompts_.records().size(), 1u);
    EXPECT_TRUE(prompts_.boxes().empty());
}

TEST_F(export_test, unwritable_file_still_gets_the_question_and_touches_nothing) {
    const test_table pagar = pagar_list();
    output::c_relatorios c;
    // a folder that does not exist is not created
    const QString missing = path(u"nao/existe/r.txt"_s);
    prompts_.answer_text(missing);
    prompts_.answer(platform::answer_no);
    output::salvar_relatorio(output::formato_relatorio::txt, pagar_texts(), &pagar, c);
    EXPECT_FALSE(QFileInfo::exists(path(u"nao"_s)));
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, u"Visualizar"_s);

    // a name that is a folder cannot be written even with every right; the folder stays as it was
    const QString folder = path(u"pasta.html"_s);
    ASSERT_TRUE(QDir().mkpath(folder));
    QFile inside(folder + u"/dentro.txt"_s);
    ASSERT_TRUE(inside.open(QIODevice::WriteOnly));
    inside.write("antigo");
    inside.close();
    prompts_.clear();
    prompts_.answer_text(folder);
    prompts_.answer(platform::answer_yes);
    output::salvar_relatorio(output::formato_relatorio::html, pagar_texts(), &pagar, c);
    EXPECT_TRUE(QFileInfo(folder).isDir());
    EXPECT_EQ(read_file(folder + u"/dentro.txt"_s), QByteArray("antigo"));
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, u"Visualizar"_s);
    EXPECT_EQ(shell_.opened, QStringList{folder});
}
