#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QtGlobal>
#include <optional>
#include <vector>

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

    PrivateProfile();
    explicit PrivateProfile(const QStringList& lines);

    std::optional<QString> read(const QString& section, const QString& key) const;
    QString readString(const QString& section, const QString& key, const QString& fallback) const;
    // leadingInteger() of the value; `fallback` when the key is missing.
    qint16 readInt(const QString& section, const QString& key, qint16 fallback) const;

    void write(const QString& section, const QString& key, const QString& value);

    bool hasSection(const QString& section) const;
    QStringList lines() const;

private:
    // A section's lines, its "[name]" header first; the lines before the first header form a
    // section without a header. Keys map to the first line that holds them.
    struct Section {
        QStringList lines;
        QHash<QString, int> keys;  // case-folded key -> index in `lines`
    };
    void append(Section& section, const QString& line);
    const Section* findSection(const QString& name) const;

    std::vector<Section> sections_;
    QHash<QString, int> sectionIndex_;  // case-folded name -> first section of that name
};

// The leading decimal integer of a text (blanks and a sign allowed, 0 when there are no digits),
// held to the 16-bit range of a setting.
qint16 leadingInteger(const QString& text);

// Writes the decimal text of a 16-bit integer, without a leading blank.
void WritePrivateProfileInt(PrivateProfile& profile, const QString& section, const QString& key,
                            qint16 value);
