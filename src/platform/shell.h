#pragma once
// Opening files and web pages, and starting the desktop's editor and calculator.

#include <QString>
#include <QStringList>

namespace platform {

class shell {
public:
    virtual ~shell() = default;
    // A path or an address ("https://…", "mailto:…"). False when nothing could open it.
    virtual bool open(const QString& path_or_url) = 0;
    virtual bool start_editor() = 0;
    virtual bool start_calculator() = 0;
};

shell& desktop();
void set_shell(shell* s); // nullptr restores the desktop's own

// Records what was asked (tests).
class recording_shell : public shell {
public:
    bool open(const QString& p) override {
        opened.push_back(p);
        return true;
    }
    bool start_editor() override {
        opened.push_back(QStringLiteral("<editor>"));
        return true;
    }
    bool start_calculator() override {
        opened.push_back(QStringLiteral("<calculator>"));
        return true;
    }
    QStringList opened;
};

} // namespace platform
