#include <QTextStream>
#include <memory>

#include "cli/commands.h"
#include "cli/file_arguments.h"
#include "cli/radio_command.h"
#include "l10n/safe_write_texts.h"
#include "link/write_session.h"
#include "persistence/backup_folder.h"
#include "persistence/codeplug_file.h"

namespace {

struct WriteOptions {
    std::string port;
    std::string trace;
    std::string file;
    bool noBackup = false;
    bool noVerify = false;
};

// The backup's path on stdout, as soon as it is saved; channels it lacks on stderr.
void reportBackup(const QString& path, const QList<int>& unread, UiLanguage language) {
    QTextStream(stdout) << l10n::safeWriteText(l10n::SafeWriteText::BackupSaved, language).arg(path)
                        << '\n';
    if (unread.isEmpty()) return;
    QTextStream(stderr) << "radioprog-cli: " << l10n::backupChannelsUnread(unread, language)
                        << '\n';
}

int writeRadio(const GlobalOptions& global, const WriteOptions& options) {
    const std::optional<PortArgument> port = parsePortOption(options.port);
    if (!port) return kExitBadInput;
    Codeplug doc = global.startupCodeplug();
    if (!loadCodeplugArgument(doc, options.file)) return kExitBadInput;
    SafeWriteOptions safety;
    safety.backup = !options.noBackup;
    safety.verify = !options.noVerify;
    safety.backupFolder = backupFolder();
    safety.portName = QString::fromStdString(options.port);
    const SessionOutcome outcome = runSessionOnPort(
        global, *port, doc.language, options.trace,
        [&doc, &safety](LinkTransport& link, Prompts& prompts, SessionView& view) {
            auto session = std::make_unique<WriteSession>(link, doc, prompts, view, safety);
            const UiLanguage language = doc.language;
            QObject::connect(session.get(), &WriteSession::backupSaved,
                             [language](const QString& path, const QList<int>& unread) {
                                 reportBackup(path, unread, language);
                             });
            return session;
        });
    return outcome == SessionOutcome::Succeeded ? kExitOk : kExitFailed;
}

}  // namespace

void addWriteCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run) {
    CLI::App* write = app.add_subcommand(
        "write", "check a codeplug file's frequencies, then write it into the radio");
    auto options = std::make_shared<WriteOptions>();
    write->add_option("--port", options->port, "COMn, a device path, or sim")->required();
    addTraceOption(write, options->trace);
    write->add_flag("--no-backup", options->noBackup,
                    "do not save the radio's plan in the backup folder before writing");
    write->add_flag("--no-verify", options->noVerify,
                    "do not read the plan back after writing to compare it with what was sent");
    write->add_option("FILE", options->file, "codeplug file (.qzv) of any layout")->required();
    write->callback([&global, &run, options] {
        run = [&global, options] { return writeRadio(global, *options); };
    });
}
