#include "banks/print/estatisticas_print.h"

#include "output/c_relatorios.h"
#include "output/print/modimpressao.h"
#include "output/report_frame.h"
#include "platform/print/printer.h"

#include <QCoreApplication>

namespace banks {

namespace {

// Line by line, a new page when the current one is past its limit.
class pagina {
public:
    explicit pagina(platform::printer& p) : p_(p) {}

    void linha(const QString& texto = QString(), bool negrito = false) {
        if (p_.CurrentY() > p_.ScaleHeight() - 1000) p_.NewPage();
        p_.set_FontBold(negrito);
        p_.set_CurrentX(0);
        p_.print(texto);
        p_.new_line();
        p_.set_FontBold(false);
    }
    void bloco(const QString& texto) {
        QString t = texto;
        if (t.endsWith(QLatin1Char('\n'))) t.chop(1);
        for (const QString& l : t.split(QLatin1Char('\n')))
            linha(l);
    }
    void regua() {
        if (p_.CurrentY() > p_.ScaleHeight() - 1000) p_.NewPage();
        p_.set_CurrentX(0);
        const double w = p_.TextWidth(QStringLiteral("_"));
        while (w > 0 && p_.CurrentX() + w <= p_.ScaleWidth())
            p_.print(QStringLiteral("_"));
        p_.new_line();
    }

private:
    platform::printer& p_;
};

} // namespace

bool imprimir_estatisticas(const std::vector<QStringList>& linhas, const QString& resumo, const QString& est,
                           output::progress* barra) {
    try {
        platform::printer p;
        if (!output::modimpressao::comecar(p, QStringLiteral("Estatísticas de Caixa/Banco"))) return false;
        if (barra) barra->set_visible(true);
        p.set_font(QStringLiteral("Arial"), 14, true);
        p.set_CurrentY(20);
        p.print(QStringLiteral("Caixa/Banco"));
        p.new_line();
        p.set_FontSize(11);
        pagina pg(p);
        pg.regua();
        pg.linha();
        const int n = int(linhas.size());
        for (int i = 0; i < n; ++i) {
            const QStringList& l = linhas[std::size_t(i)];
            pg.linha(QStringLiteral("Caixa/Banco: ") + l.value(0));
            pg.linha(QStringLiteral("Saldo(no período): ") + l.value(1));
            pg.linha(QStringLiteral("Informações: ") + l.value(2));
            pg.linha(QStringLiteral("Saldo(inicial): ") + l.value(3));
            pg.linha();
            if (barra) {
                barra->set_value(double(i + 1) / n * 100.0);
                QCoreApplication::processEvents();
            }
        }
        pg.regua();
        pg.linha(QStringLiteral("RESUMO DE CAIXA"), true);
        pg.linha();
        pg.bloco(resumo);
        pg.regua();
        pg.linha(QStringLiteral("ESTATÍSTICAS"), true);
        pg.linha();
        pg.bloco(est);
        pg.regua();
        pg.linha(output::linha_gerado());
        pg.linha();
        pg.linha(output::nome_relatorio());
        pg.linha(output::slogan_relatorio());
        p.EndDoc();
        if (barra) barra->set_visible(false);
        return true;
    } catch (...) {
        if (barra) barra->set_visible(false);
        output::modimpressao::erro_impressao();
        return false;
    }
}

} // namespace banks
