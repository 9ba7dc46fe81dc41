#pragma once
#include <QString>

#include <stdexcept>

namespace sql {

// Every failure of the data file: its description is what the windows show.
class error : public std::runtime_error {
public:
    explicit error(const QString& description)
        : std::runtime_error(description.toStdString()), d_(description) {}
    const QString& description() const { return d_; }

private:
    QString d_;
};

} // namespace sql
