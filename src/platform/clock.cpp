#include "platform/clock.h"

#include <QThread>

namespace platform {

namespace {
class system_clock : public clock {
public:
    QDateTime now() override { return QDateTime::currentDateTime(); }
    void sleep_ms(int ms) override { QThread::msleep(static_cast<unsigned long>(ms)); }
};
system_clock the_system_clock;
clock* installed = nullptr;
} // namespace

clock& current_clock() {
    return installed ? *installed : the_system_clock;
}
void set_clock(clock* c) {
    installed = c;
}

} // namespace platform
