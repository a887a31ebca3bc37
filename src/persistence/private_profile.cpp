#include "persistence/private_profile.h"

#include <algorithm>
#include <limits>

namespace {

// Names compare without regard to case; folding them once lets a hash find them.
QString folded(QStringView name) {
    return name.toString().toCaseFolded();
}

// "[name]" with blanks allowed around it; a missing "]" ends the name at the end of the line.
std::optional<QStringView> sectionName(QStringView line) {
    const QStringView text = line.trimmed();
    if (!text.startsWith(QLatin1Char('['))) return std::nullopt;
    const qsizetype close = text.indexOf(QLatin1Char(']'));
    return (close < 0 ? text.mid(1) : text.mid(1, close - 1)).trimmed();
}

struct Entry {
    QStringView key;
    QStringView value;
};

std::optional<Entry> entryOf(QStringView line) {
    const qsizetype equals = line.indexOf(QLatin1Char('='));
    if (equals < 0) return std::nullopt;
    return Entry{line.left(equals).trimmed(), line.mid(equals + 1).trimmed()};
}

// A value must stay on its line: a line break inside it would start a new key.
QString oneLine(const QString& value) {
    const auto breaksLine = [](QChar c) {
        return c == QLatin1Char('\r') || c == QLatin1Char('\n') || c == QChar(0);
    };
    if (std::none_of(value.cbegin(), value.cend(), breaksLine)) return value;
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

PrivateProfile::PrivateProfile(const QStringList& lines) : written_(lines) {
    lines_.reserve(lines.size());
    for (qsizetype i = 0; i < lines.size(); ++i) lines_.push_back({static_cast<qint32>(i), -1});
    index();
}

PrivateProfile PrivateProfile::fromText(const QString& text) {
    PrivateProfile profile;
    profile.text_ = text;
    const qsizetype size = text.size();
    qsizetype start = 0;
    for (qsizetype i = 0; i < size; ++i) {
        const QChar c = text[i];
        if (c != QLatin1Char('\r') && c != QLatin1Char('\n')) continue;
        profile.lines_.push_back({static_cast<qint32>(start), static_cast<qint32>(i - start)});
        if (c == QLatin1Char('\r') && i + 1 < size && text[i + 1] == QLatin1Char('\n')) ++i;
        start = i + 1;
    }
    if (start < size) {
        profile.lines_.push_back({static_cast<qint32>(start), static_cast<qint32>(size - start)});
    }
    profile.index();
    return profile;
}

QStringView PrivateProfile::lineAt(qint64 ref) const {
    if (ref < 0) return written_[-ref - 1];
    const Line& line = lines_[ref];
    if (line.length < 0) return written_[line.start];
    return QStringView(text_).mid(line.start, line.length);
}

namespace {

// One string per key, folded once: readers look keys up by the hundred.
QString keyOf(QStringView section, QStringView key) {
    QString composite;
    composite.reserve(section.size() + 1 + key.size());
    composite.append(section).append(QLatin1Char('\n')).append(key);
    return std::move(composite).toCaseFolded();
}

}  // namespace

void PrivateProfile::index() {
    int current = -1;  // the section the lines belong to, when it is the first of its name
    QString currentName;
    for (qsizetype i = 0; i < static_cast<qsizetype>(lines_.size()); ++i) {
        const QStringView line = lineAt(i);
        if (const auto name = sectionName(line)) {
            currentName = folded(*name);
            current = -1;
            if (!sectionIndex_.contains(currentName)) {
                current = static_cast<int>(sections_.size());
                sectionIndex_.insert(currentName, current);
                sections_.push_back({static_cast<qint32>(i + 1), {}});
            }
            continue;
        }
        if (current < 0 || line.trimmed().isEmpty()) continue;
        sections_[current].contentEnd = static_cast<qint32>(i + 1);
        if (const auto entry = entryOf(line)) {
            // The first key of a name is the one that counts.
            const QString key = keyOf(currentName, entry->key);
            if (!keys_.contains(key)) keys_.insert(key, i);
        }
    }
}

std::optional<QString> PrivateProfile::read(const QString& section, const QString& key) const {
    const auto found = keys_.constFind(keyOf(section, key));
    if (found == keys_.cend()) return std::nullopt;
    QString value = entryOf(lineAt(*found))->value.toString();
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
    const QString entryKey = keyOf(section, key);
    const auto existing = keys_.constFind(entryKey);
    if (existing != keys_.cend()) {
        const qint64 ref = *existing;
        if (lineAt(ref) == line) return;
        if (ref < 0) {
            written_[-ref - 1] = line;
        } else {
            lines_[ref] = {static_cast<qint32>(written_.size()), -1};
            written_ << line;
        }
        changed_ = true;
        return;
    }
    const QString foldedName = folded(section);
    int index = sectionIndex_.value(foldedName, -1);
    if (index < 0) {
        // A new section goes at the end, after every line there is.
        index = static_cast<int>(sections_.size());
        sectionIndex_.insert(foldedName, index);
        sections_.push_back({static_cast<qint32>(lines_.size()), {}});
        sections_.back().inserted.push_back(static_cast<qint32>(written_.size()));
        written_ << QLatin1Char('[') + section + QLatin1Char(']');
    }
    sections_[index].inserted.push_back(static_cast<qint32>(written_.size()));
    keys_.insert(entryKey, -static_cast<qint64>(written_.size()) - 1);
    written_ << line;
    changed_ = true;
}

bool PrivateProfile::hasSection(const QString& section) const {
    return sectionIndex_.contains(folded(section));
}

template <typename Sink>
void PrivateProfile::forEachLine(Sink sink) const {
    qint64 next = 0;
    for (const Section& section : sections_) {
        for (; next < section.contentEnd; ++next) sink(lineAt(next));
        for (qint32 inserted : section.inserted) sink(QStringView(written_[inserted]));
    }
    for (; next < static_cast<qint64>(lines_.size()); ++next) sink(lineAt(next));
}

QStringList PrivateProfile::lines() const {
    QStringList all;
    all.reserve(static_cast<qsizetype>(lines_.size()) + written_.size());
    forEachLine([&all](QStringView line) { all << line.toString(); });
    return all;
}

QString PrivateProfile::text() const {
    QString all;
    all.reserve(text_.size() + (written_.size() + 2) * 16);
    forEachLine([&all](QStringView line) {
        all += line;
        all += QLatin1String("\r\n");
    });
    return all;
}

void WritePrivateProfileInt(PrivateProfile& profile, const QString& section, const QString& key,
                            qint16 value) {
    profile.write(section, key, QString::number(value));
}
