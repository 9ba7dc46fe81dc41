#include "shell/action_table.h"

#include "platform/errors.h"

namespace shell {

void action_table::add(const QString& name, action run, predicate enabled) {
    own_.insert(name, {std::move(run), std::move(enabled)});
}

bool action_table::enabled(const QString& name) const {
    const auto it = own_.constFind(name);
    if (it == own_.constEnd()) return find_action(name) != nullptr;
    return !it->enabled || it->enabled();
}

bool action_table::run(const QString& name) const {
    if (!enabled(name)) return false;
    const auto it = own_.constFind(name);
    if (it == own_.constEnd()) return run_action(name);
    platform::ignore_errors(it->run);
    return true;
}

} // namespace shell
