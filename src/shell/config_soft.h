#pragma once
// The rules of the settings window: what each control writes and what the window reads when it
// opens. Every change is written at once; the main window takes it at its next activation.

#include <QString>

#include <array>
#include <cstdint>

namespace shell {

// The twelve colours of the three palettes, blue-green-red.
inline constexpr std::array<std::uint32_t, 12> paleta = {0xFFFFFF, 0xC0FFFF, 0xC0E0FF, 0xFFC0C0,
                                                         0xC0C0FF, 0xE0E0E0, 0xC0FFC0, 0xFF8080,
                                                         0xFFFFC0, 0x000000, 0x0080FF, 0x800000};

enum class grupo_cor { fonte, fundo1, fundo2 };

// What the window shows when it opens, read in the window's own order.
struct config_soft {
    QString nome, slogan;
    bool iniciar = false;
    int cor_fundo1 = -1, cor_fundo2 = -1, cor_fonte = -1; // palette index, -1 for none
    QString tamanho_fonte, fonte;
    bool ordem_desc = false;
    bool atualizar = true, dica = true, alertas = true;
    bool em_rede = false;
    QString texto_bd; // the network file, or the local one when not in network mode
};
config_soft ler_config_soft();

// The local data file as the window shows it outside network mode.
QString caminho_local_bd();

// A palette button: its index in the group's Corescolhida key, its colour as decimal text.
void gravar_cor(grupo_cor g, int indice);
// The run-at-start entry first, then Iniciar.
void gravar_iniciar(bool ligado);
// Checked writes "1" to AlertasVencimento; cleared writes "0" to the misspelt AertasVencimento,
// which nothing reads: only the main menu turns the alerts off.
void gravar_alerta(bool marcado);
// chkrede: on, EmRede "1" and RedeLocal the path shown; off, EmRede "0" and RedeLocal "SemRede".
void gravar_rede(bool ligado, const QString& texto_bd);

} // namespace shell
