-- The tables of the data file. Dates are text (yyyy/mm/dd), amounts are the formatted text
-- (1.234,56), identities are generated on insertion. Relations go by name, never by key.

CREATE TABLE pagar (
    "código"    INTEGER PRIMARY KEY AUTOINCREMENT,
    estatus     TEXT,
    origem      TEXT,
    fornecedor  TEXT,
    data        TEXT,
    descricao   TEXT,
    documento   TEXT,
    informacoes TEXT,
    Valor       TEXT,
    vencimento  TEXT,
    moeda       TEXT,
    pagamento   TEXT
);

CREATE TABLE receber (
    "código"    INTEGER PRIMARY KEY AUTOINCREMENT,
    estatus     TEXT,
    origem      TEXT,
    cliente     TEXT,
    data        TEXT,
    descricao   TEXT,
    documento   TEXT,
    informacoes TEXT,
    Valor       TEXT,
    vencimento  TEXT,
    moeda       TEXT,
    pagamento   TEXT
);

CREATE TABLE bancario (
    "código"    INTEGER PRIMARY KEY AUTOINCREMENT,
    estatus     TEXT,
    origem      TEXT,
    destino     TEXT,
    data        TEXT,
    movimento   TEXT,
    informacoes TEXT,
    Valor       TEXT
);

CREATE TABLE banco (
    banco       TEXT,
    informacoes TEXT,
    saldo       TEXT
);

CREATE TABLE cliente (
    "código"   INTEGER PRIMARY KEY AUTOINCREMENT,
    nome       TEXT,
    tipo       TEXT,
    cpf        TEXT,
    nascimento TEXT,
    pais       TEXT,
    estado     TEXT,
    cidade     TEXT,
    bairro     TEXT,
    endereco   TEXT,
    cep        TEXT,
    tel        TEXT,
    tel2       TEXT,
    cel        TEXT,
    site       TEXT,
    email      TEXT,
    insc       TEXT,
    local      TEXT,
    adicionais TEXT
);

-- The bank slip's box reads the clients in name order.
CREATE INDEX cliente_nome ON cliente (nome);

CREATE TABLE fornecedor (
    "código"   INTEGER PRIMARY KEY AUTOINCREMENT,
    nome       TEXT,
    tipo       TEXT,
    cpf        TEXT,
    nascimento TEXT,
    pais       TEXT,
    estado     TEXT,
    cidade     TEXT,
    bairro     TEXT,
    endereco   TEXT,
    cep        TEXT,
    tel        TEXT,
    tel2       TEXT,
    cel        TEXT,
    site       TEXT,
    email      TEXT,
    insc       TEXT,
    local      TEXT,
    adicionais TEXT
);

CREATE TABLE pcontapagar (descricao TEXT);
CREATE TABLE pcontareceber (descricao TEXT);

CREATE TABLE compromisso (
    data      TEXT,
    hora      TEXT,
    Titulo    TEXT,
    local     TEXT,
    descricao TEXT
);

CREATE TABLE login (
    codigo INTEGER PRIMARY KEY AUTOINCREMENT,
    nome   TEXT,
    senha  TEXT
);

CREATE TABLE login_inicia (exigirlogin TEXT);

CREATE TABLE fpagamento (pagamento TEXT);

CREATE TABLE CamposEtiqueta (
    "Index" INTEGER,
    Campo   TEXT,
    "Top"   INTEGER,
    "Left"  INTEGER,
    Width   INTEGER,
    Formato TEXT
);

-- The filters of the lists and the balances look rows up by these columns.
CREATE INDEX pagar_estatus ON pagar (estatus);
CREATE INDEX pagar_origem ON pagar (origem);
CREATE INDEX pagar_data ON pagar (data);
CREATE INDEX pagar_vencimento ON pagar (vencimento);
CREATE INDEX receber_estatus ON receber (estatus);
CREATE INDEX receber_origem ON receber (origem);
CREATE INDEX receber_data ON receber (data);
CREATE INDEX receber_vencimento ON receber (vencimento);
CREATE INDEX bancario_origem ON bancario (origem);
CREATE INDEX bancario_destino ON bancario (destino);
CREATE INDEX bancario_data ON bancario (data);
CREATE INDEX bancario_estatus ON bancario (estatus);

-- An account's settled rows, found by its name as LIKE compares it (case folded over all of
-- Unicode); quintara_fold is a function of the program, present on every connection it opens.
-- The day next: the reports over a period read only the rows dated in it. The plain columns last:
-- the balances read only the index, never the table. (The program rebuilds an index of an older
-- file that lacks them when it opens the file.)
CREATE INDEX pagar_origem_dobrada ON pagar (quintara_fold(origem), quintara_fold(estatus), data, origem, estatus, valor);
CREATE INDEX receber_origem_dobrada ON receber (quintara_fold(origem), quintara_fold(estatus), data, origem, estatus, valor);
CREATE INDEX bancario_origem_dobrada ON bancario (quintara_fold(origem), quintara_fold(estatus), quintara_fold(movimento), data, origem, estatus, movimento, valor);
CREATE INDEX bancario_destino_dobrada ON bancario (quintara_fold(destino), quintara_fold(estatus), quintara_fold(movimento), data, destino, estatus, movimento, valor);

-- A centre's name is its identity, compared as LIKE compares it: a second name that differs only in
-- case is refused, on adding and on renaming.
CREATE UNIQUE INDEX pcontapagar_descricao ON pcontapagar (quintara_fold(descricao));
CREATE UNIQUE INDEX pcontareceber_descricao ON pcontareceber (quintara_fold(descricao));
-- The statistics by supplier, client and centre and a centre's summary look each one's entries
-- up by its name, folded the same way. The plain name last: the lists' boxes read the distinct
-- names from the index, never the table.
CREATE INDEX pagar_fornecedor_dobrado ON pagar (quintara_fold(fornecedor), fornecedor);
CREATE INDEX receber_cliente_dobrado ON receber (quintara_fold(cliente), cliente);
CREATE INDEX pagar_descricao_dobrada ON pagar (quintara_fold(descricao), descricao);
CREATE INDEX receber_descricao_dobrada ON receber (quintara_fold(descricao), descricao);
