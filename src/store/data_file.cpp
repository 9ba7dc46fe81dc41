#include "store/data_file.h"

#include "platform/sql/connection.h"
#include "store/data_scripts.h"
#include "store/names.h"

namespace store {

void create_data_file(const QString& path) {
    auto c = sql::connection::create(path, senha_dados.toUtf8());
    c->execute_script(QByteArray("BEGIN;\n") + schema_sql() + "\n" + rows_sql() + "\nCOMMIT;\n");
}

} // namespace store
