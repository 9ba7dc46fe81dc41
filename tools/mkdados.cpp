// Builds the ready-made data file: mkdados <path>. An existing file is left alone.
#include "platform/sql/error.h"
#include "store/data_file.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "uso: mkdados <arquivo.qntbd>\n");
        return 2;
    }
    const QString path = QFile::decodeName(argv[1]);
    try {
        store::create_data_file(path);
    } catch (const sql::error& e) {
        std::fprintf(stderr, "mkdados: %s\n", qPrintable(e.description()));
        return 1;
    }
    return 0;
}
