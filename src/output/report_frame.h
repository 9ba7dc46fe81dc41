#pragma once
// The frame every exported report is written in (title, sub-title, the product line, the table,
// totals, the "Gerado" stamp, the owner's name and slogan, the maker's address) and the save
// action around it: dialog, file, question, opening the file.

#include "output/c_relatorios.h"

#include <QString>
#include <QStringList>

#include <functional>

class QIODevice;

namespace output {

enum class janela_relatorio { relatorio, movimento };

// What the report window shows around its list.
struct report_texts {
    janela_relatorio janela = janela_relatorio::relatorio;
    QString caption;   // the window's caption
    QString tipo;      // LBLTIPO (frmrelatorio only)
    QString subtitulo; // lblsubtitulo
    QString totais;    // lblgeral, or lblpagarest in frmmovimento
};

inline const QString linha_produto = QStringLiteral("Quintara organizando a sua vida financeira!");

// The settings of the report footer, read at each use.
QString nome_relatorio();
QString slogan_relatorio();
QString site_relatorio();
// "Gerado segunda-feira, 23 de novembro de 2026 às 10:00:00"
QString linha_gerado();
// The maker's address as the HTML footer links it, "<br>" behind.
QString linha_site_html();

// The frames, written to the open device; lista is the visible list (nullptr when none is).
void write_text_report(QIODevice& out, const report_texts& t, const platform::table_source* lista,
                       c_relatorios& exportador);
// The HTML frame begins with a UTF-8 byte-order mark: the page declares no character set.
void write_html_report(QIODevice& out, const report_texts& t, const platform::table_source* lista,
                       c_relatorios& exportador);

// The frame of a list window's export (appointments and the like): the title, the lines under it,
// the product line, the table, the closing block where the report windows have their totals, and
// the common foot.
struct list_frame {
    QString titulo;         // as it stands; callers give it in upper case
    QStringList topo;       // text: each line and an empty one; HTML: each line and "<br>"
    QStringList fechamento; // text: one line each; HTML: joined by "<br>" between the rules
};
void write_text_list(QIODevice& out, const list_frame& f, const platform::table_source* lista,
                     c_relatorios& exportador);
void write_html_list(QIODevice& out, const list_frame& f, const platform::table_source* lista,
                     c_relatorios& exportador);

enum class formato_relatorio { txt, html };

// Dialog title and filter of the save action of frmrelatorio and frmmovimento.
QString save_title(formato_relatorio f);
QString save_filter(janela_relatorio j, formato_relatorio f);

// "Visualizar": asked after every save, whatever became of the file; Yes opens it.
void perguntar_visualizar(const QString& arquivo);

// The save action of every exporting window, with its own dialog words: the save dialog, the file
// written by escrever with the bar shown, the "Visualizar" question. Returns the file name chosen
// (empty: cancelled). Nothing here throws.
QString salvar_arquivo(const QString& titulo, const QString& filtro, progress* bar,
                       const std::function<void(QIODevice&)>& escrever);

// The save action of the two report windows. Returns the file name chosen (empty: cancelled).
// The bar of the exporter is shown while the file is written; nothing here throws.
QString salvar_relatorio(formato_relatorio f, const report_texts& t, const platform::table_source* lista,
                         c_relatorios& exportador);

} // namespace output
