#include "persistence/codeplug_file.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "l10n/error_texts.h"
#include "model/code_tables.h"
#include "model/editing.h"
#include "persistence/file_access.h"
#include "persistence/text_encoding.h"
#include "test_support.h"

namespace {

QByteArray fileBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

// A plan that uses every kind of value a file has to carry.
Codeplug variedPlan() {
    Codeplug doc = startupDoc(UiLanguage::English);
    doc.settings[SettingKey::normalmode] = 1;
    rebuildCodeTables(doc);
    for (int slot = 0; slot < kSlotCount; ++slot) {
        ChannelRecord& ch = doc.plan[slot];
        ch.rxfreq = QString::number(462.5625 + 0.0125 * slot, 'f', 5);
        ch.txfreq = QString::number(467.5625 + 0.0125 * slot, 'f', 5);
        ch.rxctc = doc.codeTable[slot * 10 % 268];
        ch.txctc = doc.codeTable[(slot * 7 + 3) % 268];
        ch.band = slot % 2 ? QStringLiteral("窄带") : QStringLiteral("wide");
        ch.power = slot % 3 ? QStringLiteral("high") : QStringLiteral("小");
        ch.rxctcfreq = QStringLiteral("88.5");
        ch.txcdc = QStringLiteral("I754");
    }
    doc.plan[4].rxctc = QStringLiteral("Custom");
    doc.plan[5].txctc = QStringLiteral("CDCSS");
    const qint16 values[] = {2, 1, 1, 0, 1, 1, 0, 1, 1, 0, 3, 1, 1};
    for (int i = 0; i < kSettingCount; ++i) doc.settings[kAllSettings[i]] = values[i];
    doc.chtot = QStringLiteral("10");
    doc.freqstep = QStringLiteral("700");
    RESET_TEXT(doc);
    return doc;
}

TEST(CodeplugFile, RoundTripKeepsThePlanAndTheBytes) {
    QTemporaryDir dir;
    const QString first = dir.filePath("first.qzv");
    const QString second = dir.filePath("second.qzv");
    const Codeplug saved = variedPlan();
    ASSERT_TRUE(WriteSaveFile(saved, first).ok());

    Codeplug loaded = startupDoc(UiLanguage::English);
    const Result<LoadedCodeplug> result = openCodeplugFile(loaded, first);
    ASSERT_TRUE(result.ok());
    EXPECT_EQ(result->layout, CodeplugLayout::Current);
    expectSameCodeplug(saved, loaded);
    // All 25 slots come back, only the first chtot of them editable.
    EXPECT_EQ(loaded.plan[24].rxfreq, QStringLiteral("462.86250"));
    EXPECT_EQ(RESET_Ch_Sel(loaded)[9], true);
    EXPECT_EQ(RESET_Ch_Sel(loaded)[10], false);

    ASSERT_TRUE(WriteSaveFile(loaded, second).ok());
    EXPECT_EQ(fileBytes(first), fileBytes(second));
    ASSERT_TRUE(WriteSaveFile(loaded, first).ok());  // over itself
    EXPECT_EQ(fileBytes(first), fileBytes(second));
}

TEST(CodeplugFile, WritesTheCurrentLayoutInOrder) {
    Codeplug doc = startupDoc();
    doc.plan[3].rxctc = QStringLiteral("D023");
    const QByteArray bytes = codeplugFileBytes(doc);
    EXPECT_TRUE(bytes.endsWith("agingtest=0\r\n"));
    EXPECT_FALSE(bytes.contains("\n\n") || bytes.contains("\r\r"));
    EXPECT_TRUE(bytes.contains(QByteArray("band00=\xD5\xAD\xB4\xF8\r\n")));  // GBK "窄带"

    const QStringList lines = splitLines(decodeFileText(bytes));
    ASSERT_EQ(lines.size(), 10 * 26 + 16);
    const char* const sections[] = {"Rxfreq", "Txfreq",    "RxCtc",     "TxCtc", "BAND",
                                    "POWER",  "RxCtcFreq", "TxCtcFreq", "RxCdc", "TxCdc"};
    for (int s = 0; s < 10; ++s) {
        EXPECT_EQ(lines[s * 26], QStringLiteral("[%1]").arg(QLatin1String(sections[s])));
    }
    EXPECT_EQ(lines[1], QStringLiteral("rxfreq00=000.00000"));
    EXPECT_EQ(lines[10], QStringLiteral("rxfreq09=000.00000"));
    EXPECT_EQ(lines[25], QStringLiteral("rxfreq24=000.00000"));
    EXPECT_EQ(lines[2 * 26 + 4], QStringLiteral("rxctc03=D023"));
    EXPECT_EQ(lines[6 * 26 + 1], QStringLiteral("rxctcfreq00=67.0"));
    EXPECT_EQ(lines[9 * 26 + 25], QStringLiteral("txcdc24=D023"));
    EXPECT_EQ(lines.mid(260),
              (QStringList{"[Config]", "freqsel=3", "normalmode=0", "txen=0", "busytxdis=0",
                           "dtmfen=0", "voicebrc=0", "sos=0", "bluetooth=0", "fm=0", "chtot=22",
                           "freqstep=100", "autolock=0", "freqband=0", "tot=0", "agingtest=0"}));
}

TEST(CodeplugFile, SavingOverAFileKeepsEverythingElseInIt) {
    QTemporaryDir dir;
    const QString path = dir.filePath("fleet.qzv");
    const QByteArray original = readSample("current.qzv");
    writeFile(path, original);

    Codeplug doc = startupDoc();
    ASSERT_TRUE(openCodeplugFile(doc, path).ok());
    doc.plan[2].txfreq = QStringLiteral("462.00000");
    ASSERT_TRUE(WriteSaveFile(doc, path).ok());

    const QStringList before = splitLines(decodeFileText(original));
    const QStringList after = splitLines(decodeFileText(fileBytes(path)));
    ASSERT_EQ(before.size(), after.size());
    for (int i = 0; i < before.size(); ++i) {
        if (before[i].startsWith(QLatin1String("txfreq02="))) {
            EXPECT_EQ(after[i], QStringLiteral("txfreq02=462.00000"));
        } else {
            EXPECT_EQ(after[i], before[i]) << "line " << i + 1;
        }
    }
    EXPECT_EQ(after.first(), QStringLiteral("; 车队频率 2019"));
    EXPECT_EQ(after.last(), QStringLiteral("电话=0571-88888888"));
}

TEST(CodeplugFile, MissingKeysTakeTheirDefaults) {
    const struct {
        const char* config;
        const char* chtot;
        const char* freqstep;
    } cases[] = {
        {"[Config]\r\nchtot=30\r\n", "25", "100"},
        {"[config]\r\nCHTOT=25\r\nfreqstep=300\r\n", "25", "300"},
        {"[Config]\r\nchtot=10\r\n", "10", "100"},
        {"[Config]\r\nchtot=-5\r\n", "1", "100"},  // would send 251 channels
        {"[Config]\r\nchtot=-1e300\r\n", "1", "100"},
        {"[Config]\r\nchtot=1e300\r\n", "25", "100"},
        {"[Config]\r\nchtot=0\r\n", "1", "100"},
        {"[Rxfreq]\r\nrxfreq00=462.56250\r\n", "22", "100"},
        {"[Config]\r\nchtot=\r\nfreqstep=\r\n", "22", "100"},
    };
    for (const auto& c : cases) {
        Codeplug doc = startupDoc();
        doc.settings[SettingKey::tot] = 1;
        ASSERT_TRUE(loadCodeplugData(doc, QByteArray(c.config), "x.qzv").ok()) << c.config;
        EXPECT_EQ(doc.chtot, QLatin1String(c.chtot)) << c.config;
        EXPECT_EQ(doc.freqstep, QLatin1String(c.freqstep)) << c.config;
        for (SettingKey key : kAllSettings) EXPECT_EQ(doc.settings[key], 0) << c.config;
        EXPECT_EQ(doc.plan[7].rxctc, QString()) << c.config;
        EXPECT_EQ(doc.plan[7].power, QString()) << c.config;
        EXPECT_EQ(doc.plan[7].rxcdc, QString()) << c.config;
        EXPECT_EQ(doc.plan[7].rxfreq, QStringLiteral("000.00000")) << c.config;
    }
}

TEST(CodeplugFile, ModeIsReadFirstAndNoStaleCodeSurvives) {
    Codeplug doc = startupDoc();  // every code "67.0", normal mode
    const QByteArray file =
        "[RxCtc]\r\nrxctc00=I023\r\n[TxCtc]\r\ntxctc00=自定义\r\n"
        "[TxCtcFreq]\r\ntxctcfreq00=88.5\r\n[Config]\r\nnormalmode=1\r\n";
    ASSERT_TRUE(loadCodeplugData(doc, file, "pro.qzv").ok());
    EXPECT_EQ(doc.codeTable.size(), kProfessionalCodeCount);
    EXPECT_EQ(OptionIndexLookup(doc.codeTable, doc.plan[0].rxctc), 161);
    EXPECT_EQ(doc.plan[0].txctc, QStringLiteral("自定义"));
    EXPECT_EQ(doc.plan[0].txCodeToolTip, QStringLiteral("88.5"));
    EXPECT_EQ(doc.plan[1].rxctc, QString());  // not "67.0" from before
}

TEST(CodeplugFile, RefusesWhatItCannotReadAndLeavesThePlanAlone) {
    QTemporaryDir dir;
    const QString twoHundredTwelve = dir.filePath("212.qzv");
    writeFile(twoHundredTwelve, QByteArray("462.56250\r\n").repeated(212));
    const QString empty = dir.filePath("empty.qzv");
    writeFile(empty, QByteArray());
    const QString prose = dir.filePath("notes.txt");
    writeFile(prose, "Channel list for the fleet\r\n[Dealer]\r\nname=East\r\n");
    const QString tooLarge = dir.filePath("huge.qzv");
    writeFile(tooLarge, QByteArray(kMaxFileSize + 1, ' '));

    const struct {
        QString path;
        ErrorKind kind;
    } cases[] = {
        {dir.filePath("missing.qzv"), ErrorKind::CannotOpen},
        {dir.path(), ErrorKind::CannotOpen},
        {tooLarge, ErrorKind::TooLarge},
        {empty, ErrorKind::NotACodeplug},
        {prose, ErrorKind::NotACodeplug},
        {twoHundredTwelve, ErrorKind::UnreadLayout},
    };
    const Codeplug before = variedPlan();
    for (const auto& c : cases) {
        Codeplug doc = before;
        const Result<LoadedCodeplug> result = openCodeplugFile(doc, c.path);
        ASSERT_FALSE(result.ok()) << c.path.toStdString();
        EXPECT_EQ(result.error().kind, c.kind) << c.path.toStdString();
        EXPECT_TRUE(l10n::describeError(result.error(), UiLanguage::English)
                        .startsWith(QDir::toNativeSeparators(c.path)));
        EXPECT_EQ(codeplugFileBytes(doc), codeplugFileBytes(before)) << c.path.toStdString();
    }
}

}  // namespace
