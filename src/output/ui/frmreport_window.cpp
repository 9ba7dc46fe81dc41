#include "output/ui/frmreport_window.h"

#include "platform/widgets/list_view.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace output {

void montar_colunas(list_view& l, const std::vector<coluna_lista>& colunas) {
    for (const coluna_lista& c : colunas)
        l.add_column(c.texto, c.largura, c.tag);
}

void barra_progresso::set_value(double percent) {
    b_->setValue(int(percent));
}

void barra_progresso::set_visible(bool v) {
    b_->setVisible(v);
}

} // namespace output

report_window::report_window(const char* name, const QString& caption, QWidget* parent,
                             output::janela_relatorio janela)
    : QWidget(parent, Qt::Window), janela_(janela) {
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(caption);
    barraprogresso = new QProgressBar(this);
    barraprogresso->setObjectName(QStringLiteral("barraprogresso"));
    barraprogresso->setRange(0, 100);
    barraprogresso->hide();
    cmdimprimir = new QPushButton(QStringLiteral("Imprimir Relatório"), this);
    cmdimprimir->setObjectName(QStringLiteral("cmdimprimir"));
    cmdtxt = new QPushButton(QStringLiteral("Salvar em TXT"), this);
    cmdtxt->setObjectName(QStringLiteral("cmdtxt"));
    cmdhtml = new QPushButton(QStringLiteral("Salvar em HTML"), this);
    cmdhtml->setObjectName(QStringLiteral("cmdhtml"));
    connect(cmdimprimir, &QPushButton::clicked, this, [this] { imprimir(); });
    connect(cmdtxt, &QPushButton::clicked, this, &report_window::salvartxt);
    connect(cmdhtml, &QPushButton::clicked, this, &report_window::salvarhtml);
    barra_ = std::make_unique<output::barra_progresso>(barraprogresso);
    relatorio_.set_Progresbar(barra_.get());
    output::set_relatorio(&relatorio_);
}

report_window::~report_window() {
    if (output::relatorio() == &relatorio_) output::set_relatorio(nullptr);
}

list_view* report_window::nova_lista(const char* name, const std::vector<output::coluna_lista>& colunas) {
    auto* l = new list_view(this);
    l->setObjectName(QString::fromLatin1(name));
    output::montar_colunas(*l, colunas);
    l->hide();
    listas_.push_back(l);
    return l;
}

list_view* report_window::lista_visivel() const {
    for (list_view* l : listas_)
        if (!l->isHidden()) return l;
    return nullptr;
}

void report_window::mostrar(list_view* alvo) {
    for (list_view* v : listas_)
        v->setVisible(v == alvo);
}

void report_window::encher(list_view* alvo, std::vector<QStringList>&& rows) {
    alvo->clear_rows();
    alvo->add_rows(std::move(rows));
    mostrar(alvo);
}

QString report_window::save_title(output::formato_relatorio f) const {
    return output::save_title(f);
}

QString report_window::save_filter(output::formato_relatorio f) const {
    return output::save_filter(report_texts().janela, f);
}

void report_window::salvar(output::formato_relatorio f) {
    const output::report_texts t = report_texts();
    const list_view* lista = lista_visivel();
    output::salvar_arquivo(save_title(f), save_filter(f), relatorio_.Progresbar(), [&](QIODevice& file) {
        if (f == output::formato_relatorio::txt)
            output::write_text_report(file, t, lista, relatorio_);
        else
            output::write_html_report(file, t, lista, relatorio_);
    });
}

void report_window::rotulos(QLabel* tipo, QLabel* subtitulo, QLabel* totais) {
    tipo_ = tipo;
    subtitulo_ = subtitulo;
    totais_ = totais;
}

void report_window::preencher_lista(std::size_t lista, std::vector<QStringList>&& rows,
                                    const output::report_texts& t) {
    encher(listas_.at(lista), std::move(rows));
    if (!t.caption.isEmpty()) setWindowTitle(t.caption);
    for (const auto& [rotulo, texto] :
         {std::pair{tipo_, t.tipo}, {subtitulo_, t.subtitulo}, {totais_, t.totais}})
        if (rotulo) rotulo->setText(texto);
}

output::report_texts report_window::report_texts() const {
    const auto texto = [](const QLabel* l) { return l ? l->text() : QString(); };
    return {.janela = janela_,
            .caption = windowTitle(),
            .tipo = texto(tipo_),
            .subtitulo = texto(subtitulo_),
            .totais = texto(totais_)};
}

void report_window::salvartxt() {
    salvar(output::formato_relatorio::txt);
}

void report_window::salvarhtml() {
    salvar(output::formato_relatorio::html);
}
