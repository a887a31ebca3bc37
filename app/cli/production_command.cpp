// The production-line panels of `radioprog-cli service`: the radio's identity, its DTMF tests
// and the live monitor.

#include "cli/production_command.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QTextStream>
#include <QTimer>
#include <csignal>
#include <memory>

#include "cli/service_console.h"
#include "cli/session_runner.h"
#include "common/signal_notifier.h"
#include "service/identity.h"
#include "service/identity_panel.h"
#include "service/test_mode_panel.h"

namespace {

const char* const kHelp = R"(

Production line:
  id read                 prints id=N
  id write N              writes N (0..4294967295) and prints next=N+1 (0 after the largest);
                          `n=$(... id write $n)` numbers one radio after the other
  test start dtmf-tx|dtmf-rx, test stop
  monitor rssi|battery [--seconds S]
                          one line per measurement, time=... rssi= snr= afc= audio= or
                          time=... charging=0|1 battery=COUNT, until S seconds have passed or
                          Ctrl-C; then the radio is told to stop)";

struct ProductionRequest {
    std::string panel;  // id, test, monitor
    std::string action;
    std::string value;  // the identity, the test type, the monitor mode
    double seconds = 0;
};

int identity(ServiceConsole& console, const ProductionRequest& request) {
    IdentityPanel panel(console.channel());
    if (request.action == "read") {
        const ServiceOutcome outcome = console.run(panel, [&] { return panel.read(); });
        if (outcome == ServiceOutcome::Succeeded) printLines({"id=" + panel.identity});
        return exitStatus(outcome);
    }
    // "N", or a line a previous read or write printed.
    QString value = QString::fromStdString(request.value);
    for (const char* prefix : {"id=", "next="}) {
        if (value.startsWith(QLatin1String(prefix))) value = value.mid(qstrlen(prefix));
    }
    panel.identity = value;
    const ServiceOutcome outcome = console.run(panel, [&] { return panel.write(); });
    if (outcome == ServiceOutcome::Succeeded) printLines({"next=" + panel.identity});
    return exitStatus(outcome);
}

int dtmfTest(ServiceConsole& console, const ProductionRequest& request) {
    TestModePanel panel(console.channel());
    if (request.action == "stop") {
        return exitStatus(console.run(panel, [&] { return panel.stopTest(); }));
    }
    const int typeIndex = request.value == "dtmf-tx" ? 0 : 1;
    return exitStatus(console.run(panel, [&] { return panel.startTest(typeIndex); }));
}

int monitor(ServiceConsole& console, const ProductionRequest& request) {
    TestModePanel panel(console.channel());
    QObject::connect(&panel, &TestModePanel::measured, [](const MonitorFrame& frame) {
        printLines({QStringLiteral("time=%1 %2")
                        .arg(QDateTime::currentDateTime().toString(Qt::ISODateWithMs),
                             monitorValueLine(frame))});
    });
    const MonitorMode mode = request.value == "rssi" ? MonitorMode::Rssi : MonitorMode::Battery;
    const ServiceOutcome started = console.run(panel, [&] { return panel.startMonitor(mode); });
    if (started != ServiceOutcome::Succeeded) return exitStatus(started);
    {
        SignalNotifier stop({SIGINT, SIGTERM, SIGHUP});
        QObject::connect(&stop, &SignalNotifier::raised, [](int signalNumber) {
            reportStop(signalNumber);
            QCoreApplication::exit(0);
        });
        // A port that goes away ends the monitor too.
        QObject::connect(&panel, &TestModePanel::liveChanged, [](MonitorMode mode) {
            if (mode == MonitorMode::Stop) QCoreApplication::exit(0);
        });
        QTimer timeUp;
        timeUp.setSingleShot(true);
        QObject::connect(&timeUp, &QTimer::timeout, [] { QCoreApplication::exit(0); });
        if (request.seconds > 0) timeUp.start(static_cast<int>(request.seconds * 1000));
        QCoreApplication::exec();
    }
    return exitStatus(console.run(panel, [&] { return panel.stopMonitor(); }));
}

int runProductionAction(const GlobalOptions& global, const ServiceRequest& service,
                        const ProductionRequest& request) {
    const std::optional<PortArgument> port = parsePortOption(service.port);
    if (!port) return kExitBadInput;
    ServiceConsole console(global, *port, global.startupCodeplug().language);
    if (!console.traceTo(service.trace)) return kExitBadInput;
    if (request.panel == "id") return identity(console, request);
    if (request.panel == "test") return dtmfTest(console, request);
    return monitor(console, request);
}

}  // namespace

void addProductionPanels(CLI::App* serviceCommand, const GlobalOptions& global, CommandRunner& run,
                         const std::shared_ptr<ServiceRequest>& service) {
    serviceCommand->footer(serviceCommand->get_footer() + kHelp);
    auto request = std::make_shared<ProductionRequest>();
    auto choose = [&global, &run, service, request](CLI::App* action, const char* panel,
                                                    const char* name) {
        action->fallthrough();
        action->callback([&global, &run, service, request, panel, name] {
            request->panel = panel;
            request->action = name;
            run = [&global, service, request] {
                return runProductionAction(global, *service, *request);
            };
        });
    };

    CLI::App* id = serviceCommand->add_subcommand("id", "the radio's identity number");
    id->require_subcommand(1);
    id->fallthrough();
    choose(id->add_subcommand("read", "read the identity"), "id", "read");
    CLI::App* write = id->add_subcommand("write", "write an identity, print the next one");
    write->add_option("ID", request->value, "0..4294967295 (or id=N, next=N)")->required();
    choose(write, "id", "write");

    CLI::App* test = serviceCommand->add_subcommand("test", "the radio's DTMF test modes");
    test->require_subcommand(1);
    test->fallthrough();
    CLI::App* start = test->add_subcommand("start", "start a DTMF transmit or receive test");
    start->add_option("TYPE", request->value, "dtmf-tx or dtmf-rx")
        ->required()
        ->check(CLI::IsMember({"dtmf-tx", "dtmf-rx"}));
    choose(start, "test", "start");
    choose(test->add_subcommand("stop", "stop the test"), "test", "stop");

    CLI::App* monitor = serviceCommand->add_subcommand(
        "monitor", "print the radio's live RSSI or battery measurements");
    monitor->add_option("MODE", request->value, "rssi or battery")
        ->required()
        ->check(CLI::IsMember({"rssi", "battery"}));
    monitor->add_option("--seconds", request->seconds, "stop after S seconds (default: Ctrl-C)")
        ->check(CLI::PositiveNumber);
    choose(monitor, "monitor", "start");
}
