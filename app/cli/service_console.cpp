#include "cli/service_console.h"

#include <QCoreApplication>
#include <QTextStream>
#include <csignal>
#include <cstdio>
#include <cstring>

#include "common/signal_notifier.h"
#include "platform/qt_serial_port.h"
#include "sim/simulated_radio_port.h"

namespace {

std::unique_ptr<SerialPort> makePort(const PortArgument& port, Clock& clock) {
    if (port.kind == PortArgument::Simulator) return SimulatedRadioPort::create(clock);
    return std::make_unique<QtSerialPort>();
}

}  // namespace

ServiceConsole::ServiceConsole(const GlobalOptions& global, const PortArgument& port,
                               UiLanguage language)
    : language_(language),
      port_(makePort(port, clock_)),
      control_(std::make_unique<PortControl>(*port_, global.portCatalogue(), prompts_, language)),
      transport_(std::make_unique<LinkTransport>(*port_, clock_)),
      channel_(*transport_, prompts_) {
    channel_.setLanguage(language);
    control_->select(port, QString::fromLatin1(SimulatedPort::kDefaultDevice));
    QObject::connect(transport_.get(), &LinkTransport::portLost, [this] { control_->portLost(); });
}

ServiceConsole::~ServiceConsole() {
    if (sent_) control_->showPortState();
}

ServiceOutcome ServiceConsole::run(ServicePanel& panel, const std::function<bool()>& start) {
    const QMetaObject::Connection done = QObject::connect(
        &panel, &ServicePanel::finished, QCoreApplication::instance(),
        [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
    {
        SignalNotifier stop({SIGINT, SIGTERM, SIGHUP});
        QObject::connect(&stop, &SignalNotifier::raised, &panel, [&panel](int signalNumber) {
            if (!panel.isRunning()) return;
            std::fprintf(stderr, "radioprog-cli: stopped by %s\n", ::strsignal(signalNumber));
            panel.cancel();
        });
        if (start()) {
            sent_ = true;
            QCoreApplication::exec();
        }
    }
    QObject::disconnect(done);
    return panel.outcome();
}

int exitStatus(ServiceOutcome outcome) {
    return outcome == ServiceOutcome::Succeeded ? kExitOk : kExitFailed;
}

void printLines(const QStringList& lines) {
    QTextStream out(stdout);
    for (const QString& line : lines) out << line << '\n';
    out.flush();
}
