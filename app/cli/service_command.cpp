#include <memory>

#include "cli/commands.h"
#include "cli/production_command.h"
#include "cli/radio_command.h"
#include "cli/service_actions.h"

namespace {

struct ActionSpec {
    const char* name;
    const char* help;
    const char* arguments;  // help of the positional arguments; null: none
    bool output;            // takes -o FILE
};

struct PanelSpec {
    const char* name;
    const char* help;
    std::vector<ActionSpec> actions;
};

const char* const kSource =
    "FILE (the panel's text file) or NAME=VALUE lines as a read prints them";

const std::vector<PanelSpec>& panels() {
    static const std::vector<PanelSpec> kPanels = {
        {"registers",
         "the RF register table (RegTest): up to ten address/value pairs in hex",
         {{"clear", "clear the register table in the radio's EEPROM", nullptr, false},
          {"read-eeprom", "read the ten rows of the EEPROM register table", nullptr, true},
          {"read-rfic", "read the registers whose addresses are given from the RF chip", kSource,
           true},
          {"write-rfic", "write the rows given into the RF chip", kSource, false},
          {"save-eeprom", "write the rows given into the EEPROM register table", kSource, false}}},
        {"calibration",
         "the engineering-mode calibration record and the version text",
         {{"read", "read the calibration record", nullptr, false},
          {"write", "read the record, change the values named, write it back",
           "NAME=VALUE lines as a read prints them", false},
          {"version", "read the radio's version text", nullptr, false}}},
        {"band",
         "the band information table (400-470 MHz in 5 MHz points)",
         {{"read", "read the four segments of the table", nullptr, true},
          {"write", "write a table file, or read the table, change the cells named and write it",
           kSource, false},
          {"defaults", "make the radio restore its own table", nullptr, false},
          {"adjust", "read the table, fill both halves of the band, write it",
           "tx-low=V tx-high=V rssi-low=N rssi-high=N (defaults 1.7 1.65 21 21)", false}}},
        {"crystal",
         "the RF crystal correction, -127..127",
         {{"read", "read the correction", nullptr, false},
          {"write", "write a correction", "VALUE or crystal=VALUE", false}}},
        {"hardware",
         "the board options: the PTT key's pin and the P key's threshold voltage",
         {{"read", "read the two options", nullptr, false},
          {"write", "write the options named (the other as the radio holds it)",
           "ptt=P2.4|P2.1 pkey=VOLTS", false}}},
        {"volume",
         "the volume table: microphone gain, eight speaker steps, second microphone gain",
         {{"read", "read the table", nullptr, false},
          {"write", "write the values named (the others as the radio holds them)",
           "NAME=VALUE lines as a read prints them", false}}},
        {"player",
         "the audio player's eight volume steps",
         {{"read", "read the table", nullptr, false},
          {"write", "write the values named (the others as the radio holds them)",
           "NAME=VALUE lines as a read prints them", false}}},
    };
    return kPanels;
}

const char* const kNames = R"(
A read prints one NAME=VALUE line per value on stdout; the matching write takes those lines
back unchanged, e.g. `service --port COM3 crystal write $(cat crystal.txt)`.
  registers    addrN=HH dataN=HHHH          N = row 1..10, hexadecimal without prefix
  calibration  rssi-narrow rssi-wide        0..255 (the sliders span 10..254)
               power-high power-low         0..255 (the sliders span 0..128)
               noise-narrow noise-wide      0..255 (the sliders span 0..254)
  band         txN rxN                      volts 0..3.3, N = row 1..20
               rssiN                        0..255 (rows 1..15 are 400.025 ... 470.025 MHz;
                                            a read gives those, rows 16..20 are written as 0)
  crystal      crystal                      -127..127
  hardware     ptt                          P2.4 or P2.1
               pkey                         2.40 2.30 2.20 2.10 2.00 1.90 1.80 1.70 1.60 1.50
                                            1.20 (volts; a read shows nothing when the radio
                                            holds a threshold outside this list)
  volume       mic vol1 ... vol8 pmic       0..255 (the sliders span 1..63)
  player       vol1 ... vol8                0..255 (the sliders span 1..31)
-o FILE saves what was read as the panel's text file (registers: 20 lines, address and value
of each row; band: 60 lines, the TX, RX and RSSI columns of rows 1..20); a write takes it back.
Values that do not fit are refused before anything is sent, naming the field. Messages go to
stderr; the exit status is 0 on success, 1 when the radio did not answer or a value was
refused, 2 on bad usage or an unreadable file.)";

}  // namespace

void addServiceCommand(CLI::App& app, const GlobalOptions& global, CommandRunner& run) {
    CLI::App* service = app.add_subcommand(
        "service",
        "the factory service panels: RF registers, calibration, band table, crystal, "
        "hardware options, volume tables, the radio's identity, test mode and monitor");
    auto request = std::make_shared<ServiceRequest>();
    service->add_option("--port", request->port, "COMn, a device path, or sim")->required();
    addTraceOption(service, request->trace);
    service->require_subcommand(1);
    service->footer(kNames);
    for (const PanelSpec& panelSpec : panels()) {
        CLI::App* panel = service->add_subcommand(panelSpec.name, panelSpec.help);
        panel->require_subcommand(1);
        panel->fallthrough();
        for (const ActionSpec& actionSpec : panelSpec.actions) {
            CLI::App* action = panel->add_subcommand(actionSpec.name, actionSpec.help);
            action->fallthrough();
            if (actionSpec.arguments) {
                action->add_option("ARGS", request->arguments, actionSpec.arguments)->required();
            }
            if (actionSpec.output) {
                action->add_option("-o,--output", request->output,
                                   "also save what was read as the panel's text file");
            }
            const std::string panelName = panelSpec.name, actionName = actionSpec.name;
            action->callback([&global, &run, request, panelName, actionName] {
                request->panel = panelName;
                request->action = actionName;
                run = [&global, request] { return runServiceAction(global, *request); };
            });
        }
    }
    addProductionPanels(service, global, run, request);
}
