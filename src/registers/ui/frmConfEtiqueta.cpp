#include "registers/ui/frmConfEtiqueta.h"

#include "output/c_relatorios.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/frmcarregando.h"
#include "registers/print/labels_print.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

using registers::tipo_medida;

namespace {

QPointer<frmConfEtiqueta> the_window;

// The waiting window's bar as the label engine drives it.
class barra_espera : public output::progress {
public:
    explicit barra_espera(waiting_window& w) : w_(w) {}
    void set_value(double percent) override {
        w_.set_value(int(percent));
        waiting_window::yield();
    }

private:
    waiting_window& w_;
};

// The three counts fall back to "1", the five measures to "0".
bool e_contagem(const frmConfEtiqueta* f, const QLineEdit* campo) {
    return campo == f->txtColunas || campo == f->txtLinIni || campo == f->txtColIni;
}

} // namespace

frmConfEtiqueta* frmConfEtiqueta::instance() {
    if (!the_window) the_window = new frmConfEtiqueta();
    return the_window;
}

frmConfEtiqueta* frmConfEtiqueta::aberto() {
    return the_window.data();
}

frmConfEtiqueta::frmConfEtiqueta()
    : QWidget(nullptr, Qt::Window), cmbModelo(chosen_box("cmbModelo")),
      txtAltura(named(new QLineEdit(QStringLiteral("0")), "txtAltura")),
      txtLargura(named(new QLineEdit(QStringLiteral("0")), "txtLargura")),
      txtMSup(named(new QLineEdit(QStringLiteral("0")), "txtMSup")),
      txtMInf(named(new QLineEdit(QStringLiteral("0")), "txtMInf")),
      txtMEsq(named(new QLineEdit(QStringLiteral("0")), "txtMEsq")),
      txtColunas(named(new QLineEdit(QStringLiteral("1")), "txtColunas")),
      txtLinIni(named(new QLineEdit(QStringLiteral("1")), "txtLinIni")),
      txtColIni(named(new QLineEdit(QStringLiteral("1")), "txtColIni")),
      chkVisualizar(named(new QCheckBox(QStringLiteral("Visualizar Impressão")), "chkVisualizar")),
      cmdImprimir(named(new QPushButton(QStringLiteral("IMPRIMIR")), "cmdImprimir")),
      txtsql(named(new QLineEdit, "txtsql")) {
    setObjectName(QStringLiteral("frmConfEtiqueta"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Configura Etiqueta"));
    txtsql->hide();
    cmbModelo->addItems(registers::modelos_etiqueta());

    auto* medidas = new QGroupBox(QStringLiteral("Medidas (mm)"));
    auto* g = new QGridLayout(medidas);
    const auto par = [g](int row, int col, const char* rotulo, QWidget* w) {
        g->addWidget(new QLabel(QString::fromUtf8(rotulo)), row, col);
        g->addWidget(w, row, col + 1);
    };
    par(0, 0, "Altura:", txtAltura);
    par(0, 2, "Largura:", txtLargura);
    par(1, 0, "Margem Sup:", txtMSup);
    par(1, 2, "Margem Inf:", txtMInf);
    par(2, 0, "Margem Esq:", txtMEsq);
    par(2, 2, "Colunas:", txtColunas);
    auto* inicio = new QGroupBox(QStringLiteral("Iniciar impressão na Etiqueta da"));
    auto* h = new QHBoxLayout(inicio);
    h->addWidget(new QLabel(QStringLiteral("Linha")));
    h->addWidget(txtLinIni);
    h->addWidget(new QLabel(QStringLiteral("Coluna")));
    h->addWidget(txtColIni);
    auto* modelo = new QHBoxLayout;
    modelo->addWidget(new QLabel(QStringLiteral("Modelo")));
    modelo->addWidget(cmbModelo, 1);
    auto* botoes = new QHBoxLayout;
    botoes->addWidget(chkVisualizar);
    botoes->addStretch();
    botoes->addWidget(cmdImprimir);
    auto* v = new QVBoxLayout(this);
    v->addLayout(modelo);
    v->addWidget(medidas);
    v->addWidget(inicio);
    v->addLayout(botoes);
    v->addWidget(txtsql);

    install_field_conduct_all(this);
    for (QLineEdit* e : {txtAltura, txtLargura, txtMSup, txtMInf, txtMEsq, txtColunas, txtLinIni, txtColIni})
        e->installEventFilter(this);
    connect(cmbModelo, &QComboBox::activated, this, [this] { cmbModelo_click(); });
    connect(cmdImprimir, &QPushButton::clicked, this, [this] { cmdImprimir_click(); });

    // the opening loads the 6082 sheet while the box shows its first model
    mostrar_folha(registers::carregarmodelo(QString()));
    cmbModelo->setCurrentIndex(0);
}

frmConfEtiqueta::~frmConfEtiqueta() {
    if (the_window == this) the_window = nullptr;
}

void frmConfEtiqueta::carregarsql(const QString& comando) {
    txtsql->setText(comando);
}

void frmConfEtiqueta::mostrar_folha(const registers::folha_etiquetas& f) {
    txtAltura->setText(registers::texto_medida(f.Altura));
    txtLargura->setText(registers::texto_medida(f.Largura));
    txtMEsq->setText(registers::texto_medida(f.MargemEsquerda));
    txtMSup->setText(registers::texto_medida(f.MargemSuperior));
    txtMInf->setText(registers::texto_medida(f.MargemInferior));
    txtColunas->setText(registers::texto_medida(f.Colunas));
}

void frmConfEtiqueta::cmbModelo_click() {
    mostrar_folha(registers::carregarmodelo(cmbModelo->currentText()));
}

void frmConfEtiqueta::carregarEtiquetas(QLineEdit* campo, tipo_medida tipo) {
    const QString padrao = e_contagem(this, campo) ? QStringLiteral("1") : QStringLiteral("0");
    campo->setText(registers::carregarEtiquetas(campo->text(), tipo, padrao));
}

bool frmConfEtiqueta::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut && is_leaving_field(*static_cast<QFocusEvent*>(event))) {
        auto* campo = static_cast<QLineEdit*>(watched);
        carregarEtiquetas(campo, e_contagem(this, campo) ? tipo_medida::inteiro : tipo_medida::duplo);
    }
    return QWidget::eventFilter(watched, event);
}

registers::config_etiquetas frmConfEtiqueta::config() const {
    const auto medida = [](const QLineEdit* e) { return registers::ler_duplo(e->text()).value_or(0.0); };
    const auto contagem = [](const QLineEdit* e) { return registers::ler_inteiro(e->text()).value_or(1); };
    registers::config_etiquetas c;
    c.Altura = medida(txtAltura);
    c.Largura = medida(txtLargura);
    c.MargemEsquerda = medida(txtMEsq);
    c.MargemSuperior = medida(txtMSup);
    c.MargemInferior = medida(txtMInf);
    c.Colunas = contagem(txtColunas);
    c.LinhaInicio = contagem(txtLinIni);
    c.ColunaInicio = contagem(txtColIni);
    return c;
}

void frmConfEtiqueta::cmdImprimir_click() {
    const registers::config_etiquetas c = config();
    registers::rlt_Etiquetas r;
    r.set_Altura(c.Altura);
    r.set_Largura(c.Largura);
    r.set_MargemEsquerda(c.MargemEsquerda);
    r.set_MargemSuperior(c.MargemSuperior);
    r.set_MargemInferior(c.MargemInferior);
    r.set_Colunas(c.Colunas);
    r.set_LinhaInicio(c.LinhaInicio);
    r.set_ColunaInicio(c.ColunaInicio);
    r.set_Papel(1);
    r.set_Visualizar(chkVisualizar->isChecked());
    if (chkVisualizar->isChecked()) {
        // the preview is a window of its own, with its own progress
        r.imprimir(txtsql->text());
    } else {
        waiting_window espera(this, QStringLiteral("Imprimindo etiquetas"),
                              QStringLiteral("Aguarde enquanto as etiquetas são preparadas..."));
        espera.set_range(0, 100);
        barra_espera barra(espera);
        r.set_progresso(&barra);
        r.imprimir(txtsql->text());
    }
    close();
}
