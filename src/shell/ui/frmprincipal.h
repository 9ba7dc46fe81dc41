#pragma once
// The main window: four tabs of lists, the menu tree, the toolbar and the status bar. It owns no
// business rule; its routines gather what the controls show, call the logic and write back.

#include "shell/action_table.h"
#include "shell/principal_api.h"

#include <QHash>
#include <QMainWindow>
#include <QPointer>

#include <array>

class QAbstractButton;
class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QMenu;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QToolBar;
class QToolButton;
class QWindow;
class list_view;
namespace shell {
struct entry_filters;
struct movement_filters;
struct popup_entry;
} // namespace shell

class frmprincipal : public QMainWindow, public shell::principal_api {
    Q_OBJECT
public:
    // The one main window, created at its first reference.
    static frmprincipal* instance();
    static bool exists();
    ~frmprincipal() override;

    // The one way out, by the close box, mnusair or the lock: keeps the lists' layout and the
    // window's place, unloads the login windows and ends the program.
    void descarregar();

    // Makes the window visible; the first time runs its opening.
    void mostrar();
    bool carregado() const { return carregado_; }

    // What the other windows ask of this one.
    QWidget* janela() override { return this; }
    void carregar(shell::ledger which) override;
    void carregar_filtros(shell::ledger which) override;
    void carregar_bancos() override { carregarbancos(); }
    void mostrar_aba(shell::ledger which) override;

    // The settings key (section Configurações) of the window's size and position.
    static inline const QString chave_geometria = QStringLiteral("GeometriaJanelaPrincipal");

    QString ordempagar;
    QString ordemreceber;
    QString sqlatual;

    // Routines other windows call.
    void CarregarConfigSoft();
    void pintarlinhas(list_view* lista, const QColor& cor1, const QColor& cor2);
    void CarregarDados();
    void carregarpagar();
    void carregarreceber();
    void carregarbancario();
    void dadospagar();
    void dadosreceber();
    void salvartudopagar();
    void salvartudoreceber();
    void salvartudobancario();
    void CarregarColuna();
    void SalvarColuna();

    // Bank list (frmprincipal_bancos.cpp)
    void carregarbancos();
    void resumocaixa();

    // List actions (frmprincipal_entradas.cpp, frmprincipal_movimento.cpp, frmprincipal_acoes.cpp)
    void adicionarpagar();
    void adicionarreceber();
    void adicionarbanco();
    void adicionarmovimento();
    void multiplospagar();
    void multiplosreceber();
    void alterarpagar();
    void alterarreceber();
    void alterarbanco();
    void alterarmovimento();

    // Removals, settling, pop-up menus and the wiring of the list actions (frmprincipal_acoes.cpp)
    void removerpagar();
    void removerreceber();
    void removermovimento();
    void removerbanco();
    void popbaixapagar();
    void popbaixareceber();

    // Menu items and toolbar, by name: the item's action runs when it is enabled.
    QAction* item(const QString& name) const { return items_.value(name); }
    void executar_item(const QString& name);
    void executar_botao(const QString& key);

    // Controls
    QWidget* picprincipal = nullptr;
    QTabWidget* xtab = nullptr;
    list_view* lstpagar = nullptr;
    list_view* lstreceber = nullptr;
    list_view* lstmovimento = nullptr;
    list_view* lstcaixabanco = nullptr;
    QWidget* pictoppagar = nullptr;
    QWidget* pictoppagar2 = nullptr;
    QWidget* pictopreceber = nullptr;
    QWidget* pictoprec2 = nullptr;
    QWidget* pictopbancario = nullptr;
    QComboBox* cbotipop = nullptr;
    QComboBox* cbofiltrop = nullptr;
    QComboBox* cbobaseadoP = nullptr;
    QComboBox* cbobancop = nullptr;
    QComboBox* cbocentrocusto = nullptr;
    QComboBox* cbofornecedor = nullptr;
    QComboBox* cbotipor = nullptr;
    QComboBox* cbofiltror = nullptr;
    QComboBox* cbobaseadoR = nullptr;
    QComboBox* cbobancor = nullptr;
    QComboBox* cbocentrolucro = nullptr;
    QComboBox* cbocliente = nullptr;
    QComboBox* cbotipom = nullptr;
    QComboBox* cbofiltrom = nullptr;
    QComboBox* cboorgm = nullptr;
    QRadioButton* optascm = nullptr;
    QRadioButton* optdescm = nullptr;
    QPushButton* cmdadicionard = nullptr;
    QPushButton* cmdmultiplosp = nullptr;
    QPushButton* cmdalterard = nullptr;
    QPushButton* cmdremoverd = nullptr;
    QPushButton* cmdrecibod = nullptr;
    QPushButton* cmdprojecaop = nullptr;
    QPushButton* cmdhistoricoforn = nullptr;
    QPushButton* cmdmesp = nullptr;
    QPushButton* cmdadicionarr = nullptr;
    QPushButton* cmdmultiplosr = nullptr;
    QPushButton* cmdalterarr = nullptr;
    QPushButton* cmdremoverr = nullptr;
    QPushButton* cmdrecibor = nullptr;
    QPushButton* cmdprojecoesr = nullptr;
    QPushButton* cmdhistoricocli = nullptr;
    QPushButton* cmdmesr = nullptr;
    QPushButton* cmdadicionarm = nullptr;
    QPushButton* cmdalterarm = nullptr;
    QPushButton* cmdremoverm = nullptr;
    QPushButton* cmdadicionarb = nullptr;
    QPushButton* cmdalterarb = nullptr;
    QPushButton* cmdremoverb = nullptr;
    QPushButton* cmdconfbanc = nullptr;
    QLabel* lblpagarest = nullptr;
    QLabel* lblreceberest = nullptr;
    QLabel* lblmovimentoest = nullptr;
    QLabel* lblresumocaixa = nullptr;
    QLabel* lblbanco = nullptr;
    QPlainTextEdit* txtresucaixa = nullptr;
    QToolBar* tbrbarra = nullptr;
    QLabel* statustexto = nullptr;

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    template <class T> struct control {
        T* frmprincipal::*member = nullptr;
        const char* name = nullptr;
    };
    struct botao {
        QPushButton* frmprincipal::*member;
        const char* name;
        const char* caption;
    };
    // The controls of a ledger's tab by the members that hold them: the twins pagar and receber
    // differ in these names only. bancario has its list, label and order text only.
    struct controles {
        control<list_view> lista;
        control<QLabel> rotulo;
        QString frmprincipal::*ordem = nullptr;
        control<QWidget> top1, top2;
        control<QComboBox> tipo, filtro, baseado, banco, centro, contato;
        std::array<botao, 8> botoes;
    };
    static const controles& controles_de(shell::ledger which);

    frmprincipal();
    void montar_tabs();
    QWidget* montar_tab_ledger(shell::ledger which);
    QWidget* montar_tab_movimento();
    QWidget* montar_tab_bancos();
    void montar_menus();
    void montar_toolbar();
    void ligar_filtros();

    // The actions and their controls (frmprincipal_acoes.cpp)
    void montar_acoes();
    // The control shows its action's enabled state and runs it.
    void ligar(QAction* a, const QString& nome);
    void ligar(QAbstractButton* b, const QString& nome);
    void ligar_acoes();
    void montar_popups();
    // Enabled states and check marks of the pop-up items, as the actions and settings stand now.
    void atualizar_popups();
    void mostrar_popup(list_view* l, const QString& nome, const QPoint& pos);
    void aplicar_popup(const shell::popup_entry& e);

    // The ledger lists, by which one
    list_view* lista(shell::ledger which) const;
    QLabel* rotulo(shell::ledger which) const;
    shell::entry_filters filtros(shell::ledger which) const;
    shell::movement_filters filtros_movimento() const;
    // Removal and settling of the selected row (frmprincipal_acoes.cpp)
    void remover(shell::ledger which);
    void dar_baixa(shell::ledger which);
    void salvar_filtros(shell::ledger which);
    void cabecalho_clicado(shell::ledger which);

    // Opening and activation
    void abrir();
    // The size and position of the last session, kept in the user's settings under a key of the
    // program's own; the first time, the middle of the screen.
    void restaurar_geometria();
    void ativar();
    void VerificarDica();
    void tab_mudou(int index);

    // Menu routines of this window
    void mnuexibirprincipal_click();
    void mnuiniciar_click();
    void mnulogininiciar_click();

    shell::action_table acoes_;
    QHash<QString, QAction*> items_;
    QHash<QString, QToolButton*> toolbar_buttons_;
    bool carregado_ = false;
    bool fechando_ = false;
    // The window that had the focus before the latest change: coming back from another of the
    // program's windows is an activation.
    QPointer<QWindow> janela_anterior_;
    // A refresh of the accounts list asked for while one runs (the waiting window lets events
    // through) is that one.
    bool carregando_bancos_ = false;
};
