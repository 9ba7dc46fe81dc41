#include "analysis/custom_report.h"

#include "platform/sql/jet_dialect.h"
#include "platform/text/vb_text.h"
#include "store/names.h"

namespace analysis {

using shell::ledger;

const std::vector<opcao_ordem>& opcoes_ordem(ledger tabela) {
    static const std::vector<opcao_ordem> pagar = {
        {"optdatap", QStringLiteral("Data (padrão)"), QStringLiteral("order by Data")},
        {"optdescricaop", QStringLiteral("Descrição"), QStringLiteral("order by descricao")},
        {"optdocumentop", QStringLiteral("Documento"), QStringLiteral("order by documento")},
        {"optvencimentop", QStringLiteral("Vencimento"), QStringLiteral("order by vencimento")},
        {"optfornecedorp", QStringLiteral("Fornecedor"), QStringLiteral("order by fornecedor")},
        {"optorigemp", QStringLiteral("Conta origem"), QStringLiteral("order by origem")},
        {"optvalorp", QStringLiteral("Valor"), QStringLiteral("order by valor")},
        {"optestatusp", QStringLiteral("Estatus"), QStringLiteral("order by estatus")},
    };
    static const std::vector<opcao_ordem> receber = {
        {"optdatar", QStringLiteral("Data (padrão)"), QStringLiteral("order by data")},
        {"optdescricaor", QStringLiteral("Descrição"), QStringLiteral("order by descricao")},
        {"optdocumentor", QStringLiteral("Documento"), QStringLiteral("order by documento")},
        {"optvencimentor", QStringLiteral("Vencimento"), QStringLiteral("order by vencimento")},
        {"optclienter", QStringLiteral("Cliente"), QStringLiteral("order by cliente")},
        {"optorigemr", QStringLiteral("Conta origem"), QStringLiteral("order by origem")},
        {"optvalorr", QStringLiteral("Valor"), QStringLiteral("order by valor")},
        {"optestatusr", QStringLiteral("Estatus"), QStringLiteral("order by estatus")},
    };
    static const std::vector<opcao_ordem> bancario = {
        {"optdatab", QStringLiteral("Data (padrão)"), QStringLiteral("order by Data")},
        {"optmovimentob", QStringLiteral("Tipo de movimento"), QStringLiteral("order by movimento")},
        {"optorigemb", QStringLiteral("Conta origem"), QStringLiteral("order by origem")},
        {"optdestinob", QStringLiteral("Conta destino"), QStringLiteral("order by destino")},
        {"optvalorb", QStringLiteral("Valor"), QStringLiteral("order by valor")},
        {"optestatusb", QStringLiteral("Estatus"), QStringLiteral("order by estatus")},
    };
    return tabela == ledger::pagar ? pagar : tabela == ledger::receber ? receber : bancario;
}

QString campo_data(const criterios_relatorio& c) {
    if (c.tabela == ledger::bancario || c.data_cadastro) return QStringLiteral("Data");
    return QStringLiteral("Vencimento");
}

namespace {

// The box's text while ticked, '%%' otherwise; an apostrophe makes the statement fail.
QString filtro(bool marcado, const QString& texto) {
    return marcado ? sql::value(texto) : QStringLiteral("%%");
}

} // namespace

std::optional<QString> consulta_relatorio(const criterios_relatorio& c) {
    QString clausula, juncao = QStringLiteral(" WHERE ");
    if (c.data) {
        if (!c.data1.isValid() || !c.data2.isValid()) return std::nullopt;
        clausula = QStringLiteral("WHERE ") + campo_data(c) + QStringLiteral(" BETWEEN '") +
                   vb::ymd(c.data1) + QStringLiteral("' AND '") + vb::ymd(c.data2) + QLatin1Char('\'');
        juncao = QStringLiteral(" AND ");
    }
    const QString estatus = c.estatus ? (c.pendente ? store::palavra::pendente : store::palavra::concluido)
                                      : QStringLiteral("%%");
    const QString origem = filtro(c.origem, c.origem_texto);
    const auto& opcoes = opcoes_ordem(c.tabela);
    const QString ordem = c.ordem.isEmpty() ? opcoes.front().clausula : c.ordem;
    const QString fim =
        ordem + QLatin1Char(' ') + (c.crescente ? QStringLiteral("ASC") : QStringLiteral("DESC"));
    switch (c.tabela) {
    case ledger::pagar:
        return QStringLiteral("Select * from pagar ") + clausula + juncao +
               QStringLiteral("estatus like ('") + estatus + QStringLiteral("') AND fornecedor like('") +
               filtro(c.contato, c.contato_texto) + QStringLiteral("') AND origem like('") + origem +
               QStringLiteral("') AND descricao like('") + filtro(c.descricao, c.descricao_texto) +
               QStringLiteral("') ") + fim;
    case ledger::receber:
        return QStringLiteral("Select * from receber ") + clausula + juncao +
               QStringLiteral("(estatus like '") + estatus + QStringLiteral("') AND (cliente like '") +
               filtro(c.contato, c.contato_texto) + QStringLiteral("') AND (origem like '") + origem +
               QStringLiteral("') AND (descricao like '") + filtro(c.descricao, c.descricao_texto) +
               QStringLiteral("') ") + fim;
    case ledger::bancario:
        return QStringLiteral("Select * from bancario ") + clausula + juncao +
               QStringLiteral("estatus like ('") + estatus + QStringLiteral("') AND origem like('") + origem +
               QStringLiteral("') AND destino like('") + filtro(c.destino, c.destino_texto) +
               QStringLiteral("') ") + fim;
    }
    return std::nullopt;
}

QString subtitulo_relatorio(const criterios_relatorio& c, const QString& d1, const QString& d2) {
    if (!c.data)
        return QStringLiteral("                      Obs. Este relatório não foi filtrado por data.");
    const QString dias = QString::number(dias_entre(c.data1, c.data2));
    const bool data = campo_data(c).compare(QStringLiteral("data"), Qt::CaseInsensitive) == 0;
    return (data ? QStringLiteral("Relatório gerado entre as datas de ")
                 : QStringLiteral("Relatório gerado entre os vencimentos de ")) +
           d1 + QStringLiteral(" e ") + d2 + QStringLiteral(" - Período de ") + dias +
           QStringLiteral(" dias.");
}

QString geral_relatorio(ledger tabela, const status_tally& t, const QString& d1, const QString& d2) {
    const QString total = tabela == ledger::pagar     ? QStringLiteral("Total de despesas: R$ ")
                          : tabela == ledger::receber ? QStringLiteral("Total de receitas: R$ ")
                                                      : QStringLiteral("Valor total: R$ ");
    const QString pago = tabela == ledger::pagar     ? QStringLiteral(" - Total pago: R$ ")
                         : tabela == ledger::receber ? QStringLiteral(" - Total recebido: R$ ")
                                                     : QStringLiteral(" - Total concluído: R$ ");
    return QStringLiteral("Total de cadastros no período: ") + QString::number(t.n()) +
           QStringLiteral(" (entre ") + d1 + QStringLiteral(" e ") + d2 + QStringLiteral(")\r\n") + total +
           t.texto_total() + pago + t.texto(classe::concluido) + QStringLiteral(" - Total pendente: R$ ") +
           t.texto(classe::pendente);
}

lista_lida ler_relatorio(ledger tabela, const QString& consulta, const std::function<void(long)>& antes,
                         const std::function<void(long)>& a_cada) {
    // the movement-view rows: every text followed by a blank, the notes last
    membro m;
    m.tabela = tabela;
    m.p = periodo::tudo;
    m.v = vista::movimento;
    return ler_lista(m, consulta, antes, a_cada);
}

} // namespace analysis
