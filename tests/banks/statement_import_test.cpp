// Statements read from the sample files under tests/data/extratos, written into an account twice,
// and the balances they leave, worked out by hand from the files.
#include "banks/balance.h"
#include "banks/statement_import.h"

#include "store/conexao.h"
#include "support/fixture.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

QString amostra(const QString& nome) {
    return QStringLiteral(QUINTARA_TEST_DATA_DIR "/extratos/") + nome;
}

QString texto_de(const QString& nome) {
    QFile f(amostra(nome));
    EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << qPrintable(nome);
    return banks::decode_text(f.readAll());
}

banks::statement_file ler(const QString& nome) {
    if (nome.endsWith(u".ofx"_s)) return banks::read_ofx(amostra(nome));
    const QString t = texto_de(nome);
    return banks::read_csv(t, banks::detect_csv(t));
}

TEST(statement_amounts, bank_styles_of_writing_an_amount) {
    const struct {
        const char* texto;
        bool virgula;
        long long centavos; // or a failure below
        const char* falha;  // "", "tipo", "faixa", "vazio"
    } casos[] = {
        {"1.234,56", true, 123456, ""},
        {"-1.234,56", true, -123456, ""},
        {"R$ 1.234,56", true, 123456, ""},
        {"(50,00)", true, -5000, ""},
        {"50,00 D", true, -5000, ""},
        {"50,00 C", true, 5000, ""},
        {"15,00-", true, -1500, ""},
        {"-1234.56", false, -123456, ""},
        {"1,234.5", false, 123450, ""},
        {"0,005", true, 1, ""}, // half a cent rounds up at the fourth place
        {"12", true, 1200, ""},
        {"  ", true, 0, "vazio"},
        {"1,234,56", true, 0, "tipo"},
        {"12,3.4", true, 0, "tipo"},
        {"abc", true, 0, "tipo"},
        {"922.337.203.685.477,59", true, 0, "faixa"},
        {"9999999999999999", false, 0, "faixa"},
        {"922.337.203.685.477,58", true, 92233720368547758, ""},
    };
    for (const auto& c : casos) {
        const QString t = QString::fromUtf8(c.texto);
        const std::string f = c.falha;
        if (f == "tipo") {
            EXPECT_THROW(banks::parse_amount(t, c.virgula), vb::type_mismatch) << c.texto;
        } else if (f == "faixa") {
            EXPECT_THROW(banks::parse_amount(t, c.virgula), vb::overflow_error) << c.texto;
        } else if (f == "vazio") {
            EXPECT_FALSE(banks::parse_amount(t, c.virgula)) << c.texto;
        } else {
            const auto v = banks::parse_amount(t, c.virgula);
            ASSERT_TRUE(v) << c.texto;
            EXPECT_EQ(vb::round_to_cents(*v).raw(), c.centavos * 100) << c.texto;
        }
    }
}

TEST(statement_dates, the_forms_banks_export) {
    const struct {
        const char* texto;
        QDate data;
    } casos[] = {
        {"05/11/2026", {2026, 11, 5}},
        {"5/1/2026", {2026, 1, 5}},
        {"2026-11-05", {2026, 11, 5}},
        {"2026/11/05", {2026, 11, 5}},
        {"05.11.2026", {2026, 11, 5}},
        {"05/11/26", {2026, 11, 5}},
        {"2026-11-05T10:00:00", {2026, 11, 5}},
        {"31/02/2026", {}},
        {"SALDO", {}},
        {"", {}},
    };
    for (const auto& c : casos)
        EXPECT_EQ(banks::parse_date(QString::fromUtf8(c.texto)), c.data) << c.texto;
}

TEST(statement_csv, the_layout_is_guessed_from_the_file) {
    const auto virgula = banks::detect_csv(texto_de(u"cartao_virgula_utf8.csv"_s));
    EXPECT_EQ(virgula, (banks::csv_layout{QChar(u','), false, true, 0, 1, -1, -1, 3}));
    const auto poupanca = banks::detect_csv(texto_de(u"poupanca_pontoevirgula_latin1.csv"_s));
    EXPECT_EQ(poupanca, (banks::csv_layout{QChar(u';'), true, true, 0, -1, 3, 4, 1}));
    // Latin-1 read as such, and a quoted separator stays inside its field
    EXPECT_EQ(banks::csv_column_names(texto_de(u"poupanca_pontoevirgula_latin1.csv"_s), poupanca).at(1),
              u"Histórico"_s);
    EXPECT_EQ(ler(u"cartao_virgula_utf8.csv"_s).linhas.at(2).memo, u"Café, pão e leite"_s);
    // the layout survives the settings, and a damaged setting is refused
    EXPECT_EQ(banks::csv_layout::from_setting(poupanca.to_setting()), poupanca);
    EXPECT_FALSE(banks::csv_layout::from_setting(u"sep=;|dec=,|data=x"_s));
}

TEST(statement_csv, a_wrong_column_choice_names_the_line_and_gives_no_lines) {
    const QString t = texto_de(u"poupanca_pontoevirgula_latin1.csv"_s);
    const banks::csv_layout certo = banks::detect_csv(t);
    const struct {
        int banks::csv_layout::*coluna;
        int valor;
        const char* trecho;
    } casos[] = {
        {&banks::csv_layout::data, 1, "linha 3 do arquivo não traz uma data"},
        {&banks::csv_layout::credito, 1, "linha 2 do arquivo não traz um valor"},
        {&banks::csv_layout::data, 9, "só 5 colunas"},
        {&banks::csv_layout::data, -1, "coluna que traz a data"},
    };
    for (const auto& c : casos) {
        banks::csv_layout l = certo;
        l.*c.coluna = c.valor;
        const auto r = banks::read_csv(t, l);
        EXPECT_TRUE(r.linhas.empty()) << c.trecho;
        EXPECT_TRUE(r.erro.contains(QString::fromUtf8(c.trecho))) << qPrintable(r.erro);
    }
    const QString grande = u"Data;Valor;Descrição\n01/11/2026;9.999.999.999.999.999,00;x\n"_s;
    const auto enorme = banks::read_csv(grande, banks::detect_csv(grande));
    EXPECT_TRUE(enorme.erro.contains(u"maior valor"_s)) << qPrintable(enorme.erro);
}

TEST(statement_ofx, malformed_files_give_a_message_and_no_lines) {
    for (const char* nome : {"truncado.ofx", "nao_e_extrato.ofx", "valor_enorme.ofx", "nao_existe.ofx"}) {
        const auto r = banks::read_ofx(amostra(QString::fromUtf8(nome)));
        EXPECT_TRUE(r.linhas.empty()) << nome;
        EXPECT_FALSE(r.erro.isEmpty()) << nome;
    }
    EXPECT_EQ(banks::account_mismatch(u"Itaú"_s, u"0341 12345-6"_s, u"001 1234-5 98765-4"_s).isEmpty(),
              false);
    EXPECT_TRUE(banks::account_mismatch(u"Itaú"_s, {}, u"001 1234-5 98765-4"_s).isEmpty());
}

class statement_import : public support::fixture {
protected:
    void SetUp() override {
        fixture::SetUp();
        exec(u"INSERT INTO banco (banco, informacoes, saldo) VALUES ('Conta', ' ', '0,00')"_s);
    }
    banks::import_outcome importar(const std::vector<banks::statement_line>& linhas) {
        return banks::write_import(u"Conta"_s,
                                   banks::build_preview(linhas, banks::read_existing(u"Conta"_s)));
    }
    vb::currency saldo() {
        auto c = sql::connection::open(path(u"dados.qntbd"_s), store::senha_dados.toUtf8());
        return banks::compute_balance(c, u"Conta"_s, u"0,00"_s).total;
    }
};

TEST_F(statement_import, each_sample_twice_writes_once_and_leaves_the_hand_worked_balance) {
    const struct {
        const char* arquivo;
        int linhas;
        long long centavos; // the balance from the file's amounts, added by hand
    } casos[] = {
        {"conta_corrente_sgml_latin1.ofx", 6, 227916},   // 1500 - 89,90 - 300 - 45,50 + 1234,56 - 20
        {"conta_xml_utf8.ofx", 5, 11469},                // 2500 - 150,75 - 1000 + 0,01 - 1234,57
        {"cartao_virgula_utf8.csv", 4, 113910},          // -35,90 + 1200 - 12,50 - 12,50
        {"poupanca_pontoevirgula_latin1.csv", 4, 78847}, // 1000 - 200 + 3,47 - 15 (no balance line)
    };
    for (const auto& c : casos) {
        exec(u"DELETE FROM bancario"_s);
        const auto f = ler(QString::fromUtf8(c.arquivo));
        ASSERT_TRUE(f.erro.isEmpty()) << c.arquivo << qPrintable(f.erro);
        const auto primeira = importar(f.linhas);
        EXPECT_EQ(primeira.gravados, c.linhas) << c.arquivo;
        EXPECT_TRUE(primeira.erro.isEmpty()) << c.arquivo;
        const auto segunda = importar(f.linhas);
        EXPECT_EQ(segunda.gravados, 0) << c.arquivo;
        EXPECT_EQ(segunda.repetidos, c.linhas) << c.arquivo;
        EXPECT_EQ(saldo(), vb::currency::from_cents(c.centavos)) << c.arquivo;
    }
    // the rows as the movement window writes them, the bank's id kept
    EXPECT_EQ(rows(u"SELECT estatus, origem, destino, data, movimento, informacoes, Valor FROM bancario "
                   "ORDER BY data LIMIT 2"_s),
              (QStringList{u"Concluído|Conta| - |2026/11/04|Depósito|DEPÓSITO LOTÉRICO |1.000,00"_s,
                           u"Concluído|Conta| - |2026/11/09|Retirada|SAQUE 24H |200,00"_s}));
    exec(u"DELETE FROM bancario"_s);
    importar(ler(u"conta_corrente_sgml_latin1.ofx"_s).linhas);
    EXPECT_EQ(rows(u"SELECT id_extrato, informacoes FROM bancario WHERE Valor = '45,50'"_s),
              QStringList{u"2026111000004|PADARIA SÃO JOÃO - COMPRA CARTÃO DÉBITO "_s});
}

TEST_F(statement_import, same_lines_count_against_the_rows_already_there) {
    // two equal coffees in the file; one was typed by hand before, in the account's other case
    exec(u"INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) VALUES "
         "('Pendente', 'CONTA', ' - ', '2026/11/03', 'Retirada', 'Café ', '12,50')"_s);
    const QString csv =
        u"Data;Valor;Descrição\n03/11/2026;-12,50;Café\n03/11/2026;-12,50;Café\n03/11/2026;12,50;Café\n"_s;
    const auto linhas = banks::read_csv(csv, banks::detect_csv(csv)).linhas;
    const auto previa = banks::build_preview(linhas, banks::read_existing(u"Conta"_s));
    ASSERT_EQ(previa.size(), 3u);
    EXPECT_TRUE(previa[0].repetido);
    EXPECT_FALSE(previa[1].repetido);
    EXPECT_FALSE(previa[2].repetido); // a deposit is another movement
    EXPECT_EQ(importar(linhas).gravados, 2);
    EXPECT_EQ(importar(linhas).gravados, 0);
}

TEST_F(statement_import, a_failure_part_way_keeps_the_rows_before_it_whole_and_counts_them) {
    exec(u"CREATE TRIGGER quebra BEFORE INSERT ON bancario WHEN NEW.informacoes LIKE 'QUEBRA%' "
         "BEGIN SELECT RAISE(ABORT, 'disco cheio'); END"_s);
    const QString csv =
        u"Data;Valor;Descrição\n01/11/2026;10,00;a\n02/11/2026;20,00;b\n03/11/2026;30,00;QUEBRA\n04/11/2026;40,00;d\n"_s;
    const auto r = importar(banks::read_csv(csv, banks::detect_csv(csv)).linhas);
    EXPECT_EQ(r.gravados, 2);
    EXPECT_TRUE(r.erro.contains(u"disco cheio"_s)) << qPrintable(r.erro);
    EXPECT_EQ(rows(u"SELECT data, informacoes, Valor, estatus FROM bancario ORDER BY data"_s),
              (QStringList{u"2026/11/01|a |10,00|Concluído"_s, u"2026/11/02|b |20,00|Concluído"_s}));
}

TEST_F(statement_import, an_older_data_file_gets_the_id_column_once_when_imported_into_and_keeps_its_rows) {
    const QString coluna =
        u"SELECT name FROM sqlite_master WHERE name = 'bancario' AND sql LIKE '%id_extrato%'"_s;
    exec(u"INSERT INTO bancario (estatus, origem, data, movimento, Valor) VALUES ('Concluído', 'Conta', "
         "'2026/11/01', 'Depósito', '5,00')"_s);
    ASSERT_TRUE(rows(coluna).isEmpty());
    store::conectarbanco(); // opening alone leaves the file as it was
    EXPECT_TRUE(rows(coluna).isEmpty());
    banks::read_existing(u"Conta"_s);
    banks::read_existing(u"Conta"_s);
    EXPECT_EQ(rows(coluna).size(), 1);
    EXPECT_EQ(rows(u"SELECT Valor, id_extrato FROM bancario"_s), QStringList{u"5,00|"_s});
    EXPECT_EQ(saldo(), vb::currency::from_cents(500));
}

} // namespace
