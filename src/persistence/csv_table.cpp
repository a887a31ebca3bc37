#include "persistence/csv_table.h"

#include <algorithm>

namespace {

const QChar kComma = QLatin1Char(',');
const QChar kQuote = QLatin1Char('"');
const QChar kCr = QLatin1Char('\r');
const QChar kLf = QLatin1Char('\n');

bool needsQuotes(const QString& field) {
    return field.contains(kComma) || field.contains(kQuote) || field.contains(kCr) ||
           field.contains(kLf);
}

QString quoted(QString field) {
    field.replace(kQuote, QLatin1String("\"\""));
    return kQuote + field + kQuote;
}

// Walks the text once, field by field.
class Parser {
public:
    explicit Parser(const QString& text) : text_(text) {}

    std::vector<CsvRow> rows() {
        std::vector<CsvRow> rows;
        while (at_ < text_.size()) rows.push_back(row(static_cast<int>(rows.size()) + 1));
        return rows;
    }

private:
    CsvRow row(int number) {
        CsvRow row;
        row.number = number;
        for (;;) {
            row.fields << field(row.unterminatedQuote);
            if (at_ >= text_.size()) return row;
            const QChar ending = text_[at_++];
            if (ending == kComma) continue;
            // A line ending: CR LF counts once.
            if (ending == kCr && at_ < text_.size() && text_[at_] == kLf) ++at_;
            return row;
        }
    }

    // Stops before the comma or line ending that ends the field.
    QString field(bool& unterminated) {
        QString value;
        bool inQuotes = at_ < text_.size() && text_[at_] == kQuote;
        if (inQuotes) ++at_;
        while (at_ < text_.size()) {
            const QChar c = text_[at_];
            if (inQuotes) {
                ++at_;
                if (c != kQuote) {
                    value += c;
                } else if (at_ < text_.size() && text_[at_] == kQuote) {
                    value += kQuote;
                    ++at_;
                } else {
                    inQuotes = false;
                }
                continue;
            }
            if (c == kComma || c == kCr || c == kLf) break;
            value += c;
            ++at_;
        }
        if (inQuotes) unterminated = true;
        return value;
    }

    const QString& text_;
    qsizetype at_ = 0;
};

}  // namespace

QString csvRecord(const QStringList& fields) {
    QStringList written;
    written.reserve(fields.size());
    for (const QString& field : fields) written << (needsQuotes(field) ? quoted(field) : field);
    return written.join(kComma);
}

QString csvText(const std::vector<QStringList>& records) {
    QString text;
    for (const QStringList& record : records) text += csvRecord(record) + QLatin1String("\r\n");
    return text;
}

bool CsvRow::isBlank() const {
    return std::all_of(fields.begin(), fields.end(),
                       [](const QString& field) { return field.trimmed().isEmpty(); });
}

std::vector<CsvRow> parseCsv(const QString& text) {
    return Parser(text).rows();
}
