// The fixed texts of the reports, against tests/data/output/texts.txt.
#include "output/print/list_report.h"
#include "output/report_frame.h"
#include "support/fixture.h"
#include "support/golden.h"

using namespace Qt::StringLiterals;

namespace {

class output_texts : public support::fixture {};

TEST_F(output_texts, the_reports_fixed_texts_as_the_baseline_gives_them) {
    using output::formato_relatorio;
    using output::janela_relatorio;
    EXPECT_TRUE(support::matches_baseline(u"output/texts.txt"_s, [](const QString& line) {
        const QString arg = line.section(u' ', 1);
        if (line.startsWith(u"report_error"_s)) return QStringList{output::report_error_text(arg.toInt())};
        const formato_relatorio f =
            arg.endsWith(u"html"_s) ? formato_relatorio::html : formato_relatorio::txt;
        if (line.startsWith(u"save_title"_s)) return QStringList{output::save_title(f)};
        if (line.startsWith(u"save_filter"_s))
            return QStringList{output::save_filter(
                arg.startsWith(u"movimento"_s) ? janela_relatorio::movimento : janela_relatorio::relatorio,
                f)};
        if (line.startsWith(u"linha_gerado"_s)) return QStringList{output::linha_gerado()};
        return QStringList{output::linha_site_html()};
    }));
}

} // namespace
