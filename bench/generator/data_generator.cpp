#include "generator/data_generator.h"

#include "platform/text/vb_text.h"
#include "store/names.h"

#include <QByteArray>
#include <QSet>
#include <QStringList>

#include <cmath>
#include <string>
#include <vector>

#include <sqlite3.h>

namespace generator {

namespace {

// splitmix64: the same sequence on every platform, unlike the standard distributions.
class rng {
public:
    explicit rng(std::uint64_t seed) : s_(seed) {}
    std::uint64_t next() {
        std::uint64_t z = (s_ += 0x9E3779B97F4A7C15ull);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return z ^ (z >> 31);
    }
    int below(int n) { return n <= 0 ? 0 : int(next() % std::uint64_t(n)); }
    double unit() { return double(next() >> 11) * (1.0 / 9007199254740992.0); }
    bool chance(double p) { return unit() < p; }
    template <class T, std::size_t N> const T& pick(const T (&a)[N]) { return a[below(int(N))]; }
    template <class T> const T& pick(const std::vector<T>& v) { return v[std::size_t(below(int(v.size())))]; }

private:
    std::uint64_t s_;
};

const char* const first_names[] = {
    "Ana",     "Maria",    "João",     "José",      "Pedro",    "Lucas",   "Gabriel", "Rafael",  "Fernanda",
    "Juliana", "Camila",   "Beatriz",  "Larissa",   "Carlos",   "Paulo",   "Marcos",  "Antônio", "Francisco",
    "Luiz",    "Mariana",  "Patrícia", "Aline",     "Bruna",    "Letícia", "Rodrigo", "Thiago",  "Felipe",
    "Gustavo", "Vitória",  "Helena",   "Sebastião", "Raimundo", "Cláudia", "Márcia",  "Sônia",   "Luciana",
    "Renata",  "Vinícius", "Otávio",   "Caio",      "Débora",   "Rogério", "Simone",  "Adriana", "Fábio",
    "Jéssica", "Leandro",  "Tatiana",  "Sérgio",    "Conceição"};

const char* const surnames[] = {
    "Silva",     "Santos",    "Oliveira", "Souza",   "Rodrigues", "Ferreira", "Alves",      "Pereira",
    "Lima",      "Gomes",     "Costa",    "Ribeiro", "Martins",   "Carvalho", "Almeida",    "Lopes",
    "Soares",    "Fernandes", "Vieira",   "Barbosa", "Rocha",     "Dias",     "Nascimento", "Andrade",
    "Moreira",   "Nunes",     "Marques",  "Machado", "Mendes",    "Freitas",  "Cardoso",    "Ramos",
    "Gonçalves", "Santana",   "Teixeira", "Araújo",  "Correia",   "Brandão",  "Magalhães",  "Azevedo"};

const char* const company_kinds[] = {"Distribuidora", "Comercial",
                                     "Papelaria",     "Auto Peças",
                                     "Supermercado",  "Farmácia",
                                     "Madeireira",    "Construtora",
                                     "Gráfica",       "Transportadora",
                                     "Padaria",       "Materiais Elétricos",
                                     "Informática",   "Escritório Contábil",
                                     "Posto",         "Açougue",
                                     "Laticínios",    "Móveis",
                                     "Ótica",         "Livraria",
                                     "Atacadão",      "Hortifrúti",
                                     "Serralheria",   "Vidraçaria",
                                     "Imobiliária"};

const char* const company_names[] = {"Central",      "Boa Vista",   "São Jorge", "Nova Era",    "Progresso",
                                     "Bandeirantes", "Santa Luzia", "Primavera", "Horizonte",   "Real",
                                     "Paulista",     "Mineira",     "do Vale",   "Três Irmãos", "Estrela",
                                     "Aliança",      "Pioneira",    "Sul",       "Norte",       "Brasil",
                                     "Ipê Amarelo",  "Cruzeiro",    "Itapuã",    "Jequitibá"};

const char* const company_suffixes[] = {" Ltda", " Ltda", " ME", " EIRELI", " S/A", ""};

struct city {
    const char* name;
    const char* uf;
    int ddd;
    const char* cep_prefix;
};
const city cities[] = {
    {"São Paulo", "SP", 11, "01"},     {"Campinas", "SP", 19, "13"},       {"Rio de Janeiro", "RJ", 21, "20"},
    {"Niterói", "RJ", 21, "24"},       {"Belo Horizonte", "MG", 31, "30"}, {"Uberlândia", "MG", 34, "38"},
    {"Curitiba", "PR", 41, "80"},      {"Londrina", "PR", 43, "86"},       {"Porto Alegre", "RS", 51, "90"},
    {"Florianópolis", "SC", 48, "88"}, {"Joinville", "SC", 47, "89"},      {"Salvador", "BA", 71, "40"},
    {"Recife", "PE", 81, "50"},        {"Fortaleza", "CE", 85, "60"},      {"Goiânia", "GO", 62, "74"},
    {"Brasília", "DF", 61, "70"},      {"Manaus", "AM", 92, "69"},         {"Belém", "PA", 91, "66"},
    {"Vitória", "ES", 27, "29"},       {"Natal", "RN", 84, "59"},          {"São Luís", "MA", 98, "65"},
    {"Maceió", "AL", 82, "57"},        {"Cuiabá", "MT", 65, "78"},         {"Campo Grande", "MS", 67, "79"}};

const char* const districts[] = {"Centro",        "Jardim América", "Vila Nova",      "Boa Vista",
                                 "Santa Cruz",    "São José",       "Bela Vista",     "Liberdade",
                                 "Jardim Europa", "Vila Mariana",   "Santo Antônio",  "Industrial",
                                 "Cidade Alta",   "Aparecida",      "Jardim Paulista"};

const char* const streets[] = {
    "Rua das Flores",         "Avenida Brasil",       "Rua XV de Novembro", "Rua Sete de Setembro",
    "Avenida Getúlio Vargas", "Rua Tiradentes",       "Rua Dom Pedro II",   "Avenida Santos Dumont",
    "Rua São Paulo",          "Rua Marechal Deodoro", "Avenida JK",         "Rua da Independência",
    "Travessa das Acácias",   "Rua Rui Barbosa",      "Alameda dos Ipês"};

struct centre {
    const char* name;
    double lo, hi; // reais
};
const centre cost_centres[] = {{"Aluguel", 1500, 6000},
                               {"Energia elétrica", 120, 1500},
                               {"Água e esgoto", 60, 600},
                               {"Telefone e internet", 90, 450},
                               {"Salários", 1800, 15000},
                               {"Impostos", 200, 9000},
                               {"Material de escritório", 15, 800},
                               {"Combustível", 80, 1200},
                               {"Manutenção", 100, 3500},
                               {"Mercadorias para revenda", 300, 25000},
                               {"Marketing e propaganda", 150, 5000},
                               {"Contabilidade", 350, 1800},
                               {"Tarifas bancárias", 5, 150},
                               {"Seguros", 120, 2500},
                               {"Alimentação", 20, 900},
                               {"Frete", 40, 1500}};
const centre profit_centres[] = {{"Vendas à vista", 20, 5000},          {"Vendas a prazo", 100, 12000},
                                 {"Prestação de serviços", 150, 9000},  {"Consultoria", 800, 15000},
                                 {"Aluguéis recebidos", 900, 4500},     {"Comissões", 100, 3000},
                                 {"Rendimentos de aplicações", 5, 900}, {"Outras receitas", 10, 2000}};

struct account {
    const char* name;
    const char* info;
    std::int64_t saldo_cents;
    int weight;
};
const account accounts[] = {
    {"Banco do Brasil", "Conta corrente ag. 1234-5 ", 1250000, 20},
    {"Itaú", "Conta corrente ag. 0421 ", 873045, 20},
    {"Caixa", "Conta poupança ag. 0987 ", 320000, 12},
    {"Bradesco", "Conta empresarial ", 515090, 12},
    {"Santander", "Conta corrente ", 278015, 10},
    {"Nubank", "Conta digital ", 134000, 14},
    {"Caixa interno", "Dinheiro em espécie no escritório ", 65000, 10},
};

const char* const payments[] = {
    "Dinheiro",          "Pix",      "Cartão de débito",       "Cartão de crédito",
    "Boleto bancário",   "Cheque",   "Transferência bancária", "TED",
    "Débito automático", "Crediário"};

const char* const expense_notes[] = {"Pago com desconto",          "Referente ao mês anterior",
                                     "Pagamento antecipado",       "Conferir nota fiscal",
                                     "Negociado com o fornecedor", "Compra emergencial",
                                     "Valor com juros de atraso"};
const char* const income_notes[] = {"Cliente pediu boleto", "Venda com entrega agendada",
                                    "Recebido na loja",     "Pagamento via Pix",
                                    "Contrato anual",       "Cliente antigo, sem juros"};
const char* const deposit_notes[] = {"Depósito em dinheiro", "Depósito de cheque", "Resgate de aplicação",
                                     "Recebimento de vendas"};
const char* const withdrawal_notes[] = {"Saque no caixa eletrônico", "Pagamento de fornecedor",
                                        "Tarifa mensal", "Retirada do sócio"};
const char* const transfer_notes[] = {"Cobertura de saldo", "Reserva para impostos",
                                      "Transferência de caixa"};

QByteArray u8(const QString& s) {
    return s.toUtf8();
}

QByteArray money(std::int64_t cents) {
    return vb::format_money(vb::currency::from_cents(cents)).toUtf8();
}

std::int64_t amount_cents(rng& r, double lo, double hi) {
    const double v = std::exp(std::log(lo) + r.unit() * (std::log(hi) - std::log(lo)));
    // round amounts are common in real ledgers
    if (r.chance(0.3)) return std::int64_t(std::llround(v)) * 100;
    return std::int64_t(std::llround(v * 100));
}

std::string digits(rng& r, int n) {
    std::string s;
    for (int i = 0; i < n; ++i)
        s += char('0' + r.below(10));
    return s;
}

int check_digit(const std::vector<int>& d, const std::vector<int>& weights) {
    int sum = 0;
    for (std::size_t i = 0; i < weights.size(); ++i)
        sum += d[i] * weights[i];
    const int rest = sum % 11;
    return rest < 2 ? 0 : 11 - rest;
}

std::string cpf(rng& r) {
    std::vector<int> d;
    for (int i = 0; i < 9; ++i)
        d.push_back(r.below(10));
    d.push_back(check_digit(d, {10, 9, 8, 7, 6, 5, 4, 3, 2}));
    d.push_back(check_digit(d, {11, 10, 9, 8, 7, 6, 5, 4, 3, 2}));
    std::string s;
    for (std::size_t i = 0; i < d.size(); ++i) {
        if (i == 3 || i == 6) s += '.';
        if (i == 9) s += '-';
        s += char('0' + d[i]);
    }
    return s;
}

std::string cnpj(rng& r) {
    std::vector<int> d;
    for (int i = 0; i < 8; ++i)
        d.push_back(r.below(10));
    for (int x : {0, 0, 0, 1})
        d.push_back(x);
    d.push_back(check_digit(d, {5, 4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2}));
    d.push_back(check_digit(d, {6, 5, 4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2}));
    std::string s;
    for (std::size_t i = 0; i < d.size(); ++i) {
        if (i == 2 || i == 5) s += '.';
        if (i == 8) s += '/';
        if (i == 12) s += '-';
        s += char('0' + d[i]);
    }
    return s;
}

// "João Araújo" -> "joaoaraujo": for e-mail addresses and sites.
QString ascii_slug(const QString& s) {
    QString out;
    for (QChar c : s.normalized(QString::NormalizationForm_D)) {
        if (c.unicode() < 128 && c.isLetterOrNumber()) out += c.toLower();
    }
    return out;
}

// A prepared statement that binds texts by position and runs once per row.
class inserter {
public:
    inserter(sqlite3* db, const char* sql) : db_(db) {
        if (sqlite3_prepare_v2(db, sql, -1, &st_, nullptr) != SQLITE_OK)
            throw sql::error(QString::fromUtf8(sqlite3_errmsg(db)));
    }
    ~inserter() { sqlite3_finalize(st_); }
    inserter(const inserter&) = delete;
    inserter& operator=(const inserter&) = delete;

    inserter& text(int i, const QByteArray& v) {
        sqlite3_bind_text(st_, i, v.constData(), int(v.size()), SQLITE_TRANSIENT);
        return *this;
    }
    inserter& text(int i, const std::string& v) {
        sqlite3_bind_text(st_, i, v.data(), int(v.size()), SQLITE_TRANSIENT);
        return *this;
    }
    inserter& text(int i, const char* v) { return text(i, std::string(v)); }
    // Returns the rows the statement changed.
    int run() {
        const int rc = sqlite3_step(st_);
        sqlite3_reset(st_);
        sqlite3_clear_bindings(st_);
        if (rc != SQLITE_DONE) throw sql::error(QString::fromUtf8(sqlite3_errmsg(db_)));
        return sqlite3_changes(db_);
    }

private:
    sqlite3* db_;
    sqlite3_stmt* st_ = nullptr;
};

void exec(sqlite3* db, const char* sql) {
    char* msg = nullptr;
    if (sqlite3_exec(db, sql, nullptr, nullptr, &msg) != SQLITE_OK) {
        const QString why = QString::fromUtf8(msg ? msg : "");
        sqlite3_free(msg);
        throw sql::error(why);
    }
}

struct contact {
    QString nome;
    bool juridica;
};

std::vector<contact> people(rng& r, int n) {
    std::vector<contact> out;
    QSet<QString> seen;
    for (int tries = 0; int(out.size()) < n && tries < n * 20; ++tries) {
        // one draw per statement, so the seed gives the same rows whatever the compiler
        QString nome = QString::fromUtf8(r.pick(first_names));
        nome += QLatin1Char(' ') + QString::fromUtf8(r.pick(surnames));
        if (r.chance(0.6)) nome += QLatin1Char(' ') + QString::fromUtf8(r.pick(surnames));
        if (seen.contains(nome)) continue;
        seen.insert(nome);
        out.push_back({nome, false});
    }
    return out;
}

std::vector<contact> companies(rng& r, int n) {
    std::vector<contact> out;
    QSet<QString> seen;
    for (int tries = 0; int(out.size()) < n && tries < n * 20; ++tries) {
        const QString core =
            r.chance(0.5) ? QString::fromUtf8(r.pick(company_names)) : QString::fromUtf8(r.pick(surnames));
        QString nome = QString::fromUtf8(r.pick(company_kinds)) + QLatin1Char(' ') + core;
        nome += QString::fromUtf8(r.pick(company_suffixes));
        if (seen.contains(nome)) continue;
        seen.insert(nome);
        out.push_back({nome, true});
    }
    return out;
}

int insert_contacts(sqlite3* db, const char* table, const std::vector<contact>& list, rng& r,
                    const QDate& hoje) {
    const std::string sql =
        std::string("INSERT INTO ") + table +
        " (nome, tipo, cpf, nascimento, pais, estado, cidade, bairro, endereco, cep, tel, tel2, "
        "cel, site, email, insc, local, adicionais) SELECT ?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, "
        "?10, ?11, ?12, ?13, ?14, ?15, ?16, ?17, ?18 WHERE NOT EXISTS (SELECT 1 FROM " +
        table + " WHERE nome = ?1)";
    inserter ins(db, sql.c_str());
    int added = 0;
    for (const contact& c : list) {
        const city& where = r.pick(cities);
        const QDate nascimento = c.juridica ? hoje.addDays(-(365 + r.below(365 * 40)))
                                            : hoje.addDays(-(365 * 18 + r.below(365 * 55)));
        // the postal code lives in tel: it is the column the contact form shows under "CEP:"
        // one draw per statement, so the seed gives the same rows whatever the compiler
        std::string cep = std::string(where.cep_prefix) + digits(r, 3);
        cep += "-" + digits(r, 3);
        const std::string ddd = "(" + std::to_string(where.ddd) + ") ";
        const QString slug = ascii_slug(c.nome);
        std::string email = c.juridica ? "contato@" + slug.left(30).toStdString() + ".com.br"
                                       : slug.left(24).toStdString() + std::to_string(r.below(100));
        if (!c.juridica) email += r.chance(0.5) ? "@gmail.com" : "@email.com.br";
        const std::string documento = c.juridica ? cnpj(r) : cpf(r);
        const char* bairro = r.pick(districts);
        std::string endereco = r.pick(streets);
        endereco += ", " + std::to_string(1 + r.below(2500));
        std::string tel2 = ddd + std::to_string(3000 + r.below(700));
        tel2 += "-" + digits(r, 4);
        std::string cel = ddd + "9" + std::to_string(8000 + r.below(2000));
        cel += "-" + digits(r, 4);
        const std::string insc =
            c.juridica ? (r.chance(0.2) ? std::string("Isento") : digits(r, 9)) : std::string();
        const char* adicionais = r.chance(0.2) ? "Prefere contato por e-mail" : "";
        ins.text(1, u8(c.nome))
            .text(2, c.juridica ? "j" : "f")
            .text(3, documento)
            .text(4, u8(vb::ymd(nascimento)))
            .text(5, "Brasil")
            .text(6, where.uf)
            .text(7, where.name)
            .text(8, bairro)
            .text(9, endereco)
            .text(10, "")
            .text(11, cep)
            .text(12, tel2)
            .text(13, cel)
            .text(14, c.juridica ? "www." + slug.left(30).toStdString() + ".com.br" : std::string())
            .text(15, email)
            .text(16, insc)
            .text(17, c.juridica ? "Comercial" : "Residencial")
            .text(18, adicionais);
        added += ins.run();
    }
    return added;
}

template <std::size_t N> int insert_names(sqlite3* db, const char* table, const centre (&list)[N]) {
    const std::string sql = std::string("INSERT INTO ") + table +
                            " (descricao) SELECT ?1 WHERE NOT EXISTS (SELECT 1 FROM " + table +
                            " WHERE descricao = ?1)";
    inserter ins(db, sql.c_str());
    int added = 0;
    for (const centre& c : list)
        added += ins.text(1, c.name).run();
    return added;
}

const char* pick_account(rng& r, bool allow_none) {
    if (allow_none && r.chance(0.02)) return "-";
    int total = 0;
    for (const account& a : accounts)
        total += a.weight;
    int x = r.below(total);
    for (const account& a : accounts) {
        if (x < a.weight) return a.name;
        x -= a.weight;
    }
    return accounts[0].name;
}

// One entry's dates: registration, due day, and whether and when it was settled.
struct entry_dates {
    QByteArray data;
    QByteArray vencimento;
    bool concluida;
};

entry_dates entry_days(rng& r, const options& o) {
    static const int terms[] = {0, 0, 5, 7, 10, 15, 15, 20, 30, 30, 30, 45, 60, 90};
    const int span = o.anos * 365;
    const QDate data = o.hoje.addDays(-span + r.below(span + 45));
    const QDate venc = data.addDays(r.pick(terms));
    const bool concluida = venc < o.hoje ? r.chance(o.concluidas) : r.chance(0.04);
    if (!concluida) return {u8(vb::ymd(data)), u8(vb::ymd(venc)), false};
    // settling writes its own day as dd/mm/yyyy over the due date
    QDate paid = venc.addDays(r.below(16) - 5);
    if (paid > o.hoje) paid = o.hoje;
    if (paid < data) paid = data;
    return {u8(vb::ymd(data)), u8(vb::dmy(paid)), true};
}

QByteArray currency_sign(rng& r) {
    const double x = r.unit();
    if (x < 0.97) return QByteArrayLiteral("R$");
    return x < 0.99 ? QByteArrayLiteral("$") : QByteArray("€");
}

std::string document(rng& r, bool expense) {
    const double x = r.unit();
    if (x < 0.45) return (expense ? "NF " : "NF-e ") + digits(r, 5) + " ";
    if (x < 0.60) return (expense ? "Boleto " : "Pedido ") + digits(r, 6) + " ";
    if (x < 0.70) return "Recibo " + digits(r, 3) + " ";
    return " ";
}

template <std::size_t N> std::string note(rng& r, const char* const (&notes)[N], double share) {
    if (!r.chance(share)) return " ";
    return std::string(r.pick(notes)) + " ";
}

int insert_entries(sqlite3* db, bool expense, int n, const std::vector<contact>& contacts, rng& r,
                   const options& o) {
    const std::string sql =
        std::string("INSERT INTO ") + (expense ? "pagar" : "receber") + " (estatus, origem, " +
        (expense ? "fornecedor" : "cliente") +
        ", data, descricao, documento, informacoes, Valor, vencimento, moeda, pagamento) VALUES "
        "(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11)";
    inserter ins(db, sql.c_str());
    const QByteArray concluido = u8(store::palavra::concluido), pendente = u8(store::palavra::pendente);
    for (int i = 0; i < n; ++i) {
        const centre& c = expense ? r.pick(cost_centres) : r.pick(profit_centres);
        const entry_dates d = entry_days(r, o);
        std::string info = expense ? note(r, expense_notes, 0.3) : note(r, income_notes, 0.3);
        if (r.chance(0.08)) {
            const int total = 2 + r.below(11);
            info = "Parcela " + std::to_string(1 + r.below(total)) + "/" + std::to_string(total) + " ";
        }
        ins.text(1, d.concluida ? concluido : pendente)
            .text(2, pick_account(r, true))
            .text(3, contacts.empty() ? QByteArray() : u8(r.pick(contacts).nome))
            .text(4, d.data)
            .text(5, c.name)
            .text(6, document(r, expense))
            .text(7, info)
            .text(8, money(amount_cents(r, c.lo, c.hi)))
            .text(9, d.vencimento)
            .text(10, currency_sign(r))
            .text(11, r.pick(payments));
        ins.run();
    }
    return n;
}

int insert_movements(sqlite3* db, int n, rng& r, const options& o) {
    inserter ins(
        db, "INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) VALUES "
            "(?1, ?2, ?3, ?4, ?5, ?6, ?7)");
    const QByteArray concluido = u8(store::palavra::concluido), pendente = u8(store::palavra::pendente);
    const QByteArray deposito = u8(store::palavra::deposito), retirada = u8(store::palavra::retirada),
                     transferencia = u8(store::palavra::transferencia),
                     sem_destino = u8(store::palavra::sem_destino);
    const int span = o.anos * 365;
    for (int i = 0; i < n; ++i) {
        const double kind = r.unit();
        const char* origem = pick_account(r, false);
        QByteArray destino = sem_destino;
        std::string info;
        QByteArray movimento;
        std::int64_t cents = 0;
        if (kind < 0.45) {
            movimento = deposito;
            info = note(r, deposit_notes, 0.6);
            cents = amount_cents(r, 50, 12000);
        } else if (kind < 0.85) {
            movimento = retirada;
            info = note(r, withdrawal_notes, 0.6);
            cents = amount_cents(r, 20, 6000);
        } else {
            movimento = transferencia;
            info = note(r, transfer_notes, 0.5);
            cents = amount_cents(r, 100, 10000);
            const char* to = origem;
            while (std::string(to) == origem)
                to = pick_account(r, false);
            destino = QByteArray(to);
        }
        const QDate data = o.hoje.addDays(-span + r.below(span + 1));
        ins.text(1, r.chance(0.93) ? concluido : pendente)
            .text(2, origem)
            .text(3, destino)
            .text(4, u8(vb::ymd(data)))
            .text(5, movimento)
            .text(6, info)
            .text(7, money(cents));
        ins.run();
    }
    return n;
}

int insert_accounts(sqlite3* db) {
    inserter ins(db, "INSERT INTO banco (banco, informacoes, saldo) SELECT ?1, ?2, ?3 WHERE NOT EXISTS "
                     "(SELECT 1 FROM banco WHERE banco = ?1)");
    int added = 0;
    for (const account& a : accounts)
        added += ins.text(1, a.name).text(2, a.info).text(3, money(a.saldo_cents)).run();
    return added;
}

} // namespace

const QStringList& bank_names() {
    static const QStringList names = [] {
        QStringList l;
        for (const account& a : accounts)
            l << QString::fromUtf8(a.name);
        return l;
    }();
    return names;
}

summary fill(const sql::connection_ptr& conn, const options& o) {
    if (!conn) throw sql::error(QStringLiteral("Sem conexão com o arquivo de dados."));
    sqlite3* db = conn->handle();
    // the registers come from their own seed, so that filling a file again reuses its contacts
    rng cadastros(o.semente_cadastros);
    const std::vector<contact> clientes = people(cadastros, o.clientes);
    const std::vector<contact> fornecedores = companies(cadastros, o.fornecedores);
    rng r(o.semente);
    summary s;
    // Many rows go in faster with the ledgers' indexes made afresh after them than kept up row
    // by row; a larger cache keeps the pages being written from going out and in again.
    exec(db, "PRAGMA cache_size = -262144");
    exec(db, "BEGIN");
    try {
        std::vector<QByteArray> indexes;
        if (o.despesas + o.receitas + o.movimentos >= 10000) {
            sqlite3_stmt* st = nullptr;
            sqlite3_prepare_v2(db,
                               "SELECT name, sql FROM sqlite_master WHERE type = 'index' AND sql IS NOT NULL "
                               "AND tbl_name IN ('pagar', 'receber', 'bancario')",
                               -1, &st, nullptr);
            std::vector<QByteArray> names;
            while (st && sqlite3_step(st) == SQLITE_ROW) {
                names.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)));
                indexes.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(st, 1)));
            }
            sqlite3_finalize(st);
            for (const QByteArray& n : names)
                exec(db, ("DROP INDEX \"" + n + "\"").constData());
        }
        s.contas = insert_accounts(db);
        s.centros_custo = insert_names(db, "pcontapagar", cost_centres);
        s.centros_lucro = insert_names(db, "pcontareceber", profit_centres);
        s.clientes = insert_contacts(db, "cliente", clientes, r, o.hoje);
        s.fornecedores = insert_contacts(db, "fornecedor", fornecedores, r, o.hoje);
        s.despesas = insert_entries(db, true, o.despesas, fornecedores, r, o);
        s.receitas = insert_entries(db, false, o.receitas, clientes, r, o);
        s.movimentos = insert_movements(db, o.movimentos, r, o);
        for (const QByteArray& sql : indexes)
            exec(db, sql.constData());
        exec(db, "COMMIT");
    } catch (...) {
        sqlite3_exec(db, "ROLLBACK", nullptr, nullptr, nullptr);
        exec(db, "PRAGMA cache_size = -32768");
        throw;
    }
    exec(db, "PRAGMA cache_size = -32768");
    return s;
}

summary fill_file(const QString& path, const options& o) {
    return fill(sql::connection::open(path, store::senha_dados.toUtf8()), o);
}

} // namespace generator
