#include "registers/ui/frmcontatos.h"

#include "output/report_frame.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/shell.h"
#include "platform/text/vb_text.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/list_view.h"
#include "registers/ui/frmConfEtiqueta.h"
#include "registers/ui/frmcadcontato.h"
#include "registers/ui/frmfincontato.h"
#include "shell/principal_api.h"
#include "store/conexao.h"

#include <QAction>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>

#include <exception>
#include <utility>

using registers::contato;

namespace {

QPointer<frmcontatos> janelas[2];

QPointer<frmcontatos>& janela(contato c) {
    return janelas[c == contato::cliente ? 0 : 1];
}

const QString etiquetas = QStringLiteral("frmConfEtiqueta");

// The Alt letters, by their key codes, and the pop-up items they run.
constexpr std::pair<char, const char*> letras[] = {
    {'A', "mnunovo"},    {'E', "mnueditar"}, {'F', "mnufin"}, {'I', "mnuimprimir"},
    {'R', "mnuremover"}, {'S', "mnuhtml"},   {'T', "mnutxt"}};

// The columns of the selected row that the pop-up uses.
constexpr int col_codigo = 0;
constexpr int col_email = 13;
constexpr int col_site = 14;

} // namespace

frmcontatos* frmcontatos::instance(contato c) {
    QPointer<frmcontatos>& w = janela(c);
    if (!w) w = new frmcontatos(c);
    return w;
}

frmcontatos* frmcontatos::aberto(contato c) {
    return janela(c).data();
}

frmcontatos::frmcontatos(contato c)
    : list_window(c == contato::cliente ? "frmcliente" : "frmfornecedor", registers::textos(c).titulo_lista,
                  new list_view),
      tipo_(c) {
    const registers::contato_textos& t = registers::textos(c);
    lstcontato = lista_;
    lstcontato->setObjectName(QStringLiteral("lstcontato"));
    for (const registers::coluna& col : registers::colunas_lista(c))
        lstcontato->add_column(col.texto, col.largura);
    cbotipo = named(new QComboBox, "cbotipo");
    cbotipo->addItems(registers::itens_busca(c));
    txtbusca = named(new QLineEdit, "txtbusca");
    txtbusca->setToolTip(QStringLiteral("Os dados são filtrados assim quando são digitados"));
    cbofiltro = named(new QComboBox, "cbofiltro");
    cbofiltro->addItems(registers::itens_ordem(c));
    cboordem = named(new QComboBox, "cboordem");
    cboordem->addItems({QStringLiteral("Crescente"), QStringLiteral("Decrescente")});
    cmdtudo = named(new QPushButton(QStringLiteral("Mostrar Tudo")), "cmdtudo");
    lbltopo->setText(t.topo_abertura);
    QFont f = lbltopo->font();
    f.setBold(true);
    lbltopo->setFont(f);

    // the toolbar, by key, with the desktop's icons
    const auto s = [](const char* n) { return QString::fromLatin1(n); };
    novo_botao(
        "novo", s("Novo"), [this] { adicionar(); }, {s("contact-new"), s("document-new")},
        QStyle::SP_FileIcon);
    novo_botao(
        "editar", s("Editar"), [this] { editar(); }, {s("document-edit"), s("document-properties")},
        QStyle::SP_FileDialogDetailedView);
    novo_botao(
        "remover", s("Remover"), [this] { remover(); }, {s("edit-delete"), s("list-remove")},
        QStyle::SP_TrashIcon);
    novo_botao(
        "txt", s("Salvar TXT"), [this] { botao_txt(); }, {s("text-x-generic"), s("document-save")},
        QStyle::SP_FileIcon);
    novo_botao(
        "html", s("Salvar HTML"), [this] { botao_html(); }, {s("text-html"), s("document-save-as")},
        QStyle::SP_DriveNetIcon);
    // the labels window is not part of the program yet: disabled until it registers
    const bool com_etiquetas = shell::find_action(etiquetas) != nullptr;
    novo_botao(
        "mala", s("Mala direta"), [this] { mala(); }, {s("x-office-address-book"), s("mail-message-new")},
        QStyle::SP_DirIcon)
        ->setEnabled(com_etiquetas);
    novo_botao(
        "imprimir", s("Imprimir"), [this] { Imprimir(); }, {s("document-print")},
        QStyle::SP_DialogSaveButton);
    novo_botao(
        "financeiro", s("Financeiro"), [this] { financeiro(); },
        {s("x-office-spreadsheet"), s("accessories-calculator")}, QStyle::SP_FileDialogContentsView);

    mnupopup = named(new QMenu(this), "mnupopup");
    novo_item(mnupopup, "mnunovo", t.mnunovo, [this] { adicionar(); });
    novo_item(mnupopup, "mnueditar", t.mnueditar, [this] { editar(); });
    novo_item(mnupopup, "mnuremover", t.mnuremover, [this] { remover(); });
    novo_item(mnupopup, "mnumaladireta", t.mnumaladireta, [this] { mala(); })->setEnabled(com_etiquetas);
    novo_item(mnupopup, "mnuimprimir", s("Imprimir lista"), [this] { Imprimir(); });
    novo_item(mnupopup, "mnuhtml", s("Salvar em HTML"), [this] { HTML(); });
    novo_item(mnupopup, "mnutxt", s("Salvar em TXT"), [this] { txt(); });
    novo_item(mnupopup, "mnufin", t.mnufin, [this] { financeiro(); });
    novo_item(mnupopup, "mnuemail", s("Enviar e-mail"), [this] { mnuemail(); });
    novo_item(mnupopup, "mnusite", s("Acessar site"), [this] { mnusite(); });
    ligar_popup(mnupopup);
    // the Alt letters are the list's own
    atalhos_ = new ::atalhos(lstcontato);
    for (const auto& [letra, item] : letras)
        atalhos_->add(QLatin1Char(letra), [this, item = item] {
            mnupopup->findChild<QAction*>(QString::fromLatin1(item))->trigger();
        });

    auto* Picture1 = named(new QWidget, "Picture1");
    auto* grid = new QGridLayout(Picture1);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(new QLabel(QStringLiteral("Filtrar dados por:")), 0, 0);
    grid->addWidget(cbotipo, 0, 1);
    grid->addWidget(txtbusca, 0, 2);
    grid->addWidget(cmdtudo, 0, 3);
    grid->addWidget(new QLabel(QStringLiteral("Organizar dados por:")), 1, 0);
    grid->addWidget(cbofiltro, 1, 1);
    auto* ordem = new QHBoxLayout;
    ordem->addWidget(new QLabel(QStringLiteral("Na ordem:")));
    ordem->addWidget(cboordem, 1);
    grid->addLayout(ordem, 1, 2);
    grid->setColumnStretch(2, 1);
    auto* v = new QVBoxLayout(this);
    v->addWidget(tbrbarra);
    v->addWidget(Picture1);
    v->addWidget(lbltopo);
    v->addWidget(lstcontato, 1);
    v->addWidget(barraprogresso);
    resize(980, 560);

    connect(txtbusca, &QLineEdit::textChanged, this, &frmcontatos::recarregar);
    connect(cbofiltro, &QComboBox::activated, this, &frmcontatos::recarregar);
    connect(cboordem, &QComboBox::activated, this, &frmcontatos::recarregar);
    connect(cmdtudo, &QPushButton::clicked, this, &frmcontatos::Carregartudo);
    connect(lstcontato, &list_view::row_double_clicked, this, &frmcontatos::editar);
    // the key column stays hidden
    lstcontato->set_column_width(col_codigo, 0);
}

void frmcontatos::recarregar() {
    if (vb::trim_blanks(txtbusca->text()).isEmpty())
        Carregartudo();
    else
        Carregarfiltro();
}

void frmcontatos::carregar(const QString& statement, const QString& topo) {
    lstcontato->clear_rows();
    try {
        lstcontato->add_rows(registers::carregar_contatos(statement));
        lbltopo->setText(topo);
    } catch (const std::exception& e) {
        // the list stays cleared
        platform::msgbox(QStringLiteral("Ocorreu o seguinte erro: ") + platform::error_text(e),
                         platform::exclamation, QStringLiteral("Erro"));
    }
}

void frmcontatos::Carregartudo() {
    // cboordem is read and left unused: the full list is always ascending
    carregar(registers::statement_tudo(tipo_, cbofiltro->currentText()), registers::textos(tipo_).topo_tudo);
}

void frmcontatos::Carregarfiltro() {
    carregar(registers::statement_filtro(tipo_, cbotipo->currentText(), txtbusca->text(),
                                         cbofiltro->currentText(), cboordem->currentText()),
             registers::topo_filtro(cbotipo->currentText(), txtbusca->text()));
}

QString frmcontatos::selecionado(int col) const {
    if (lstcontato->row_count() == 0) return {};
    const int row = lstcontato->selected_row();
    return lstcontato->text(row < 0 ? 0 : row, col);
}

void frmcontatos::adicionar() {
    const registers::contato_textos& t = registers::textos(tipo_);
    frmcadcontato::instance(tipo_)->abrir(t.caption_novo, t.botao_adicionar);
}

void frmcontatos::editar() {
    if (lstcontato->row_count() == 0) return;
    const QString codigo = selecionado(col_codigo);
    sql::recordset rs;
    platform::ignore_errors([&] {
        store::conectarbanco();
        rs.open(registers::statement_registro(tipo_, codigo), store::conexao, sql::keyset, sql::read_only);
    });
    const QString caption = registers::textos(tipo_).caption_editar;
    frmcadcontato* f = frmcadcontato::instance(tipo_);
    f->preencher(rs);
    f->abrir(caption, caption);
}

void frmcontatos::remover() {
    if (lstcontato->row_count() == 0) return;
    const QString codigo = selecionado(col_codigo);
    if (platform::msgbox(
            QStringLiteral("Tem certeza que deseja remover o item selecionado do banco de dados?"),
            platform::yes_no | platform::question, QStringLiteral("Remover")) != platform::answer_yes)
        return;
    try {
        // entries that bear the name keep it
        store::conectarbanco();
        store::conexao->execute(registers::statement_remover(tipo_, codigo));
    } catch (const std::exception& e) {
        platform::msgbox(QStringLiteral("Ocorreu o seguinte erro: ") + platform::error_text(e),
                         platform::exclamation, QStringLiteral("Erro"));
    }
    Carregartudo();
}

list_window::saida frmcontatos::textos_saida() const {
    const registers::contato_textos& t = registers::textos(tipo_);
    saida s;
    s.titulo_txt = t.dialogo_txt;
    s.filtro_txt = QStringLiteral("Arquivos de Texto(*.txt)|*.txt");
    s.titulo_html = t.dialogo_html;
    s.filtro_html = QStringLiteral("Arquivos HTML(*.html)|*.html");
    s.moldura.titulo = t.cabecalho_arquivo;
    s.moldura.topo = {lbltopo->text()};
    s.titulo_impressao = t.titulo_impressao;
    s.lblfiltro = QStringLiteral("Filtrados por: ") + lbltopo->text();
    s.lblestatus = QStringLiteral("Total de cadastros: ") + QString::number(lstcontato->row_count());
    s.lblsumario1 = output::slogan_relatorio();
    s.lblsumario2 = output::nome_relatorio();
    return s;
}

void frmcontatos::botao_txt() {
    if (!registers::textos(tipo_).alarga_chave) return txt();
    lstcontato->set_column_width(col_codigo, 439);
    txt();
    lstcontato->set_column_width(col_codigo, 0);
}

void frmcontatos::botao_html() {
    if (!registers::textos(tipo_).alarga_chave) return HTML();
    lstcontato->set_column_width(col_codigo, 439);
    HTML();
    lstcontato->set_column_width(col_codigo, 0);
}

bool frmcontatos::atalhos(int key) {
    for (const auto& [letra, item] : letras)
        if (letra == key) {
            mnupopup->findChild<QAction*>(QString::fromLatin1(item))->trigger();
            return true;
        }
    return false;
}

void frmcontatos::mnuemail() {
    const QString email = selecionado(col_email);
    platform::ignore_errors([&] {
        if (!email.isEmpty()) platform::desktop().open(QStringLiteral("mailto:") + email);
    });
}

void frmcontatos::mnusite() {
    const QString site = selecionado(col_site);
    platform::ignore_errors([&] {
        if (!site.isEmpty()) platform::desktop().open(site);
    });
}

void frmcontatos::financeiro() {
    frmfincontato* f = frmfincontato::instance(tipo_);
    f->mostrar();
    f->carregarcli();
}

void frmcontatos::mala() {
    // the labels of this list's table: "Select * from cliente" / "Select * from fornecedor"
    frmConfEtiqueta::instance()->carregarsql(QStringLiteral("Select * from ") +
                                             registers::textos(tipo_).tabela);
    shell::run_action(etiquetas);
}
