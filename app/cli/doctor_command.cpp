#include <QTextStream>
#include <cstdio>

#include "cli/commands.h"
#include "cli/radio_command.h"
#include "cli/session_runner.h"
#include "doctor/diagnosis.h"
#include "doctor/radio_probe.h"
#include "doctor/report_text.h"
#include "doctor/udev_rule.h"

namespace {

struct DoctorOptions {
    std::string port;
    bool udevRule = false;
};

// One "S" request on the port; its findings with the likely causes of silence.
ProbeReport probePort(const GlobalOptions& global, const PortArgument& argument,
                      const SystemFacts& facts, const Diagnosis& diagnosis, UiLanguage language) {
    QString device;
    switch (argument.kind) {
        case PortArgument::Number:
            device = global.portCatalogue().deviceFor(argument.number);
            if (device.isEmpty()) device = QStringLiteral("COM%1").arg(argument.number);
            break;
        case PortArgument::Simulator:
            device = QStringLiteral("sim");
            break;
        case PortArgument::Device:
            device = argument.device;
            break;
    }
    RadioLine line(global, argument, language);
    if (!line.port->isOpen()) return reportUnopenedPort(device, line.port->openErrorDetail());
    RadioProbe probe(*line.transport);
    runUntilFinished(probe, &RadioProbe::finished, [&probe] { return probe.start(); });
    return reportProbe(device, probe, diagnosis, facts);
}

int runDoctor(const GlobalOptions& global, const DoctorOptions& options) {
    QTextStream out(stdout);
    if (options.udevRule) {
        out << kUdevRule;
        return kExitOk;
    }
    std::optional<PortArgument> port;
    if (!options.port.empty()) {
        port = parsePortOption(options.port);
        if (!port) return kExitBadInput;
    }
    const UiLanguage language = global.startupCodeplug().language;
    QStringList extra;
    if (port && port->kind == PortArgument::Device) extra << port->device;
    const RootedSystemFacts facts;
    const Diagnosis diagnosis = diagnose(facts, extra);
    for (const QString& line : diagnosisLines(diagnosis, language)) out << line << '\n';
    if (!port) return kExitOk;
    out << '\n';
    out.flush();
    const ProbeReport probe = probePort(global, *port, facts, diagnosis, language);
    for (const QString& line : probeLines(probe, language)) out << line << '\n';
    return probe.outcome == RadioProbe::Outcome::Answered ? kExitOk : kExitFailed;
}

}  // namespace

void addDoctorCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run) {
    auto options = std::make_shared<DoctorOptions>();
    CLI::App* doctor = app.add_subcommand(
        "doctor",
        "check the serial devices, the rights to them and the services that get in the way, "
        "and tell what fixes them; with --port, also ask the radio for an answer");
    doctor->add_option(
        "--port", options->port,
        "test this port: COMn, a device path or sim (9600,n,8,1, one \"S\" request)");
    doctor->add_flag("--udev-rule", options->udevRule, "print the udev rule for cable adapters");
    doctor->callback([&global, &run, options] {
        run = [&global, options] { return runDoctor(global, *options); };
    });
}
