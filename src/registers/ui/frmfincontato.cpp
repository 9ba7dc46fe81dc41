#include "registers/ui/frmfincontato.h"

#include "output/print/list_report.h"
#include "output/print/modimpressao.h"
#include "output/report_frame.h"
#include "output/ui/frmreport_window.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/frmcarregando.h"
#include "platform/widgets/list_view.h"
#include "store/conexao.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <exception>

using registers::contato;

namespace {

QPointer<frmfincontato> janelas[2];

QPointer<frmfincontato>& janela(contato c) {
    return janelas[c == contato::cliente ? 0 : 1];
}

constexpr int lado_imagem = 110;

const QString texto_espera = QStringLiteral(
    "Por favor aguarde enquanto o software carrega os dados, este processo pode demorar dependendo do "
    "tamanho do banco de dados.");

} // namespace

frmfincontato* frmfincontato::instance(contato c) {
    QPointer<frmfincontato>& w = janela(c);
    if (!w) w = new frmfincontato(c);
    return w;
}

frmfincontato* frmfincontato::aberto(contato c) {
    return janela(c).data();
}

frmfincontato::frmfincontato(contato c) : QWidget(nullptr, Qt::Window), tipo_(c) {
    const registers::historico_textos& t = registers::historico(c);
    setObjectName(t.janela);
    setWindowTitle(t.caption);
    setAttribute(Qt::WA_DeleteOnClose);

    cbonome = named(new QComboBox, "cbonome");
    cbonome->setEditable(true);
    cbonome->setInsertPolicy(QComboBox::NoInsert);
    cbonome->setCompleter(nullptr);
    cboid = named(new QComboBox, "cboid");
    cboid->hide();
    img1 = named(new QLabel, "img1");
    img1->setFixedSize(lado_imagem, lado_imagem);
    img1->setAlignment(Qt::AlignCenter);
    auto* semimagem = new QLabel(QStringLiteral("NÃO HÁ IMAGEM"));
    semimagem->setAlignment(Qt::AlignCenter);
    semimagem->setFixedSize(lado_imagem, lado_imagem);
    semimagem->setFrameShape(QFrame::Box);
    opttudo = named(new QRadioButton(QStringLiteral("Exibir todos os dados")), "opttudo");
    optpendente = named(new QRadioButton(QStringLiteral("Exibir apenas pendentes")), "optpendente");
    optconcluido = named(new QRadioButton(QStringLiteral("Exbir apenas concluídas")), "optconcluido");
    opttudo->setChecked(true);
    cmdverificar = named(new QPushButton(QStringLiteral("Verificar")), "cmdverificar");
    lblcliente = named(new QLabel(t.explicacao), "lblcliente");
    lblcliente->setWordWrap(true);
    lista = new list_view;
    lista->setObjectName(t.lista);
    const double larguras[] = {1100, 1300, 2200, 1700, 1500, 1100, 2600};
    const QStringList cols = registers::colunas_historico();
    for (int i = 0; i < cols.size(); ++i)
        lista->add_column(cols[i], larguras[i]);
    rotulo = new QLabel(registers::totais_iniciais());
    rotulo->setObjectName(t.rotulo);
    cmdimprimir = named(new QPushButton(QStringLiteral("Imprimir")), "cmdimprimir");
    cmdtxt = named(new QPushButton(QStringLiteral("Salvar em TXT")), "cmdtxt");
    cmdhtml = named(new QPushButton(QStringLiteral("Salvar em HTML")), "cmdhtml");
    cmdsair = named(new QPushButton(QStringLiteral("Sair")), "cmdsair");
    barraprogresso = named(new QProgressBar, "barraprogresso");
    barraprogresso->setRange(0, 100);
    barraprogresso->hide();
    exportador_ = new output::c_relatorios;
    barra_ = new output::barra_progresso(barraprogresso);
    exportador_->set_Progresbar(barra_);

    auto* topo = new QGridLayout;
    topo->addWidget(new QLabel(registers::textos(c).rotulo_nome), 0, 0);
    topo->addWidget(cbonome, 0, 1);
    topo->addWidget(cboid, 0, 2);
    auto* opcoes = new QHBoxLayout;
    opcoes->addWidget(opttudo);
    opcoes->addWidget(optpendente);
    opcoes->addWidget(optconcluido);
    opcoes->addStretch();
    opcoes->addWidget(cmdverificar);
    topo->addLayout(opcoes, 1, 0, 1, 3);
    topo->addWidget(lblcliente, 2, 0, 1, 3);
    topo->setColumnStretch(1, 1);
    auto* quadro = new QGridLayout;
    quadro->addWidget(semimagem, 0, 0);
    quadro->addWidget(img1, 0, 0);
    auto* cima = new QHBoxLayout;
    cima->addLayout(topo, 1);
    cima->addLayout(quadro);
    auto* botoes = new QHBoxLayout;
    botoes->addWidget(barraprogresso, 1);
    botoes->addStretch();
    botoes->addWidget(cmdimprimir);
    botoes->addWidget(cmdtxt);
    botoes->addWidget(cmdhtml);
    botoes->addWidget(cmdsair);
    auto* v = new QVBoxLayout(this);
    v->addLayout(cima);
    v->addWidget(lista, 1);
    v->addWidget(rotulo);
    v->addLayout(botoes);
    resize(900, 560);

    connect(cbonome, &QComboBox::activated, this, &frmfincontato::cbonome_click);
    for (QRadioButton* o : {opttudo, optpendente, optconcluido})
        connect(o, &QRadioButton::clicked, this, &frmfincontato::cmdverificar_click);
    connect(cmdverificar, &QPushButton::clicked, this, &frmfincontato::cmdverificar_click);
    connect(cmdtxt, &QPushButton::clicked, this, &frmfincontato::cmdtxt_click);
    connect(cmdhtml, &QPushButton::clicked, this, &frmfincontato::cmdhtml_click);
    connect(cmdimprimir, &QPushButton::clicked, this, &frmfincontato::cmdimprimir_click);
    connect(cmdsair, &QPushButton::clicked, this, &QWidget::close);
}

frmfincontato::~frmfincontato() {
    if (output::relatorio() == exportador_) output::set_relatorio(nullptr);
    delete exportador_;
    delete barra_;
}

void frmfincontato::mostrar() {
    show_form(this);
}

void frmfincontato::carregarcli() {
    cbonome->clear();
    cboid->clear();
    cbonome->setEditText(QString());
    cboid->setEditText(QString());
    QStringList nomes, codigos;
    try {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(registers::historico(tipo_).statement_nomes, store::conexao, sql::keyset, sql::read_only);
        for (; !rs.eof(); rs.move_next()) {
            nomes << rs.text(store::coluna::nome);
            codigos << rs.text(store::coluna::codigo);
        }
    } catch (const std::exception& e) {
        platform::msgbox(QStringLiteral("Ocorreu o seguinte erro: ") + platform::error_text(e),
                         platform::exclamation, QStringLiteral("Erro"));
    }
    cbonome->addItems(nomes);
    cboid->addItems(codigos);
    cbonome->setCurrentIndex(-1);
    cboid->setCurrentIndex(-1);
    cbonome->setEditText(QString());
}

void frmfincontato::cbonome_click(int index) {
    imagem_.clear();
    img1->clear();
    // errors ignored: a contact without a readable picture shows none
    platform::ignore_errors([&] {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(registers::statement_contato(tipo_, cbonome->itemText(index)), store::conexao, sql::keyset,
                sql::read_only);
        const QString local = rs.text(QStringLiteral("local"));
        const QPixmap p(local);
        if (p.isNull()) return;
        imagem_ = local;
        img1->setPixmap(p.scaled(img1->size(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
    });
    cboid->setCurrentIndex(index);
}

registers::situacao frmfincontato::situacao() const {
    if (opttudo->isChecked()) return registers::situacao::tudo;
    if (optpendente->isChecked()) return registers::situacao::pendente;
    return registers::situacao::concluido;
}

void frmfincontato::cmdverificar_click() {
    const registers::historico_textos& t = registers::historico(tipo_);
    lista->clear_rows();
    rotulo->setText(registers::linha_totais(tipo_, {}));
    const QString nome = cbonome->currentText();
    if (nome.isEmpty()) {
        platform::msgbox(t.nenhum, platform::exclamation, QStringLiteral("Erro"));
        return;
    }
    registers::historico_carregado h;
    try {
        waiting_window espera(this, t.carregando, texto_espera);
        h = registers::carregar_historico(registers::statement_historico(tipo_, nome, situacao()));
    } catch (const std::exception& e) {
        // a name the statement cannot hold (an apostrophe) finds nothing
        platform::msgbox(QStringLiteral("Ocorreu o seguinte erro: ") + platform::error_text(e),
                         platform::exclamation, QStringLiteral("Erro"));
        return;
    }
    lista->add_rows(std::move(h.linhas));
    rotulo->setText(registers::linha_totais(tipo_, h.soma));
}

void frmfincontato::salvar(bool html) {
    const registers::historico_textos& t = registers::historico(tipo_);
    output::list_frame f;
    f.titulo = windowTitle();
    f.topo = {(html ? t.pagina_nome : t.arquivo_nome) + cbonome->currentText()};
    f.fechamento = {rotulo->text()};
    output::set_relatorio(exportador_);
    output::salvar_arquivo(html ? t.dialogo_html : t.dialogo_txt,
                           html ? QStringLiteral("Arquivos HTML(*.html)|*.html")
                                : QStringLiteral("Arquivos de Texto(*.txt)|*.txt"),
                           barra_, [&](QIODevice& file) {
                               if (html)
                                   output::write_html_list(file, f, lista, *exportador_);
                               else
                                   output::write_text_list(file, f, lista, *exportador_);
                           });
}

void frmfincontato::cmdtxt_click() {
    salvar(false);
}

void frmfincontato::cmdhtml_click() {
    salvar(true);
}

void frmfincontato::cmdimprimir_click() {
    try {
        output::list_report r = output::nova_impressao(output::report_form::rlt_historico, lista);
        r.rpf_Titulo = registers::historico(tipo_).titulo_impressao;
        r.lblfiltro = registers::linha_situacao(situacao());
        r.lblestatus = rotulo->text();
        r.lblsumario1 = output::slogan_relatorio();
        r.lblsumario2 = output::nome_relatorio();
        registers::bloco_contato b;
        b.nome = cbonome->currentText();
        platform::ignore_errors(
            [&] { b = registers::ler_bloco(tipo_, cbonome->currentText(), cboid->currentText()); });
        r.contato = {b.nome, b.tipo, b.cpf, b.tel, b.cel, b.insc, b.nascimento, imagem_};
        output::Executar(r);
    } catch (const std::exception&) {
        output::modimpressao::erro_impressao();
    }
}
