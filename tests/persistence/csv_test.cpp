// CSV export and import: what goes out comes back, and a file with bad cells names them all.
#include <gtest/gtest.h>

#include <algorithm>

#include "l10n/csv_texts.h"
#include "model/code_tables.h"
#include "model/editing.h"
#include "persistence/csv_export.h"
#include "persistence/csv_format.h"
#include "persistence/csv_import.h"
#include "persistence/csv_table.h"
#include "persistence/text_encoding.h"
#include "test_support.h"

namespace {

// A professional plan with every kind of code, a custom tone and a custom DCS in use, and
// unused memories as a radio read leaves them.
Codeplug professionalPlan(UiLanguage language) {
    Codeplug doc = startupDoc(language);
    doc.settings[SettingKey::normalmode] = 1;
    rebuildCodeTables(doc);
    for (int slot = 0; slot < kSlotCount; ++slot) {
        ChannelRecord& ch = doc.plan[slot];
        ch.rxfreq = QString::number(400.0125 + 3.5 * slot, 'f', 5);
        ch.txfreq = QString::number(409.75 + 0.00625 * slot, 'f', 5);
        ch.rxctc = doc.codeTable[slot * 11 % 266];
        ch.txctc = doc.codeTable[(slot * 7 + 160) % 266];
        ch.band = slot % 2 ? narrowWord(language) : wideWord(language);
        ch.power = slot % 3 ? highPowerWord(language) : lowPowerWord(language);
        ch.txctcfreq = QStringLiteral("0");
        ch.rxcdc = QString::number(2307 + slot);
    }
    doc.plan[4].rxctc = QStringLiteral("Custom");
    doc.plan[4].rxctcfreq = QStringLiteral("254.9");
    doc.plan[5].txctc = QStringLiteral("CDCSS");
    doc.plan[5].txcdc = QStringLiteral("I754");
    doc.plan[20].rxfreq = doc.plan[20].txfreq = QStringLiteral("000.00000");  // inactive, none
    doc.chtot = QStringLiteral("17");
    doc.freqstep = QStringLiteral("700");
    const qint16 values[] = {4, 1, 1, 0, 1, 1, 0, 1, 1, 0, 0, 1, 1};  // freqsel 4: no option
    for (int i = 0; i < kSettingCount; ++i) doc.settings[kAllSettings[i]] = values[i];
    RESET_TEXT(doc);
    return doc;
}

CsvImport imported(const QString& text, UiLanguage language = UiLanguage::English) {
    return importCsvText(startupDoc(language), text);
}

QStringList describe(const CellFaults& faults) {
    QStringList lines;
    for (const CellFault& fault : faults) {
        lines << l10n::describeCellFault(fault, UiLanguage::English);
    }
    return lines;
}

// The exported text with one cell replaced: `row` as a spreadsheet numbers it, `column` 1-based.
QString withCell(const QString& text, int row, int column, const QString& cell) {
    QStringList lines = text.split(QStringLiteral("\r\n"));
    QStringList fields = lines[row - 1].split(QLatin1Char(','));
    fields[column - 1] = cell;
    lines[row - 1] = fields.join(QLatin1Char(','));
    return lines.join(QStringLiteral("\r\n"));
}

TEST(Csv, ExportThenImportIsLosslessForEveryLayoutAndBothLanguages) {
    for (UiLanguage language : {UiLanguage::Chinese, UiLanguage::English}) {
        std::vector<std::pair<std::string, Codeplug>> plans = {
            {"start-up", startupDoc(language)},
            {"professional", professionalPlan(language)},
        };
        for (const char* sample : {"current.qzv", "v05.qzv", "v13.qzv", "v16.qzv", "v18.qzv"}) {
            Codeplug doc = startupDoc(language);
            ASSERT_TRUE(loadCodeplugData(doc, readSample(sample), QString::fromLatin1(sample)));
            plans.emplace_back(sample, doc);
        }
        for (const auto& [name, plan] : plans) {
            SCOPED_TRACE(name + (language == UiLanguage::Chinese ? " zh" : " en"));
            const QString text = codeplugCsvText(plan);
            const CsvImport back = imported(text, language);
            ASSERT_TRUE(back.document) << describe(back.faults).join('\n').toStdString();
            // A plan loaded from a file saved in the other language comes back in the words of
            // its own, as a language switch shows it.
            Codeplug expected = plan;
            applyLanguage(expected, language);
            expectSameCodeplug(expected, *back.document);
            EXPECT_EQ(codeplugFileBytes(expected), codeplugFileBytes(*back.document));
            EXPECT_EQ(codeplugCsvText(*back.document), text);
        }
    }
}

TEST(Csv, TheFileIsEnglishUtf8WithASettingsSection) {
    const QString text = codeplugCsvText(professionalPlan(UiLanguage::Chinese));
    const QStringList lines = text.split(QStringLiteral("\r\n"));
    EXPECT_EQ(lines[0], csv_format::channelHeader().join(','));
    EXPECT_EQ(lines[5], "5,yes,414.01250,409.77500,Custom,I155,wide,high,254.9,0,2311,D023");
    EXPECT_EQ(lines[6], "6,yes,417.51250,409.78125,245.1,CDCSS,narrow,high,67.0,0,2312,I754");
    EXPECT_EQ(lines[18], "18,no,459.51250,409.85625,I152,100,narrow,high,67.0,0,2324,D023");
    EXPECT_EQ(lines[26], "");
    EXPECT_EQ(lines[27], "setting,value");
    EXPECT_EQ(lines[28], "freqsel,4");  // an index no option has stays a number
    EXPECT_EQ(lines[29], "normalmode,2:Professional");
    EXPECT_EQ(lines[37], "autolock,OFF");
    EXPECT_EQ(lines[38], "freqband,0:400--470M");
    EXPECT_EQ(lines[40], "agingtest,Enable");
    EXPECT_EQ(lines[41], "freqstep,700");
    ASSERT_EQ(lines.size(), 43);
    EXPECT_EQ(lines[42], "");  // the text ends with CR LF
}

TEST(Csv, FieldsSurviveQuoting) {
    const QStringList fields = {"plain",     "a,b",         "say \"hi\"", "two\r\nlines",
                                "one\nline", " blanks ",    "",           "\"",
                                "自定义",    "trailing,\"", ","};
    const QString record = csvRecord(fields);
    EXPECT_EQ(csvRecord({"a,b", "x\"y", "z"}), "\"a,b\",\"x\"\"y\",z");
    for (const QString ending : {"\r\n", "\n", "\r"}) {
        // The last line may end or not.
        for (const QString& text :
             {record + ending + "next,row" + ending, record + ending + "next,row"}) {
            const std::vector<CsvRow> rows = parseCsv(text);
            ASSERT_EQ(rows.size(), 2u) << text.toStdString();
            EXPECT_EQ(rows[0].fields, fields);
            EXPECT_EQ(rows[1].fields, QStringList({"next", "row"}));
            EXPECT_EQ(rows[1].number, 2);
        }
    }
}

TEST(Csv, ParsingForgivesWhatSpreadsheetsAndPeopleWrite) {
    const struct {
        const char* text;
        std::vector<QStringList> fields;
        bool unterminated;
    } cases[] = {
        {"a\"b,c", {{"a\"b", "c"}}, false},                    // a quote inside a field is text
        {"\"ab\"cd,e", {{"abcd", "e"}}, false},                // text after the closing quote kept
        {"\"open,field\nnext", {{"open,field\nnext"}}, true},  // never closed: to the end
        {"\n\n", {{""}, {""}}, false},                         // blank lines count as rows
        {",,", {{"", "", ""}}, false},
    };
    for (const auto& c : cases) {
        const std::vector<CsvRow> rows = parseCsv(QString::fromUtf8(c.text));
        ASSERT_EQ(rows.size(), c.fields.size()) << c.text;
        for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_EQ(rows[i].fields, c.fields[i]);
        EXPECT_EQ(rows.back().unterminatedQuote, c.unterminated) << c.text;
    }
}

TEST(Csv, ImportTakesBothLanguagesWordsAnyCaseAndAnyRowOrder) {
    QString text = codeplugCsvText(professionalPlan(UiLanguage::English));
    text = withCell(text, 2, 2, "是");      // active
    text = withCell(text, 2, 7, " 窄带 ");  // bandwidth, with blanks
    text = withCell(text, 3, 8, "大");      // power
    text = withCell(text, 3, 5, "自定义");  // custom tone, Chinese
    text = withCell(text, 4, 5, "i023");    // inverted DCS, lower case
    text = withCell(text, 4, 7, "WIDE");
    text = withCell(text, 30, 2, "2:专业模式");  // normalmode
    text = withCell(text, 33, 2, "开");          // dtmfen
    // Channel 25's row first, a blank row between, LF endings, a byte-order mark.
    QStringList lines = text.split("\r\n");
    lines.move(25, 1);
    lines.insert(3, QString());
    const QByteArray bytes = "\xEF\xBB\xBF" + lines.join('\n').toUtf8();

    const CsvImport back = importCsvBytes(startupDoc(UiLanguage::English), bytes);
    ASSERT_TRUE(back.document) << describe(back.faults).join('\n').toStdString();
    const ChannelPlan& plan = back.document->plan;
    EXPECT_EQ(plan[0].band, "narrow");
    EXPECT_EQ(plan[1].power, "high");
    EXPECT_EQ(plan[1].rxctc, "Custom");
    EXPECT_EQ(plan[2].rxctc, "I023");
    EXPECT_EQ(plan[2].band, "wide");
    EXPECT_EQ(back.document->settings[SettingKey::dtmfen], 1);
    EXPECT_EQ(plan[24].rxfreq, professionalPlan(UiLanguage::English).plan[24].rxfreq);

    // Into a Chinese document the words come back in Chinese; GBK, as a Chinese spreadsheet
    // saves the file, reads the same.
    for (const QByteArray& encoded : {bytes, encodeFileText(lines.join('\n'))}) {
        const CsvImport chinese = importCsvBytes(startupDoc(UiLanguage::Chinese), encoded);
        ASSERT_TRUE(chinese.document);
        EXPECT_EQ(chinese.document->plan[0].band, "窄带");
        EXPECT_EQ(chinese.document->plan[2].band, "宽带");
        EXPECT_EQ(chinese.document->plan[1].rxctc, "自定义");
    }
}

TEST(Csv, ThreeBadCellsAreAllReportedAndNothingIsImported) {
    QString text = codeplugCsvText(professionalPlan(UiLanguage::English));
    text = withCell(text, 3, 3, "512.00000");  // channel 2 is active: outside band 0
    text = withCell(text, 8, 6, "D999");
    text = withCell(text, 12, 8, "medium");
    const CsvImport back = imported(text);
    EXPECT_FALSE(back.document);
    EXPECT_EQ(describe(back.faults),
              QStringList({"row 3, column 3 (rx_frequency): 512.00000 is outside the band "
                           "400–500 MHz",
                           "row 8, column 6 (tx_code): \"D999\" is not in this mode's code list",
                           "row 12, column 8 (power): \"medium\" is none of: high, low, 大, 小"}));
}

TEST(Csv, EveryCellCheckNamesItsCell) {
    // Rows: 1 header, 2..26 channels 1..25 (1..17 active), 28 "setting,value", 29.. settings.
    const QString good = codeplugCsvText(professionalPlan(UiLanguage::English));
    const std::optional<CellFaultKind> accepted;
    const struct {
        int row, column;
        const char* cell;
        std::optional<CellFaultKind> fault;
        int faultRow = 0;  // where the fault is reported, when not in the changed row
    } cases[] = {
        {3, 3, "462.562500", CellFaultKind::TooLong},  // the 9-character limit
        {3, 4, "4x2.5", CellFaultKind::NotANumber},
        {3, 3, "399.99999", CellFaultKind::OutOfBand},
        {3, 4, "500", CellFaultKind::OutOfBand},
        {3, 3, "400", accepted},
        {3, 4, "000.00000", accepted},  // a slot without a frequency
        {20, 3, "512.5", accepted},     // inactive: any frequency the picture shows
        {20, 3, "1000", CellFaultKind::OutOfBand},
        {20, 3, "-1", CellFaultKind::OutOfBand},
        {3, 5, "D506", accepted},  // in the professional list only
        {3, 6, "D024", CellFaultKind::CodeNotInList},
        {3, 6, "", CellFaultKind::CodeNotInList},
        {3, 5, "custom", accepted},                     // channel 2's memory holds 67.0
        {6, 9, "66.9", CellFaultKind::ToneOutOfRange},  // channel 5's tone is in use
        {6, 9, "255.0", CellFaultKind::ToneOutOfRange},
        {6, 9, "254.99", accepted},
        {6, 9, "", CellFaultKind::NotANumber},
        {7, 9, "", accepted},  // not in use: may be empty
        {7, 10, "9999", CellFaultKind::ToneOutOfRange},
        {7, 10, "many", CellFaultKind::NotANumber},
        {7, 12, "D8", CellFaultKind::NotADcsCode},  // channel 6's DCS is in use
        {7, 12, "", CellFaultKind::NotADcsCode},
        {7, 12, "16777215", accepted},
        {7, 12, "16777216", CellFaultKind::NotADcsCode},
        {8, 11, "", accepted},
        {8, 11, "D023x", CellFaultKind::NotADcsCode},
        {3, 7, "broad", CellFaultKind::UnknownWord},
        {3, 8, "", CellFaultKind::UnknownWord},
        {3, 2, "maybe", CellFaultKind::UnknownWord},
        {18, 2, "no", accepted},                              // the active run ends one earlier
        {5, 2, "no", CellFaultKind::ActiveAfterInactive, 6},  // channel 5 after the gap
        {2, 1, "2", CellFaultKind::ChannelRepeated, 3},
        {2, 1, "2", CellFaultKind::ChannelMissing, 28},  // channel 1
        {2, 1, "26", CellFaultKind::ChannelNumber},
        {29, 2, "5:Mars", CellFaultKind::SettingValue},
        {29, 2, "3", accepted},
        {29, 2, "40000", CellFaultKind::SettingValue},
        {29, 1, "freqsell", CellFaultKind::SettingUnknown},
        {29, 1, "freqsell", CellFaultKind::SettingMissing, 28},
        {30, 1, "FREQSEL", CellFaultKind::SettingRepeated},
        {30, 1, "FREQSEL", CellFaultKind::SettingMissing, 28},  // normalmode
        {42, 2, "1.5", CellFaultKind::NotAWholeNumber},
        {1, 4, "tx_freq", CellFaultKind::HeaderName},
        {28, 2, "values", CellFaultKind::HeaderName},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.row) + "," + std::to_string(c.column) + " " + c.cell);
        const CsvImport back = imported(withCell(good, c.row, c.column, QString::fromUtf8(c.cell)));
        const std::string found = describe(back.faults).join('\n').toStdString();
        if (!c.fault) {
            EXPECT_TRUE(back.document) << found;
            continue;
        }
        EXPECT_FALSE(back.document);
        const int row = c.faultRow ? c.faultRow : c.row;
        EXPECT_TRUE(std::any_of(back.faults.begin(), back.faults.end(), [&](const CellFault& f) {
            return f.kind == *c.fault && f.row == row;
        })) << found;
    }

    // The codes are judged by the file's own mode.
    const CsvImport normal = imported(withCell(good, 30, 2, "1:normal"));
    ASSERT_FALSE(normal.faults.empty());
    EXPECT_EQ(describe(normal.faults).first(),
              "row 2, column 6 (tx_code): \"D754\" is not in this mode's code list");
}

TEST(Csv, TheShapeOfTheTableIsChecked) {
    const QStringList good =
        codeplugCsvText(professionalPlan(UiLanguage::English)).split(QStringLiteral("\r\n"));
    const auto without = [&good](int row) {
        QStringList lines = good;
        lines.removeAt(row - 1);
        return lines.join("\r\n");
    };
    const auto changed = [&good](int row, const QString& line) {
        QStringList lines = good;
        lines[row - 1] = line;
        return lines.join("\r\n");
    };
    const struct {
        QString text;
        QStringList faults;
    } cases[] = {
        {"", {"row 1: the header should read \"" + csv_format::channelHeader().join(',') + "\""}},
        {without(5), {"row 27: channel 4 has no row"}},
        {without(2), {"row 27: channel 1 has no row"}},  // channel 2 may be the first active one
        {without(31), {"row 28: setting txen is missing"}},
        {without(28),
         {"row 42: the settings section (a \"setting,value\" row and the settings "
          "below it) is missing"}},
        {changed(4, good[3] + ","), {}},  // a spreadsheet's padding
        {changed(4, good[3] + ",note"), {"row 4: 13 fields where 12 belong"}},
        {changed(4, good[3].section(',', 0, 10)), {"row 4: 11 fields where 12 belong"}},
        {changed(33, "dtmfen,on,,,"), {}},
        {changed(33, "dtmfen"), {"row 33: 1 fields where 2 belong"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text.left(60).toStdString());
        const CsvImport back = imported(c.text);
        EXPECT_EQ(back.document.has_value(), c.faults.isEmpty());
        const QStringList found = describe(back.faults);
        for (const QString& fault : c.faults) {
            EXPECT_TRUE(found.contains(fault)) << found.join('\n').toStdString();
        }
    }

    // Every channel inactive: channel 1 at least must be active.
    QString none = good.join("\r\n");
    none.replace(",yes,", ",no,");
    const CsvImport back = imported(none);
    ASSERT_FALSE(back.faults.empty());
    EXPECT_EQ(describe(back.faults).first(),
              "row 2, column 2 (active): no channel is active: channel 1 at least must be");

    // A quote left open swallows the rest of the file: said once, where it opened.
    const CsvImport open = imported(changed(4, "3,\"yes" + good[3].mid(5)));
    ASSERT_FALSE(open.faults.empty());
    EXPECT_EQ(describe(open.faults).first(), "row 4: a quoted field is never closed");
}

}  // namespace
