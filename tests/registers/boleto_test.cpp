// Bank slips: the opening values, the address sent to the browser compared character by character,
// the due factor, the payer's address, and the failures that stay silent.

#include "registers/boleto.h"
#include "registers/ui/frmboleto.h"
#include "shell/principal_api.h"
#include "store/config.h"
#include "support/fixture.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

class boleto : public support::fixture {
protected:
    void TearDown() override {
        delete frmboleto::instance();
        support::fixture::TearDown();
    }
    void cliente(const QString& nome, const QString& bairro, const QString& cidade, const QString& cep,
                 const QString& endereco) {
        exec(
            u"INSERT INTO cliente (nome, bairro, cidade, cep, endereco) VALUES ('%1', '%2', '%3', '%4', '%5')"_s
                .arg(nome, bairro, cidade, cep, endereco));
    }
    frmboleto* abrir() {
        EXPECT_TRUE(shell::run_action(u"mnuboleto"_s));
        return frmboleto::instance();
    }
};

TEST_F(boleto, the_design_values_go_out_in_the_fixed_key_order) {
    cliente(u"Bruno"_s, u"Centro"_s, u"Santos"_s, u"11010-000"_s, u"Rua B, 2"_s);
    cliente(u"Ana Lima"_s, u"Vila Nova"_s, u"Campinas"_s, u"13000-000"_s, u"Av. Brasil, 100"_s);
    frmboleto* f = abrir();
    EXPECT_EQ(f->windowTitle(), u"Gerador de boleto bancario"_s);
    EXPECT_EQ(f->cbobanco->currentText(), u"Banco Real"_s);
    ASSERT_EQ(f->cbocliente->count(), 2);
    EXPECT_EQ(f->cbocliente->itemText(0), u"Ana Lima"_s); // by name
    f->cbocliente->setEditText(u"Ana Lima"_s);
    f->cdmgerar->click();
    ASSERT_EQ(shell_.opened.size(), 1);
    EXPECT_EQ(
        shell_.opened[0],
        u"https://www.quintara.com.br/online/boleto/real.aspx?valor=50&agcod=07672&conta=77097556"
        u"&nossonum=5000170&cedente=Empresa Modelo Ltda&inscricao=123456&candidato=Ana Lima"
        u"&vencimento=20/01/2009&linha1=testando o boleto&linha2=testando o boleto&linha3=testando o boleto"
        u"&codcedente=7.709755-6&cep=13000-000&cidade=Campinas&bairro=Vila Nova&endereco=Av. Brasil, 100"
        u"&fator=4123000000"_s);
    EXPECT_TRUE(prompts_.boxes().empty());
    // brought to the front again, it keeps what was typed
    f->cbocliente->setEditText(u"Bruno"_s);
    EXPECT_EQ(abrir(), f);
    EXPECT_EQ(f->cbocliente->currentText(), u"Bruno"_s);
}

TEST_F(boleto, amounts_and_due_factors_as_the_page_expects_them) {
    // amount, due date, amount sent, factor
    const std::array<const char*, 4> rows[] = {
        {"1.234,56", "03/07/2000", "1.23456", "1000000000"},
        {"50,00", "04/07/2000", "5000", "1001000000"},
        {"50", "1/7/2000", "50", "998000000"},
        {"abc", "31/02/2009", "abc", "000000"}, // a date that does not exist: no factor, no message
        {"", "amanhã", "", "000000"},
        {"99999999999999999999", "31/12/9999", "99999999999999999999", "2922755000000"},
    };
    for (const auto& [valor, vencimento, enviado, fator] : rows) {
        registers::boleto_campos b = registers::boleto_inicial();
        b.valor = QString::fromUtf8(valor);
        b.vencimento = QString::fromUtf8(vencimento);
        const QString url = registers::endereco_boleto(u"http://x"_s, b, {});
        EXPECT_TRUE(url.startsWith(u"http://x/online/boleto/real.aspx?valor="_s + QString::fromUtf8(enviado) +
                                   u"&agcod="_s));
        EXPECT_TRUE(url.endsWith(u"&endereco=&fator="_s + QString::fromUtf8(fator))) << qPrintable(url);
    }
}

TEST_F(boleto, the_last_client_of_the_name_wins_and_an_apostrophe_finds_nothing) {
    cliente(u"Ana"_s, u"B1"_s, u"C1"_s, u"1"_s, u"E1"_s);
    cliente(u"ana"_s, u"B2"_s, u"C2"_s, u"2"_s, u"E2"_s);
    const auto e = registers::endereco_de(u"ANA"_s);
    EXPECT_EQ(e.bairro + e.cidade + e.cep + e.endereco, u"B2C22E2"_s);
    cliente(u"D''Ávila"_s, u"B3"_s, u"C3"_s, u"3"_s, u"E3"_s);
    const auto vazio = registers::endereco_de(u"D'Ávila"_s);
    EXPECT_TRUE(vazio.bairro.isEmpty() && vazio.cidade.isEmpty() && vazio.cep.isEmpty() &&
                vazio.endereco.isEmpty());

    // the page opens all the same, with the address empty and the name as typed, on the site set
    store::save_setting(store::secao_config, u"EnderecoBoleto"_s, u"http://boletos.exemplo"_s);
    frmboleto* f = abrir();
    f->cbocliente->setEditText(u"D'Ávila"_s);
    f->cdmgerar->click();
    ASSERT_EQ(shell_.opened.size(), 1);
    EXPECT_TRUE(shell_.opened[0].startsWith(u"http://boletos.exemplo/online/boleto/real.aspx?valor=50&"_s));
    EXPECT_TRUE(shell_.opened[0].contains(u"&candidato=D'Ávila&vencimento="_s));
    EXPECT_TRUE(shell_.opened[0].contains(u"&cep=&cidade=&bairro=&endereco=&fator="_s));
    EXPECT_TRUE(prompts_.boxes().empty());
}

} // namespace
