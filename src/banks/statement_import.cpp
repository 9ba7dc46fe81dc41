#include "banks/statement_import.h"

#include "banks/movimento_bancario.h"
#include "platform/errors.h"
#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "store/conexao.h"
#include "store/names.h"

#include <QHash>
#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <exception>

namespace banks {

namespace {

struct csv_line {
    int numero; // line of the file, 1-based
    QStringList campos;
};

std::vector<csv_line> split_lines(const QString& text, QChar sep) {
    std::vector<csv_line> out;
    QStringList campos;
    QString campo;
    bool aspas = false;
    bool tem_texto = false;
    int linha = 1;
    int inicio = 1;
    auto fecha_linha = [&] {
        campos << campo;
        if (tem_texto) out.push_back({inicio, campos});
        campos.clear();
        campo.clear();
        tem_texto = false;
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (aspas) {
            if (c == QLatin1Char('"')) {
                if (i + 1 < text.size() && text.at(i + 1) == QLatin1Char('"')) {
                    campo += c;
                    ++i;
                } else {
                    aspas = false;
                }
            } else {
                if (c == QLatin1Char('\n')) ++linha;
                campo += c;
            }
            continue;
        }
        if (c == QLatin1Char('"') && campo.trimmed().isEmpty()) {
            campo.clear();
            aspas = true;
            tem_texto = true;
        } else if (c == sep) {
            campos << campo;
            campo.clear();
        } else if (c == QLatin1Char('\n')) {
            fecha_linha();
            inicio = ++linha;
        } else if (c != QLatin1Char('\r')) {
            campo += c;
            if (!c.isSpace()) tem_texto = true;
        }
    }
    fecha_linha();
    return out;
}

// Lower case without accents, for comparing column names and line texts.
QString folded(const QString& s) {
    QString d = s.normalized(QString::NormalizationForm_D);
    QString out;
    for (QChar c : d)
        if (c.category() != QChar::Mark_NonSpacing) out += c.toLower();
    return out.simplified();
}

bool one_of(const QString& name, std::initializer_list<const char*> words) {
    const QString f = folded(name);
    return std::any_of(words.begin(), words.end(), [&](const char* w) { return f == QLatin1String(w); });
}

bool starts_one_of(const QString& name, std::initializer_list<const char*> words) {
    const QString f = folded(name);
    return std::any_of(words.begin(), words.end(),
                       [&](const char* w) { return f.startsWith(QLatin1String(w)); });
}

bool is_amount(const QString& s, bool virgula) {
    try {
        return parse_amount(s, virgula).has_value();
    } catch (const std::exception&) {
        return false;
    }
}

// A balance line of a bank's export ("SALDO ANTERIOR", "S A L D O"): no money moved.
bool is_balance_line(const QString& memo) {
    QString f = folded(memo);
    return f.startsWith(QLatin1String("saldo")) || f.remove(QLatin1Char(' ')) == QLatin1String("saldo");
}

QString line_key(const QString& data_ymd, const QString& movimento, const QString& valor,
                 const QString& informacoes) {
    return data_ymd + QLatin1Char('|') + movimento + QLatin1Char('|') + valor + QLatin1Char('|') +
           vb::trim_blanks(informacoes);
}

QString ymd_of_stored(const QString& data) {
    // rows keep yyyy/mm/dd (taken as it stands: this runs for every row of the account);
    // another form is read as a date
    if (data.size() == 10 && data.at(4) == QLatin1Char('/') && data.at(7) == QLatin1Char('/')) return data;
    const QDate d = parse_date(data);
    return d.isValid() ? vb::ymd(d) : data;
}

} // namespace

// ---- layout in the settings ----------------------------------------------------------------

QString csv_layout::to_setting() const {
    return QStringLiteral("sep=%1|dec=%2|cab=%3|data=%4|valor=%5|cred=%6|deb=%7|desc=%8")
        .arg(separador == QLatin1Char('\t') ? QStringLiteral("tab") : QString(separador),
             virgula_decimal ? QStringLiteral(",") : QStringLiteral("."),
             cabecalho ? QStringLiteral("1") : QStringLiteral("0"))
        .arg(data)
        .arg(valor)
        .arg(credito)
        .arg(debito)
        .arg(descricao);
}

std::optional<csv_layout> csv_layout::from_setting(const QString& text) {
    QHash<QString, QString> v;
    for (const QString& part : text.split(QLatin1Char('|'))) {
        const qsizetype eq = part.indexOf(QLatin1Char('='));
        if (eq > 0) v.insert(part.left(eq), part.mid(eq + 1));
    }
    static const std::array<const char*, 8> keys = {"sep",   "dec",  "cab", "data",
                                                    "valor", "cred", "deb", "desc"};
    for (const char* k : keys)
        if (!v.contains(QLatin1String(k))) return std::nullopt;
    csv_layout l;
    const QString sep = v.value(QStringLiteral("sep"));
    if (sep == QLatin1String("tab"))
        l.separador = QLatin1Char('\t');
    else if (sep.size() == 1)
        l.separador = sep.at(0);
    else
        return std::nullopt;
    l.virgula_decimal = v.value(QStringLiteral("dec")) == QLatin1String(",");
    l.cabecalho = v.value(QStringLiteral("cab")) == QLatin1String("1");
    bool ok = true;
    auto num = [&](const char* k) {
        bool this_ok = false;
        const int n = v.value(QLatin1String(k)).toInt(&this_ok);
        ok = ok && this_ok && n >= -1 && n < 1000;
        return n;
    };
    l.data = num("data");
    l.valor = num("valor");
    l.credito = num("cred");
    l.debito = num("deb");
    l.descricao = num("desc");
    if (!ok) return std::nullopt;
    return l;
}

// ---- CSV ----------------------------------------------------------------------------------

QString decode_text(const QByteArray& bytes) {
    QByteArray b = bytes;
    if (b.startsWith("\xEF\xBB\xBF")) b.remove(0, 3);
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString s = utf8.decode(b);
    if (!utf8.hasError()) return s;
    return QString::fromLatin1(b);
}

std::vector<QStringList> split_csv(const QString& text, QChar separador) {
    std::vector<QStringList> out;
    for (auto& l : split_lines(text, separador))
        out.push_back(std::move(l.campos));
    return out;
}

std::optional<vb::currency> parse_amount(const QString& text, bool virgula_decimal) {
    QString s = text;
    s.remove(QStringLiteral("R$"));
    s.remove(QChar(0x00A0));
    s = s.simplified();
    if (s.isEmpty()) return std::nullopt;
    bool negativo = false;
    if (s.startsWith(QLatin1Char('(')) && s.endsWith(QLatin1Char(')'))) {
        negativo = true;
        s = s.mid(1, s.size() - 2).trimmed();
    }
    if (s.endsWith(QLatin1String(" D"), Qt::CaseInsensitive)) {
        negativo = !negativo;
        s.chop(2);
    } else if (s.endsWith(QLatin1String(" C"), Qt::CaseInsensitive)) {
        s.chop(2);
    }
    s = s.trimmed();
    if (s.startsWith(QLatin1Char('-'))) {
        negativo = !negativo;
        s = s.mid(1).trimmed();
    } else if (s.endsWith(QLatin1Char('-'))) {
        negativo = !negativo;
        s.chop(1);
    } else if (s.startsWith(QLatin1Char('+'))) {
        s = s.mid(1).trimmed();
    }
    s.remove(QLatin1Char(' '));
    const QChar decimal = virgula_decimal ? QLatin1Char(',') : QLatin1Char('.');
    const QChar milhar = virgula_decimal ? QLatin1Char('.') : QLatin1Char(',');
    static const QRegularExpression shape(QStringLiteral("^[0-9]+([.,][0-9]+)*$"));
    if (!shape.match(s).hasMatch()) throw vb::type_mismatch();
    const qsizetype dec_at = s.indexOf(decimal);
    if (dec_at >= 0 && s.indexOf(decimal, dec_at + 1) >= 0) throw vb::type_mismatch();
    if (dec_at >= 0 && s.indexOf(milhar, dec_at) >= 0) throw vb::type_mismatch();
    QString inteiro = (dec_at >= 0 ? s.left(dec_at) : s);
    inteiro.remove(milhar);
    QString fracao = dec_at >= 0 ? s.mid(dec_at + 1) : QString();
    if (inteiro.isEmpty()) inteiro = QStringLiteral("0");
    while (inteiro.size() > 1 && inteiro.startsWith(QLatin1Char('0')))
        inteiro.remove(0, 1);
    // exact fixed point: the integer part, then four decimals rounded half away from zero
    // the old currency type's range: 922.337.203.685.477,5807
    if (inteiro.size() > 15) throw vb::overflow_error();
    std::int64_t raw = 0;
    const QString quatro = (fracao + QStringLiteral("0000")).left(4);
    const bool sobe = fracao.size() > 4 && fracao.at(4) >= QLatin1Char('5');
    if (__builtin_mul_overflow(inteiro.toLongLong(), std::int64_t(10000), &raw) ||
        __builtin_add_overflow(raw, quatro.toLongLong() + (sobe ? 1 : 0), &raw))
        throw vb::overflow_error();
    return vb::currency::from_raw(negativo ? -raw : raw);
}

QDate parse_date(const QString& text) {
    QString s = text.trimmed();
    const qsizetype cut = s.indexOf(QRegularExpression(QStringLiteral("[ T]")));
    if (cut > 0) s = s.left(cut);
    static const std::array<const char*, 8> formats = {"dd/MM/yyyy", "d/M/yyyy",   "yyyy-MM-dd", "yyyy/MM/dd",
                                                       "dd-MM-yyyy", "dd.MM.yyyy", "yyyyMMdd",   "d/M/yy"};
    for (const char* f : formats) {
        QDate d = QDate::fromString(s, QLatin1String(f));
        if (!d.isValid()) continue;
        if (QLatin1String(f).endsWith(QLatin1String("/yy")) && d.year() < 2000) d = d.addYears(100);
        return d;
    }
    return {};
}

csv_layout detect_csv(const QString& text, std::optional<QChar> separador) {
    csv_layout l;
    // the separator that splits the first lines into the same number (> 1) of fields most often
    int melhor = 0;
    if (separador) l.separador = *separador;
    for (QChar sep : {QLatin1Char(';'), QLatin1Char('\t'), QLatin1Char(','), QLatin1Char('|')}) {
        if (separador) break;
        auto lines = split_lines(text, sep);
        if (lines.size() > 30) lines.resize(30);
        QHash<int, int> vezes;
        for (const auto& li : lines)
            if (li.campos.size() > 1) ++vezes[int(li.campos.size())];
        int pontos = 0;
        for (auto it = vezes.cbegin(); it != vezes.cend(); ++it)
            pontos = std::max(pontos, it.value());
        if (pontos > melhor) {
            melhor = pontos;
            l.separador = sep;
        }
    }
    const auto lines = split_lines(text, l.separador);
    if (lines.empty()) return l;
    const QStringList& primeira = lines.front().campos;
    l.cabecalho = std::none_of(primeira.begin(), primeira.end(),
                               [](const QString& c) { return parse_date(c).isValid(); });

    // the decimal mark: what ends the amount-looking fields with one or two digits
    int virgulas = 0;
    int pontos = 0;
    static const QRegularExpression fim(QStringLiteral("[0-9]([.,])[0-9]{1,2}\\s*\\)?\\s*[-CD]?$"));
    for (std::size_t i = l.cabecalho ? 1 : 0; i < lines.size() && i < 200; ++i)
        for (const QString& c : lines[i].campos) {
            if (parse_date(c).isValid()) continue;
            const auto m = fim.match(c.trimmed());
            if (!m.hasMatch()) continue;
            (m.captured(1) == QLatin1String(",") ? virgulas : pontos)++;
        }
    l.virgula_decimal = virgulas != pontos ? virgulas > pontos : l.separador != QLatin1Char(',');

    // columns by their names
    if (l.cabecalho) {
        for (int i = 0; i < primeira.size(); ++i) {
            const QString& n = primeira[i];
            if (l.data < 0 && starts_one_of(n, {"data", "date", "dt "}))
                l.data = i;
            else if (l.valor < 0 &&
                     one_of(n, {"valor", "amount", "quantia", "valor (r$)", "valor r$", "montante"}))
                l.valor = i;
            else if (l.credito < 0 && starts_one_of(n, {"credito", "entrada"}))
                l.credito = i;
            else if (l.debito < 0 && starts_one_of(n, {"debito", "saida"}))
                l.debito = i;
            else if (l.descricao < 0 &&
                     starts_one_of(n, {"descri", "historico", "memo", "lancamento", "title", "detalhe"}))
                l.descricao = i;
        }
    }
    // by their contents where the names did not tell
    const std::size_t from = l.cabecalho ? 1 : 0;
    const int ncols = int(primeira.size());
    auto all_rows = [&](int col, auto pred) {
        int vistos = 0;
        for (std::size_t i = from; i < lines.size() && i < from + 50; ++i) {
            if (col >= lines[i].campos.size()) return false;
            const QString& c = lines[i].campos[col];
            if (c.trimmed().isEmpty()) continue;
            if (!pred(c)) return false;
            ++vistos;
        }
        return vistos > 0;
    };
    if (l.data < 0)
        for (int c = 0; c < ncols && l.data < 0; ++c)
            if (all_rows(c, [](const QString& s) { return parse_date(s).isValid(); })) l.data = c;
    if (l.valor < 0 && l.credito < 0 && l.debito < 0)
        for (int c = 0; c < ncols && l.valor < 0; ++c)
            if (c != l.data && all_rows(c, [&](const QString& s) { return is_amount(s, l.virgula_decimal); }))
                l.valor = c;
    if (l.descricao < 0) {
        qsizetype maior = 0;
        for (int c = 0; c < ncols; ++c) {
            if (c == l.data || c == l.valor || c == l.credito || c == l.debito) continue;
            qsizetype soma = 0;
            for (std::size_t i = from; i < lines.size() && i < from + 50; ++i)
                if (c < lines[i].campos.size()) soma += lines[i].campos[c].trimmed().size();
            if (soma > maior) {
                maior = soma;
                l.descricao = c;
            }
        }
    }
    return l;
}

QStringList csv_column_names(const QString& text, const csv_layout& layout) {
    const auto lines = split_lines(text, layout.separador);
    int n = 0;
    for (std::size_t i = 0; i < lines.size() && i < 30; ++i)
        n = std::max(n, int(lines[i].campos.size()));
    QStringList names;
    for (int i = 0; i < n; ++i) {
        QString nome = layout.cabecalho && !lines.empty() && i < lines.front().campos.size()
                           ? lines.front().campos[i].trimmed()
                           : QString();
        if (nome.isEmpty()) nome = QStringLiteral("Coluna %1").arg(i + 1);
        names << nome;
    }
    return names;
}

statement_file read_csv(const QString& text, const csv_layout& layout) {
    statement_file out;
    if (layout.data < 0) {
        out.erro = QStringLiteral("Escolha a coluna que traz a data dos movimentos.");
        return out;
    }
    if (layout.valor < 0 && layout.credito < 0 && layout.debito < 0) {
        out.erro = QStringLiteral("Escolha a coluna do valor, ou as colunas de crédito e de débito.");
        return out;
    }
    const auto lines = split_lines(text, layout.separador);
    auto falha = [&](const QString& msg) {
        out.linhas.clear();
        out.erro = msg;
        return out;
    };
    for (std::size_t i = layout.cabecalho ? 1 : 0; i < lines.size(); ++i) {
        const csv_line& li = lines[i];
        auto campo = [&](int col) {
            return col >= 0 && col < li.campos.size() ? li.campos[col].trimmed() : QString();
        };
        for (int col : {layout.data, layout.valor, layout.credito, layout.debito, layout.descricao})
            if (col >= li.campos.size())
                return falha(
                    QStringLiteral("A linha %1 do arquivo tem só %2 colunas: confira o separador e a "
                                   "escolha das colunas.")
                        .arg(li.numero)
                        .arg(li.campos.size()));
        statement_line s;
        s.memo = campo(layout.descricao);
        std::optional<vb::currency> valor;
        int col_atual = layout.valor;
        try {
            if (layout.valor >= 0) {
                valor = parse_amount(campo(layout.valor), layout.virgula_decimal);
            } else {
                col_atual = layout.credito;
                const auto cred = parse_amount(campo(layout.credito), layout.virgula_decimal);
                col_atual = layout.debito;
                const auto deb = parse_amount(campo(layout.debito), layout.virgula_decimal);
                if (cred && deb && cred->raw() != 0 && deb->raw() != 0)
                    return falha(QStringLiteral("A linha %1 do arquivo traz crédito e débito ao mesmo tempo: "
                                                "confira a escolha das colunas.")
                                     .arg(li.numero));
                if (cred && cred->raw() != 0)
                    valor = cred->raw() < 0 ? -*cred : *cred;
                else if (deb && deb->raw() != 0)
                    valor = deb->raw() < 0 ? *deb : -*deb;
                else if (cred || deb)
                    valor = vb::currency();
            }
        } catch (const vb::overflow_error&) {
            return falha(QStringLiteral("O valor da linha %1 do arquivo (\"%2\") passa do maior valor que o "
                                        "sistema aceita.")
                             .arg(li.numero)
                             .arg(campo(col_atual)));
        } catch (const std::exception&) {
            return falha(QStringLiteral("A linha %1 do arquivo não traz um valor válido na coluna escolhida "
                                        "(\"%2\"): confira a escolha das colunas e o separador decimal.")
                             .arg(li.numero)
                             .arg(campo(col_atual)));
        }
        // lines with no money moved (opening and closing balances) are not movements
        if (!valor || valor->raw() == 0 || is_balance_line(s.memo)) continue;
        s.data = parse_date(campo(layout.data));
        if (!s.data.isValid())
            return falha(QStringLiteral("A linha %1 do arquivo não traz uma data válida na coluna escolhida "
                                        "(\"%2\"): confira a escolha das colunas.")
                             .arg(li.numero)
                             .arg(campo(layout.data)));
        s.valor = *valor;
        out.linhas.push_back(std::move(s));
    }
    if (out.linhas.empty())
        out.erro = QStringLiteral("O arquivo não traz nenhum movimento com data e valor.");
    return out;
}

// ---- preview and writing ------------------------------------------------------------------

existing_movements read_existing(const QString& conta) {
    namespace col = store::coluna;
    existing_movements e;
    store::conectarbanco();
    store::colunas_proprias();
    sql::recordset rs;
    rs.open(QStringLiteral(
                "select data, movimento, informacoes, Valor, id_extrato from bancario where origem like '") +
                sql::value(conta) + QStringLiteral("'"),
            store::conexao, sql::forward_only, sql::read_only);
    const int c_data = rs.index_of(col::data);
    const int c_mov = rs.index_of(col::movimento);
    const int c_info = rs.index_of(col::informacoes);
    const int c_valor = rs.index_of(col::valor);
    const int c_id = rs.index_of(col::id_extrato);
    for (; !rs.eof(); rs.move_next()) {
        const QString id = rs.text(c_id);
        if (!id.isEmpty()) e.ids << id;
        e.keys << line_key(ymd_of_stored(rs.text(c_data)), rs.text(c_mov),
                           vb::reformat_money_text(rs.text(c_valor)), rs.text(c_info));
    }
    return e;
}

std::vector<preview_row> build_preview(const std::vector<statement_line>& linhas,
                                       const existing_movements& existentes) {
    QHash<QString, int> ids;
    for (const QString& id : existentes.ids)
        ++ids[id];
    QHash<QString, int> keys;
    for (const QString& k : existentes.keys)
        ++keys[k];
    std::vector<preview_row> out;
    out.reserve(linhas.size());
    for (const statement_line& l : linhas) {
        preview_row r;
        r.linha = l;
        r.data = vb::dmy(l.data);
        const bool credito = l.valor.raw() >= 0;
        r.movimento = credito ? store::palavra::deposito : store::palavra::retirada;
        r.valor = vb::format_money(credito ? l.valor : -l.valor);
        r.informacoes = vb::trim_blanks(l.memo);
        if (!l.id.isEmpty()) {
            r.repetido = ids.value(l.id) > 0;
            ++ids[l.id]; // the same id twice in one file is written once
        } else {
            int& restantes = keys[line_key(vb::ymd(l.data), r.movimento, r.valor, r.informacoes)];
            r.repetido = restantes > 0;
            if (restantes > 0) --restantes;
        }
        out.push_back(std::move(r));
    }
    return out;
}

import_outcome write_import(const QString& conta, const std::vector<preview_row>& rows,
                            const std::function<bool(int, int)>& progress) {
    import_outcome out;
    std::vector<const preview_row*> novos;
    for (const preview_row& r : rows) {
        if (r.repetido)
            ++out.repetidos;
        else
            novos.push_back(&r);
    }
    const int total = int(novos.size());
    if (total == 0) return out;
    // Each row is added as the movement window adds one. Rows are committed in groups: a commit per
    // row would cost a disk flush each; a failure commits the rows before it, so they stay whole.
    constexpr int grupo = 250;
    int confirmados = 0;
    bool aberta = false;
    try {
        store::conectarbanco();
        store::colunas_proprias();
        if (!store::conexao) {
            out.erro = QStringLiteral("Não foi possível abrir o arquivo de dados.");
            return out;
        }
        sql::recordset rs;
        rs.open(QStringLiteral("select * from bancario where 1 = 0"), store::conexao, sql::keyset,
                sql::pessimistic);
        for (int i = 0; i < total; ++i) {
            if (progress && i % 50 == 0 && !progress(i, total)) break;
            if (!aberta) {
                store::conexao->execute(QStringLiteral("BEGIN"));
                aberta = true;
            }
            const preview_row& r = *novos[std::size_t(i)];
            movement_fields f;
            f.movimento = r.movimento;
            f.origem = conta;
            f.data = r.data;
            f.valor = r.valor;
            f.informacoes = r.informacoes;
            f.estatus = store::palavra::concluido;
            add_movement_row(rs, f, r.linha.id);
            ++out.gravados;
            if (out.gravados - confirmados >= grupo) {
                store::conexao->execute(QStringLiteral("COMMIT"));
                aberta = false;
                confirmados = out.gravados;
            }
        }
        if (aberta) store::conexao->execute(QStringLiteral("COMMIT"));
        aberta = false;
        if (progress) progress(out.gravados, total);
    } catch (const std::exception& e) {
        out.erro = platform::error_text(e);
        if (aberta && store::conexao) {
            try {
                store::conexao->execute(QStringLiteral("COMMIT"));
            } catch (const std::exception&) {
                platform::ignore_errors([] { store::conexao->execute(QStringLiteral("ROLLBACK")); });
                out.gravados = confirmados;
            }
        }
    }
    return out;
}

QString account_mismatch(const QString& conta, const QString& lembrada, const QString& do_arquivo) {
    if (lembrada.isEmpty() || do_arquivo.isEmpty() || lembrada == do_arquivo) return {};
    return QStringLiteral("Este extrato é da conta %1, mas \"%2\" recebeu extratos da conta %3. Escolha a "
                          "conta certa; nada foi gravado.")
        .arg(do_arquivo, conta, lembrada);
}

QString csv_setting_key(const QString& conta) {
    return QStringLiteral("csv_") + QString::fromLatin1(conta.toUtf8().toHex());
}

QString ofx_account_key(const QString& conta) {
    return QStringLiteral("ofx_") + QString::fromLatin1(conta.toUtf8().toHex());
}

} // namespace banks
