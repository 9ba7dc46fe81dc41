#include "shell/column_layout.h"

#include "platform/settings.h"
#include "platform/text/vb_text.h"
#include "store/program_dir.h"

#include <array>
#include <cfloat>
#include <cmath>

namespace shell {

using namespace Qt::StringLiterals;

namespace {

const QString secao_tamanho = u"TAMANHO"_s;
const QString secao_posicao = u"POSICAO"_s;

std::vector<column_def> entry_columns(const QString& contato_heading) {
    return {
        {u"id"_s, u"Código"_s, u"0"_s, tag_number, Qt::AlignLeft},
        {u"data"_s, u"Data"_s, u"1319,8111"_s, tag_date, Qt::AlignLeft},
        {u"descricao"_s, u"Descrição"_s, u"4190,1734"_s, tag_text, Qt::AlignLeft},
        {u"documento"_s, u"Documento"_s, u"1839,6852"_s, tag_text, Qt::AlignLeft},
        {u"fornecedor"_s, contato_heading, u"2340,2837"_s, tag_text, Qt::AlignLeft},
        {u"vencimento"_s, u"Vencimento"_s, u"1320,3781"_s, tag_date, Qt::AlignLeft},
        {u"valor"_s, u"Valor"_s, u"1239,3072"_s, tag_number, Qt::AlignRight},
        {u"estatus"_s, u"Estatus"_s, u"1319,8111"_s, tag_text, Qt::AlignLeft},
        {u"origem"_s, u"Origem"_s, u"2140,1575"_s, tag_text, Qt::AlignLeft},
        {u"informacoes"_s, u"Informações"_s, u"3240,0003"_s, tag_text, Qt::AlignLeft},
    };
}

QString file_of(ledger which) {
    return store::program_path(traits(which).layout);
}

QString position_key(std::size_t column) {
    return u"posicao"_s + QString::number(column + 1);
}

double default_width(const column_def& c) {
    return read_single(c.default_width).value_or(0.0);
}

} // namespace

const std::vector<column_def>& ledger_columns(ledger which) {
    // receber keeps pagar's key "fornecedor" for its client column: the twins differ in the heading only
    static const std::array<std::vector<column_def>, 3> all = {
        entry_columns(traits(ledger::pagar).contato_titulo),
        entry_columns(traits(ledger::receber).contato_titulo),
        {
            {u"id"_s, u"Código"_s, u"0"_s, tag_number, Qt::AlignLeft},
            {u"data"_s, u"Data"_s, u"1319,8111"_s, tag_date, Qt::AlignLeft},
            {u"tipo"_s, u"Movimento"_s, u"2940,0948"_s, tag_text, Qt::AlignLeft},
            {u"origem"_s, u"Origem"_s, u"2140,1575"_s, tag_text, Qt::AlignLeft},
            {u"destino"_s, u"Destino"_s, u"2140,1575"_s, tag_text, Qt::AlignLeft},
            {u"valor"_s, u"Valor"_s, u"1339,6536"_s, tag_number, Qt::AlignRight},
            {u"estatus"_s, u"Estatus"_s, u"1340,2206"_s, tag_text, Qt::AlignLeft},
            {u"info"_s, u"Informações"_s, u"2839,7483"_s, tag_text, Qt::AlignLeft},
        },
    };
    return all[std::size_t(which)];
}

QString single_text(double v) {
    const double f = double(float(v));
    if (f == 0.0 || !std::isfinite(f)) return u"0"_s;
    QString s = QString::number(f, 'g', 7);
    s.replace(QLatin1Char('.'), QLatin1Char(','));
    s.replace(QLatin1Char('e'), QLatin1Char('E'));
    return s;
}

std::optional<double> read_single(const QString& text) {
    const std::optional<double> d = vb::cdbl(text);
    if (!d || !std::isfinite(*d) || std::fabs(*d) > double(FLT_MAX)) return std::nullopt;
    return double(float(*d));
}

column_layout default_layout(ledger which) {
    const auto& cols = ledger_columns(which);
    column_layout l;
    for (std::size_t i = 0; i < cols.size(); ++i) {
        l.widths.push_back(default_width(cols[i]));
        l.positions.push_back(int(i) + 1);
    }
    return l;
}

column_layout read_layout(ledger which) {
    const auto& cols = ledger_columns(which);
    const platform::profile_file file(file_of(which));
    column_layout l;
    for (const column_def& c : cols) {
        const QString text = file.lerini(secao_tamanho, c.key, c.default_width);
        l.widths.push_back(read_single(text).value_or(default_width(c)));
    }
    const int n = int(cols.size());
    for (std::size_t i = 0; i < cols.size(); ++i) {
        const int fallback = int(i) + 1;
        const std::optional<double> p =
            vb::cdbl(file.lerini(secao_posicao, position_key(i), QString::number(fallback)));
        // a position outside the list cannot be assigned; the column keeps its place
        const double r = p ? std::nearbyint(*p) : 0.0;
        l.positions.push_back(p && r >= 1 && r <= n ? int(r) : fallback);
    }
    return l;
}

void write_layout(ledger which, const column_layout& layout) {
    const auto& cols = ledger_columns(which);
    platform::profile_file file(file_of(which));
    for (std::size_t i = 0; i < cols.size(); ++i) {
        const double w = i < layout.widths.size() ? layout.widths[i] : default_width(cols[i]);
        file.gravarini(secao_tamanho, cols[i].key, single_text(w));
    }
    for (std::size_t i = 0; i < cols.size(); ++i) {
        const int p = i < layout.positions.size() ? layout.positions[i] : int(i) + 1;
        file.gravarini(secao_posicao, position_key(i), QString::number(p));
    }
    file.gravar();
}

} // namespace shell
