#pragma once
// Today, now and waiting: the one place the program asks the system clock.

#include <QDate>
#include <QDateTime>

namespace platform {

class clock {
public:
    virtual ~clock() = default;
    virtual QDateTime now() = 0;
    virtual void sleep_ms(int ms) = 0;
};

// The clock in use; the system's own unless a test fixed another.
clock& current_clock();
void set_clock(clock* c); // nullptr restores the system's clock

inline QDateTime now() {
    return current_clock().now();
}
inline QDate today() {
    return current_clock().now().date();
}
inline void sleep_ms(int ms) {
    current_clock().sleep_ms(ms);
}

// A clock that stands still and whose sleeps only move it forward (tests, benchmarks).
class fixed_clock : public clock {
public:
    explicit fixed_clock(QDateTime at) : at_(std::move(at)) {}
    QDateTime now() override { return at_; }
    void sleep_ms(int ms) override {
        at_ = at_.addMSecs(ms);
        slept_ms_ += ms;
        ++sleeps_;
    }
    void set(QDateTime at) { at_ = std::move(at); }
    long long slept_ms() const { return slept_ms_; }
    int sleeps() const { return sleeps_; }

private:
    QDateTime at_;
    long long slept_ms_ = 0;
    int sleeps_ = 0;
};

} // namespace platform
