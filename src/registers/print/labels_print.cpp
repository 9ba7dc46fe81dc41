#include "registers/print/labels_print.h"

#include "output/c_relatorios.h"
#include "output/print/list_report.h"
#include "platform/print/printer.h"
#include "platform/prompts.h"
#include "platform/sql/error.h"
#include "platform/sql/recordset.h"
#include "store/conexao.h"

#include <QFontMetricsF>
#include <QPainter>

#include <exception>

namespace registers {

namespace {

constexpr double twips_por_mm = 1440.0 / 25.4;
const QString titulo_impressao = QStringLiteral("Impressão");
bool em_andamento = false;

void aviso(int codigo) {
    platform::msgbox(output::report_error_text(codigo), platform::information, titulo_impressao);
}

void imprevisto(const QString& descricao) {
    platform::msgbox(QStringLiteral("Erro não previsto:") + QStringLiteral("\r\n") + descricao,
                     platform::critical, titulo_impressao);
}

// The part of a text that fits in a box, whole characters only.
QString cabe(const QFontMetricsF& m, const QString& texto, double largura) {
    if (m.horizontalAdvance(texto) <= largura) return texto;
    qsizetype n = texto.size();
    while (n > 0 && m.horizontalAdvance(texto.left(n)) > largura)
        --n;
    return texto.left(n);
}

// The report's paper-size codes: 1 letter, 9 A4.
platform::page_format papel(int codigo) {
    platform::page_format f;
    f.size = codigo == 9 ? QPageSize::A4 : QPageSize::Letter;
    f.orientation = QPageLayout::Portrait;
    f.margins_mm = QMarginsF(0, 0, 0, 0);
    f.full_page = true;
    return f;
}

} // namespace

void desenhar_etiquetas(platform::printer& p, const grade_etiquetas& g,
                        const std::vector<campo_etiqueta>& campos, const std::vector<QStringList>& textos,
                        int pular, output::progress* barra) {
    p.set_FontName(fonte_etiqueta);
    p.set_FontSize(tamanho_fonte_etiqueta);
    QPainter& pintor = p.painter();
    const QFontMetricsF m(p.twips_font());
    const double altura_linha = m.height();
    const double altura_twips = g.altura * twips_por_mm;
    const long long total = pular + (long long)textos.size();
    int folha = 0;
    for (long long n = pular; n < total; ++n) {
        if (g.folha(n) != folha) {
            while (folha < g.folha(n)) {
                p.NewPage();
                ++folha;
            }
        }
        const QStringList& linha = textos[std::size_t(n - pular)];
        const double x = g.x(n) * twips_por_mm;
        const double y = g.y(n) * twips_por_mm;
        for (std::size_t k = 0; k < campos.size() && k < std::size_t(linha.size()); ++k) {
            const campo_etiqueta& c = campos[k];
            // a box that starts below the label's bottom shows nothing
            if (c.Top >= altura_twips || c.Width <= 0) continue;
            const QString texto = cabe(m, linha[int(k)], c.Width);
            if (texto.isEmpty()) continue;
            const QRectF caixa(x + c.Left, y + c.Top, c.Width, std::min(altura_linha, altura_twips - c.Top));
            pintor.drawText(caixa, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, texto);
        }
        if (barra && ((n - pular) & 255) == 0)
            barra->set_value(double(n - pular) * 100.0 / double(textos.size()));
    }
}

void rlt_Etiquetas::Config() {
    campos_ = ler_campos_etiqueta(c_.Largura * twips_por_mm);
}

bool rlt_Etiquetas::imprimir(const QString& comando) {
    if (em_andamento) {
        aviso(output::relatorio_em_andamento);
        return false;
    }
    std::vector<QStringList> textos;
    try {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(comando, store::conexao, sql::static_cursor);
        Config();
        if (rs.record_count() == 0) {
            aviso(output::sem_registros);
            return false;
        }
        textos.reserve(std::size_t(rs.record_count()));
        for (rs.move_first(); !rs.eof(); rs.move_next()) {
            QStringList t;
            t.reserve(qsizetype(campos_.size()));
            for (const campo_etiqueta& c : campos_)
                t << texto_campo(rs, c);
            textos.push_back(std::move(t));
        }
        rs.close();
    } catch (const sql::error& e) {
        imprevisto(e.description());
        return false;
    } catch (const std::exception& e) {
        imprevisto(QString::fromUtf8(e.what()));
        return false;
    }
    const QSizeF folha = QPageSize(papel(papel_).size).size(QPageSize::Millimeter);
    const auto g = montar_grade(c_, folha.width(), folha.height());
    const int pular = etiquetas_a_pular(c_);
    // the first address must fall on the first sheet: blank sheets are never printed
    if (!g || pular >= g->por_folha()) {
        aviso(output::pagina_pequena);
        return false;
    }
    em_andamento = true;
    struct liberar {
        ~liberar() { em_andamento = false; }
    } guarda;
    return desenhar(*g, textos, pular);
}

bool rlt_Etiquetas::desenhar(const grade_etiquetas& g, const std::vector<QStringList>& textos, int pular) {
    const platform::page_format formato = papel(papel_);
    const QString trabalho = QStringLiteral("Etiquetas");
    const std::vector<campo_etiqueta> campos = campos_;
    if (visualizar_ && platform::preview_destination()) {
        try {
            platform::preview_destination()->show(trabalho, formato, [&](platform::printer& p) {
                desenhar_etiquetas(p, g, campos, textos, pular, barra_);
            });
            return true;
        } catch (const std::exception& e) {
            imprevisto(QString::fromUtf8(e.what()));
            return false;
        }
    }
    platform::printer p;
    try {
        switch (p.begin(trabalho, formato)) {
        case platform::printer::no_printer:
            aviso(output::sem_impressora);
            return false;
        case platform::printer::cancelled:
            return false;
        case platform::printer::failed:
            imprevisto(p.error_text());
            return false;
        case platform::printer::started:
            break;
        }
        desenhar_etiquetas(p, g, campos, textos, pular, barra_);
        p.EndDoc();
        return true;
    } catch (const std::exception& e) {
        p.abort();
        imprevisto(QString::fromUtf8(e.what()));
        return false;
    }
}

} // namespace registers
