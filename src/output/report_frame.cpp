#include "output/report_frame.h"

#include "platform/busy.h"
#include "platform/clock.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/shell.h"
#include "platform/text/vb_text.h"
#include "store/config.h"

#include <QFile>

namespace output {

namespace {

const QString padrao_nome = QStringLiteral("Quintara");
const QString padrao_slogan = QStringLiteral("Quintara - organização financeira pessoal e empresarial");
const QString padrao_site = QStringLiteral("https://www.quintara.com.br");

void line(QIODevice& out, const QString& s) {
    if (!out.isWritable()) return;
    out.write(s.toUtf8() + QByteArrayLiteral("\r\n"));
}

// From "Gerado" to the maker's address, the same under every text report.
void text_foot(QIODevice& out) {
    line(out, linha_gerado());
    line(out, QString());
    line(out, nome_relatorio());
    line(out, QString());
    line(out, slogan_relatorio());
    line(out, site_relatorio());
}

// The closing block and the foot of every HTML report.
void html_foot(QIODevice& out, const QString& fechamento) {
    line(out, QStringLiteral("<p><font face='Arial'><center>"));
    line(out, QStringLiteral("<br><b>Estatísticas</b><hr>") + fechamento + QStringLiteral("<hr><br>"));
    line(out, linha_gerado() + QStringLiteral("<br>"));
    line(out, QStringLiteral("<br>"));
    line(out, QStringLiteral("<b>") + nome_relatorio() + QStringLiteral("</b><br>"));
    line(out, QStringLiteral("<br>"));
    line(out, slogan_relatorio() + QStringLiteral("<br>"));
    line(out, linha_site_html());
    line(out, QStringLiteral("</center></font></p>"));
}

QString heading(const report_texts& t) {
    if (t.janela == janela_relatorio::movimento) return t.caption.toUpper();
    return t.caption.toUpper() + QStringLiteral(" - ") + t.tipo.toUpper();
}

} // namespace

QString nome_relatorio() {
    return store::setting(store::secao_relatorio, QStringLiteral("nome"), padrao_nome);
}
QString slogan_relatorio() {
    return store::setting(store::secao_relatorio, QStringLiteral("slogan"), padrao_slogan);
}
QString site_relatorio() {
    return store::setting(store::secao_relatorio, QStringLiteral("site"), padrao_site);
}

QString linha_gerado() {
    const QDateTime agora = platform::now();
    return QStringLiteral("Gerado ") + vb::long_date(agora.date()) + QStringLiteral(" às ") +
           vb::long_time(agora.time());
}

QString linha_site_html() {
    const QString site = site_relatorio();
    return QStringLiteral("<p><a href='") + site + QStringLiteral("'>") + site +
           QStringLiteral("</a></p><br>");
}

void write_text_report(QIODevice& out, const report_texts& t, const platform::table_source* lista,
                       c_relatorios& exportador) {
    const bool movimento = t.janela == janela_relatorio::movimento;
    line(out, heading(t));
    line(out, QString());
    if (!movimento) {
        line(out, t.subtitulo);
        line(out, QString());
    }
    line(out, linha_produto);
    line(out, QString());
    if (lista) {
        platform::busy_span hourglass;
        exportador.Exportar_listaparaTXT(out, QString(), *lista, true);
    }
    line(out, QString());
    if (movimento) {
        line(out, QStringLiteral("Estatísticas"));
        line(out, QString());
    }
    line(out, t.totais);
    line(out, QString());
    text_foot(out);
}

void write_html_report(QIODevice& out, const report_texts& t, const platform::table_source* lista,
                       c_relatorios& exportador) {
    const bool movimento = t.janela == janela_relatorio::movimento;
    if (out.isWritable()) out.write(QByteArrayLiteral("\xEF\xBB\xBF"));
    line(out, QStringLiteral("<html>\r\n<head>\r\n<title>") + heading(t) + QStringLiteral("</title>"));
    line(out, QStringLiteral("<p><font face='Arial'>"));
    line(out, QStringLiteral("<center><b>") + heading(t) + QStringLiteral("</b>"));
    line(out, QStringLiteral("<hr>"));
    if (!movimento) {
        line(out, t.subtitulo);
        line(out, QStringLiteral("<br>"));
    }
    line(out, linha_produto + QStringLiteral("<br><br>"));
    line(out, QStringLiteral("</center></font></p>"));
    if (lista) {
        platform::busy_span hourglass;
        exportador.Exportar_listaparaHTML(out, *lista);
    }
    html_foot(out, t.totais);
}

void write_text_list(QIODevice& out, const list_frame& f, const platform::table_source* lista,
                     c_relatorios& exportador) {
    line(out, f.titulo);
    line(out, QString());
    for (const QString& l : f.topo) {
        line(out, l);
        line(out, QString());
    }
    line(out, linha_produto);
    line(out, QString());
    if (lista) {
        platform::busy_span hourglass;
        exportador.Exportar_listaparaTXT(out, QString(), *lista, true);
    }
    line(out, QString());
    for (const QString& l : f.fechamento)
        line(out, l);
    line(out, QString());
    text_foot(out);
}

void write_html_list(QIODevice& out, const list_frame& f, const platform::table_source* lista,
                     c_relatorios& exportador) {
    if (out.isWritable()) out.write(QByteArrayLiteral("\xEF\xBB\xBF"));
    line(out, QStringLiteral("<html>\r\n<head>\r\n<title>") + f.titulo + QStringLiteral("</title>"));
    line(out, QStringLiteral("<p><font face='Arial'>"));
    line(out, QStringLiteral("<center><b>") + f.titulo + QStringLiteral("</b>"));
    line(out, QStringLiteral("<hr>"));
    for (const QString& l : f.topo) {
        line(out, l);
        line(out, QStringLiteral("<br>"));
    }
    line(out, linha_produto + QStringLiteral("<br><br>"));
    line(out, QStringLiteral("</center></font></p>"));
    if (lista) {
        platform::busy_span hourglass;
        exportador.Exportar_listaparaHTML(out, *lista);
    }
    html_foot(out, f.fechamento.join(QStringLiteral("<br>")));
}

QString save_title(formato_relatorio f) {
    return f == formato_relatorio::txt ? QStringLiteral("Salvar relatório em txt")
                                       : QStringLiteral("Salvar relatório em html");
}

QString save_filter(janela_relatorio j, formato_relatorio f) {
    if (f == formato_relatorio::html) return QStringLiteral("Arquivos HTML(*.html)|*.html");
    // the two windows spell it differently
    return j == janela_relatorio::relatorio ? QStringLiteral("Arquivos de Texto(*.txt)|*.txt")
                                            : QStringLiteral("Arquivo de texto(*.txt)|*.txt");
}

void perguntar_visualizar(const QString& arquivo) {
    const int r = platform::msgbox(
        QStringLiteral("Os dados foram salvos com sucesso para arquivo, deseja abrir o arquivo agora?"),
        platform::yes_no | platform::question, QStringLiteral("Visualizar"));
    if (r == platform::answer_yes) platform::desktop().open(arquivo);
}

QString salvar_arquivo(const QString& titulo, const QString& filtro, progress* bar,
                       const std::function<void(QIODevice&)>& escrever) {
    QString arquivo;
    try {
        arquivo = platform::ask().save_file(titulo, filtro, QString());
    } catch (...) {
        return {};
    }
    if (arquivo.isEmpty()) return arquivo;
    // each step on its own: a failure skips that step and the next one runs
    if (bar) bar->set_visible(true);
    platform::ignore_errors([&] {
        // an unwritable file leaves nothing written and nothing touched
        QFile file(arquivo);
        if (file.open(QIODevice::WriteOnly | QIODevice::Truncate)) escrever(file);
    });
    if (bar) bar->set_visible(false);
    platform::ignore_errors([&] { perguntar_visualizar(arquivo); });
    return arquivo;
}

QString salvar_relatorio(formato_relatorio f, const report_texts& t, const platform::table_source* lista,
                         c_relatorios& exportador) {
    return salvar_arquivo(save_title(f), save_filter(t.janela, f), exportador.Progresbar(),
                          [&](QIODevice& file) {
                              if (f == formato_relatorio::txt)
                                  write_text_report(file, t, lista, exportador);
                              else
                                  write_html_report(file, t, lista, exportador);
                          });
}

} // namespace output
