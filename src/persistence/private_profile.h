#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QStringView>
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
// The text lives in memory: a file is read once, changed key by key, and saved once. Time and
// memory grow linearly with the file: its lines stay in one text and are referred to by
// position; written lines are kept apart and placed when the text is put together again.
class PrivateProfile {
public:
    static constexpr int kMaxValueLength = 255;

    PrivateProfile() = default;
    explicit PrivateProfile(const QStringList& lines);
    // The lines of a file's text, split as splitLines() splits them.
    static PrivateProfile fromText(const QString& text);

    std::optional<QString> read(const QString& section, const QString& key) const;
    QString readString(const QString& section, const QString& key, const QString& fallback) const;
    // leadingInteger() of the value; `fallback` when the key is missing.
    qint16 readInt(const QString& section, const QString& key, qint16 fallback) const;

    void write(const QString& section, const QString& key, const QString& value);

    bool hasSection(const QString& section) const;
    QStringList lines() const;
    // Every line followed by CR LF, as joinLines() puts them together.
    QString text() const;
    // Whether a write has changed a line since the profile was made.
    bool changed() const { return changed_; }

private:
    // A line: `length` characters of text_ from `start`, or written_[start] when length is -1.
    struct Line {
        qint32 start = 0;
        qint32 length = -1;
    };
    // The first section of each name; later sections of the same name are never read or
    // written. Lines it gains go after its last line that holds something, so that the blank
    // lines separating it from the next section stay where they are.
    struct Section {
        qint32 contentEnd = 0;         // index in lines_ after its last non-blank line
        std::vector<qint32> inserted;  // indices in written_, in order
    };

    void index();
    QStringView lineAt(qint64 ref) const;
    template <typename Sink>
    void forEachLine(Sink sink) const;

    QString text_;
    QStringList written_;
    std::vector<Line> lines_;
    std::vector<Section> sections_;
    QHash<QString, int> sectionIndex_;  // case-folded name -> index in sections_
    // Case-folded section name, a line feed and the case-folded key -> the key's line: index
    // `ref` in lines_, or, for a line a write inserted, written_[-ref - 1].
    QHash<QString, qint64> keys_;
    bool changed_ = false;
};

// The leading decimal integer of a text (blanks and a sign allowed, 0 when there are no digits),
// held to the 16-bit range of a setting.
qint16 leadingInteger(const QString& text);

// Writes the decimal text of a 16-bit integer, without a leading blank.
void WritePrivateProfileInt(PrivateProfile& profile, const QString& section, const QString& key,
                            qint16 value);
