// radiosim: a simulated radio on a pseudo-terminal. Prints the device to connect to on the
// first line of its output and answers the programming protocol until it is stopped (or
// hangs up when told to).

#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <QFile>
#include <QTextStream>
#include <csignal>
#include <cstdio>

#include "common/signal_notifier.h"
#include "link/protocol.h"
#include "platform/steady_clock.h"
#include "sim/pty_radio_host.h"
#include "sim/sim_radio.h"

namespace {

QSet<int> requestSet(const std::vector<int>& requests) {
    return QSet<int>(requests.begin(), requests.end());
}

QString traceLine(qint64 ms, SimRadio::TraceKind kind, const QByteArray& bytes,
                  const QString& note) {
    static const char* const kMarks[] = {">", "<", "x", "!"};  // request, reply, dropped, hang-up
    QString line = QStringLiteral("%1.%2 %3 %4")
                       .arg(ms / 1000)
                       .arg(ms % 1000, 3, 10, QLatin1Char('0'))
                       .arg(QLatin1String(kMarks[static_cast<int>(kind)]))
                       .arg(QString::fromLatin1(bytes.toHex(' ')));
    if (kind == SimRadio::TraceKind::HangUp) line += QStringLiteral("hang-up");
    if (!note.isEmpty()) line += QStringLiteral("  (%1)").arg(note);
    return line.trimmed();
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    // One name for the three programs: the same ~/.config/radioprog and ~/.local/share/radioprog.
    QCoreApplication::setApplicationName(QStringLiteral("radioprog"));

    CLI::App cli{"radiosim: a simulated radio on a pseudo-terminal"};
    bool pace = false;
    int latency = SimRadio::kDefaultLatencyMs;
    std::string silent, tracePath;
    std::vector<int> badChecksum, garbage, cut, wrongLength;
    int hangUp = 0;
    bool noise = false;
    int eraseMs = SimBootloader::kDefaultEraseMs;
    bool notInBootMode = false;
    int corruptReadBlock = 0;
    std::string corruptStored;
    cli.set_version_flag("--version", "radiosim " RADIOPROG_VERSION);
    cli.add_flag("--pace", pace, "pace both directions at 9600 baud");
    cli.add_option("--latency", latency, "reply latency in ms")->check(CLI::Range(0, 60000));
    cli.add_option("--silent", silent, "leave requests unanswered: all, or numbers like 3,5");
    cli.add_option("--bad-checksum", badChecksum, "replies with a wrong checksum")->delimiter(',');
    cli.add_option("--garbage", garbage, "replies with garbage in front")->delimiter(',');
    cli.add_option("--cut", cut, "replies cut after their command byte")->delimiter(',');
    cli.add_option("--wrong-length", wrongLength, "replies one byte too long")->delimiter(',');
    cli.add_option("--hang-up", hangUp,
                   "drop the line when this request arrives (27: right after the closing E of a "
                   "write without backup)");
    cli.add_flag("--noise", noise, "answer nothing and fill the line with random bytes");
    cli.add_option("--erase-ms", eraseMs, "time the boot loader takes to erase")
        ->check(CLI::Range(0, 60000));
    cli.add_flag("--not-in-boot-mode", notInBootMode, "the boot loader answers nothing");
    cli.add_option("--corrupt-read-block", corruptReadBlock,
                   "flip a bit in this block of every boot loader read (counted from 1)");
    cli.add_option("--corrupt-stored", corruptStored,
                   "CH:OFFSET: when a write ends, flip the lowest bit of byte OFFSET (from 0) of "
                   "channel CH's record (from 1), so that a read back differs");
    cli.add_option("--trace", tracePath, "log every frame both ways as hex");
    CLI11_PARSE(cli, argc, argv);

    SimFaults faults;
    if (silent == "all") {
        faults.silentAlways = true;
    } else if (!silent.empty()) {
        for (const QString& n : QString::fromStdString(silent).split(QLatin1Char(','))) {
            bool ok = false;
            faults.silent.insert(n.toInt(&ok));
            if (!ok) {
                std::fprintf(stderr, "radiosim: --silent takes all or request numbers\n");
                return 2;
            }
        }
    }
    faults.badChecksum = requestSet(badChecksum);
    faults.garbage = requestSet(garbage);
    faults.cutFrame = requestSet(cut);
    faults.wrongLength = requestSet(wrongLength);
    faults.hangUpAt = hangUp;
    faults.noise = noise;
    faults.notInBootMode = notInBootMode;
    faults.corruptReadBlock = corruptReadBlock;
    if (!corruptStored.empty()) {
        const QStringList parts = QString::fromStdString(corruptStored).split(QLatin1Char(':'));
        bool channelOk = false, offsetOk = false;
        if (parts.size() == 2) {
            faults.corruptChannel = parts[0].toInt(&channelOk);
            faults.corruptOffset = parts[1].toInt(&offsetOk);
        }
        if (!channelOk || !offsetOk || faults.corruptChannel < 1 ||
            faults.corruptChannel > SimRadio::kChannelCount || faults.corruptOffset < 0 ||
            faults.corruptOffset >= protocol::kLongChannelRecord) {
            std::fprintf(stderr,
                         "radiosim: --corrupt-stored takes CH:OFFSET, CH 1..25, OFFSET 0..12\n");
            return 2;
        }
    }

    SteadyClock clock;
    SimRadio radio(clock);
    radio.setFaults(faults);
    radio.setLatencyMs(latency);
    radio.bootloader().setEraseMs(eraseMs);

    QFile traceFile(QString::fromStdString(tracePath));
    QTextStream trace(&traceFile);
    if (!tracePath.empty()) {
        if (!traceFile.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
            std::fprintf(stderr, "radiosim: cannot write %s\n", tracePath.c_str());
            return 2;
        }
        radio.setTraceSink(
            [&](SimRadio::TraceKind kind, const QByteArray& bytes, const QString& note) {
                trace << traceLine(clock.nowMs(), kind, bytes, note) << '\n';
                trace.flush();
            });
    }

    PtyRadioHost host(clock, radio);
    host.setPacing(pace);
    QString error;
    if (!host.open(&error)) {
        std::fprintf(stderr, "radiosim: no pseudo-terminal: %s\n", qPrintable(error));
        return 1;
    }
    QObject::connect(&host, &PtyRadioHost::hungUp, &application, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    // SIGINT and SIGTERM end the event loop, so that the trace is complete.
    SignalNotifier stop({SIGINT, SIGTERM});
    QObject::connect(&stop, &SignalNotifier::raised, &application, &QCoreApplication::quit);

    std::printf("%s\n", qPrintable(host.devicePath()));
    std::fflush(stdout);
    return QCoreApplication::exec();
}
