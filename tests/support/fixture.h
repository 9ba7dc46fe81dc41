#pragma once
// The fixture of every test: a temporary program folder holding a fresh data file, dicas.txt and
// fundo.gif; settings in a folder of their own; a fixed clock; chance that always draws 0; scripted
// prompts; a shell that only records.

#include "platform/clock.h"
#include "platform/prompts.h"
#include "platform/shell.h"
#include "platform/sql/recordset.h"

#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <ostream>

// Readable failures.
inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}

namespace support {

class fixture : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // A file of the program's folder.
    QString path(const QString& name) const { return dir_.path() + QLatin1Char('/') + name; }
    QString settings_file() const;
    // Runs a statement on the data file (test set-up; outside the program's own paths).
    void exec(const QString& statement);
    // The rows of a statement, each as its fields' texts joined by '|'.
    QStringList rows(const QString& statement);
    // Every message box so far as "title: text".
    QStringList boxes() const {
        QStringList out;
        for (const auto& b : prompts_.boxes())
            out << b.title + QStringLiteral(": ") + b.text;
        return out;
    }

    // A save through its file dialog: `salvar` opens the dialog, which is answered with a file of
    // the program's folder named as `golden`'s last part; then the dialog's title and filter, the
    // "Visualizar" question after it, and the written file against tests/data/<golden>.
    ::testing::AssertionResult saves(const std::function<void()>& salvar, const QString& titulo,
                                     const QString& filtro, const QString& golden);

    platform::fixed_clock clock_{QDateTime(QDate(2026, 11, 23), QTime(10, 0))};
    platform::scripted_prompts prompts_;
    platform::recording_shell shell_;

private:
    QTemporaryDir dir_;
};

// A fresh copy of the ready-made data file at the path.
void copy_fresh_data_file(const QString& path);

} // namespace support
