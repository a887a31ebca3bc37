#include <QTextStream>
#include <cstdio>

#include "cli/commands.h"
#include "link/port_catalogue.h"
#include "link/port_control.h"
#include "platform/qt_serial_port.h"
#include "platform/stream_prompts.h"

namespace {

// The scan of the port drop-down: every COM1..COM16 that opens, with the device behind it.
int listPorts(const GlobalOptions& global) {
    QtSerialPort port;
    StreamPrompts prompts(stderr);
    PortControl control(port, global.portCatalogue(), prompts,
                        global.language().value_or(UiLanguage::English));
    control.check_uart();
    QTextStream out(stdout);
    for (int i = 0; i < control.comboItems().size(); ++i) {
        out << control.comboItems().at(i) << '\t' << control.deviceToolTip(i) << '\n';
    }
    return kExitOk;
}

}  // namespace

void addPortsCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run) {
    CLI::App* ports = app.add_subcommand(
        "ports", "list the ports COM1..COM16 that can be opened, and their devices");
    ports->callback([&global, &run] { run = [&global] { return listPorts(global); }; });
}
