#pragma once
// The actions behind a window's menu items, toolbar buttons, pop-up items and buttons: what each
// runs and whether it is enabled, in one place. Controls name their action as the menu and
// pop-up data do; the window's own actions come first, then those other subsystems registered
// (principal_api.h). A name that finds neither leaves its control disabled and runs nothing.

#include "shell/principal_api.h"

#include <QHash>
#include <QString>

#include <functional>

namespace shell {

class action_table {
public:
    using predicate = std::function<bool()>;

    // The window's own action; without a predicate it is always enabled.
    void add(const QString& name, action run, predicate enabled = {});

    bool enabled(const QString& name) const;
    // Runs the action when it is enabled, with errors ignored; false when nothing ran.
    bool run(const QString& name) const;

private:
    struct entry {
        action run;
        predicate enabled;
    };
    QHash<QString, entry> own_;
};

} // namespace shell
