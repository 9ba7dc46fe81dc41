// Fills an existing data file with generated rows, for trying the program on a full file:
//   gerardados <arquivo de dados> <n despesas> [n receitas] [n movimentos]
#include "generator/data_generator.h"
#include "platform/clock.h"
#include "platform/sql/recordset.h"
#include "store/names.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

namespace {

int usage() {
    std::fprintf(stderr,
                 "uso: gerardados <arquivo de dados> <n despesas> [n receitas] [n movimentos]\n"
                 "  Acrescenta despesas, receitas e movimentos bancários gerados ao arquivo de dados,\n"
                 "  com contas, centros de custo e de lucro, clientes e fornecedores.\n"
                 "  Sem n receitas, o mesmo número de despesas; sem n movimentos, a metade.\n");
    return 2;
}

bool count_arg(const char* text, int& out) {
    bool ok = false;
    const int v = QString::fromLocal8Bit(text).toInt(&ok);
    if (!ok || v < 0) return false;
    out = v;
    return true;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    if (argc < 3 || argc > 5) return usage();
    const QString path = QFile::decodeName(argv[1]);
    generator::options o;
    if (!count_arg(argv[2], o.despesas)) return usage();
    o.receitas = o.despesas;
    o.movimentos = o.despesas / 2;
    if (argc > 3 && !count_arg(argv[3], o.receitas)) return usage();
    if (argc > 4 && !count_arg(argv[4], o.movimentos)) return usage();
    if (!QFile::exists(path)) {
        std::fprintf(stderr, "gerardados: o arquivo '%s' não existe.\n", qPrintable(path));
        return 1;
    }
    o.hoje = platform::today();
    try {
        auto conn = sql::connection::open(path, store::senha_dados.toUtf8());
        // a second run on the same file draws other rows
        sql::recordset rs;
        rs.open(QStringLiteral("SELECT max(\"código\") AS n FROM pagar"), conn);
        o.semente += std::uint64_t(rs.text(0).toLongLong());
        rs.close();
        const generator::summary s = generator::fill(conn, o);
        std::printf(
            "%d despesas, %d receitas e %d movimentos acrescentados; novos: %d contas, %d centros de custo, "
            "%d centros de lucro, %d clientes, %d fornecedores.\n",
            s.despesas, s.receitas, s.movimentos, s.contas, s.centros_custo, s.centros_lucro, s.clientes,
            s.fornecedores);
    } catch (const sql::error& e) {
        std::fprintf(stderr, "gerardados: %s\n", qPrintable(e.description()));
        return 1;
    }
    return 0;
}
