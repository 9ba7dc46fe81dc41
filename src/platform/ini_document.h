#pragma once
// A small INI text: [section] and key=value lines. Sections and keys are found without regard to
// case and keep the spelling of their first writing; order and comments survive a rewrite.

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace platform {

class ini_document {
public:
    // escaped: values keep line breaks and backslashes through "\n" and "\\" (the settings
    // store); unescaped: values are taken as they stand (the old profile files).
    explicit ini_document(bool escaped) : escaped_(escaped) {}
    static ini_document parse(const QByteArray& utf8, bool escaped);
    QByteArray serialize() const;

    std::optional<QString> get(const QString& section, const QString& key) const;
    void set(const QString& section, const QString& key, const QString& value);

private:
    struct line {
        QString raw; // as read: a line nobody changed is written back as it came
        QString key; // empty for non-entries
        QString value;
        bool changed = false;
    };
    struct section_block {
        QString name;
        std::vector<line> lines;
    };
    section_block* find(const QString& section);
    const section_block* find(const QString& section) const;

    bool escaped_;
    std::vector<section_block> sections_; // the first one, nameless, holds lines before any header
};

// Reads a file into a document (missing or unreadable: an empty one), and writes it whole
// through a temporary file, so a failed write leaves the old file.
ini_document read_ini(const QString& path, bool escaped);
bool write_ini(const QString& path, const ini_document& doc);

// How many files the process has read and written so far (bench and tests).
int ini_reads();
int ini_writes();

} // namespace platform
