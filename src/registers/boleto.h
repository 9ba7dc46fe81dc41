#pragma once
// The bank slip: the data of one slip gathered from the window and handed to the bank-slip page
// in the query of one address, opened in the browser. Nothing is kept of an issued slip.

#include <QString>
#include <QStringList>

namespace registers {

// What the window's fields hold.
struct boleto_campos {
    QString valor, agencia, conta, nossonum, cedente, inscricao, cliente, vencimento;
    QString linha1, linha2, linha3, codcedente;
};

// The values that stand in the fields when the window opens.
boleto_campos boleto_inicial();
inline const QString banco_boleto = QStringLiteral("Banco Real");

// The payer's address, from the last client of the name; empty when none was found.
struct endereco_cliente {
    QString bairro, cidade, cep, endereco;
};

// "select * from cliente order by nome": the names of cbocliente. Errors ignored (none then).
QStringList nomes_clientes();
// "select * from cliente where nome like '<nome>'". Errors ignored: an apostrophe in the name
// breaks the statement and the address stays empty.
endereco_cliente endereco_de(const QString& cliente);

// The amount as sent: every comma removed, nothing else changed ("1.234,56" -> "1.23456").
QString valor_boleto(const QString& valor);
// The due factor: the days from 03/07/2000, read day/month/year, plus 1000. Empty when the due date
// cannot be read.
QString fator_vencimento(const QString& vencimento);
// The page's address with every value as it stands, no escaping, the keys in their fixed order.
// site: scheme and host of the page (store::endereco_boleto()).
QString endereco_boleto(const QString& site, const boleto_campos& b, const endereco_cliente& e);

} // namespace registers
