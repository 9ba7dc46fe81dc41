#include "shell/ledger_statement.h"

#include "platform/sql/jet_dialect.h"
#include "platform/text/vb_text.h"

#include <QRegularExpression>

namespace shell {

using namespace Qt::StringLiterals;

namespace {

using vb::trim_blanks;
using vb::ymd;

} // namespace

QDate date_serial(int year, int month, int day) {
    const int m0 = month - 1;
    const int carry = m0 >= 0 ? m0 / 12 : -((11 - m0) / 12);
    const int m = m0 - carry * 12 + 1;
    return QDate(year + carry, m, 1).addDays(day - 1);
}

QString bounds_in_order(const QString& statement) {
    static const QRegularExpression between(u"\\bBETWEEN\\s+'([^']*)'\\s+AND\\s+'([^']*)'"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    QString out;
    qsizetype last = 0;
    for (auto it = between.globalMatch(statement); it.hasNext();) {
        const auto m = it.next();
        QString lo = m.captured(1), hi = m.captured(2);
        if (QString::compare(lo, hi, Qt::CaseSensitive) > 0) std::swap(lo, hi);
        out += QStringView(statement).mid(last, m.capturedStart() - last);
        out += u"BETWEEN '"_s + lo + u"' AND '"_s + hi + u'\'';
        last = m.capturedEnd();
    }
    out += QStringView(statement).mid(last);
    return out;
}

built_statement entry_statement(ledger which, const entry_filters& f, const QDate& hoje,
                                const QString& sqlatual_anterior) {
    const ledger_traits& w = traits(which);
    const QString coluna = f.baseado.toLower() == u"data cadastro"_s ? u"data"_s : u"vencimento"_s;

    const QString tipo = f.tipo.toLower();
    QString restoestatus;
    if (tipo == u"pendentes e concluídos"_s)
        restoestatus.clear();
    else if (tipo == u"pendentes"_s)
        restoestatus = u" and (estatus like 'Pendente') "_s;
    else
        restoestatus = u" and (estatus like 'Concluído') "_s;

    const QString restobanco = f.banco.toLower() == todos_bancos.toLower()
                                   ? QString()
                                   : u" and (origem like '"_s + sql::value(f.banco) + u"') "_s;
    const QString restocentro = f.centro.toLower() == w.todos_centros.toLower()
                                    ? QString()
                                    : u" and (descricao like '"_s + sql::value(f.centro) + u"') "_s;
    const QString restocontato =
        f.contato.toLower() == w.todos_contatos.toLower()
            ? QString()
            : u" and ("_s + w.contato + u" like '"_s + sql::value(f.contato) + u"') "_s;
    const QString resto = restocentro + restocontato + restobanco;

    const QString select = u"SELECT * FROM "_s + w.tabela;
    const QString ano = vb::format_date(hoje, u"yyyy"_s);
    const QString mes = vb::format_date(hoje, u"mm"_s);
    const auto between = [&](const QDate& first, const QDate& second) {
        return select + u" WHERE "_s + coluna + u" BETWEEN '"_s + ymd(first) + u"' AND '"_s + ymd(second) +
               u"' "_s + restoestatus;
    };

    const QString filtro = f.filtro.toLower();
    std::optional<QString> base;
    if (filtro == u"todos os dados"_s) {
        if (tipo == u"pendentes e concluídos"_s)
            base = select + u" where (estatus like '%%')"_s;
        else if (tipo == u"pendentes"_s)
            base = select + u" where (estatus like 'Pendente') "_s;
        else if (tipo == u"concluídos"_s)
            base = select + u" where (estatus like 'Concluído') "_s;
    } else if (filtro == u"apenas deste ano"_s) {
        base = select + u" where("_s + coluna + u" like '%"_s + ano + u"/%') "_s + restoestatus;
    } else if (filtro == u"apenas deste mês"_s) {
        base = select + u" where("_s + coluna + u" like '%/"_s + mes + u"/%' AND "_s + coluna +
               u" like '%"_s + ano + u"/%') "_s + restoestatus;
    } else if (filtro == u"apenas do dia"_s) {
        base = select + u" where("_s + coluna + u" like '"_s + ymd(hoje) + u"') "_s + restoestatus;
    } else if (filtro == u"ultimos 7 dias"_s) {
        base = between(hoje.addDays(-7), hoje);
    } else if (filtro == u"ultimos 15 dias"_s) {
        base = between(hoje.addDays(-15), hoje);
    } else if (filtro == u"próximos 7 dias"_s) {
        // the later day first: the old store took BETWEEN's bounds in either order
        base = between(hoje.addDays(7), hoje);
    } else if (filtro == u"próximos 15 dias"_s) {
        base = between(hoje.addDays(15), hoje);
    } else if (filtro == u"mês anterior"_s) {
        base = between(date_serial(hoje.year(), hoje.month() - 1, 31),
                       date_serial(hoje.year(), hoje.month() - 1, 1));
    } else if (filtro == u"próximo mês"_s) {
        base = between(date_serial(hoje.year(), hoje.month() + 1, 31),
                       date_serial(hoje.year(), hoje.month() + 1, 1));
    }

    built_statement out;
    out.sqlatual = base ? *base + resto : sqlatual_anterior;
    out.consulta = trim_blanks(out.sqlatual + u" order by "_s + coluna);
    return out;
}

built_statement movement_statement(const movement_filters& f, const QDate& hoje,
                                   const QString& sqlatual_anterior) {
    const QString organizar = f.organizar.toLower();
    QString ordem;
    if (organizar == u"data de cadastro"_s)
        ordem = u"order by data"_s;
    else if (organizar == u"tipo de movimento"_s)
        ordem = u"order by movimento"_s;
    else if (organizar == u"valor"_s)
        ordem = u"order by valor"_s;
    else if (organizar == u"estatus"_s)
        ordem = u"order by estatus"_s;
    else if (organizar == u"conta origem"_s)
        ordem = u"order by origem"_s;
    else if (organizar == u"conta destino"_s)
        ordem = u"order by destino"_s;
    const QString cauda = ordem + u" "_s + (f.ascendente ? u"ASC"_s : u"DESC"_s);

    // Crossed on purpose under the date filters: "Retiradas" picks the deposits.
    QString restotipo;
    if (f.tipo == u"Retiradas"_s)
        restotipo = u" AND (movimento like 'Depósito') "_s;
    else if (f.tipo == u"Depósitos"_s)
        restotipo = u" AND (movimento like 'Retirada') "_s;
    else if (f.tipo == u"Transferências"_s)
        restotipo = u" AND (movimento like 'Transferência entre contas') "_s;

    const QString filtro = f.filtro.toLower();
    std::optional<QString> sqlatual;
    if (filtro == u"todos os dados"_s) {
        if (f.tipo == u"Retiradas"_s)
            sqlatual = u"Select * from bancario WHERE (movimento like 'Retirada') "_s + cauda;
        else if (f.tipo == u"Depósitos"_s)
            sqlatual = u"Select * from bancario WHERE (movimento like 'Depósito') "_s + cauda;
        else if (f.tipo == u"Transferências"_s)
            sqlatual =
                u"Select * from bancario WHERE (movimento like 'Transferência entre contas') "_s + cauda;
        else if (f.tipo == u"Todos os dados"_s)
            sqlatual = u"Select * from bancario "_s + cauda;
    } else if (filtro == u"apenas deste ano"_s) {
        sqlatual = u"SELECT * FROM bancario where(data like '%"_s + vb::format_date(hoje, u"yyyy"_s) +
                   u"/%') "_s + restotipo + cauda;
    } else if (filtro == u"apenas deste mês"_s) {
        sqlatual = u"SELECT * FROM bancario where(Data like '%/"_s + vb::format_date(hoje, u"mm"_s) +
                   u"/%' AND data like '%"_s + vb::format_date(hoje, u"yyyy"_s) + u"/%') "_s + restotipo +
                   cauda;
    } else if (filtro == u"apenas do dia"_s) {
        sqlatual = u"SELECT * FROM bancario where(Data like '"_s + ymd(hoje) + u"') "_s + restotipo + cauda;
    } else if (filtro == u"ultimos 7 dias"_s || filtro == u"ultimos 15 dias"_s) {
        const int dias = filtro == u"ultimos 7 dias"_s ? 7 : 15;
        sqlatual = u"SELECT * FROM bancario WHERE data BETWEEN '"_s + ymd(hoje.addDays(-dias)) +
                   u"' AND '"_s + ymd(hoje) + u"' "_s + restotipo + cauda;
    }

    built_statement out;
    out.sqlatual = sqlatual.value_or(sqlatual_anterior);
    out.consulta = out.sqlatual;
    return out;
}

std::array<distinct_box, 3> distinct_boxes(ledger which) {
    const ledger_traits& t = traits(which);
    const auto box = [&](const QString& column, const QString& first) {
        return distinct_box{u"SELECT DISTINCT "_s + column + u" FROM "_s + t.tabela + u" order by "_s +
                                column + u" ASC"_s,
                            column, first};
    };
    return {box(u"descricao"_s, t.todos_centros), box(t.contato, t.todos_contatos),
            box(u"origem"_s, todos_bancos)};
}

std::optional<QString> header_order(ledger which, int column, bool ascending) {
    if (column < 1 || column > 9) return std::nullopt;
    static const char* const names[] = {"data",  "descricao", "documento", nullptr,      "vencimento",
                                        "valor", "estatus",   "origem",    "informacoes"};
    const QString name = column == 4 ? traits(which).contato : QString::fromLatin1(names[column - 1]);
    return u" order by "_s + name + (ascending ? u" asc"_s : u" desc"_s);
}

} // namespace shell
