#include "analysis/register_summary.h"

#include "platform/errors.h"
#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "shell/ledger_load.h"
#include "store/conexao.h"

namespace analysis {

namespace {

QString u(const char* s) {
    return QString::fromUtf8(s);
}

} // namespace

const std::vector<estatistica_cadastro>& estatisticas_cadastro() {
    static const std::vector<estatistica_cadastro> todas = {
        {u("mnuestplanopagar"), u("Select * from pcontapagar"), u("descricao"),
         u("select * from pagar where (descricao like '"),
         u("Estatística de plano de contas (contas a pagar)"), lista_cadastro::planos, false},
        {u("mnuestplanoreceber"), u("Select * from pcontareceber"), u("descricao"),
         u("select * from receber where (descricao like '"),
         u("Estatística de plano de contas (contas a receber)"), lista_cadastro::planos, true},
        {u("mnuestcli"), u("Select * from cliente"), u("nome"),
         u("select * from receber where (cliente like '"), u("Estatística de cliente"),
         lista_cadastro::clientes, true},
        {u("mnuestforn"), u("Select * from fornecedor"), u("nome"),
         u("select * from pagar where (fornecedor like '"), u("Estatística de fornecedor"),
         lista_cadastro::fornecedores, false},
    };
    return todas;
}

const estatistica_cadastro* achar_estatistica_cadastro(const QString& nome) {
    for (const auto& e : estatisticas_cadastro())
        if (e.nome == nome) return &e;
    return nullptr;
}

QString consulta_detalhe(const estatistica_cadastro& e, const QString& nome) {
    return e.detalhe + sql::value(nome) + QStringLiteral("')");
}

QString celula_contagem(long n, const QString& soma) {
    return QString::number(n) + QStringLiteral(" (R$ ") + soma + QLatin1Char(')');
}

resumo_cadastro resumir_cadastro(const estatistica_cadastro& e, const std::function<void(long)>& antes,
                                 const std::function<void(long)>& a_cada) {
    resumo_cadastro out;
    QStringList nomes;
    platform::ignore_errors([&] {
        store::conectarbanco();
        sql::recordset mestre;
        mestre.open(e.mestre, store::conexao);
        const int i = mestre.index_of(e.coluna_mestre);
        for (; !mestre.eof(); mestre.move_next())
            nomes << (i < 0 ? QString() : mestre.text(i));
    });
    if (nomes.isEmpty()) return out;
    out.vazio = false;
    if (antes) antes(nomes.size());
    out.linhas.reserve(std::size_t(nomes.size()));
    long k = 0;
    for (const QString& nome : nomes) {
        if (a_cada) a_cada(++k);
        status_tally t(classes::exato, soma::moeda);
        // a detail that fails leaves this name's row at zero
        platform::ignore_errors([&] {
            sql::recordset rs;
            rs.open(consulta_detalhe(e, nome), store::conexao);
            const int i_valor = rs.index_of(store::coluna::valor);
            const int i_estatus = rs.index_of(store::coluna::estatus);
            for (; !rs.eof(); rs.move_next()) {
                const QString estatus = i_estatus < 0 ? QString() : rs.text(i_estatus);
                const QString valor = i_valor < 0 ? QString() : rs.text(i_valor);
                const auto v = valor_formatado(valor);
                t.add(estatus, v, valor);
                out.tally.add(estatus, v, valor);
            }
        });
        out.linhas.push_back({nome, celula_contagem(t.n(classe::pendente), t.texto(classe::pendente)),
                              celula_contagem(t.n(classe::concluido), t.texto(classe::concluido)),
                              celula_contagem(t.n(), t.texto_total())});
    }
    out.geral =
        (e.receitas ? QStringLiteral("Total de receitas: R$ ") : QStringLiteral("Total de despesas: R$ ")) +
        out.tally.texto_total() + QStringLiteral(" - Total pago: R$ ") + out.tally.texto(classe::concluido) +
        QStringLiteral(" - Total pendente: R$ ") + out.tally.texto(classe::pendente);
    return out;
}

lista_contatos ler_contatos(const QString& consulta) {
    lista_contatos out;
    platform::ignore_errors([&] {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(consulta, store::conexao);
        static const char* const colunas[] = {"nome",   "tipo",   "cpf",    "nascimento", "pais",
                                              "estado", "cidade", "bairro", "endereco",   "cep",
                                              "tel",    "tel2",   "cel",    "email",      "site"};
        int idx[15];
        for (int c = 0; c < 15; ++c)
            idx[c] = rs.index_of(QString::fromLatin1(colunas[c]));
        for (; !rs.eof(); rs.move_next()) {
            QStringList r;
            r.reserve(15);
            for (int c = 0; c < 15; ++c) {
                QString s = idx[c] < 0 ? QString() : rs.text(idx[c]);
                if (c == 1)
                    s = s == QLatin1String("f") ? QStringLiteral("Pessoa Física")
                                                : QStringLiteral("Pessoa Jurídica");
                else if (c == 3)
                    s = shell::display_date(s);
                r << s;
            }
            out.linhas.push_back(std::move(r));
        }
    });
    out.vazio = out.linhas.empty();
    return out;
}

} // namespace analysis
