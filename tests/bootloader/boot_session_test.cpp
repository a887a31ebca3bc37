#include "bootloader/boot_session.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>

#include "bootloader/boot_frames.h"
#include "session_fixture.h"

namespace {

constexpr qint64 kLongEnough = 400'000;

QByteArray testImage(int size) {
    QByteArray image(size, '\0');
    QRandomGenerator generator(7);
    for (char& byte : image) byte = static_cast<char>(generator.bounded(256));
    return image;
}

// A boot loader operation against the simulated radio on the manual clock.
class BootSessionTest : public ::testing::Test, protected SessionFixture {
protected:
    BootSessionTest() {
        QObject::connect(&session, &BootSession::logLine,
                         [this](const QString& line) { log << line; });
    }

    QStringList run(const BootSession::Job& job) {
        if (session.start(job)) {
            clock.advanceUntil([&] { return !session.isRunning(); }, kLongEnough);
        }
        EXPECT_FALSE(session.isRunning());
        return log;
    }

    static BootSession::Job writeJob(const QByteArray& image, int start = 0x1000,
                                     int end = 0x7FFF) {
        BootSession::Job job;
        job.operation = BootSession::Operation::Write;
        job.image = image;
        job.imagePath = "/tmp/fw.bin";
        job.start = start;
        job.end = end;
        return job;
    }

    // Commands of the requests the radio heard, with their parameters.
    QList<std::pair<int, int>> commands() const {
        QList<std::pair<int, int>> list;
        for (const auto& r : requests) {
            const QByteArray& f = r.second;
            list.push_back({static_cast<quint8>(f[0]),
                            static_cast<quint8>(f[2]) | static_cast<quint8>(f[3]) << 8});
        }
        return list;
    }
    int count(int command) const {
        int n = 0;
        for (const auto& c : commands()) n += c.first == command;
        return n;
    }

    BootSession session{transport, UiLanguage::English};
    QStringList log;
};

TEST_F(BootSessionTest, AFullWriteErasesSendsEveryBlockEndsAndVerifies) {
    const QByteArray image = testImage(28672);
    EXPECT_EQ(run(writeJob(image)),
              QStringList({"烧写的目标文件:/tmp/fw.bin", "boot link wait......",
                           "write start......", "Write OK!!!!", "verify start......",
                           "Verify OK!!!!  CRC-32 image " +
                               QString::number(boot::crc32(image), 16).rightJustified(8, '0') +
                               ", radio " +
                               QString::number(boot::crc32(image), 16).rightJustified(8, '0')}));
    EXPECT_EQ(session.outcome(), BootSession::Outcome::Succeeded);
    const auto sent = commands();
    ASSERT_GE(sent.size(), 2 + 224 + 1);
    EXPECT_EQ(sent[0], std::make_pair(0x3B, 0));
    EXPECT_EQ(sent[1], std::make_pair(0x38, 0x7F10));
    for (int k = 0; k < 224; ++k) EXPECT_EQ(sent[2 + k], std::make_pair(0x39, 0x1000 + 128 * k));
    EXPECT_EQ(sent[2 + 224], std::make_pair(0x3A, 224));
    EXPECT_EQ(count(0x33), 224);
    EXPECT_EQ(radio.bootloader().memory().mid(0x1000), image);
}

TEST_F(BootSessionTest, AShortImageStopsAfterItsLastBlockPaddedWithTheErasedValue) {
    const QByteArray image = testImage(300);
    BootSession::Job job = writeJob(image);
    job.verify = false;
    EXPECT_EQ(run(job).last(), "Write OK!!!!");
    EXPECT_EQ(count(0x39), 3);
    EXPECT_TRUE(commands().contains(std::make_pair(0x3A, 3)));
    EXPECT_EQ(radio.bootloader().memory().mid(0x1000, 384), image + QByteArray(84, '\xff'));
}

TEST_F(BootSessionTest, ReadingARangeTakesItsBlocks) {
    QByteArray memory(32768, '\xff');
    memory.replace(0x1000, 128, testImage(128));
    radio.bootloader().setMemory(memory);
    BootSession::Job job;
    job.operation = BootSession::Operation::Read;
    job.start = 0x1000;
    job.end = 0x107F;
    EXPECT_EQ(run(job), QStringList({"boot link wait......", "read start......", "Read OK!!!!"}));
    EXPECT_EQ(count(0x33), 1);
    EXPECT_TRUE(commands().contains(std::make_pair(0x34, 1)));
    EXPECT_EQ(session.data(), memory.mid(0x1000, 128));
}

TEST_F(BootSessionTest, NothingIsSentForAJobThatCannotBeDone) {
    const struct {
        const char* name;
        BootSession::Job job;
        QString lastLine;
    } cases[] = {
        {"start above 7A00", writeJob(testImage(100), 0x7A01), "START address ERROR!!!!"},
        {"end beyond memory", writeJob(testImage(100), 0x1000, 0x8000), "END address ERROR!!!!"},
        {"empty image", writeJob({}), "File length is 0!!!!"},
        {"image over 32 KB", writeJob(testImage(32769)), "File too larger!!!!"},
        {"image longer than the range", writeJob(testImage(300), 0x1000, 0x10FF),
         "The image (300 bytes) is longer than the address range (256 bytes); nothing was erased"},
        {"no file chosen",
         [] {
             BootSession::Job job = writeJob(testImage(10));
             job.imagePath.clear();
             return job;
         }(),
         "烧写的目标文件名不能空！！"},
    };
    for (const auto& c : cases) {
        log.clear();
        EXPECT_FALSE(session.start(c.job)) << c.name;
        ASSERT_FALSE(log.isEmpty()) << c.name;
        EXPECT_EQ(log.last(), c.lastLine) << c.name;
        EXPECT_EQ(session.outcome(), BootSession::Outcome::Failed) << c.name;
    }
    clock.advance(kLongEnough);
    EXPECT_TRUE(requests.empty());
    EXPECT_FALSE(transport.isBusy());
}

TEST_F(BootSessionTest, SilenceEndsTheOperationWithTheLineOfItsStep) {
    const struct {
        const char* name;
        SimFaults faults;
        QString lastLine;
        qint64 atLeastMs;
    } cases[] = {
        {"a radio not in boot mode",
         [] {
             SimFaults f;
             f.notInBootMode = true;
             return f;
         }(),
         "boot link No Ack!!!!", 1000 * 100},
        {"at the erase",
         [] {
             SimFaults f;
             f.silent = {2};
             return f;
         }(),
         "START No Ack!!!!", 0},
        {"at block 5",
         [] {
             SimFaults f;
             f.silent = {2 + 5};
             return f;
         }(),
         "No Ack!!!!", 0},
        {"at the verify's start",
         [] {
             SimFaults f;
             f.silent = {2 + 8 + 2};
             return f;
         }(),
         "START No Ack!!!!", 0},
        {"at the end command",
         [] {
             SimFaults f;
             f.silent = {2 + 8 + 1};
             return f;
         }(),
         "No Ack!!!!", 0},
    };
    for (const auto& c : cases) {
        SessionFixture world;
        BootSession boot(world.transport, UiLanguage::English);
        QStringList lines;
        int linkWaits = 0;
        QObject::connect(&boot, &BootSession::logLine, [&](const QString& l) { lines << l; });
        QObject::connect(&boot, &BootSession::linkWaiting, [&] { ++linkWaits; });
        world.radio.setFaults(c.faults);
        ASSERT_TRUE(boot.start(writeJob(testImage(8 * 128)))) << c.name;
        world.clock.advanceUntil([&] { return !boot.isRunning(); }, kLongEnough);
        EXPECT_EQ(boot.outcome(), BootSession::Outcome::Failed) << c.name;
        EXPECT_EQ(lines.last(), c.lastLine) << c.name;
        EXPECT_GE(world.clock.nowMs(), c.atLeastMs) << c.name;
        if (c.faults.notInBootMode) {
            EXPECT_EQ(world.requestsWithCommand(0x3B), 1000) << c.name;
            EXPECT_EQ(linkWaits, 999) << c.name;
        }
        EXPECT_FALSE(world.transport.isBusy()) << c.name;
    }
}

TEST_F(BootSessionTest, AVerifyMismatchNamesTheAddressAndFails) {
    SimFaults faults;
    faults.corruptReadBlock = 3;
    radio.setFaults(faults);
    const QByteArray image = testImage(1000);
    const QStringList lines = run(writeJob(image));
    const int address = 0x1000 + 2 * 128 + SimBootloader::kCorruptedOffset;
    const auto expected = static_cast<quint8>(image[address - 0x1000]);
    EXPECT_EQ(lines.last(),
              QStringLiteral("Verify ERROR!!!!  address 0x%1: expected 0x%2, found 0x%3")
                  .arg(address, 4, 16, QLatin1Char('0'))
                  .arg(expected, 2, 16, QLatin1Char('0'))
                  .arg(expected ^ 1, 2, 16, QLatin1Char('0')));
    EXPECT_EQ(session.outcome(), BootSession::Outcome::Failed);
}

TEST_F(BootSessionTest, CancellingStopsAtOnceAndFreesTheLink) {
    ASSERT_TRUE(session.start(writeJob(testImage(28672))));
    clock.advanceUntil([&] { return count(0x39) == 10; }, kLongEnough);
    session.cancel();
    EXPECT_EQ(log.last(), "Cancelled");
    EXPECT_EQ(session.outcome(), BootSession::Outcome::Cancelled);
    clock.advance(kLongEnough);
    EXPECT_EQ(count(0x39), 10);
    EXPECT_FALSE(transport.isBusy());
}

TEST_F(BootSessionTest, AClosedPortIsOneLineAndNothingElse) {
    port.close();
    EXPECT_FALSE(session.start(writeJob(testImage(128))));
    EXPECT_EQ(log.last(), "Please check COM Port");
    EXPECT_TRUE(prompts.entries().empty());
}

}  // namespace

#include "boot_properties.h"
#include "regression_inputs.h"

namespace {

TEST(BootFuzzRegressions, EveryInputKeepsTheReadPromises) {
    const auto inputs = regressionInputs(QStringLiteral(BOOT_FUZZ_REGRESSIONS_DIR));
    ASSERT_FALSE(inputs.isEmpty());
    for (auto it = inputs.cbegin(); it != inputs.cend(); ++it) {
        const char* broken = boot_properties::checkBootRead(it.value());
        EXPECT_EQ(broken, nullptr) << it.key().toStdString() << ": " << broken;
    }
}

}  // namespace
