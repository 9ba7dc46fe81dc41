#include "registers/geradorad.h"

#include "platform/sql/recordset.h"
#include "store/conexao.h"

namespace registers {

namespace {
std::function<void(const pedido_lista&)>& abridor() {
    static std::function<void(const pedido_lista&)> f;
    return f;
}
} // namespace

QStringList ler_lista(const QString& consulta, const QString& campo) {
    store::conectarbanco();
    sql::recordset rs;
    rs.open(consulta, store::conexao, sql::keyset, sql::read_only);
    QStringList nomes;
    for (; !rs.eof(); rs.move_next())
        nomes << rs.text(campo);
    rs.close();
    return nomes;
}

void set_abridor_lista(std::function<void(const pedido_lista&)> f) {
    abridor() = std::move(f);
}

bool abrir_lista(const pedido_lista& pedido) {
    if (!abridor()) return false;
    abridor()(pedido);
    return true;
}

} // namespace registers
