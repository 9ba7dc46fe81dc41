#include "platform/random.h"

#include <QRandomGenerator>

namespace platform {

namespace {
random_source& installed() {
    static random_source source;
    return source;
}
} // namespace

double rnd() {
    const random_source& s = installed();
    return s ? s() : QRandomGenerator::global()->generateDouble();
}

void set_random_source(random_source source) {
    installed() = std::move(source);
}

} // namespace platform
