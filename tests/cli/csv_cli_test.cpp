// export-csv and import-csv, run as a user runs them.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "cli_run.h"
#include "test_support.h"

namespace {

class CsvCliTest : public ::testing::Test {
protected:
    QString path(const char* name) const { return dir_.filePath(QLatin1String(name)); }
    CliRun run(const QStringList& arguments) {
        return cli(QStringList{"--config", dir_.path(), "--lang", "en"} + arguments);
    }

    QTemporaryDir dir_;
};

TEST_F(CsvCliTest, ACodeplugComesBackFromItsCsv) {
    for (const char* sample : {"current.qzv", "v05.qzv", "v13.qzv", "v16.qzv", "v18.qzv"}) {
        SCOPED_TRACE(sample);
        const CliRun exported = run({"export-csv", samplePath(sample), path("plan.csv")});
        EXPECT_EQ(exported.status, 0) << exported.err.toStdString();
        EXPECT_TRUE(fileContent(path("plan.csv")).startsWith("channel,active,rx_frequency,"));
        const CliRun imported = run({"import-csv", path("plan.csv"), path("imported.qzv")});
        EXPECT_EQ(imported.status, 0) << imported.err.toStdString();
        EXPECT_TRUE(fileContent(path("imported.qzv")).startsWith("[Rxfreq]\r\n"));
        // What the codeplug holds is what the CSV said, word for word.
        ASSERT_EQ(run({"export-csv", path("imported.qzv"), path("again.csv")}).status, 0);
        EXPECT_EQ(fileContent(path("again.csv")), fileContent(path("plan.csv")));
    }
}

TEST_F(CsvCliTest, BadCellsAreAllListedAndNothingIsWritten) {
    ASSERT_EQ(run({"export-csv", samplePath("v18.qzv"), path("plan.csv")}).status, 0);
    QStringList lines = QString::fromUtf8(fileContent(path("plan.csv"))).split("\r\n");
    const auto setCell = [&lines](int row, int column, const QString& cell) {
        QStringList fields = lines[row - 1].split(',');
        fields[column - 1] = cell;
        lines[row - 1] = fields.join(',');
    };
    setCell(3, 3, "462.5625000");
    setCell(6, 5, "D024");  // no such code
    lines[9] += ",extra";
    writeFileContent(path("bad.csv"), lines.join("\r\n").toUtf8());
    writeFileContent(path("out.qzv"), "old");

    const CliRun refused = run({"import-csv", path("bad.csv"), path("out.qzv")});
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(fileContent(path("out.qzv")), "old");
    const QStringList err = refused.err.trimmed().split('\n');
    ASSERT_EQ(err.size(), 4) << refused.err.toStdString();
    EXPECT_TRUE(
        err[0].endsWith("bad.csv: The CSV file was not imported and nothing was "
                        "changed. The bad cells:"));
    EXPECT_EQ(err[1],
              "  row 3, column 3 (rx_frequency): \"462.5625000\" is longer than 9 "
              "characters");
    EXPECT_TRUE(err[2].startsWith("  row 6, column 5 (rx_code): \"D024\"")) << err[2].toStdString();
    EXPECT_EQ(err[3], "  row 10: 13 fields where 12 belong");
}

TEST_F(CsvCliTest, ExitStatusesLikeTheOtherCommands) {
    const struct {
        QStringList arguments;
        int status;
    } cases[] = {
        {{"export-csv", path("missing.qzv"), path("a.csv")}, 2},
        {{"export-csv", samplePath("v13.qzv"), path("no/such/folder/a.csv")}, 3},
        {{"import-csv", path("missing.csv"), path("a.qzv")}, 2},
        {{"import-csv", path("empty.csv"), path("a.qzv")}, 2},
        {{"import-csv", path("good.csv"), path("no/such/folder/a.qzv")}, 3},
        {{"import-csv", path("good.csv")}, 2},
    };
    writeFileContent(path("empty.csv"), "");
    ASSERT_EQ(run({"export-csv", samplePath("v13.qzv"), path("good.csv")}).status, 0);
    for (const auto& c : cases) {
        const CliRun result = run(c.arguments);
        EXPECT_EQ(result.status, c.status) << c.arguments.join(' ').toStdString();
        EXPECT_FALSE(result.err.isEmpty());
    }
    EXPECT_FALSE(QFile::exists(path("a.qzv")));
    EXPECT_FALSE(QFile::exists(path("a.csv")));

    const CliRun help = run({"--help"});
    EXPECT_TRUE(help.out.contains("export-csv")) << help.out.toStdString();
    EXPECT_TRUE(help.out.contains("import-csv"));
}

}  // namespace
