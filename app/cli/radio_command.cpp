#include "cli/radio_command.h"

#include <cstdio>

#include "cli/console_session_view.h"
#include "cli/session_runner.h"
#include "link/link_transport.h"
#include "link/port_control.h"
#include "platform/qt_serial_port.h"
#include "platform/steady_clock.h"
#include "platform/stream_prompts.h"
#include "sim/simulated_radio_port.h"

std::optional<PortArgument> parsePortOption(const std::string& text) {
    std::optional<PortArgument> port = PortArgument::parse(QString::fromStdString(text));
    if (!port) std::fprintf(stderr, "radioprog-cli: --port takes COMn, a device path or sim\n");
    return port;
}

SessionOutcome runSessionOnPort(const GlobalOptions& global, const PortArgument& portArgument,
                                UiLanguage language, const SessionFactory& makeSession) {
    SteadyClock clock;
    StreamPrompts prompts(stderr);
    ConsoleSessionView view(stderr);
    std::unique_ptr<SerialPort> port;
    if (portArgument.kind == PortArgument::Simulator) {
        port = SimulatedRadioPort::create(clock);
    } else {
        port = std::make_unique<QtSerialPort>();
    }
    PortControl control(*port, global.portCatalogue(), prompts, language);
    control.select(portArgument, QString::fromLatin1(SimulatedPort::kDefaultDevice));

    LinkTransport transport(*port, clock);
    QObject::connect(&transport, &LinkTransport::portLost, [&control] { control.portLost(); });
    const std::unique_ptr<RadioSession> session = makeSession(transport, prompts, view);
    const SessionOutcome outcome = runToEnd(*session, [&] { return session->start(); });
    if (outcome != SessionOutcome::Refused) control.showPortState();
    return outcome;
}
