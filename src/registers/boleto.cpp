#include "registers/boleto.h"

#include "platform/errors.h"
#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "platform/text/vb_text.h"
#include "store/conexao.h"
#include "store/names.h"

#include <QDateTime>

namespace registers {

boleto_campos boleto_inicial() {
    boleto_campos b;
    b.valor = QStringLiteral("50");
    b.agencia = QStringLiteral("07672");
    b.conta = QStringLiteral("77097556");
    b.nossonum = QStringLiteral("5000170");
    b.cedente = QStringLiteral("Empresa Modelo Ltda");
    b.inscricao = QStringLiteral("123456");
    b.vencimento = QStringLiteral("20/01/2009");
    b.linha1 = b.linha2 = b.linha3 = QStringLiteral("testando o boleto");
    b.codcedente = QStringLiteral("7.709755-6");
    return b;
}

QStringList nomes_clientes() {
    QStringList nomes;
    platform::ignore_errors([&] {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(QStringLiteral("select * from cliente order by nome"), store::conexao, sql::static_cursor);
        nomes.reserve(rs.record_count());
        const int nome = rs.index_of(store::coluna::nome);
        for (; !rs.eof(); rs.move_next())
            nomes << rs.text(nome);
    });
    return nomes;
}

endereco_cliente endereco_de(const QString& cliente) {
    endereco_cliente e;
    platform::ignore_errors([&] {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(QStringLiteral("select * from cliente where nome like '") + sql::value(cliente) +
                    QStringLiteral("'"),
                store::conexao, sql::static_cursor);
        // with several rows the last one wins
        for (; !rs.eof(); rs.move_next()) {
            e.bairro = rs.text(QStringLiteral("bairro"));
            e.cidade = rs.text(QStringLiteral("cidade"));
            e.cep = rs.text(QStringLiteral("cep"));
            e.endereco = rs.text(QStringLiteral("endereco"));
        }
    });
    return e;
}

QString valor_boleto(const QString& valor) {
    QString v = valor;
    return v.remove(QLatin1Char(','));
}

QString fator_vencimento(const QString& vencimento) {
    const QDateTime vence = vb::cdatetime(vencimento);
    if (!vence.isValid()) return {};
    // day 1000 of the count of Brazilian bank slips; the time of day, if typed, counts as a fraction
    const double dias = double(QDate(2000, 7, 3).daysTo(vence.date())) +
                        double(vence.time().msecsSinceStartOfDay()) / 86400000.0;
    return vb::cstr(dias + 1000.0);
}

QString endereco_boleto(const QString& site, const boleto_campos& b, const endereco_cliente& e) {
    return site + QStringLiteral("/online/boleto/real.aspx?valor=") + valor_boleto(b.valor) +
           QStringLiteral("&agcod=") + b.agencia + QStringLiteral("&conta=") + b.conta +
           QStringLiteral("&nossonum=") + b.nossonum + QStringLiteral("&cedente=") + b.cedente +
           QStringLiteral("&inscricao=") + b.inscricao + QStringLiteral("&candidato=") + b.cliente +
           QStringLiteral("&vencimento=") + b.vencimento + QStringLiteral("&linha1=") + b.linha1 +
           QStringLiteral("&linha2=") + b.linha2 + QStringLiteral("&linha3=") + b.linha3 +
           QStringLiteral("&codcedente=") + b.codcedente + QStringLiteral("&cep=") + e.cep +
           QStringLiteral("&cidade=") + e.cidade + QStringLiteral("&bairro=") + e.bairro +
           QStringLiteral("&endereco=") + e.endereco + QStringLiteral("&fator=") +
           fator_vencimento(b.vencimento) + QStringLiteral("000000");
}

} // namespace registers
