#include "l10n/texts.h"

#include <gtest/gtest.h>

using l10n::MessageId;

namespace {

struct Entry {
    QString (*table)(int, UiLanguage);
    int index;
    const char* chinese;
    const char* english;
};

QString messageAt(int index, UiLanguage lang) {
    return l10n::message(static_cast<MessageId>(index), lang);
}

TEST(TextTables, EntriesSitAtTheirPositionsInBothLanguages) {
    const Entry entries[] = {
        {l10n::caption, 0, "工程测试", "Program"},
        {l10n::caption, 10, "编程操作(&X)", "Program"},
        {l10n::caption, 16, "语言/language", "语言/language"},
        {l10n::caption, 23, "4:自定义频率", "4:custom"},
        {l10n::caption, 30, "禁止", "Disable"},
        {l10n::caption, 54, "窄带", "narrow"},
        {l10n::caption, 57, "小", "low"},
        {l10n::caption, 61, "自定义", "Custom"},
        {l10n::caption, 66, "3:100--200M", "3:100--200M"},
        {l10n::caption, 67, "CDCSS", "CDCSS"},
        {l10n::serviceCaption, 0, "工程模式", "Enginnering"},
        {l10n::serviceCaption, 6, "向对讲机写入数据", "Write data to Radio"},
        {l10n::serviceCaption, 9, "RX PWM", "RX PWM"},
        {l10n::idCaption, 4, "(十进制)", "(decimal)"},
        {l10n::idCaption, 6, "读ID", "Read ID"},
        {messageAt, 0, "该串口不存在或有问题", "COM error"},
        {messageAt, 8, "正在读频......", "Reading......"},
        {messageAt, 13, "信道频率输入错误，请重新输入",
         "Channl Frequency Input error，Please edit again"},
        {messageAt, 21, "通讯失败，请检查对讲机是否进入写频模式",
         "Transmission Error，Check Radio"},
        {messageAt, 25, "写频失败，请检查输入是否正确", "Write Error，Please check"},
        {messageAt, 29, "CTCSS 频率输入错误，请重新输入",
         "CTCSS Frequency Input error，Please edit again"},
    };
    for (const Entry& e : entries) {
        SCOPED_TRACE(e.index);
        EXPECT_EQ(e.table(e.index, UiLanguage::Chinese), QString::fromUtf8(e.chinese));
        EXPECT_EQ(e.table(e.index, UiLanguage::English), QString::fromUtf8(e.english));
    }
}

TEST(TextTables, EveryEntryExistsAndNothingBeyond) {
    const struct {
        QString (*table)(int, UiLanguage);
        int count;
    } tables[] = {{l10n::caption, l10n::kCaptionCount},
                  {l10n::serviceCaption, l10n::kServiceCaptionCount},
                  {l10n::idCaption, l10n::kIdCaptionCount},
                  {messageAt, l10n::kMessageCount}};
    for (const auto& t : tables) {
        for (UiLanguage lang : {UiLanguage::Chinese, UiLanguage::English}) {
            for (int i = 0; i < t.count; ++i) EXPECT_FALSE(t.table(i, lang).isEmpty()) << i;
            EXPECT_TRUE(t.table(t.count, lang).isEmpty());
            EXPECT_TRUE(t.table(-1, lang).isEmpty());
        }
    }
}

TEST(TextTables, ChannelMessageRunsPrefixNumberAndTextTogether) {
    EXPECT_EQ(l10n::channelMessage(MessageId::MsgChannelFreqError, 3, UiLanguage::Chinese),
              QString::fromUtf8("第3信道频率输入错误，请重新输入"));
    EXPECT_EQ(l10n::channelMessage(MessageId::MsgChannelFreqError, 3, UiLanguage::English),
              QString::fromUtf8("Num3Channl Frequency Input error，Please edit again"));
}

TEST(TextTables, OnlyTheExactWordEnglishSelectsEnglish) {
    EXPECT_EQ(languageFromConfigText("English"), UiLanguage::English);
    for (const char* text : {"english", "ENGLISH", "Chinese", "", " English"})
        EXPECT_EQ(languageFromConfigText(text), UiLanguage::Chinese) << text;
    EXPECT_EQ(configTextOf(UiLanguage::English), "English");
    EXPECT_EQ(configTextOf(UiLanguage::Chinese), "Chinese");
}

}  // namespace

#include "l10n/display_width.h"

namespace {

TEST(DisplayWidth, WideCharactersTakeTwoColumns) {
    const struct {
        QString text;
        int width;
    } cases[] = {
        {"", 0},
        {"446.00625", 9},
        {"窄带", 4},
        {"接收亚音", 8},
        {"Write Error，Please Check", 25},  // a full-width comma
        {"自定义", 6},
        {"D023", 4},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(l10n::displayWidth(c.text), c.width) << c.text.toStdString();
    }
    EXPECT_EQ(l10n::padToWidth("大", 4), "大  ");
    EXPECT_EQ(l10n::padToWidth("high", 2), "high");
}

}  // namespace
