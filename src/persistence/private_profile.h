#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>
#include <optional>

// An INI text read and written the way the private-profile functions do it:
// - section and key names compare without regard to case; the first section of a name and the
//   first key of a name in it are the ones that count;
// - a value is the text after the first "=" without surrounding blanks, NUL characters removed,
//   at most kMaxValueLength characters (a 256-character buffer keeps one for its terminator);
// - an empty value counts as a missing key;
// - a write replaces the key's line, or adds the key after the last line of its section, or adds
//   the section at the end; every other line stays exactly as it was, so notes and sections of
//   other programs survive a save.
// The text lives in memory: a file is read once, changed key by key, and saved once.
class PrivateProfile {
public:
    static constexpr int kMaxValueLength = 255;

    PrivateProfile() = default;
    explicit PrivateProfile(QStringList lines) : lines_(std::move(lines)) {}

    std::optional<QString> read(const QString& section, const QString& key) const;
    QString readString(const QString& section, const QString& key, const QString& fallback) const;
    // leadingInteger() of the value; `fallback` when the key is missing.
    qint16 readInt(const QString& section, const QString& key, qint16 fallback) const;

    void write(const QString& section, const QString& key, const QString& value);

    bool hasSection(const QString& section) const;
    const QStringList& lines() const { return lines_; }

private:
    struct SectionRange {
        int header = 0;  // line of "[name]"
        int end = 0;     // first line after the section
    };
    std::optional<SectionRange> findSection(const QString& section) const;
    int findKey(const SectionRange& range, const QString& key) const;  // -1 when absent

    QStringList lines_;
};

// The leading decimal integer of a text (blanks and a sign allowed, 0 when there are no digits),
// held to the 16-bit range of a setting.
qint16 leadingInteger(const QString& text);

// Writes the decimal text of a 16-bit integer, without a leading blank.
void WritePrivateProfileInt(PrivateProfile& profile, const QString& section, const QString& key,
                            qint16 value);
