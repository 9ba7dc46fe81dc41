#pragma once
// The print preview of the desktop: the pages on the screen, with zoom and page buttons, and a
// print button that sends them to the printer the user picks.

#include "platform/print/printer.h"

namespace platform {

class print_preview_dialog : public print_preview {
public:
    void show(const QString& job_name, const page_format& format,
              const std::function<void(printer&)>& draw) override;
};

} // namespace platform
