#include <unistd.h>

#include <cstdio>

#include "bootloader/boot_frames.h"
#include "bootloader/boot_session.h"
#include "cli/commands.h"
#include "cli/console_session_view.h"
#include "cli/file_arguments.h"
#include "cli/radio_command.h"
#include "cli/session_runner.h"
#include "persistence/file_access.h"

namespace {

struct FirmwareOptions {
    std::string port;
    std::string trace;
    std::string action;
    std::string file;
    std::string start = "1000";
    std::string end = "7FFF";
    bool noVerify = false;
};

void printLine(const QString& line) {
    std::fprintf(stderr, "%s\n", line.toUtf8().constData());
}

// While the link phase waits for the loader: what to do, and how long it keeps trying.
class LinkCountdown {
public:
    explicit LinkCountdown(UiLanguage language)
        : hint_(l10n::bootText(l10n::BootText::BootModeHint, language)),
          interactive_(::isatty(STDERR_FILENO) == 1) {}

    void waiting(int attempt, int attempts) {
        const int secondsLeft = (attempts - attempt) * boot::kLinkReplyMs / 1000;
        if (!interactive_) {
            if (attempt == 1) printLine(hint_);
            return;
        }
        std::fprintf(stderr, "\r%s: %3d s", hint_.toUtf8().constData(), secondsLeft);
        std::fflush(stderr);
        shown_ = true;
    }
    void done() {
        if (shown_) std::fputc('\n', stderr);
        shown_ = false;
    }

private:
    QString hint_;
    bool interactive_;
    bool shown_ = false;
};

int runFirmware(const GlobalOptions& global, const FirmwareOptions& options) {
    const std::optional<PortArgument> portArgument = parsePortOption(options.port);
    if (!portArgument) return kExitBadInput;
    if (options.action != "erase" && options.file.empty()) {
        std::fprintf(stderr, "radioprog-cli: firmware %s needs a file\n", options.action.c_str());
        return kExitBadInput;
    }
    const UiLanguage language = global.startupCodeplug().language;
    const QString file = QString::fromStdString(options.file);

    BootSession::Job job;
    job.start = boot::parseAddress(QString::fromStdString(options.start));
    job.end = boot::parseAddress(QString::fromStdString(options.end));
    job.verify = !options.noVerify;
    if (options.action == "erase") {
        job.operation = BootSession::Operation::Erase;
    } else if (options.action == "write") {
        job.operation = BootSession::Operation::Write;
        const Result<QByteArray> image = readWholeFile(file);
        if (!image) return reportError(image.error(), language, kExitBadInput);
        job.image = image.value();
        job.imagePath = file;
    } else {
        job.operation = BootSession::Operation::Read;
    }

    RadioLine line(global, *portArgument, language);
    if (!line.traceTo(options.trace)) return kExitBadInput;
    BootSession session(*line.transport, language);
    ConsoleSessionView progress(stderr);
    LinkCountdown countdown(language);
    QObject::connect(&session, &BootSession::logLine, [&](const QString& text) {
        countdown.done();
        progress.hideProgress();
        printLine(text);
        if (text.endsWith(QLatin1String("start......")))
            progress.showProgress(text.left(text.indexOf(' ')));
    });
    QObject::connect(&session, &BootSession::linkWaiting,
                     [&](int attempt, int attempts) { countdown.waiting(attempt, attempts); });
    QObject::connect(&session, &BootSession::blocksDone, [&](int done, int total) {
        progress.setProgressGoal(total);
        progress.setProgress(done);
    });
    runUntilFinished(session, &BootSession::finished, [&] { return session.start(job); });
    countdown.done();
    progress.hideProgress();
    if (session.outcome() != BootSession::Outcome::Succeeded) return kExitFailed;
    if (job.operation == BootSession::Operation::Read) {
        if (const Result<void> saved = saveWholeFile(file, session.data()); !saved) {
            return reportError(saved.error(), language, kExitCannotSave);
        }
    }
    return kExitOk;
}

}  // namespace

void addFirmwareCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run) {
    CLI::App* firmware = app.add_subcommand(
        "firmware", "erase, write or read the radio's program memory through its boot loader");
    auto options = std::make_shared<FirmwareOptions>();
    firmware->add_option("--port", options->port, "COMn, a device path, or sim")->required();
    addTraceOption(firmware, options->trace);
    firmware->add_option("ACTION", options->action, "erase, write IMAGE.bin or read OUT.bin")
        ->required()
        ->check(CLI::IsMember({"erase", "write", "read"}));
    firmware->add_option("FILE", options->file, "the image to write, or the file a read fills");
    firmware->add_option("--start", options->start, "first address, hexadecimal (default 1000)");
    firmware->add_option("--end", options->end, "last address, hexadecimal (default 7FFF)");
    firmware->add_flag("--no-verify", options->noVerify,
                       "do not read a write back to compare it with the image");
    firmware->footer(
        "The radio must be started in boot mode; the link phase tries for about 100 s.\n"
        "A write refuses an image that does not fit before anything is erased, then reads the\n"
        "range back and compares it; any difference names the address and exits 1.");
    firmware->callback([&global, &run, options] {
        run = [&global, options] { return runFirmware(global, *options); };
    });
}
