#include "persistence/private_profile.h"

#include <algorithm>
#include <limits>

namespace {

// Names compare without regard to case; folding them once lets a hash find them.
QString folded(QStringView name) {
    return name.toString().toCaseFolded();
}

// "[name]" with blanks allowed around it; a missing "]" ends the name at the end of the line.
std::optional<QStringView> sectionName(const QString& line) {
    const QStringView text = QStringView(line).trimmed();
    if (!text.startsWith(QLatin1Char('['))) return std::nullopt;
    const qsizetype close = text.indexOf(QLatin1Char(']'));
    return (close < 0 ? text.mid(1) : text.mid(1, close - 1)).trimmed();
}

struct Entry {
    QStringView key;
    QStringView value;
};

std::optional<Entry> entryOf(const QString& line) {
    const qsizetype equals = line.indexOf(QLatin1Char('='));
    if (equals < 0) return std::nullopt;
    return Entry{QStringView(line).left(equals).trimmed(),
                 QStringView(line).mid(equals + 1).trimmed()};
}

// A value must stay on its line: a line break inside it would start a new key.
QString oneLine(const QString& value) {
    QString text = value;
    text.replace(QLatin1Char('\r'), QLatin1Char(' '));
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    text.remove(QChar(0));
    return text;
}

}  // namespace

qint16 leadingInteger(const QString& text) {
    qsizetype i = 0;
    while (i < text.size() && (text[i] == QLatin1Char(' ') || text[i] == QLatin1Char('\t'))) ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == QLatin1Char('-') || text[i] == QLatin1Char('+'))) {
        negative = text[i] == QLatin1Char('-');
        ++i;
    }
    constexpr int kLowest = std::numeric_limits<qint16>::min();
    constexpr int kHighest = std::numeric_limits<qint16>::max();
    int value = 0;  // stops growing past the 16-bit range, so it never overflows
    for (; i < text.size() && text[i] >= QLatin1Char('0') && text[i] <= QLatin1Char('9'); ++i) {
        value = std::min(value * 10 + (text[i].unicode() - '0'), kHighest + 1);
    }
    if (negative) value = -value;
    return static_cast<qint16>(std::clamp(value, kLowest, kHighest));
}

PrivateProfile::PrivateProfile() : sections_(1) {}

PrivateProfile::PrivateProfile(const QStringList& lines) : sections_(1) {
    for (const QString& line : lines) {
        if (const auto name = sectionName(line)) {
            const QString key = folded(*name);
            if (!sectionIndex_.contains(key)) {
                sectionIndex_.insert(key, static_cast<int>(sections_.size()));
            }
            sections_.emplace_back();
        }
        append(sections_.back(), line);
    }
}

void PrivateProfile::append(Section& section, const QString& line) {
    section.lines << line;
    const auto entry = entryOf(line);
    if (!entry || sectionName(line)) return;
    const QString key = folded(entry->key);
    if (!section.keys.contains(key)) {
        section.keys.insert(key, static_cast<int>(section.lines.size() - 1));
    }
}

const PrivateProfile::Section* PrivateProfile::findSection(const QString& name) const {
    const int index = sectionIndex_.value(folded(name), -1);
    return index < 0 ? nullptr : &sections_[index];
}

std::optional<QString> PrivateProfile::read(const QString& section, const QString& key) const {
    const Section* found = findSection(section);
    if (!found) return std::nullopt;
    const int line = found->keys.value(folded(key), -1);
    if (line < 0) return std::nullopt;
    QString value = entryOf(found->lines[line])->value.toString();
    value.truncate(kMaxValueLength);
    value.remove(QChar(0));
    if (value.isEmpty()) return std::nullopt;
    return value;
}

QString PrivateProfile::readString(const QString& section, const QString& key,
                                   const QString& fallback) const {
    return read(section, key).value_or(fallback);
}

qint16 PrivateProfile::readInt(const QString& section, const QString& key, qint16 fallback) const {
    const auto value = read(section, key);
    return value ? leadingInteger(*value) : fallback;
}

void PrivateProfile::write(const QString& section, const QString& key, const QString& value) {
    const QString line = key + QLatin1Char('=') + oneLine(value);
    const QString sectionKey = folded(section);
    const QString entryKey = folded(key);
    const int index = sectionIndex_.value(sectionKey, -1);
    if (index < 0) {
        sectionIndex_.insert(sectionKey, static_cast<int>(sections_.size()));
        sections_.emplace_back();
        append(sections_.back(), QLatin1Char('[') + section + QLatin1Char(']'));
        append(sections_.back(), line);
        return;
    }
    Section& target = sections_[index];
    const int existing = target.keys.value(entryKey, -1);
    if (existing >= 0) {
        target.lines[existing] = line;
        return;
    }
    // After the section's last line that holds something, so that the blank lines separating it
    // from the next section stay where they are.
    int insertAt = static_cast<int>(target.lines.size());
    while (insertAt > 1 && target.lines[insertAt - 1].trimmed().isEmpty()) --insertAt;
    if (insertAt < target.lines.size()) {
        for (int& at : target.keys) {
            if (at >= insertAt) ++at;
        }
    }
    target.lines.insert(insertAt, line);
    target.keys.insert(entryKey, insertAt);
}

bool PrivateProfile::hasSection(const QString& section) const {
    return sectionIndex_.contains(folded(section));
}

QStringList PrivateProfile::lines() const {
    QStringList all;
    for (const Section& section : sections_) all += section.lines;
    return all;
}

void WritePrivateProfileInt(PrivateProfile& profile, const QString& section, const QString& key,
                            qint16 value) {
    profile.write(section, key, QString::number(value));
}
