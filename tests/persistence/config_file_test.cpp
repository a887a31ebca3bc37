#include "persistence/config_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "model/codeplug.h"
#include "persistence/text_encoding.h"

namespace {

class ConfigFileTest : public ::testing::Test {
protected:
    QByteArray bytes() const {
        QFile file(path_);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList lines() const { return splitLines(decodeFileText(bytes())); }
    void write(const QByteArray& content) {
        QFile file(path_);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    void writeLines(const QStringList& content) { write(encodeFileText(joinLines(content))); }

    QTemporaryDir dir_;
    QString path_ = dir_.filePath("config.ini");
};

QStringList group(const char* section, const char* stem, int count, const QString& value) {
    QStringList lines{QStringLiteral("[%1]").arg(QLatin1String(section))};
    for (int i = 0; i < count; ++i) lines << QStringLiteral("%1%2=%3").arg(stem).arg(i).arg(value);
    return lines;
}

QStringList completeDefaultFile() {
    return QStringList{"[config]", "Lang=Chinese", "fixch=no", "maxch=22", "defband=0"} +
           group("freq", "freq", 30, "0") + group("ctcss", "ctc", 30, "67.0") +
           group("power", "pwr", 30, "high") + group("band", "band", 25, QStringLiteral("窄带"));
}

TEST_F(ConfigFileTest, FirstStartWritesTheCompleteFile) {
    const StartupConfig config = ReadConfigFile(path_);
    EXPECT_EQ(lines(), completeDefaultFile());
    EXPECT_TRUE(bytes().contains("band24=\xD5\xAD\xB4\xF8\r\n"));  // GBK, CR LF

    const Codeplug doc = buildStartupCodeplug(config);
    EXPECT_EQ(doc.language, UiLanguage::Chinese);
    EXPECT_FALSE(doc.channelsFixed);
    EXPECT_EQ(doc.chtot, QStringLiteral("22"));
    EXPECT_EQ(doc.settings[SettingKey::freqband], 0);
    for (const ChannelRecord& ch : doc.plan) {
        EXPECT_EQ(ch.rxfreq, QStringLiteral("000.00000"));
        EXPECT_EQ(ch.txctc, QStringLiteral("67.0"));
        EXPECT_EQ(ch.power, QStringLiteral("大"));
        EXPECT_EQ(powerColour(ch.power), kPowerColourHigh);
        EXPECT_EQ(ch.band, QStringLiteral("窄带"));
    }

    const QByteArray written = bytes();
    ReadConfigFile(path_);
    EXPECT_EQ(bytes(), written);  // a complete file is not touched again
}

TEST_F(ConfigFileTest, ValuesAreTakenExactlyAsTheyAreWritten) {
    struct Case {
        const char* line;
        UiLanguage language;
        bool fixed;
        const char* maxch;
        int defband;
    };
    const Case cases[] = {
        {"Lang=English", UiLanguage::English, false, "22", 0},
        {"Lang=english", UiLanguage::Chinese, false, "22", 0},
        {"LANG=Français", UiLanguage::Chinese, false, "22", 0},
        {"fixch=No", UiLanguage::Chinese, true, "22", 0},
        {"fixch=yes", UiLanguage::Chinese, true, "22", 0},
        {"maxch=30", UiLanguage::Chinese, false, "25", 0},
        {"maxch=0", UiLanguage::Chinese, false, "1", 0},
        {"maxch=12", UiLanguage::Chinese, false, "12", 0},
        {"defband=2", UiLanguage::Chinese, false, "22", 2},
        {"defband=two", UiLanguage::Chinese, false, "22", 0},
    };
    for (const Case& c : cases) {
        QStringList content = completeDefaultFile();
        const QString line = QString::fromUtf8(c.line);
        const QString key = line.section(QLatin1Char('='), 0, 0).toLower();
        for (QString& l : content) {
            if (l.toLower().startsWith(key + QLatin1Char('='))) l = line;
        }
        content[content.indexOf("freq3=0")] = QStringLiteral("freq3=462.5625");
        writeLines(content);

        const StartupConfig config = ReadConfigFile(path_);
        EXPECT_EQ(config.language, c.language) << c.line;
        EXPECT_EQ(config.channelsFixed, c.fixed) << c.line;
        EXPECT_EQ(config.maxch, QLatin1String(c.maxch)) << c.line;
        EXPECT_EQ(config.defband, c.defband) << c.line;
        EXPECT_EQ(config.presets.frequency[3], QStringLiteral("462.5625")) << c.line;
        EXPECT_EQ(lines(), content) << c.line;  // present keys are never rewritten
    }
}

TEST_F(ConfigFileTest, EmptyValuesCountAsMissing) {
    writeLines({"; dealer's settings", "[CONFIG]", "lang=", "fixch=no", "[other]", "x=1"});
    ReadConfigFile(path_);
    const QStringList result = lines();
    EXPECT_EQ(result.mid(0, 7), (QStringList{"; dealer's settings", "[CONFIG]", "Lang=Chinese",
                                             "fixch=no", "maxch=22", "defband=0", "[other]"}));
    EXPECT_EQ(result[7], QStringLiteral("x=1"));
    EXPECT_EQ(result[8], QStringLiteral("[freq]"));
}

TEST_F(ConfigFileTest, OnlyTheFirstPresetKeyDecidesWhetherAGroupIsWritten) {
    // freq0 present, freq5 missing: nothing is written and slot 5 starts empty.
    QStringList content = completeDefaultFile();
    content.removeAll(QStringLiteral("freq5=0"));
    writeLines(content);
    StartupConfig config = ReadConfigFile(path_);
    EXPECT_EQ(lines(), content);
    EXPECT_EQ(config.presets.frequency[5], QString());
    EXPECT_EQ(config.presets.frequency[4], QStringLiteral("0"));
    EXPECT_EQ(buildStartupCodeplug(config).plan[5].rxfreq, QString());

    // pwr0 missing: the whole group is written again, over the keys that were there.
    content = completeDefaultFile();
    content.removeAll(QStringLiteral("pwr0=high"));
    content[content.indexOf("pwr7=high")] = QStringLiteral("pwr7=low");
    writeLines(content);
    config = ReadConfigFile(path_);
    EXPECT_EQ(config.presets.power[7], QStringLiteral("high"));
    EXPECT_TRUE(lines().contains(QStringLiteral("pwr0=high")));
}

TEST_F(ConfigFileTest, AFileThatCannotBeReadIsNeverOverwritten) {
    ASSERT_TRUE(QDir().mkpath(path_));  // a folder where the file should be
    const StartupConfig config = ReadConfigFile(path_);
    EXPECT_EQ(config.maxch, QStringLiteral("22"));
    EXPECT_TRUE(config.unreadable.has_value());
    EXPECT_TRUE(QFileInfo(path_).isDir());
    EXPECT_FALSE(WriteConfigFile(path_, "Lang", UiLanguage::English));
}

TEST_F(ConfigFileTest, AFifoOfThatNameIsReportedNotWaitedOn) {
    ASSERT_EQ(mkfifo(QFile::encodeName(path_).constData(), 0600), 0);
    const StartupConfig config = ReadConfigFile(path_);  // would block if it opened the FIFO
    ASSERT_TRUE(config.unreadable.has_value());
    EXPECT_EQ(config.unreadable->kind, ErrorKind::NotARegularFile);
    EXPECT_EQ(config.maxch, QStringLiteral("22"));
}

TEST_F(ConfigFileTest, LanguageSwitchWritesOnlyLang) {
    writeLines({"; kept", "[config]", "Lang=Chinese", "fixch=no", "[ports]", "com3=/dev/ttyUSB0"});
    EXPECT_TRUE(WriteConfigFile(path_, "Lang", UiLanguage::English));
    EXPECT_EQ(lines(), (QStringList{"; kept", "[config]", "Lang=English", "fixch=no", "[ports]",
                                    "com3=/dev/ttyUSB0"}));
    EXPECT_FALSE(WriteConfigFile(path_, "maxch", UiLanguage::Chinese));
    EXPECT_EQ(lines()[2], QStringLiteral("Lang=English"));
}

TEST_F(ConfigFileTest, Utf8FilesAreReadAndRewrittenInGbk) {
    write(QByteArray("\xEF\xBB\xBF") + joinLines(completeDefaultFile()).toUtf8());
    const StartupConfig config = ReadConfigFile(path_);
    EXPECT_EQ(config.presets.bandwidth[0], QStringLiteral("窄带"));
    WriteConfigFile(path_, "Lang", UiLanguage::Chinese);
    EXPECT_EQ(bytes(), encodeFileText(joinLines(completeDefaultFile())));
}

TEST_F(ConfigFileTest, PortsSectionPinsNumbersToDevices) {
    writeLines({"[Ports]", "COM3=/dev/ttyUSB0", "com17=/dev/ttyACM1", "com5=", "com65=/dev/x"});
    const QMap<int, QString> pins = readPortPins(path_);
    EXPECT_EQ(pins, (QMap<int, QString>{{3, "/dev/ttyUSB0"}, {17, "/dev/ttyACM1"}}));
    EXPECT_TRUE(readPortPins(dir_.filePath("missing.ini")).isEmpty());
}

TEST_F(ConfigFileTest, SafeWriteChoicesHaveASectionOfTheirOwn) {
    EXPECT_TRUE(readSafeWritePreferences(path_).backup) << "on without a file";
    const QStringList before = completeDefaultFile() + QStringList{"[ports]", "com3=/dev/ttyUSB0"};
    writeLines(before);
    ASSERT_TRUE(writeSafeWritePreferences(path_, {false, true}));
    EXPECT_EQ(lines(), before + QStringList({"[safewrite]", "backup=no", "verify=yes"}));
    SafeWritePreferences read = readSafeWritePreferences(path_);
    EXPECT_FALSE(read.backup);
    EXPECT_TRUE(read.verify);

    ASSERT_TRUE(writeSafeWritePreferences(path_, {true, false}));
    read = readSafeWritePreferences(path_);
    EXPECT_TRUE(read.backup);
    EXPECT_FALSE(read.verify);
    EXPECT_EQ(ReadConfigFile(path_).maxch, QStringLiteral("22"));
    EXPECT_EQ(lines().mid(0, before.size()), before);

    ASSERT_TRUE(QFile::remove(path_) && QDir().mkpath(path_));  // unreadable: never replaced
    EXPECT_FALSE(writeSafeWritePreferences(path_, {true, true}));
}

TEST(ConfigLocation, OverrideThenProgramFolderThenUserFolder) {
    QTemporaryDir program;
    const QString user = program.filePath("user");
    EXPECT_EQ(configFilePathIn("/etc/radio", program.path(), user),
              QStringLiteral("/etc/radio/config.ini"));
    EXPECT_EQ(configFilePathIn(QString(), program.path(), user), program.filePath("config.ini"));
    EXPECT_EQ(configFilePathIn(QString(), program.filePath("gone"), user),
              QDir(user).filePath("config.ini"));
    // Installed: never beside the program, even for root, who may write /usr/bin.
    EXPECT_EQ(configFilePathIn(QString(), "/usr/bin", user), QDir(user).filePath("config.ini"));
}

}  // namespace
