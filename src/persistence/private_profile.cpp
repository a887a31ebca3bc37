#include "persistence/private_profile.h"

#include <algorithm>
#include <limits>

namespace {

bool sameName(QStringView a, QStringView b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
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

std::optional<PrivateProfile::SectionRange> PrivateProfile::findSection(
    const QString& section) const {
    const int count = static_cast<int>(lines_.size());
    for (int i = 0; i < count; ++i) {
        const auto name = sectionName(lines_[i]);
        if (!name || !sameName(*name, section)) continue;
        int end = i + 1;
        while (end < count && !sectionName(lines_[end])) ++end;
        return SectionRange{i, end};
    }
    return std::nullopt;
}

int PrivateProfile::findKey(const SectionRange& range, const QString& key) const {
    for (int i = range.header + 1; i < range.end; ++i) {
        const auto entry = entryOf(lines_[i]);
        if (entry && sameName(entry->key, key)) return i;
    }
    return -1;
}

std::optional<QString> PrivateProfile::read(const QString& section, const QString& key) const {
    const auto range = findSection(section);
    if (!range) return std::nullopt;
    const int line = findKey(*range, key);
    if (line < 0) return std::nullopt;
    QString value = entryOf(lines_[line])->value.toString();
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
    const auto range = findSection(section);
    if (!range) {
        lines_ << QLatin1Char('[') + section + QLatin1Char(']') << line;
        return;
    }
    const int existing = findKey(*range, key);
    if (existing >= 0) {
        lines_[existing] = line;
        return;
    }
    // After the section's last line that holds something, so that the blank lines separating it
    // from the next section stay where they are.
    int insertAt = range->end;
    while (insertAt > range->header + 1 && lines_[insertAt - 1].trimmed().isEmpty()) --insertAt;
    lines_.insert(insertAt, line);
}

bool PrivateProfile::hasSection(const QString& section) const {
    return findSection(section).has_value();
}

void WritePrivateProfileInt(PrivateProfile& profile, const QString& section, const QString& key,
                            qint16 value) {
    profile.write(section, key, QString::number(value));
}
