#include "cli/board_actions.h"

#include <QSet>
#include <QTextStream>
#include <functional>

#include "cli/service_console.h"
#include "service/hardware_panel.h"
#include "service/volume_panels.h"

namespace {

// One board panel as the command line drives it.
struct BoardJob {
    ServicePanel& panel;
    std::function<bool()> read, write;
    std::function<QStringList()> lines;
    // Puts the values named (checked already) over what the panel holds.
    std::function<void(const std::vector<Assignment>&)> take;
    // Whether the panel's values can be sent as they stand.
    std::function<bool()> fits;
    int valueCount;
};

int fail(int status, const QString& text) {
    QTextStream(stderr) << "radioprog-cli: " << text << '\n';
    return status;
}

int run(ServiceConsole& console, const ServiceRequest& request,
        const std::vector<Assignment>& values, const BoardJob& job) {
    if (request.action == "read") {
        const ServiceOutcome outcome = console.run(job.panel, job.read);
        if (outcome == ServiceOutcome::Succeeded) printLines(job.lines());
        return exitStatus(outcome);
    }
    // A write changes the values named and sends the others as the radio holds them; when
    // every value is named, or one does not fit (and is refused before anything is sent),
    // there is nothing to read first.
    job.take(values);
    QSet<QString> named;
    for (const Assignment& value : values) named.insert(value.first);
    if (named.size() < job.valueCount && job.fits()) {
        const ServiceOutcome outcome = console.run(job.panel, job.read);
        if (outcome != ServiceOutcome::Succeeded) return exitStatus(outcome);
        job.take(values);
    }
    return exitStatus(console.run(job.panel, job.write));
}

int hardwareAction(ServiceConsole& console, const ServiceRequest& request,
                   const std::vector<Assignment>& values) {
    HardwarePanel panel(console.channel());
    return run(
        console, request, values,
        {panel, [&] { return panel.read(); }, [&] { return panel.write(); },
         [&] { return hardwareValueLines(panel.options); },
         [&](const std::vector<Assignment>& given) {
             QString error;
             bool refused = false;
             applyHardwareValues(given, &panel.options, &error, &refused, console.language());
         },
         [&] { return hardwareWriteRequest(panel.options, {}, console.language()).ok(); }, 2});
}

template <typename Panel>
int levelAction(ServiceConsole& console, const ServiceRequest& request,
                const std::vector<Assignment>& values) {
    Panel panel(console.channel());
    return run(console, request, values,
               {panel, [&] { return panel.read(); }, [&] { return panel.write(); },
                [&] { return levelValueLines(panel.values); },
                [&](const std::vector<Assignment>& given) {
                    QString name;
                    applyLevelValues(given, &panel.values, &name);
                },
                [&] { return levelWriteRequest(panel.values, {}, console.language()).ok(); },
                static_cast<int>(panel.values.text.size())});
}

}  // namespace

bool isBoardPanel(const std::string& panel) {
    return panel == "hardware" || panel == "volume" || panel == "player";
}

int runBoardAction(const GlobalOptions& global, const ServiceRequest& request) {
    const std::optional<PortArgument> port = parsePortOption(request.port);
    if (!port) return kExitBadInput;
    const UiLanguage language = global.startupCodeplug().language;

    // Everything the command line says is checked before the port is opened: the names, and
    // the hardware options' lists (levels that do not fit are refused by the write itself).
    QStringList arguments;
    for (const std::string& a : request.arguments) arguments << QString::fromStdString(a);
    QString bad;
    const std::optional<std::vector<Assignment>> values = parseAssignments(arguments, &bad);
    if (!values) {
        return fail(kExitBadInput, QStringLiteral("expected NAME=VALUE, got: %1").arg(bad));
    }
    QString error;
    bool refused = false;
    HardwareOptions hardware;
    LevelValues levels(request.panel == "volume" ? LevelTable::Volume : LevelTable::Player);
    const bool known = request.panel == "hardware"
                           ? applyHardwareValues(*values, &hardware, &error, &refused, language)
                           : applyLevelValues(*values, &levels, &error);
    if (refused) return fail(kExitFailed, error);
    if (!known) {
        return fail(kExitBadInput, QStringLiteral("unknown name: %1 (see --help)").arg(error));
    }

    ServiceConsole console(global, *port, language);
    if (!console.traceTo(request.trace)) return kExitBadInput;
    if (request.panel == "hardware") return hardwareAction(console, request, *values);
    if (request.panel == "volume") return levelAction<VolumePanel>(console, request, *values);
    return levelAction<PlayerPanel>(console, request, *values);
}
