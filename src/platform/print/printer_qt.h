#pragma once
// The print dialog of the desktop: the user picks a printer or "print to file" (PDF).

#include "platform/print/printer.h"

namespace platform {

class dialog_print_target : public print_target {
public:
    outcome prepare(QPrinter& p) override;
};

} // namespace platform
