#include "persistence/private_profile.h"

#include <gtest/gtest.h>

#include "persistence/text_encoding.h"

namespace {

PrivateProfile profileOf(const char* text) {
    return PrivateProfile(splitLines(QString::fromUtf8(text)));
}

TEST(PrivateProfileRead, FollowsPrivateProfileRules) {
    const PrivateProfile profile = profileOf(
        "; note\r\n"
        "orphan=1\r\n"
        "[Config]\r\n"
        "  ChTot =  10  \r\n"
        "empty=\r\n"
        "blank=   \r\n"
        "dup=first\r\n"
        "dup=second\r\n"
        "no equals sign\r\n"
        "path=a=b\r\n"
        "[ Other ]\r\n"
        "x=1\r\n"
        "[config]\r\n"
        "late=only in the second section of the name\r\n");
    struct Case {
        const char* section;
        const char* key;
        std::optional<QString> expected;
    };
    const Case cases[] = {
        {"config", "chtot", QStringLiteral("10")},  // names compare without regard to case
        {"CONFIG", "CHTOT", QStringLiteral("10")},
        {"Config", "empty", std::nullopt},  // an empty value counts as missing
        {"Config", "blank", std::nullopt},
        {"Config", "dup", QStringLiteral("first")},  // the first key of a name counts
        {"Config", "path", QStringLiteral("a=b")},   // split at the first "="
        {"Config", "no equals sign", std::nullopt},
        {"Config", "x", std::nullopt},  // keys of the next section are not the section's
        {"other", "x", QStringLiteral("1")},
        {"Config", "late", std::nullopt},  // the first section of a name counts
        {"", "orphan", std::nullopt},
        {"Missing", "x", std::nullopt},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(profile.read(QString::fromUtf8(c.section), QString::fromUtf8(c.key)), c.expected)
            << c.section << "/" << c.key;
    }
}

TEST(PrivateProfileRead, OffersAFixedBufferAndDropsNulCharacters) {
    const QString longValue(300, QLatin1Char('x'));
    PrivateProfile profile(QStringList{QStringLiteral("[s]"), QStringLiteral("long=") + longValue,
                                       QStringLiteral("nul=a") + QChar(0) + QStringLiteral("b"),
                                       QStringLiteral("nuls=") + QChar(0) + QChar(0)});
    EXPECT_EQ(profile.read("s", "long"), longValue.left(PrivateProfile::kMaxValueLength));
    EXPECT_EQ(profile.read("s", "nul"), QStringLiteral("ab"));
    EXPECT_EQ(profile.read("s", "nuls"), std::nullopt);
}

TEST(PrivateProfileRead, IntegersTakeTheLeadingNumber) {
    const struct {
        const char* text;
        qint16 expected;
    } cases[] = {
        {"7", 7},           {"  12", 12},     {"-3", -3},
        {"+4", 4},          {"5x", 5},        {"x5", 0},
        {"1.9", 1},         {"32767", 32767}, {"99999999999", 32767},
        {"-99999", -32768},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(leadingInteger(QString::fromUtf8(c.text)), c.expected) << c.text;
    }
    const PrivateProfile profile = profileOf("[s]\r\nn=42\r\nempty=\r\n");
    EXPECT_EQ(profile.readInt("s", "n", 9), 42);
    EXPECT_EQ(profile.readInt("s", "empty", 9), 9);
    EXPECT_EQ(profile.readInt("s", "missing", 9), 9);
}

TEST(PrivateProfileWrite, ChangesOnlyTheLineItMust) {
    const QStringList original =
        splitLines(QString::fromUtf8("; note kept\r\n"
                                     "[Config]\r\n"
                                     "  chtot = 10 ; not a comment to a private-profile reader\r\n"
                                     "# another tool's note\r\n"
                                     "\r\n"
                                     "[经销商]\r\n"
                                     "名称=东方通信\r\n"));
    struct Case {
        const char* name;
        const char* section;
        const char* key;
        const char* value;
        QStringList expected;
    };
    auto with = [&](int at, const char* line, bool insert) {
        QStringList lines = original;
        if (insert)
            lines.insert(at, QString::fromUtf8(line));
        else
            lines[at] = QString::fromUtf8(line);
        return lines;
    };
    QStringList appended = original;
    appended << QStringLiteral("[POWER]") << QStringLiteral("power00=大");
    const Case cases[] = {
        {"replaces in place", "CONFIG", "CHTOT", "22", with(2, "CHTOT=22", false)},
        {"adds before the blank line", "config", "freqstep", "100", with(4, "freqstep=100", true)},
        {"adds to a section at the end", "经销商", "电话", "0571", with(7, "电话=0571", true)},
        {"adds a section at the end", "POWER", "power00", "大", appended},
        {"keeps a value on one line", "Config", "chtot", "a\r\nb", with(2, "chtot=a  b", false)},
    };
    for (const Case& c : cases) {
        // From a list of lines and from a file's text alike, and written twice over.
        for (PrivateProfile profile :
             {PrivateProfile(original), PrivateProfile::fromText(joinLines(original))}) {
            EXPECT_FALSE(profile.changed());
            for (int time = 0; time < 2; ++time) {
                profile.write(QString::fromUtf8(c.section), QString::fromUtf8(c.key),
                              QString::fromUtf8(c.value));
            }
            EXPECT_TRUE(profile.changed());
            EXPECT_EQ(profile.lines(), c.expected) << c.name;
            EXPECT_EQ(profile.text(), joinLines(c.expected)) << c.name;
        }
    }
}

TEST(PrivateProfileWrite, ThreeKeysIntoASectionKeepItsBlankTailAndOrder) {
    PrivateProfile profile = PrivateProfile::fromText("[freq]\r\n\r\n\r\n[next]\r\nk=v\r\n");
    for (const char* key : {"freq0", "freq1", "freq0"}) profile.write("FREQ", key, key);
    profile.write("freq", "freq2", "x");
    EXPECT_EQ(profile.lines(), (QStringList{"[freq]", "freq0=freq0", "freq1=freq1", "freq2=x", "",
                                            "", "[next]", "k=v"}));
    profile.write("next", "k", "v");  // the same line again changes nothing
    EXPECT_EQ(profile.readString("NEXT", "K", {}), "v");
}

}  // namespace
