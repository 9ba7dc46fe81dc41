// Mailing labels: the sheet models and the readings of the measure fields, the empty labels before
// the first address, where labels and fields fall on the sheet (measured in the printed PDF and on
// the rendered page), the preview, and the report's messages.

#include "platform/print/printer.h"
#include "registers/labels.h"
#include "registers/ui/frmConfEtiqueta.h"
#include "registers/ui/frmcontatos.h"
#include "shell/principal_api.h"
#include "support/fixture.h"
#include "support/key_input.h"
#include "support/pdf_read.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QToolBar>

#include <array>
#include <cmath>
#include <map>

using namespace Qt::Literals::StringLiterals;

namespace {

using registers::tipo_medida;

TEST(labels, the_labels_each_model_puts_on_a_letter_sheet) {
    // model (an unknown one gives the 6082 sheet), columns x rows
    const std::pair<const char*, int> rows[] = {
        {"Pimaco 6080/6180", 3 * 10},           {"Pimaco 6081/6181/6281/62581", 2 * 10},
        {"Pimaco 6082/6182/6282/62582", 2 * 7}, {"Pimaco 6083/6183/6283", 2 * 5},
        {"Pimaco 6084/6184/6284", 2 * 3},       {"Pimaco 9999", 2 * 7}};
    for (const auto& [modelo, etiquetas] : rows) {
        const auto f = registers::carregarmodelo(QString::fromUtf8(modelo));
        const auto g = registers::montar_grade(
            {f.Altura, f.Largura, f.MargemEsquerda, f.MargemSuperior, f.MargemInferior, int(f.Colunas), 1, 1},
            215.9, 279.4);
        ASSERT_TRUE(g) << modelo;
        EXPECT_EQ(g->por_folha(), etiquetas) << modelo;
        EXPECT_EQ(g->espaco, 0.0); // the widths already hold the gap
    }
    // no room for one label, no columns, a column that starts off the sheet
    for (const registers::config_etiquetas& c : {registers::config_etiquetas{300, 50, 0, 0, 0, 1, 1, 1},
                                                 {0, 50, 0, 0, 0, 1, 1, 1},
                                                 {20, 50, 0, 0, 0, 0, 1, 1},
                                                 {20, 50, 0, 0, 0, 6, 1, 1}})
        EXPECT_FALSE(registers::montar_grade(c, 215.9, 279.4));
    // true label widths: the gaps share what the margins leave
    const auto g = registers::montar_grade({25.4, 66.7, 4.8, 12.7, 12.7, 3, 1, 1}, 215.9, 279.4);
    ASSERT_TRUE(g);
    EXPECT_NEAR(g->x(2), 4.8 + 2 * (66.7 + 3.1), 1e-9);
}

TEST(labels, fields_left_read_back_or_fall_to_their_defaults) {
    // measures as doubles (default "0"), counts as 16-bit integers rounded half to even (default "1")
    const std::array<const char*, 2> medidas[] = {{"25,4", "25,4"}, {"abc", "0"},      {"1e400", "0"},
                                                  {"", "0"},        {"1.000", "1000"}, {"-3", "-3"}};
    for (const auto& [texto, fica] : medidas)
        EXPECT_EQ(registers::carregarEtiquetas(QString::fromUtf8(texto), tipo_medida::duplo, u"0"_s),
                  QString::fromUtf8(fica));
    const std::array<const char*, 2> contagens[] = {{"2,5", "2"}, {"3,5", "4"}, {"40000", "1"}, {"x", "1"}};
    for (const auto& [texto, fica] : contagens)
        EXPECT_EQ(registers::carregarEtiquetas(QString::fromUtf8(texto), tipo_medida::inteiro, u"1"_s),
                  QString::fromUtf8(fica));
    // empty labels: (line - 1) x columns + column - 1, the column cut to the columns
    const std::array<int, 4> pular[] = {{1, 1, 3, 0}, {2, 2, 3, 4}, {1, 9, 3, 2}, {3, 1, 2, 4}, {0, 0, 2, 0}};
    for (const auto& [linha, coluna, colunas, n] : pular) {
        registers::config_etiquetas c;
        c.LinhaInicio = linha;
        c.ColunaInicio = coluna;
        c.Colunas = colunas;
        EXPECT_EQ(registers::etiquetas_a_pular(c), n) << linha << "," << coluna;
    }
}

// A preview that draws what it is shown into a PDF file, as the screen would show it.
class pdf_preview : public platform::print_preview {
public:
    explicit pdf_preview(QString path) : target(std::move(path)) {}
    void show(const QString& job, const platform::page_format& format,
              const std::function<void(platform::printer&)>& draw) override {
        ++shown;
        platform::printer p;
        if (p.begin(job, format, target) != platform::printer::started) return;
        draw(p);
        p.EndDoc();
    }
    platform::pdf_target target;
    int shown = 0;
};

class etiquetas : public support::fixture {
protected:
    void SetUp() override {
        support::fixture::SetUp();
        platform::set_print_destination(&pdf_);
    }
    void TearDown() override {
        platform::set_print_destination(nullptr);
        platform::set_preview_destination(nullptr);
        delete frmConfEtiqueta::aberto();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        support::fixture::TearDown();
    }
    void clientes(int n) {
        for (int i = 1; i <= n; ++i)
            exec(u"INSERT INTO cliente (nome, endereco, bairro, cidade, estado, tel) VALUES ('Cliente %1', "
                 u"'Rua %1', 'Centro', 'Campinas', 'SP', '13000-%1')"_s.arg(i, 3, 10, QLatin1Char('0')));
    }
    frmConfEtiqueta* abrir(const QString& comando = u"Select * from cliente"_s) {
        EXPECT_TRUE(shell::run_action(u"frmConfEtiqueta"_s));
        frmConfEtiqueta* f = frmConfEtiqueta::aberto();
        f->carregarsql(comando);
        return f;
    }
    void modelo(frmConfEtiqueta* f, int i) {
        f->cmbModelo->setCurrentIndex(i);
        f->cmbModelo_click();
    }
    platform::pdf_target pdf_{path(u"etiquetas.pdf"_s)};
};

TEST_F(etiquetas, the_window_opens_on_the_6082_sheet_and_fields_fall_back_when_left) {
    frmConfEtiqueta* f = abrir();
    EXPECT_EQ(f->windowTitle(), u"Configura Etiqueta"_s);
    EXPECT_EQ(f->cmbModelo->currentText(), u"Pimaco 6080/6180"_s);
    const QStringList abertura = {f->txtAltura->text(), f->txtLargura->text(), f->txtMSup->text(),
                                  f->txtMInf->text(),   f->txtMEsq->text(),    f->txtColunas->text(),
                                  f->txtLinIni->text(), f->txtColIni->text()};
    EXPECT_EQ(abertura,
              QStringList({u"33,9"_s, u"106,3"_s, u"21,2"_s, u"21,2"_s, u"4"_s, u"2"_s, u"1"_s, u"1"_s}));
    EXPECT_FALSE(f->chkVisualizar->isChecked());
    modelo(f, 0);
    EXPECT_EQ(f->txtLargura->text() + f->txtColunas->text(), u"69,83"_s);

    keys::show_active(f);
    f->txtAltura->setFocus();
    f->txtAltura->setText(u"a"_s);
    f->txtColunas->setFocus(); // leaving the height
    EXPECT_EQ(f->txtAltura->text(), u"0"_s);
    f->txtColunas->setText(u"dois"_s);
    f->txtLinIni->setFocus();
    EXPECT_EQ(f->txtColunas->text(), u"1"_s);
}

TEST_F(etiquetas, labels_fall_where_the_sheet_says_from_the_label_chosen_to_start) {
    clientes(28);
    frmConfEtiqueta* f = abrir();
    modelo(f, 0); // three columns of 69,8 mm, rows of 25,4 mm, margins 4,8 and 12,7
    f->txtLinIni->setText(u"2"_s);
    f->txtColIni->setText(u"2"_s);
    f->cmdImprimir->click();
    EXPECT_TRUE(boxes().isEmpty());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(frmConfEtiqueta::aberto(), nullptr); // the window closes after printing

    // "Cliente NNN" starts each label's name; fields in twips inside the label (name at 100, 60)
    const auto words = support::pdf_words(pdf_.path());
    std::map<int, support::pdf_word> nomes;
    for (std::size_t k = 0; k + 1 < words.size(); ++k)
        if (words[k].text == u"Cliente"_s) nomes[words[k + 1].text.toInt()] = words[k];
    ASSERT_EQ(nomes.size(), 28u);
    constexpr double dentro_x = 100 / 56.6929, dentro_y = 60 / 56.6929;
    for (const auto& [cliente, w] : nomes) {
        SCOPED_TRACE(cliente);
        const int n = cliente - 1 + 4; // four empty labels before the first address
        const int pagina = n / 30, linha = (n % 30) / 3, coluna = n % 3;
        EXPECT_EQ(w.page, pagina);
        EXPECT_NEAR(w.x, 4.8 + coluna * 69.8 + dentro_x, 0.3);
        EXPECT_NEAR(w.y, 12.7 + linha * 25.4 + dentro_y, 0.3);
    }
    // "cidade" prints the city and the state
    const QStringList paginas = support::pdf_pages(pdf_.path());
    ASSERT_EQ(paginas.size(), 2);
    EXPECT_EQ(paginas[0].count(u"Campinas / SP"_s), 26);

    // measured on the rendered page: no ink in the four labels before the first address
    const QImage img = support::pdf_render(pdf_.path(), 1, 100);
    ASSERT_FALSE(img.isNull());
    const double px = 100 / 25.4;
    const auto tinta = [&](double x0, double y0, double x1, double y1) {
        int n = 0;
        for (int y = int(y0 * px); y < int(y1 * px); ++y)
            for (int x = int(x0 * px); x < int(x1 * px); ++x)
                if (qGray(img.pixel(x, y)) < 128) ++n;
        return n;
    };
    EXPECT_EQ(tinta(0, 0, 215.9, 38.1) + tinta(0, 38.1, 4.8 + 69.8, 63.5), 0);
    EXPECT_GT(tinta(4.8 + 69.8, 38.1, 4.8 + 2 * 69.8, 63.5), 50);
    // nothing right of the third column's fields
    EXPECT_EQ(tinta(4.8 + 2 * 69.8 + 1.77 + 63.5 + 0.3, 0, 215.9, 279.4), 0);
}

TEST_F(etiquetas, a_long_field_is_cut_at_its_box_and_the_box_at_the_label) {
    exec(u"INSERT INTO cliente (nome, endereco, cidade, estado) VALUES ('%1', 'Rua', 'X', 'Y')"_s.arg(
        u"Nome muito comprido que nao cabe "_s.repeated(4)));
    // a layout box wider than the label: cut to the label's right edge
    exec(u"UPDATE CamposEtiqueta SET Width = 9000 WHERE Campo = 'endereco'"_s);
    exec(u"UPDATE cliente SET endereco = '%1'"_s.arg(u"Avenida "_s.repeated(30)));
    frmConfEtiqueta* f = abrir();
    modelo(f, 0);
    f->cmdImprimir->click();
    const auto words = support::pdf_words(pdf_.path());
    ASSERT_FALSE(words.empty());
    double direita_nome = 0, direita_rua = 0;
    for (const auto& w : words) {
        if (w.text == u"Avenida"_s)
            direita_rua = std::max(direita_rua, w.right);
        else if (w.y < 12.7 + 3)
            direita_nome = std::max(direita_nome, w.right);
    }
    // the name's box is 3600 twips wide from 100; the address's is cut at the label's 69,8 mm
    EXPECT_NEAR(direita_nome, 4.8 + (100 + 3600) / 56.6929 - 2.5, 2.6);
    EXPECT_NEAR(direita_rua, 4.8 + 69.8 - 3, 3.1);
}

TEST_F(etiquetas, the_reports_messages) {
    const auto imprimir = [&](const QString& comando,
                              const std::function<void(frmConfEtiqueta*)>& antes = {}) {
        frmConfEtiqueta* f = abrir(comando);
        if (antes) antes(f);
        f->cmdImprimir->click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    imprimir(u"Select * from fornecedor"_s); // an empty list
    clientes(2);
    imprimir(u"Select * from cliente"_s, [](frmConfEtiqueta* f) { f->txtAltura->setText(u"0"_s); });
    imprimir(u"Select * from cliente"_s, [](frmConfEtiqueta* f) { f->txtLinIni->setText(u"8"_s); });
    imprimir(u"Select * from clientes"_s);
    pdf_.set_path(path(u"sem/pasta/etiquetas.pdf"_s));
    imprimir(u"Select * from cliente"_s);
    struct sem_impressora : platform::print_target {
        outcome prepare(QPrinter&) override { return no_printer; }
    } nenhuma;
    platform::set_print_destination(&nenhuma);
    imprimir(u"Select * from cliente"_s);
    platform::set_print_destination(&pdf_);
    // a field of the layout that the list's table lacks
    exec(u"INSERT INTO CamposEtiqueta (\"Index\", Campo, \"Top\", \"Left\", Width, Formato) VALUES "
         u"(9, 'celular', 1000, 100, 2000, '')"_s);
    imprimir(u"Select * from cliente"_s);
    const QStringList c = boxes();
    ASSERT_EQ(c.size(), 7);
    EXPECT_EQ(c[0], u"Impressão: Não há registros a imprimir"_s);
    EXPECT_EQ(c[1], u"Impressão: A página configurada para o relatório não possuí espaço suficiente para a "
                    u"impressão"_s);
    EXPECT_EQ(c[2], c[1]); // the eighth line of a seven-line sheet
    EXPECT_TRUE(c[3].startsWith(u"Impressão: Erro não previsto:\r\n"_s)) << qPrintable(c[3]);
    EXPECT_TRUE(c[3].contains(u"clientes"_s));
    EXPECT_EQ(c[4], u"Impressão: Erro não previsto:\r\nNão foi possível gravar o arquivo "_s +
                        path(u"sem/pasta/etiquetas.pdf"_s));
    EXPECT_EQ(c[5], u"Impressão: É necessário existir uma impressora instalada no Windows"_s);
    EXPECT_TRUE(c[6].startsWith(u"Impressão: Erro não previsto:\r\n"_s));
    EXPECT_EQ(pdf_.jobs(), 1); // only the one whose file could not be written
    EXPECT_EQ(prompts_.boxes()[0].style, platform::information);
}

TEST_F(etiquetas, the_contact_lists_hand_over_their_table_and_the_preview_shows_it) {
    exec(
        u"INSERT INTO fornecedor (nome, endereco, bairro, cidade, estado, tel) VALUES ('Acme Ltda', 'Rua Z', "
        u"'Polo', 'Jundiaí', 'SP', '13200-000')"_s);
    for (const auto& [acao, tabela] :
         {std::pair{u"mnuclientes"_s, u"cliente"_s}, {u"mnufornecedores"_s, u"fornecedor"_s}}) {
        ASSERT_TRUE(shell::run_action(acao));
        frmcontatos* lista = frmcontatos::aberto(tabela == u"cliente"_s ? registers::contato::cliente
                                                                        : registers::contato::fornecedor);
        ASSERT_TRUE(lista);
        QAction* mala = lista->tbrbarra->findChild<QAction*>(u"mala"_s);
        ASSERT_TRUE(mala && mala->isEnabled());
        mala->trigger();
        frmConfEtiqueta* f = frmConfEtiqueta::aberto();
        ASSERT_TRUE(f && f->isVisible());
        EXPECT_EQ(f->txtsql->text(), u"Select * from "_s + tabela);
        delete lista;
    }
    // seen first: the preview shows the pages, nothing goes to the printer by itself
    pdf_preview preview(path(u"visualizar.pdf"_s));
    platform::set_preview_destination(&preview);
    frmConfEtiqueta::aberto()->chkVisualizar->setChecked(true);
    frmConfEtiqueta::aberto()->cmdImprimir->click();
    EXPECT_EQ(preview.shown, 1);
    EXPECT_EQ(pdf_.jobs(), 0);
    const QString pagina = support::pdf_pages(preview.target.path()).join(QString());
    EXPECT_TRUE(pagina.contains(u"Acme Ltda"_s));
    EXPECT_TRUE(pagina.contains(u"Jundiaí / SP"_s));
}

TEST(labels, field_formats) {
    EXPECT_EQ(registers::formatar_campo(u"ana"_s, u">"_s), u"ANA"_s);
    EXPECT_EQ(registers::formatar_campo(u"1234,5"_s, u"R$ #,##0.00"_s), u"R$ 1.234,50"_s);
    EXPECT_EQ(registers::formatar_campo(u"2026/11/23"_s, u"dd/mm/yyyy"_s), u"23/11/2026"_s);
    EXPECT_EQ(registers::formatar_campo(u"abc"_s, u"dd/mm/yyyy"_s), u"abc"_s);
    EXPECT_EQ(registers::formatar_campo(u"abc"_s, u"##,##0.00"_s), u"abc"_s);
}

} // namespace
