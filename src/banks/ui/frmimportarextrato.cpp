#include "banks/ui/frmimportarextrato.h"

#include "banks/movimento_bancario.h"
#include "platform/busy.h"
#include "platform/prompts.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/frmcarregando.h"
#include "platform/widgets/list_view.h"
#include "platform/widgets/single_window.h"
#include "shell/principal_api.h"
#include "store/config.h"
#include "store/names.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <exception>
#include <memory>

namespace {

QPointer<frmimportarextrato> the_window;

const QString titulo_erro = QStringLiteral("Importar extrato");
const QString sem_coluna = QStringLiteral("(nenhuma)");

// Files this large show the waiting window while they are written.
constexpr int linhas_com_progresso = 200;

QString setting_importacao(const QString& chave) {
    return store::setting(store::secao_importacao, chave, QString());
}

} // namespace

frmimportarextrato* frmimportarextrato::instance() {
    return single_window(the_window, [] { return new frmimportarextrato; });
}

frmimportarextrato* frmimportarextrato::aberto() {
    return loaded_window(the_window);
}

frmimportarextrato::frmimportarextrato() : QWidget(nullptr, Qt::Window) {
    setObjectName(QStringLiteral("frmimportarextrato"));
    setWindowTitle(QStringLiteral("Importar extrato bancário (OFX/CSV)"));
    resize(860, 560);

    txtarquivo = named(new QLineEdit, "txtarquivo");
    txtarquivo->setReadOnly(true);
    txtarquivo->setToolTip(QStringLiteral("O extrato baixado do banco, em OFX ou CSV"));
    cmdprocurar = named(new QPushButton(QStringLiteral("&Procurar...")), "cmdprocurar");
    cboconta = chosen_box("cboconta");
    cboconta->setToolTip(QStringLiteral("A conta que recebe os movimentos do extrato"));

    fracsv = named(new QGroupBox(QStringLiteral("Colunas do arquivo CSV")), "fracsv");
    cbocoldata = chosen_box("cbocoldata");
    cbocolvalor = chosen_box("cbocolvalor");
    cbocolcredito = chosen_box("cbocolcredito");
    cbocoldebito = chosen_box("cbocoldebito");
    cbocoldescricao = chosen_box("cbocoldescricao");
    cboseparador = chosen_box("cboseparador");
    cboseparador->addItems(
        {QStringLiteral(";"), QStringLiteral(","), QStringLiteral("Tab"), QStringLiteral("|")});
    cbodecimal = chosen_box("cbodecimal");
    cbodecimal->addItems({QStringLiteral("Vírgula (1.234,56)"), QStringLiteral("Ponto (1,234.56)")});
    chkcabecalho =
        named(new QCheckBox(QStringLiteral("A primeira linha traz os nomes das colunas")), "chkcabecalho");
    auto* g = new QGridLayout(fracsv);
    g->addWidget(new QLabel(QStringLiteral("Data:")), 0, 0);
    g->addWidget(cbocoldata, 0, 1);
    g->addWidget(new QLabel(QStringLiteral("Valor:")), 0, 2);
    g->addWidget(cbocolvalor, 0, 3);
    g->addWidget(new QLabel(QStringLiteral("Descrição:")), 0, 4);
    g->addWidget(cbocoldescricao, 0, 5);
    g->addWidget(new QLabel(QStringLiteral("ou Crédito:")), 1, 2);
    g->addWidget(cbocolcredito, 1, 3);
    g->addWidget(new QLabel(QStringLiteral("Débito:")), 1, 4);
    g->addWidget(cbocoldebito, 1, 5);
    g->addWidget(new QLabel(QStringLiteral("Separador:")), 2, 0);
    g->addWidget(cboseparador, 2, 1);
    g->addWidget(new QLabel(QStringLiteral("Decimal:")), 2, 2);
    g->addWidget(cbodecimal, 2, 3);
    g->addWidget(chkcabecalho, 2, 4, 1, 2);
    fracsv->setVisible(false);

    lstprevia = named(new list_view, "lstprevia");
    lstprevia->add_column(QStringLiteral("Data"), 1300, list_view::tag_date);
    lstprevia->add_column(QStringLiteral("Movimento"), 1400);
    lstprevia->add_column(QStringLiteral("Valor"), 1500, list_view::tag_number, Qt::AlignRight);
    lstprevia->add_column(QStringLiteral("Informações"), 4000);
    lstprevia->add_column(QStringLiteral("Estatus"), 1200);
    lstprevia->add_column(QStringLiteral("Situação"), 2600);
    lblresumo = named(new QLabel, "lblresumo");
    lblresumo->setWordWrap(true);
    cmdimportar = named(new QPushButton(QStringLiteral("&Importar")), "cmdimportar");
    cmdimportar->setEnabled(false);
    cmdcancelar = named(new QPushButton(QStringLiteral("&Cancelar")), "cmdcancelar");

    auto* topo = new QGridLayout;
    topo->addWidget(new QLabel(QStringLiteral("Arquivo:")), 0, 0);
    topo->addWidget(txtarquivo, 0, 1);
    topo->addWidget(cmdprocurar, 0, 2);
    topo->addWidget(new QLabel(QStringLiteral("Conta:")), 1, 0);
    topo->addWidget(cboconta, 1, 1);
    auto* botoes = new QHBoxLayout;
    botoes->addWidget(lblresumo, 1);
    botoes->addWidget(cmdimportar);
    botoes->addWidget(cmdcancelar);
    auto* v = new QVBoxLayout(this);
    v->addLayout(topo);
    v->addWidget(fracsv);
    v->addWidget(lstprevia, 1);
    v->addLayout(botoes);
    set_tab_chain({cmdprocurar, cboconta, cbocoldata, cbocolvalor, cbocoldescricao, cbocolcredito,
                   cbocoldebito, cboseparador, cbodecimal, chkcabecalho, lstprevia, cmdimportar,
                   cmdcancelar});

    auto* keys = new atalhos(this);
    keys->add(QLatin1Char('P'), [this] { cmdprocurar->click(); });
    keys->add(QLatin1Char('I'), [this] { cmdimportar->click(); });
    keys->add(QLatin1Char('C'), [this] { cmdcancelar->click(); });

    connect(cmdprocurar, &QPushButton::clicked, this, &frmimportarextrato::procurar);
    connect(cmdimportar, &QPushButton::clicked, this, &frmimportarextrato::importar);
    connect(cmdcancelar, &QPushButton::clicked, this, &QWidget::close);
    connect(cboconta, &QComboBox::currentIndexChanged, this, &frmimportarextrato::conta_escolhida);
    for (QComboBox* c : {cbocoldata, cbocolvalor, cbocolcredito, cbocoldebito, cbocoldescricao, cbodecimal})
        connect(c, &QComboBox::currentIndexChanged, this, &frmimportarextrato::layout_mudou);
    // a new separator splits the file into other columns: the boxes are guessed again
    connect(cboseparador, &QComboBox::currentIndexChanged, this, [this] {
        if (preenchendo_ || tipo_ != tipo::csv) return;
        mostrar_layout(banks::detect_csv(texto_csv_, layout_escolhido().separador));
        atualizar_previa();
    });
    connect(chkcabecalho, &QCheckBox::toggled, this, [this] {
        if (preenchendo_ || tipo_ != tipo::csv) return;
        // the column names change with it
        mostrar_layout(layout_escolhido());
        atualizar_previa();
    });
    connect(&shell::avisos::instance(), &shell::avisos::cadastrado, this,
            [this](shell::cadastro que, const QString&) {
                if (que != shell::cadastro::banco) return;
                const QString atual = cboconta->currentText();
                preenchendo_ = true;
                fill_names(cboconta, banks::account_names(banks::twin_editar()));
                const int i = cboconta->findText(atual);
                if (i >= 0) cboconta->setCurrentIndex(i);
                preenchendo_ = false;
            });

    preenchendo_ = true;
    fill_names(cboconta, banks::account_names(banks::twin_editar()));
    preenchendo_ = false;
    lblresumo->setText(QStringLiteral("Escolha a conta e o extrato baixado do banco (OFX ou CSV)."));
}

void frmimportarextrato::mostrar() {
    show_window(this);
}

void frmimportarextrato::procurar() {
    const QString caminho = platform::ask().open_file(
        QStringLiteral("Escolha o extrato do banco"),
        QStringLiteral("Extratos bancários|*.ofx;*.OFX;*.csv;*.CSV;*.txt;*.TXT|Todos os arquivos|*"),
        caminho_);
    if (caminho.isEmpty()) return;
    abrir_arquivo(caminho);
}

bool frmimportarextrato::abrir_arquivo(const QString& caminho) {
    caminho_ = caminho;
    txtarquivo->setText(QDir::toNativeSeparators(caminho));
    tipo_ = tipo::nenhum;
    texto_csv_.clear();
    ofx_ = {};
    {
        const platform::busy_span ampulheta;
        QFile f(caminho);
        if (!f.open(QIODevice::ReadOnly)) {
            erro_ =
                QStringLiteral("Não foi possível abrir o arquivo \"%1\": %2").arg(caminho, f.errorString());
        } else {
            const QByteArray bytes = f.readAll();
            f.close();
            const bool ofx =
                banks::looks_like_ofx(bytes) ||
                QFileInfo(caminho).suffix().compare(QLatin1String("ofx"), Qt::CaseInsensitive) == 0;
            if (ofx) {
                tipo_ = tipo::ofx;
                ofx_ = banks::read_ofx(caminho);
            } else if (bytes.contains('\0')) {
                erro_ = QStringLiteral("O arquivo escolhido não é um extrato OFX nem CSV.");
            } else {
                tipo_ = tipo::csv;
                texto_csv_ = banks::decode_text(bytes);
            }
        }
    }
    fracsv->setVisible(tipo_ == tipo::csv);
    if (tipo_ == tipo::nenhum) {
        previa_.clear();
        mostrar_previa();
        msgbox_over(this, erro_, platform::exclamation, titulo_erro);
        return false;
    }
    if (tipo_ == tipo::csv) mostrar_layout(layout_da_conta());
    atualizar_previa();
    if (!erro_.isEmpty()) {
        msgbox_over(this, erro_, platform::exclamation, titulo_erro);
        return false;
    }
    return true;
}

void frmimportarextrato::conta_escolhida() {
    if (preenchendo_ || tipo_ == tipo::nenhum) return;
    if (tipo_ == tipo::csv) mostrar_layout(layout_da_conta());
    atualizar_previa();
}

banks::csv_layout frmimportarextrato::layout_da_conta() const {
    const auto lembrado =
        banks::csv_layout::from_setting(setting_importacao(banks::csv_setting_key(cboconta->currentText())));
    return lembrado ? *lembrado : banks::detect_csv(texto_csv_);
}

void frmimportarextrato::layout_mudou() {
    if (preenchendo_ || tipo_ != tipo::csv) return;
    atualizar_previa();
}

void frmimportarextrato::mostrar_layout(const banks::csv_layout& l) {
    preenchendo_ = true;
    const int sep = l.separador == QLatin1Char(';')    ? 0
                    : l.separador == QLatin1Char(',')  ? 1
                    : l.separador == QLatin1Char('\t') ? 2
                                                       : 3;
    cboseparador->setCurrentIndex(sep);
    cbodecimal->setCurrentIndex(l.virgula_decimal ? 0 : 1);
    chkcabecalho->setChecked(l.cabecalho);
    const QStringList nomes = banks::csv_column_names(texto_csv_, l);
    const std::pair<QComboBox*, int> boxes[] = {{cbocoldata, l.data},
                                                {cbocolvalor, l.valor},
                                                {cbocolcredito, l.credito},
                                                {cbocoldebito, l.debito},
                                                {cbocoldescricao, l.descricao}};
    for (const auto& [box, col] : boxes) {
        box->clear();
        box->addItem(sem_coluna);
        box->addItems(nomes);
        box->setCurrentIndex(col >= 0 && col < nomes.size() ? col + 1 : 0);
    }
    preenchendo_ = false;
}

banks::csv_layout frmimportarextrato::layout_escolhido() const {
    banks::csv_layout l;
    static const QChar seps[] = {QLatin1Char(';'), QLatin1Char(','), QLatin1Char('\t'), QLatin1Char('|')};
    l.separador = seps[std::max(0, cboseparador->currentIndex())];
    l.virgula_decimal = cbodecimal->currentIndex() != 1;
    l.cabecalho = chkcabecalho->isChecked();
    l.data = cbocoldata->currentIndex() - 1;
    l.valor = cbocolvalor->currentIndex() - 1;
    l.credito = cbocolcredito->currentIndex() - 1;
    l.debito = cbocoldebito->currentIndex() - 1;
    l.descricao = cbocoldescricao->currentIndex() - 1;
    return l;
}

void frmimportarextrato::atualizar_previa() {
    // a statement of thousands of lines takes a moment to read and compare
    const platform::busy_span ampulheta;
    previa_.clear();
    erro_.clear();
    const QString conta = cboconta->currentText();
    const banks::statement_file arquivo =
        tipo_ == tipo::ofx ? ofx_ : banks::read_csv(texto_csv_, layout_escolhido());
    if (!arquivo.erro.isEmpty()) {
        erro_ = arquivo.erro;
    } else if (conta.isEmpty()) {
        erro_ =
            QStringLiteral("Cadastre antes a conta que recebe o extrato (menu Cadastrar bancos e caixa).");
    } else {
        erro_ =
            banks::account_mismatch(conta, setting_importacao(banks::ofx_account_key(conta)), arquivo.conta);
    }
    if (erro_.isEmpty()) {
        try {
            previa_ = banks::build_preview(arquivo.linhas, banks::read_existing(conta));
        } catch (const std::exception& e) {
            erro_ = QStringLiteral("Não foi possível ler os movimentos da conta \"%1\": %2")
                        .arg(conta, QString::fromUtf8(e.what()));
        }
    }
    mostrar_previa();
}

void frmimportarextrato::mostrar_previa() {
    std::vector<QStringList> linhas;
    linhas.reserve(previa_.size());
    int repetidos = 0;
    for (const banks::preview_row& r : previa_) {
        repetidos += r.repetido ? 1 : 0;
        linhas.push_back({r.data, r.movimento, r.valor, r.informacoes, store::palavra::concluido,
                          r.repetido ? QStringLiteral("Já gravado: fica de fora") : QStringLiteral("Novo")});
    }
    lstprevia->clear_rows();
    lstprevia->add_rows(std::move(linhas));
    const int novos = int(previa_.size()) - repetidos;
    if (!erro_.isEmpty()) {
        lblresumo->setStyleSheet(QStringLiteral("color: #b00000"));
        lblresumo->setText(erro_);
    } else {
        lblresumo->setStyleSheet(QString());
        lblresumo->setText(QStringLiteral("%1 movimento(s) no arquivo: %2 novo(s), %3 já gravado(s) antes.")
                               .arg(previa_.size())
                               .arg(novos)
                               .arg(repetidos));
    }
    cmdimportar->setEnabled(erro_.isEmpty() && novos > 0);
}

void frmimportarextrato::importar() {
    if (tipo_ == tipo::nenhum) {
        msgbox_over(this, QStringLiteral("Escolha o arquivo do extrato."), platform::exclamation,
                    titulo_erro);
        return;
    }
    // the file and the account's rows may have changed since the preview
    atualizar_previa();
    if (!erro_.isEmpty()) {
        msgbox_over(this, erro_, platform::exclamation, titulo_erro);
        return;
    }
    const QString conta = cboconta->currentText();
    const long novos =
        std::count_if(previa_.begin(), previa_.end(), [](const auto& r) { return !r.repetido; });
    if (novos == 0) {
        msgbox_over(this,
                    QStringLiteral("Todos os movimentos deste extrato já estão gravados; nada foi gravado."),
                    platform::information, QStringLiteral("Info"));
        return;
    }
    banks::import_outcome r;
    {
        std::unique_ptr<waiting_window> espera;
        if (novos >= linhas_com_progresso)
            espera = std::make_unique<waiting_window>(this, QStringLiteral("Importando extrato"),
                                                      QStringLiteral("Gravando os movimentos..."));
        r = banks::write_import(conta, previa_, [&](int feitos, int total) {
            if (espera) {
                espera->set_range(0, total);
                espera->set_value(feitos);
                waiting_window::yield();
            }
            return true;
        });
    }
    if (r.gravados > 0 || r.erro.isEmpty()) {
        if (tipo_ == tipo::csv)
            store::save_setting(store::secao_importacao, banks::csv_setting_key(conta),
                                layout_escolhido().to_setting());
        else
            store::save_setting(store::secao_importacao, banks::ofx_account_key(conta), ofx_.conta);
        shell::recarregar_principal(shell::ledger::bancario, false);
        shell::recarregar_bancos();
    }
    atualizar_previa();
    if (!r.erro.isEmpty()) {
        msgbox_over(this,
                    QStringLiteral(
                        "Ocorreu o seguinte erro ao gravar os movimentos: %1\n%2 movimento(s) foram "
                        "gravados antes do erro e estão completos; importe o arquivo de novo para gravar o "
                        "restante.")
                        .arg(r.erro)
                        .arg(r.gravados),
                    platform::exclamation, QStringLiteral("Erro"));
        return;
    }
    QString msg = QStringLiteral("%1 movimento(s) importado(s) para \"%2\".").arg(r.gravados).arg(conta);
    if (r.repetidos > 0)
        msg += QStringLiteral("\n%1 já estavam gravados e não foram gravados de novo.").arg(r.repetidos);
    msgbox_over(this, msg, platform::information, QStringLiteral("Info"));
}
