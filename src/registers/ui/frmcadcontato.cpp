#include "registers/ui/frmcadcontato.h"

#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/text/vb_text.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "registers/ui/frmcontatos.h"
#include "shell/principal_api.h"
#include "store/conexao.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <exception>
#include <functional>
#include <map>

using registers::contato;

namespace {

QPointer<frmcadcontato> janelas[2];

QPointer<frmcadcontato>& janela(contato c) {
    return janelas[c == contato::cliente ? 0 : 1];
}

QLineEdit* campo(const char* name) {
    return named(new QLineEdit, name);
}

constexpr int lado_imagem = 120;

} // namespace

frmcadcontato* frmcadcontato::instance(contato c) {
    QPointer<frmcadcontato>& w = janela(c);
    if (!w) w = new frmcadcontato(c);
    return w;
}

frmcadcontato* frmcadcontato::aberto(contato c) {
    return janela(c).data();
}

frmcadcontato::frmcadcontato(contato c) : QWidget(nullptr, Qt::Window), tipo_(c) {
    const registers::contato_textos& t = registers::textos(c);
    setObjectName(t.janela_ficha);
    setAttribute(Qt::WA_DeleteOnClose);
    setProperty("quintara_form", true);

    txtnome = campo("txtnome");
    optcpf = named(new QRadioButton(QStringLiteral("Pessoal Física - CPF")), "optcpf");
    optcnpj = named(new QRadioButton(QStringLiteral("Pessoal Juridica - CNPJ")), "optcnpj");
    optcpf->setChecked(true);
    txtcpf = campo("txtcpf");
    cbonascimento = named(new date_field, "cbonascimento");
    txtinsc = campo("txtinsc");
    txtadicionais = named(new QPlainTextEdit, "txtadicionais");
    txtpais = typed_box("txtpais");
    txtestado = typed_box("txtestado");
    txtcidade = typed_box("txtcidade");
    txtbairro = typed_box("txtbairro");
    txtendereco = campo("txtendereco");
    txttel = campo("txttel");
    txttel2 = campo("txttel2");
    txtcel = campo("txtcel");
    txtsite = campo("txtsite");
    txtemail = campo("txtemail");
    img1 = named(new QLabel, "img1");
    img1->setFixedSize(lado_imagem, lado_imagem);
    img1->setFrameShape(QFrame::Box);
    img1->setAlignment(Qt::AlignCenter);
    img1->setCursor(Qt::PointingHandCursor);
    img1->installEventFilter(this);
    lblcodigo = named(new QLabel, "lblcodigo");
    lblcodigo->hide();
    lbllocal = named(new QLabel, "lbllocal");
    lbllocal->hide();
    cmdok = named(new QPushButton, "cmdok");
    cmdsair = named(new QPushButton(QStringLiteral("Sair")), "cmdsair");

    auto* pessoais = new QWidget;
    auto* fp = new QFormLayout;
    fp->addRow(t.rotulo_nome, txtnome);
    auto* tipos = new QHBoxLayout;
    tipos->addWidget(optcpf);
    tipos->addWidget(optcnpj);
    tipos->addStretch();
    fp->addRow(t.rotulo_tipo, tipos);
    fp->addRow(QStringLiteral("CPF/CNPJ:"), txtcpf);
    fp->addRow(QStringLiteral("Data de nascimento:"), cbonascimento);
    fp->addRow(QStringLiteral("Inscrição Estadual:"), txtinsc);
    fp->addRow(QStringLiteral("Informações adicionais:"), txtadicionais);
    auto* imagem = new QVBoxLayout;
    imagem->addWidget(img1, 0, Qt::AlignHCenter);
    auto* legenda = new QLabel(QStringLiteral("Clique na imagem acima para altera-la"));
    legenda->setWordWrap(true);
    legenda->setAlignment(Qt::AlignHCenter);
    legenda->setMaximumWidth(lado_imagem + 40);
    imagem->addWidget(legenda);
    imagem->addStretch();
    auto* hp = new QHBoxLayout(pessoais);
    hp->addLayout(fp, 1);
    hp->addLayout(imagem);

    auto* contato_aba = new QWidget;
    auto* fc = new QFormLayout(contato_aba);
    fc->addRow(QStringLiteral("País:"), txtpais);
    fc->addRow(QStringLiteral("Estado:"), txtestado);
    fc->addRow(QStringLiteral("Cidade:"), txtcidade);
    fc->addRow(QStringLiteral("Bairro:"), txtbairro);
    fc->addRow(QStringLiteral("Endereço:"), txtendereco);
    fc->addRow(QStringLiteral("CEP:"), txttel);
    fc->addRow(QStringLiteral("Telefone:"), txttel2);
    fc->addRow(QStringLiteral("Celular/Nextel:"), txtcel);
    fc->addRow(QStringLiteral("Site:"), txtsite);
    fc->addRow(QStringLiteral("E-mail:"), txtemail);

    XTab1 = named(new QTabWidget, "XTab1");
    XTab1->addTab(pessoais, QStringLiteral("DADOS PESSOAIS"));
    XTab1->addTab(contato_aba, QStringLiteral("DADOS DE CONTATO"));
    XTab1->setCurrentIndex(0);

    auto* botoes = new QHBoxLayout;
    botoes->addWidget(lblcodigo);
    botoes->addWidget(lbllocal);
    botoes->addStretch();
    botoes->addWidget(cmdok);
    botoes->addWidget(cmdsair);
    auto* v = new QVBoxLayout(this);
    v->addWidget(XTab1);
    v->addLayout(botoes);
    resize(620, 420);

    // focus colours only: no masks, no key filter
    install_field_conduct_all(this);
    connect(cmdok, &QPushButton::clicked, this, &frmcadcontato::cmdok_click);
    connect(cmdsair, &QPushButton::clicked, this, &QWidget::close);
}

void frmcadcontato::abrir(const QString& caption, const QString& botao) {
    setWindowTitle(caption);
    cmdok->setText(botao);
    show_form(this);
    carregar();
    XTab1->setCurrentIndex(0);
    txtnome->setFocus();
}

void frmcadcontato::carregar() {
    const std::vector<QString> statements = registers::statements_distintos(tipo_);
    QComboBox* boxes[] = {txtestado, txtcidade, txtbairro, txtpais};
    for (std::size_t i = 0; i < statements.size(); ++i) {
        QComboBox* box = boxes[i];
        const QString typed = box->currentText();
        QStringList values;
        platform::ignore_errors([&] {
            store::conectarbanco();
            sql::recordset rs;
            rs.open(statements[i], store::conexao, sql::keyset, sql::read_only);
            for (; !rs.eof(); rs.move_next())
                values << rs.text(0);
        });
        box->clear();
        box->addItems(values);
        box->setEditText(typed);
    }
}

void frmcadcontato::preencher(const sql::recordset& rs) {
    const std::map<QString, std::function<void(const QString&)>> campos = {
        {QStringLiteral("nome"), [this](const QString& s) { txtnome->setText(s); }},
        {QStringLiteral("cpf"), [this](const QString& s) { txtcpf->setText(s); }},
        {QStringLiteral("data"), [this](const QString& s) { cbonascimento->set_text(s); }},
        {QStringLiteral("pais"), [this](const QString& s) { txtpais->setEditText(s); }},
        {QStringLiteral("cidade"), [this](const QString& s) { txtcidade->setEditText(s); }},
        {QStringLiteral("estado"), [this](const QString& s) { txtestado->setEditText(s); }},
        {QStringLiteral("bairro"), [this](const QString& s) { txtbairro->setEditText(s); }},
        {QStringLiteral("endereco"), [this](const QString& s) { txtendereco->setText(s); }},
        {QStringLiteral("tel"), [this](const QString& s) { txttel->setText(s); }},
        {QStringLiteral("tel2"), [this](const QString& s) { txttel2->setText(s); }},
        {QStringLiteral("cel"), [this](const QString& s) { txtcel->setText(s); }},
        {QStringLiteral("site"), [this](const QString& s) { txtsite->setText(s); }},
        {QStringLiteral("email"), [this](const QString& s) { txtemail->setText(s); }},
        {QStringLiteral("adicionais"), [this](const QString& s) { txtadicionais->setPlainText(s); }},
        {QStringLiteral("insc"), [this](const QString& s) { txtinsc->setText(s); }},
    };
    for (const QString& col : registers::ordem_leitura())
        platform::ignore_errors([&] { campos.at(col)(rs.text(col)); });
    platform::ignore_errors([&] {
        const QString local = rs.text(QStringLiteral("local"));
        lbllocal->setText(local);
        mostrar_imagem(local);
    });
    platform::ignore_errors([&] { lblcodigo->setText(rs.text(store::coluna::codigo)); });
    platform::ignore_errors([&] {
        if (rs.text(QStringLiteral("tipo")).toLower() == QLatin1String("f"))
            optcpf->setChecked(true);
        else
            optcnpj->setChecked(true);
    });
}

void frmcadcontato::mostrar_imagem(const QString& caminho) {
    img1->clear();
    const QPixmap p(caminho);
    // a path that no longer leads to a picture shows none
    if (p.isNull()) return;
    img1->setPixmap(p.scaled(img1->size(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

registers::ficha frmcadcontato::campos() const {
    registers::ficha f;
    f.nome = txtnome->text();
    f.cpf = txtcpf->text();
    f.nascimento = cbonascimento->text();
    f.pais = txtpais->currentText();
    f.estado = txtestado->currentText();
    f.cidade = txtcidade->currentText();
    f.bairro = txtbairro->currentText();
    f.endereco = txtendereco->text();
    f.tel = txttel->text();
    f.tel2 = txttel2->text();
    f.cel = txtcel->text();
    f.site = txtsite->text();
    f.email = txtemail->text();
    f.insc = txtinsc->text();
    f.local = lbllocal->text();
    f.adicionais = txtadicionais->toPlainText();
    f.pessoa_fisica = optcpf->isChecked();
    return f;
}

void frmcadcontato::gravar(sql::recordset& rs, bool adicionando) {
    registers::gravar_ficha(rs, campos(), adicionando);
    rs.update();
    rs.close();
}

void frmcadcontato::adicionar() {
    sql::recordset rs;
    rs.open(registers::textos(tipo_).tabela, store::conexao, sql::keyset, sql::pessimistic);
    rs.add_new();
    gravar(rs, true);
}

void frmcadcontato::editar() {
    sql::recordset rs;
    rs.open(registers::statement_ficha(tipo_, lblcodigo->text()), store::conexao, sql::keyset,
            sql::pessimistic);
    gravar(rs, false);
}

void frmcadcontato::cmdok_click() {
    const registers::contato_textos& t = registers::textos(tipo_);
    if (vb::trim_blanks(txtnome->text()).isEmpty()) {
        platform::msgbox(t.obrigatorio, platform::critical, QStringLiteral("Erro"));
        return;
    }
    try {
        store::conectarbanco();
        if (cmdok->text().toLower() == t.botao_adicionar.toLower())
            adicionar();
        else
            editar();
    } catch (const std::exception& e) {
        // the window stays open with what was typed
        platform::msgbox(QStringLiteral("Ocorreu o seguinte erro ao tentar cadastrar os dados: ") +
                             platform::error_text(e),
                         platform::exclamation, QStringLiteral("Erro"));
        return;
    }
    if (frmcontatos* lista = frmcontatos::aberto(tipo_); lista && lista->isVisible()) lista->Carregartudo();
    // the entry windows that are open refill their contact box
    Q_EMIT shell::avisos::instance().cadastrado(
        tipo_ == contato::cliente ? shell::cadastro::cliente : shell::cadastro::fornecedor, txtnome->text());
    close();
}

void frmcadcontato::img1_click() {
    QString arquivo;
    platform::ignore_errors([&] {
        arquivo =
            platform::ask().open_file(QStringLiteral("Carregar imagem do contato"),
                                      QStringLiteral("Arquivos de imagens|*.bmp;*.jpg;*.gif"), QString());
    });
    if (arquivo.isEmpty()) return;
    // only the path is kept: the picture itself is not copied
    mostrar_imagem(arquivo);
    lbllocal->setText(arquivo);
}

bool frmcadcontato::eventFilter(QObject* watched, QEvent* event) {
    if (watched == img1 && event->type() == QEvent::MouseButtonRelease) {
        img1_click();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}
