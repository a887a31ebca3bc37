#include "persistence/text_encoding.h"

#include <gtest/gtest.h>

#include "persistence/codeplug_file.h"

namespace {

const QString kWords = QStringLiteral("[BAND]\r\nband00=窄带\r\npower00=大\r\n");

TEST(TextEncoding, ReadsUtf8WithOrWithoutMarkAndGbkOtherwise) {
    const QByteArray gbk = encodeFileText(kWords);
    ASSERT_NE(gbk, kWords.toUtf8());  // the Chinese words really are GBK bytes
    EXPECT_EQ(gbk.mid(gbk.indexOf("band00=") + 7, 4), QByteArray("\xD5\xAD\xB4\xF8"));

    EXPECT_EQ(decodeFileText(gbk), kWords);
    EXPECT_EQ(decodeFileText(kWords.toUtf8()), kWords);
    EXPECT_EQ(decodeFileText(QByteArray("\xEF\xBB\xBF") + kWords.toUtf8()), kWords);
    EXPECT_EQ(decodeFileText(QByteArray("plain ascii")), QStringLiteral("plain ascii"));
}

TEST(TextEncoding, AByteOrderMarkMeansUtf8EvenWhenBytesAfterItAreNot) {
    // Read as GBK, the UTF-8 words would turn into other characters; the mark says UTF-8.
    const QByteArray bytes = QByteArray("\xEF\xBB\xBF") + kWords.toUtf8() + "bad=\xFF\xFE\r\n";
    const QString text = decodeFileText(bytes);
    EXPECT_TRUE(text.startsWith(kWords)) << text.toStdString();
    EXPECT_TRUE(text.contains(QChar::ReplacementCharacter));
    EXPECT_FALSE(text.startsWith(QChar(0xFEFF)));
}

TEST(TextEncoding, KeepsCharactersGbkLacks) {
    const QString text = QStringLiteral("€ 😀 ñ");
    EXPECT_EQ(decodeFileText(encodeFileText(text)), text);
}

TEST(TextEncoding, SplitsLinesOnEveryLineEnd) {
    const struct {
        const char* text;
        QStringList lines;
    } cases[] = {
        {"", {}},
        {"a", {"a"}},
        {"a\r\n", {"a"}},
        {"a\r\nb", {"a", "b"}},
        {"a\nb\n", {"a", "b"}},
        {"a\rb\r", {"a", "b"}},
        {"\r\n\r\n", {"", ""}},
        {"a\n\rb", {"a", "", "b"}},  // LF then CR: two line ends
    };
    for (const auto& c : cases) {
        EXPECT_EQ(splitLines(QString::fromUtf8(c.text)), c.lines) << c.text;
        EXPECT_EQ(CalFileLineCnt(QByteArray(c.text)), c.lines.size()) << c.text;
    }
    EXPECT_EQ(joinLines({"a", "", "b"}), QStringLiteral("a\r\n\r\nb\r\n"));
}

}  // namespace
