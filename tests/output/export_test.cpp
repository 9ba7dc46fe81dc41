// The exported report files: the tables of c_relatorios and the frames around them, compared
// byte for byte with frames written by hand.

#include "output/c_relatorios.h"
#include "output/report_frame.h"
#include "store/config.h"
#include "support/fixture.h"
#include "test_table.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;
using testing_output::table_of;
using testing_output::test_table;

namespace {

QByteArray golden(const QString& name) {
    QFile f(QStringLiteral(QUINTARA_TEST_DATA_DIR "/output/") + name);
    if (!f.open(QIODevice::ReadOnly)) return "missing golden file " + name.toUtf8();
    return f.readAll();
}

QByteArray read_file(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

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

QByteArray text_table(output::c_relatorios& c, const test_table& t,
                      output::c_relatorios::resultado* r = nullptr) {
    QBuffer b;
    b.open(QIODevice::WriteOnly);
    const auto res = c.Exportar_listaparaTXT(b, QString(), t, true);
    if (r) *r = res;
    return b.data();
}

class export_test : public support::fixture {};

} // namespace

TEST_F(export_test, frames_match_the_hand_written_files) {
    const test_table pagar = pagar_list();
    const test_table movimento = movimento_list();
    const test_table vazia = table_of({u"Nome do cliente"_s, u"CPF/CNPJ"_s}, {});
    output::report_texts clientes;
    clientes.caption = u"Relatório"_s;
    clientes.tipo = u"clientes"_s;
    clientes.subtitulo = u"........................."_s;
    clientes.totais = u"Total de clientes cadastrados: 0"_s;
    struct row {
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
    };
    for (const row& r : rows) {
        output::c_relatorios c;
        EXPECT_EQ(frame(r.f, r.texts, r.list, c), golden(r.file)) << r.file.toStdString();
    }
}

TEST_F(export_test, first_column_over_35_characters_ends_the_table_at_that_row) {
    const QString t35(35, u'x');
    const QString t36(36, u'y');
    test_table t = table_of({u"Nome"_s, u"Valor"_s},
                            {{u"a"_s, u"1"_s}, {t35, u"2"_s}, {t36, u"3"_s}, {u"depois"_s, u"4"_s}});
    output::c_relatorios c;
    output::c_relatorios::resultado r{};
    const QStringList lines = lines_of(text_table(c, t, &r));
    EXPECT_EQ(r, output::c_relatorios::resultado::interrompido);
    ASSERT_EQ(lines.size(), 4); // header, rule, the two rows before the long one
    EXPECT_EQ(lines[1], QString(35, u'*') + u"  *****  "_s);
    EXPECT_EQ(lines[3], t35 + u"  2      "_s); // exactly 35 fits
    EXPECT_EQ(c.larguras(), (std::vector<int>{35, 5}));

    // The frame carries on with its footer after the broken table.
    output::report_texts texts = pagar_texts();
    texts.totais = u"TOTAIS"_s;
    output::c_relatorios c2;
    const QStringList framed = lines_of(frame(output::formato_relatorio::txt, texts, &t, c2));
    const qsizetype at = framed.indexOf(t35 + u"  2      "_s);
    ASSERT_GT(at, 0);
    EXPECT_EQ(framed.mid(at + 1, 3), (QStringList{QString(), u"TOTAIS"_s, QString()}));
    EXPECT_EQ(framed.last(), output::site_relatorio());

    // A heading longer than 35 whose column was cut back to 35 fails on the header row: no table.
    test_table wide = table_of({QString(40, u'H'), u"V"_s}, {{t36, u"1"_s}});
    output::c_relatorios c3;
    EXPECT_TRUE(text_table(c3, wide, &r).isEmpty());
    EXPECT_EQ(r, output::c_relatorios::resultado::interrompido);
    // ... while without a cell that reaches the limit the header's width stands.
    test_table wide_ok = table_of({QString(40, u'H'), u"V"_s}, {{u"curto"_s, u"1"_s}});
    EXPECT_EQ(lines_of(text_table(c3, wide_ok, &r))[2], u"curto"_s + QString(35, u' ') + u"  1  "_s);
    EXPECT_EQ(r, output::c_relatorios::resultado::gravado);
}

TEST_F(export_test, text_table_widths_cuts_and_rule_letter) {
    test_table t =
        table_of({u"A"_s, u"Coluna"_s, u"B"_s, u"Vazia"_s},
                 {{u"1"_s, u"abcdefgh"_s, u"xy"_s, QString()}, {u"22"_s, u"ab"_s, u"abcdef"_s, QString()}});
    output::c_relatorios c;
    c.set_mLetraTXT(u"=-"_s); // only the first counts
    c.set_Max_LetraForFields(4);
    // "Coluna" (6) is wider than the cut column (4): its padding is negative and the header row fails
    EXPECT_TRUE(text_table(c, t).isEmpty());

    test_table t2 =
        table_of({u"A"_s, u"Col"_s, u"B"_s, u"Vazia"_s},
                 {{u"1"_s, u"abcdefgh"_s, u"xy"_s, QString()}, {u"22"_s, u"ab"_s, u"abc"_s, QString()}});
    EXPECT_EQ(lines_of(text_table(c, t2)), (QStringList{
                                               u"A "
                                               u"  "
                                               u"Col "
                                               u"  "
                                               u"B  "
                                               u"  "
                                               u"Vazia"
                                               u"  "_s,
                                               u"=="
                                               u"  "
                                               u"===="
                                               u"  "
                                               u"==="
                                               u"  "
                                               u"====="
                                               u"  "_s,
                                               u"1 "
                                               u"  "
                                               u"abcd"
                                               u"  "
                                               u"xy "
                                               u"  "
                                               u"     "
                                               u"  "_s,
                                               u"22"
                                               u"  "
                                               u"ab  "
                                               u"  "
                                               u"abc"
                                               u"  "
                                               u"     "
                                               u"  "_s,
                                           }));
    // a column with no heading and no text still has a one-letter rule
    test_table blank = table_of({u"X"_s, QString()}, {{u"1"_s, QString()}});
    output::c_relatorios d;
    d.set_mLetraTXT(QString()); // an empty letter keeps the star
    EXPECT_EQ(lines_of(text_table(d, blank)), (QStringList{u"X    "_s, u"*  *  "_s, u"1    "_s}));
}

TEST_F(export_test, hidden_columns_are_exported_like_any_other) {
    test_table t({{u"id"_s, 0}, {u"Nome do cliente"_s, 2000}}, {{u"7"_s, u"Ana"_s}});
    output::c_relatorios c;
    EXPECT_EQ(lines_of(text_table(c, t)), (QStringList{u"id  Nome do cliente  "_s, u"**  ***************  "_s,
                                                       u"7   Ana              "_s}));
    QBuffer b;
    b.open(QIODevice::WriteOnly);
    c.Exportar_listaparaHTML(b, t);
    EXPECT_TRUE(b.data().contains("<TH nowrap bgcolor='#FFFFCC'>id</th>\r\n"));
    EXPECT_TRUE(
        b.data().contains("<tr>\r\n<td nowrap>7&nbsp;</td>\r\n<td nowrap>Ana&nbsp;</td>\r\n</tr>\r\n"));
}

TEST_F(export_test, html_cells_pass_unchanged_and_empty_cells_get_a_blank) {
    test_table t = table_of({u"<b>"_s, u"B"_s}, {{u"a \"q\" & <i>x</i> 'y'"_s, QString()}});
    output::c_relatorios c;
    QBuffer b;
    b.open(QIODevice::WriteOnly);
    EXPECT_EQ(c.Exportar_listaparaHTML(b, t), output::c_relatorios::resultado::gravado);
    EXPECT_EQ(QString::fromUtf8(b.data()), u"<table border='2' align='center'>\r\n\r\n"
                                           u"<tr>\r\n<TH nowrap bgcolor='#FFFFCC'><b></th>\r\n"
                                           u"<TH nowrap bgcolor='#FFFFCC'>B</th>\r\n</tr>\r\n"
                                           u"<tr>\r\n<td nowrap>a \"q\" & <i>x</i> 'y'&nbsp;</td>\r\n"
                                           u"<td nowrap>&nbsp;</td>\r\n</tr>\r\n</table>\r\n"_s);
}

TEST_F(export_test, empty_list_writes_nothing_and_says_so) {
    test_table t = table_of({u"A"_s}, {});
    output::c_relatorios c;
    recorded_bar bar;
    c.set_Progresbar(&bar);
    output::c_relatorios::resultado r{};
    EXPECT_TRUE(text_table(c, t, &r).isEmpty());
    EXPECT_EQ(r, output::c_relatorios::resultado::sem_linhas);
    QBuffer b;
    b.open(QIODevice::WriteOnly);
    EXPECT_EQ(c.Exportar_listaparaHTML(b, t), output::c_relatorios::resultado::sem_linhas);
    EXPECT_TRUE(b.data().isEmpty());
    EXPECT_TRUE(bar.values.empty());

    // the HTML frame is complete without a table
    const QByteArray html = frame(output::formato_relatorio::html, pagar_texts(), &t, c);
    EXPECT_FALSE(html.contains("<table"));
    EXPECT_TRUE(html.endsWith("</center></font></p>\r\n"));
    EXPECT_TRUE(html.contains("</center></font></p>\r\n<p><font face='Arial'><center>\r\n"));
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
    EXPECT_EQ(read_file(file), golden(u"relatorio_pagar.html"_s));
    const auto& rec = prompts_.records();
    ASSERT_EQ(rec.size(), 2u);
    EXPECT_EQ(rec[0].kind, u"save_file"_s);
    EXPECT_EQ(rec[0].title, u"Salvar relatório em html"_s);
    EXPECT_EQ(rec[0].filter, u"Arquivos HTML(*.html)|*.html"_s);
    EXPECT_EQ(rec[1].title, u"Visualizar"_s);
    EXPECT_EQ(rec[1].text,
              u"Os dados foram salvos com sucesso para arquivo, deseja abrir o arquivo agora?"_s);
    EXPECT_EQ(rec[1].style, platform::yes_no | platform::question);
    EXPECT_EQ(shell_.opened, QStringList{file});
    EXPECT_EQ(bar.shown, (std::vector<bool>{true, false}));

    // the two windows spell the text filter differently; "No" leaves the file closed
    prompts_.clear();
    shell_.opened.clear();
    const QString txt = path(u"mov.txt"_s);
    prompts_.answer_text(txt);
    prompts_.answer(platform::answer_no);
    const test_table mov = movimento_list();
    output::salvar_relatorio(output::formato_relatorio::txt, movimento_texts(), &mov, c);
    EXPECT_EQ(prompts_.records()[0].title, u"Salvar relatório em txt"_s);
    EXPECT_EQ(prompts_.records()[0].filter, u"Arquivo de texto(*.txt)|*.txt"_s);
    EXPECT_EQ(output::save_filter(output::janela_relatorio::relatorio, output::formato_relatorio::txt),
              u"Arquivos de Texto(*.txt)|*.txt"_s);
    EXPECT_EQ(read_file(txt), golden(u"movimento_bancario.txt"_s));
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
