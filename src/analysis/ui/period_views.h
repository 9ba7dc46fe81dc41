#pragma once
// Running a period summary: the member's rows into frmmovimento or frmrelatorio, or its counts
// into frmgrafico or frmestatisticas; the register statistics into frmestforncli; the client and
// supplier lists into frmrelatorio. Every step runs with errors ignored.

#include <QString>

namespace analysis {

struct membro;
struct estatistica_cadastro;

void executar_membro(const membro& m);
void executar_estatistica_cadastro(const estatistica_cadastro& e);
// mnuretcliente (clientes) and mnuretfornecedor.
void relatorio_contatos(bool clientes);

} // namespace analysis
