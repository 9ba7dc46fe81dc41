#pragma once
// The printed list report: a title, the filter line and the column headings of a list on every
// page, one line per row, the totals and summary lines at the end, the emission stamp and
// "Página atual: N de M" at the foot of every page. The three report forms are this one engine
// with different data: rlt_ListView adds a second summary line, rlt_historico a contact block.

#include "platform/table_source.h"

#include <QString>

#include <vector>

namespace platform {
class printer;
}

namespace output {

enum class report_form { rlt_impressao, rlt_ListView, rlt_historico };

// The contact block of rlt_historico.
struct contact_block {
    QString nome, tipo, cpf, tel, cel, insc, nascimento;
    QString imagem; // path of the picture; empty or unreadable shows none
};

struct list_report {
    report_form form = report_form::rlt_impressao;
    const platform::table_source* Grid = nullptr;
    QString rpf_Titulo;
    QString lblfiltro;
    QString lblestatus;
    QString lblsumario1;
    QString lblsumario2;   // rlt_ListView and rlt_historico
    contact_block contato; // rlt_historico

    // The report control's codes and margins (centimetres), passed on as the callers set them.
    int formato = 6;
    int orientacao = 2; // 1 portrait, 2 landscape
    double margem_esquerda = 2.0;
    double margem_direita = 4.0;
    double margem_superior = 1.0;
    double margem_inferior = 1.0;

    double espaco = 60; // gap between columns, twips; 0 means the default
    double Altura = 0;  // height of a detail line (twips); 0: the font's line
    QString fonte = QStringLiteral("Arial");
    double tamanho_fonte = 8;
    std::vector<Qt::Alignment> alinhamento; // per column; left where absent
};

// The setup every caller makes: format 6, side margins 2.0 and 4.0, the others 1.0, landscape.
list_report nova_impressao(report_form form, const platform::table_source* grid);

// The texts of the report's error codes 0 to 6; empty for any other code.
QString report_error_text(int code);

enum report_code {
    sem_impressora = 0,
    sem_registros = 1,
    sem_detalhe = 2,
    grupos_incorretos = 3,
    cursor_forward_only = 4,
    pagina_pequena = 5,
    relatorio_em_andamento = 6,
};

// How the rows fall on the pages of an open job.
struct report_pages {
    int rows_per_page = 0;
    int pages = 0;
};
// On a printable area of the given height (twips); false when not one line fits between the
// head and the foot of a page.
bool paginate(double scale_height, const list_report& r, report_pages& out);

// Draws the whole report onto an open job. Returns -1 when drawn, or a report code.
int draw_list_report(platform::printer& p, const list_report& r);

// Runs the report to the print destination, with the coded messages ("Impressão") and the
// unforeseen-error box. True when the pages went out.
bool Executar(const list_report& r);

} // namespace output
