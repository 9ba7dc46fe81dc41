#include "shell/config_soft.h"

#include "output/report_frame.h"
#include "platform/autostart.h"
#include "platform/text/vb_text.h"
#include "store/config.h"
#include "store/program_dir.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace shell {

namespace {

QString ler(const QString& chave, const QString& padrao) {
    return store::setting(store::secao_config, chave, padrao);
}
void gravar(const QString& chave, const QString& valor) {
    store::save_setting(store::secao_config, chave, valor);
}

int indice(const QString& salvo) {
    if (vb::trim_blanks(salvo).isEmpty()) return -1;
    const double v = vb::val(salvo);
    return v >= 0 && v < double(paleta.size()) && v == int(v) ? int(v) : -1;
}

const struct {
    const char* escolhida;
    const char* cor;
} chaves_cor[] = {
    {"Corescolhidafonte", "Corfonte"}, {"Corescolhida", "CorFundo1"}, {"Corescolhida2", "CorFundo2"}};

} // namespace

config_soft ler_config_soft() {
    const QString um = u"1"_s;
    config_soft c;
    c.nome = store::setting(store::secao_relatorio, u"nome"_s, u"Seu nome e ou empresa"_s);
    c.slogan = output::slogan_relatorio();
    c.iniciar = ler(u"Iniciar"_s, u"0"_s) == um;
    c.cor_fundo1 = indice(ler(u"Corescolhida"_s, QString()));
    c.cor_fundo2 = indice(ler(u"Corescolhida2"_s, QString()));
    c.tamanho_fonte = ler(u"TamanhoFonte"_s, u"10"_s);
    c.fonte = ler(u"Fontenome"_s, u"Arial"_s);
    c.cor_fonte = indice(ler(u"Corescolhidafonte"_s, QString()));
    c.ordem_desc = ler(u"Ordem"_s, u"ASC"_s).compare(u"DESC"_s, Qt::CaseInsensitive) == 0;
    c.atualizar = ler(u"AtualizarSaldo"_s, um) == um;
    c.dica = store::setting(store::secao_configuracoes, u"Exibir dica do dia"_s, um) == um;
    c.alertas = ler(u"AlertasVencimento"_s, um) == um;
    const QString rede = ler(u"RedeLocal"_s, u"SemRede"_s);
    c.em_rede = ler(u"EmRede"_s, u"0"_s) == um;
    c.texto_bd = c.em_rede ? rede : caminho_local_bd();
    return c;
}

QString caminho_local_bd() {
    return QDir::toNativeSeparators(store::program_path(store::arquivo_dados));
}

void gravar_cor(grupo_cor g, int i) {
    if (i < 0 || i >= int(paleta.size())) return;
    const auto& k = chaves_cor[int(g)];
    gravar(QString::fromLatin1(k.escolhida), QString::number(i));
    gravar(QString::fromLatin1(k.cor), QString::number(paleta[std::size_t(i)]));
}

void gravar_iniciar(bool ligado) {
    QString programa;
    if (ligado)
        programa =
            store::program_dir() + u'/' + QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    platform::gravarregistro(platform::run_key, store::app_title, programa);
    gravar(u"Iniciar"_s, ligado ? u"1"_s : u"0"_s);
}

void gravar_alerta(bool marcado) {
    if (marcado)
        gravar(u"AlertasVencimento"_s, u"1"_s);
    else
        gravar(u"AertasVencimento"_s, u"0"_s);
}

void gravar_rede(bool ligado, const QString& texto_bd) {
    gravar(u"EmRede"_s, ligado ? u"1"_s : u"0"_s);
    gravar(u"RedeLocal"_s, ligado ? texto_bd : u"SemRede"_s);
}

} // namespace shell
