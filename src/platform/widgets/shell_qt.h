#pragma once
// The desktop's own shell: pages and files open in the default programs, the editor and the
// calculator are the first of the usual ones that is installed.

#include "platform/shell.h"

namespace platform {

class desktop_shell : public shell {
public:
    bool open(const QString& path_or_url) override;
    bool start_editor() override;
    bool start_calculator() override;
};

} // namespace platform
