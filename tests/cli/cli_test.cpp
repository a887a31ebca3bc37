// The show and convert commands, run as a user runs them.
#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "cli_run.h"
#include "l10n/display_width.h"
#include "persistence/config_file.h"
#include "test_support.h"

namespace {

class CliTest : public ::testing::Test {
protected:
    QTemporaryDir dir_;
    QStringList config_{QStringLiteral("--config"), dir_.path()};
};

TEST_F(CliTest, ShowPrintsEveryLayoutAndRefusesWhatItCannotRead) {
    const struct {
        const char* sample;
        const char* firstLine;
        const char* row;
    } cases[] = {
        {"v05.qzv", "layout: V05 (132 lines)", "20 *    409.98750"},
        {"v13.qzv", "layout: V13 (213 lines), saved while Chinese was active", " 2 *    462.58750"},
        {"v16.qzv", "layout: V16 (214 lines), saved while English was active", "21 -    000.00000"},
        {"v18.qzv", "layout: V18 (215 lines), saved while Chinese was active", "25 *    462.61250"},
        {"current.qzv", "layout: current", "23 -    462.56250"},
    };
    for (const auto& c : cases) {
        const CliRun run = cli(config_ + QStringList{"--lang", "en", "show", samplePath(c.sample)});
        EXPECT_EQ(run.status, 0) << c.sample;
        EXPECT_TRUE(run.out.startsWith(QLatin1String(c.firstLine))) << run.out.toStdString();
        EXPECT_TRUE(run.out.contains(QLatin1String(c.row))) << c.sample;
    }
    EXPECT_FALSE(QFile::exists(dir_.filePath("config.ini")));  // show writes nothing

    const QString missing = dir_.filePath("missing.qzv");
    const CliRun refused = cli(config_ + QStringList{"--lang", "en", "show", missing});
    EXPECT_EQ(refused.status, 2);
    EXPECT_TRUE(refused.out.isEmpty());
    EXPECT_EQ(refused.err.count(QLatin1Char('\n')), 1);
    EXPECT_TRUE(refused.err.contains(missing + QStringLiteral(": cannot open the file")))
        << refused.err.toStdString();
}

TEST_F(CliTest, TheChinesePlanTableLinesUpInATerminal) {
    const CliRun run = cli(config_ + QStringList{"--lang", "zh", "show", samplePath("v13.qzv")});
    ASSERT_EQ(run.status, 0);
    const QStringList lines = run.out.split('\n');
    const int header = lines.indexOf(QRegularExpression("信道.*"));
    ASSERT_GE(header, 0) << run.out.toStdString();
    // The transmit frequency column starts at the same terminal column in the header and rows.
    const auto txColumn = [](const QString& line, const QString& at) {
        return l10n::displayWidth(line.left(line.lastIndexOf(at)));
    };
    const int expected = txColumn(lines[header], "发射频率");
    for (int row = header + 1; row <= header + 25; ++row) {
        const QStringList cells = lines[row].split(' ', Qt::SkipEmptyParts);
        ASSERT_GE(cells.size(), 5) << lines[row].toStdString();
        EXPECT_EQ(txColumn(lines[row], " " + cells[4] + " ") + 1, expected)
            << lines[row].toStdString();
    }
}

TEST_F(CliTest, ShowWithoutAFileUsesTheConfiguration) {
    QFile config(dir_.filePath("config.ini"));
    ASSERT_TRUE(config.open(QIODevice::WriteOnly));
    config.write("[config]\r\nLang=English\r\nmaxch=3\r\n[freq]\r\nfreq0=462.5625\r\n");
    config.close();
    const CliRun run = cli(config_ + QStringList{"show"});
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(run.out.contains(QLatin1String(" 1 *    462.56250")));
    EXPECT_TRUE(run.out.contains(QLatin1String(" 4 -    ")));
    EXPECT_TRUE(run.out.contains(QLatin1String("Total number of channels: 3")));
}

TEST_F(CliTest, ConvertWritesTheCurrentLayout) {
    const QString out = dir_.filePath("out.qzv");
    EXPECT_EQ(cli(config_ + QStringList{"convert", samplePath("v18.qzv"), out}).status, 0);

    Codeplug expected =
        loadStartupCodeplug(dir_.filePath("config.ini"), ConfigCompletion::InMemoryOnly);
    ASSERT_TRUE(openCodeplugFile(expected, samplePath("v18.qzv")).ok());
    QFile written(out);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(written.readAll(), codeplugFileBytes(expected));

    const CliRun unreadable = cli(config_ + QStringList{"convert", dir_.filePath("none.qzv"), out});
    EXPECT_EQ(unreadable.status, 2);
    const CliRun unwritable =
        cli(config_ + QStringList{"convert", samplePath("v18.qzv"), dir_.filePath("no/x.qzv")});
    EXPECT_EQ(unwritable.status, 3);
    EXPECT_FALSE(unwritable.err.isEmpty());
}

}  // namespace
