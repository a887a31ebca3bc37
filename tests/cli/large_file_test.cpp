// Files of the largest size the readers accept, shaped to be slow: the commands read them in
// time and memory that grow with the file, not with its square.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "cli_run.h"
#include "persistence/file_access.h"

namespace {

// The largest resident size of the children run so far, in bytes.
qint64 childrenPeakRss() {
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    return static_cast<qint64>(usage.ru_maxrss) * 1024;
}

// The CLI with a CPU limit; the sanitizer keeps little freed memory, so that the figure is the
// program's own.
CliRun limitedCli(const QStringList& arguments) {
    qputenv("ASAN_OPTIONS", "quarantine_size_mb=1:detect_leaks=1");
    return cli(arguments, [] {
        const rlimit cpu{3, 3};  // seconds: a quadratic reader took 6 under the sanitizer
        setrlimit(RLIMIT_CPU, &cpu);
    });
}

// Reads the file as `arguments` say, after an empty run that gives the program's own size; the
// memory the file costs stays below a small multiple of its size.
void expectLinear(const QStringList& arguments, const QString& file) {
    const CliRun empty = limitedCli({"--config", "/nonexistent", "show"});
    ASSERT_EQ(empty.status, 0);
    const qint64 base = childrenPeakRss();
    const CliRun run = limitedCli(arguments);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    const qint64 cost = childrenPeakRss() - base;
    EXPECT_LT(cost, 24 * QFileInfo(file).size()) << "bytes beyond an empty run: " << cost;
}

TEST(LargeFiles, AConfigurationWithALongBlankTailIsReadInLinearTime) {
    QTemporaryDir dir;
    QFile config(dir.filePath("config.ini"));
    ASSERT_TRUE(config.open(QIODevice::WriteOnly));
    // Thirty keys go into [freq], each placed before the blank tail.
    const QByteArray head = "[config]\r\nLang=English\r\n[freq]\r\n";
    config.write(head + QByteArray("\r\n").repeated((kMaxFileSize - head.size()) / 2));
    config.close();
    expectLinear({"--config", dir.path(), "show"}, config.fileName());
}

TEST(LargeFiles, ACodeplugOfEmptySectionsIsReadInLinearMemory) {
    QTemporaryDir dir;
    QFile file(dir.filePath("empty-sections.qzv"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const QByteArray head = "[Config]\r\nchtot=5\r\n";
    file.write(head + QByteArray("[a]\r\n").repeated((kMaxFileSize - head.size()) / 5));
    file.close();
    expectLinear({"--config", dir.path(), "show", file.fileName()}, file.fileName());
}

}  // namespace
