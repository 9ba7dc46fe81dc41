#pragma once
// The one frmrelatorio and the one frmmovimento that feeders fill: created at their first use,
// over the main window, and made again after the user closed them.

class frmmovimento;
class frmrelatorio;

namespace output {

frmrelatorio* relatorio_unico();
frmmovimento* movimento_unico();

} // namespace output
