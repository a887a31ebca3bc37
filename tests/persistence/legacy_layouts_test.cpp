#include "persistence/legacy_layouts.h"

#include <gtest/gtest.h>

#include "model/code_tables.h"
#include "persistence/text_encoding.h"
#include "test_support.h"

namespace {

// The samples are GBK with CR LF, as the old versions wrote them; the same content re-encoded
// as UTF-8 (with and without a byte-order mark) must read the same.
QList<QByteArray> encodingsOf(const QByteArray& gbk) {
    const QByteArray utf8 = decodeFileText(gbk).toUtf8();
    return {gbk, utf8, QByteArray("\xEF\xBB\xBF") + utf8};
}

struct Expected {
    const char* sample;
    CodeplugLayout layout;
    std::optional<UiLanguage> savedLanguage;
    std::array<qint16, kSettingCount> settings;  // in kAllSettings order
    const char* chtot;
    const char* freqstep;
    // slot 0: rx, tx frequency, rx, tx code; slot 3: band; slot 2: power; slot 1: custom rx tone
    const char* cells[7];
};

// Settings a layout does not carry keep their start values; agingtest starts at 1, so the
// 214-line layout leaves it at 1 and the 215-line one sets it to the 0 it holds.
const Expected kSamples[] = {
    {"v05.qzv",
     CodeplugLayout::V05,
     std::nullopt,
     {1, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 1},
     "20",
     "100",
     {"409.75000", "409.75000", "OFF", "OFF", "宽带", "大", "67.0"}},
    {"v13.qzv",
     CodeplugLayout::V13,
     UiLanguage::Chinese,
     {0, 1, 1, 1, 0, 1, 0, 1, 0, 1, 0, 0, 1},
     "22",
     "200",
     {"462.56250", "462.56250", "I023", "D023", "宽带", "小", "88.5"}},
    {"v16.qzv",
     CodeplugLayout::V16,
     UiLanguage::English,
     {1, 0, 0, 1, 1, 0, 1, 0, 1, 0, 0, 1, 1},
     "20",
     "100",
     {"409.75000", "409.75000", "OFF", "OFF", "narrow", "小", "67.0"}},
    {"v18.qzv",
     CodeplugLayout::V18,
     UiLanguage::Chinese,
     {3, 1, 1, 0, 1, 1, 1, 1, 1, 1, 0, 1, 0},
     "25",
     "300",
     {"462.56250", "462.56250", "I023", "D023", "宽带", "小", "173.8"}},
    {"current.qzv",
     CodeplugLayout::Current,
     std::nullopt,
     {0, 1, 1, 1, 0, 1, 0, 1, 1, 1, 0, 1, 1},
     "22",
     "100",
     {"462.56250", "462.56250", "I023", "D023", "宽带", "小", "88.5"}},
};

TEST(LegacyLayouts, ReadTheSamplesInEveryEncoding) {
    for (const Expected& e : kSamples) {
        SCOPED_TRACE(e.sample);
        QByteArray firstLoad;
        for (const QByteArray& bytes : encodingsOf(readSample(e.sample))) {
            Codeplug doc = startupDoc();
            doc.settings[SettingKey::agingtest] = 1;
            const Result<LoadedCodeplug> result = loadCodeplugData(doc, bytes, e.sample);
            ASSERT_TRUE(result.ok());
            EXPECT_EQ(result->layout, e.layout);
            EXPECT_EQ(result->savedLanguage, e.savedLanguage);
            EXPECT_EQ(doc.language, UiLanguage::Chinese);  // the flag never switches it
            for (int i = 0; i < kSettingCount; ++i) {
                EXPECT_EQ(doc.settings[kAllSettings[i]], e.settings[i])
                    << settingKeyName(kAllSettings[i]).toStdString();
            }
            EXPECT_EQ(doc.chtot, QString::fromUtf8(e.chtot));
            EXPECT_EQ(doc.freqstep, QString::fromUtf8(e.freqstep));
            const QString cells[] = {doc.plan[0].rxfreq,   doc.plan[0].txfreq, doc.plan[0].rxctc,
                                     doc.plan[0].txctc,    doc.plan[3].band,   doc.plan[2].power,
                                     doc.plan[1].rxctcfreq};
            for (int i = 0; i < 7; ++i) EXPECT_EQ(cells[i], QString::fromUtf8(e.cells[i])) << i;

            const QByteArray saved = codeplugFileBytes(doc);
            if (firstLoad.isEmpty()) firstLoad = saved;
            EXPECT_EQ(saved, firstLoad);
        }
    }
}

TEST(LegacyLayouts, CustomCodesAreShownInTheDocumentsLanguage) {
    for (UiLanguage language : {UiLanguage::Chinese, UiLanguage::English}) {
        Codeplug doc = startupDoc(language);
        ASSERT_TRUE(loadCodeplugData(doc, readSample("v13.qzv"), "v13.qzv").ok());
        EXPECT_EQ(doc.codeTable.size(), kProfessionalCodeCount);
        EXPECT_EQ(doc.plan[1].rxctc, language == UiLanguage::Chinese ? QStringLiteral("自定义")
                                                                     : QStringLiteral("Custom"));
        EXPECT_EQ(doc.plan[1].rxCodeToolTip, QStringLiteral("88.5"));
        EXPECT_EQ(doc.plan[2].rxctc, QStringLiteral("CDCSS"));
        EXPECT_EQ(doc.plan[2].rxCodeToolTip, QStringLiteral("D023"));  // no layout carries it
        EXPECT_EQ(doc.plan[5].txctcfreq, QStringLiteral("100.0"));
    }
}

TEST(LegacyLayouts, OldestLayoutsModeGoesThroughTheModeSwitch) {
    // "1:普通模式" asks for normal mode; fixed channels keep professional mode and its table.
    for (bool fixed : {false, true}) {
        Codeplug doc = startupDoc(UiLanguage::Chinese, fixed);
        ASSERT_TRUE(loadCodeplugData(doc, readSample("v05.qzv"), "v05.qzv").ok());
        EXPECT_EQ(doc.settings[SettingKey::normalmode], fixed ? 1 : 0);
        EXPECT_EQ(doc.codeTable.size(), fixed ? kProfessionalCodeCount : kNormalCodeCount);
        EXPECT_EQ(doc.plan[3].rxctc, QStringLiteral("D023"));
    }
}

TEST(LegacyLayouts, OldestLayoutsOptionTextsAreReadInEitherLanguage) {
    QStringList lines = splitLines(decodeFileText(readSample("v05.qzv")));
    lines[0] = QStringLiteral("2:Professional");
    lines[126] = QStringLiteral("1:USA");
    lines[129] = QStringLiteral("Disable");
    lines[130] = QStringLiteral("ON");
    lines[131] = QStringLiteral("no such option");
    Codeplug doc = startupDoc(UiLanguage::Chinese);
    ASSERT_TRUE(loadCodeplugData(doc, joinLines(lines).toUtf8(), "en.qzv").ok());
    EXPECT_EQ(doc.settings[SettingKey::normalmode], 1);
    EXPECT_EQ(doc.settings[SettingKey::freqsel], 0);
    EXPECT_EQ(doc.settings[SettingKey::txen], 1);
    EXPECT_EQ(doc.settings[SettingKey::busytxdis], 1);
    EXPECT_EQ(doc.settings[SettingKey::dtmfen], 2);  // matches no option: the option count
}

TEST(LegacyLayouts, NumbersThatAreNotNumbersReadAsZero) {
    QStringList lines = splitLines(decodeFileText(readSample("v18.qzv")));
    lines[0] = QStringLiteral("pro");   // normalmode
    lines[151] = QStringLiteral("2x");  // freqsel
    lines[152] = QStringLiteral("99");  // chtot
    lines[163] = QStringLiteral("");    // agingtest
    lines[164] = QStringLiteral("false");
    Codeplug doc = startupDoc();
    doc.settings[SettingKey::agingtest] = 1;
    const Result<LoadedCodeplug> result = loadCodeplugData(doc, joinLines(lines).toUtf8(), "x");
    ASSERT_TRUE(result.ok());
    EXPECT_EQ(result->savedLanguage, UiLanguage::English);
    EXPECT_EQ(doc.settings[SettingKey::normalmode], 0);
    EXPECT_EQ(doc.settings[SettingKey::freqsel], 2);
    EXPECT_EQ(doc.chtot, QStringLiteral("25"));
    EXPECT_EQ(doc.settings[SettingKey::agingtest], 0);
}

}  // namespace
