#include "cli/service_actions.h"

#include <QTextStream>
#include <cstdio>
#include <map>

#include "cli/board_actions.h"
#include "cli/file_arguments.h"
#include "cli/radio_command.h"
#include "cli/service_console.h"
#include "persistence/file_access.h"
#include "service/band_panel.h"
#include "service/calibration_panel.h"
#include "service/crystal_panel.h"
#include "service/register_panel.h"
#include "service/value_lines.h"

namespace {

// The arguments of a write: one FILE, or NAME=VALUE lines.
struct Source {
    bool isFile = false;
    QByteArray fileBytes;
    std::vector<Assignment> values;
};

int usage(const QString& text) {
    QTextStream(stderr) << "radioprog-cli: " << text << '\n';
    return kExitBadInput;
}

std::optional<Source> readSource(const ServiceRequest& request, UiLanguage language,
                                 bool filesAccepted) {
    QStringList arguments;
    for (const std::string& a : request.arguments) arguments << QString::fromStdString(a);
    if (arguments.isEmpty()) {
        usage(QStringLiteral("%1 %2 needs %3")
                  .arg(QString::fromStdString(request.panel),
                       QString::fromStdString(request.action),
                       filesAccepted ? QStringLiteral("a FILE or NAME=VALUE arguments")
                                     : QStringLiteral("NAME=VALUE arguments")));
        return std::nullopt;
    }
    Source source;
    if (filesAccepted && arguments.size() == 1 && !arguments[0].contains(QLatin1Char('='))) {
        const Result<QByteArray> read = readWholeFile(arguments[0]);
        if (!read) {
            reportError(read.error(), language, 0);
            return std::nullopt;
        }
        source.isFile = true;
        source.fileBytes = read.value();
        return source;
    }
    QString bad;
    const std::optional<std::vector<Assignment>> values = parseAssignments(arguments, &bad);
    if (!values) {
        usage(QStringLiteral("expected NAME=VALUE, got: %1").arg(bad));
        return std::nullopt;
    }
    source.values = *values;
    return source;
}

bool unknownName(bool applied, const QString& name) {
    if (!applied) usage(QStringLiteral("unknown name: %1 (see --help)").arg(name));
    return !applied;
}

// Loads a panel file, saying on stderr what did not fit.
template <typename Load>
auto loadPanelFile(const QByteArray& bytes, UiLanguage language, Load load) {
    QString dropped;
    auto loaded = load(bytes, language, &dropped);
    if (!dropped.isEmpty()) QTextStream(stderr) << "radioprog-cli: " << dropped << '\n';
    return loaded;
}

int saveOutput(const ServiceRequest& request, const QByteArray& bytes, UiLanguage language) {
    if (request.output.empty()) return kExitOk;
    const Result<void> saved = saveWholeFile(QString::fromStdString(request.output), bytes);
    return saved ? kExitOk : reportError(saved.error(), language, kExitCannotSave);
}

// The grid a register action works on; false after saying why.
bool registerGrid(const ServiceRequest& request, UiLanguage language, RegisterGrid* grid) {
    const std::optional<Source> source = readSource(request, language, true);
    if (!source) return false;
    if (source->isFile) {
        *grid = loadPanelFile(source->fileBytes, language, registerGridFromFile);
        return true;
    }
    QString name;
    return !unknownName(applyRegisterValues(source->values, grid, &name), name);
}

int registers(ServiceConsole& console, const ServiceRequest& request, const RegisterGrid& grid) {
    RegisterPanel panel(console.channel());
    panel.grid = grid;
    const std::map<std::string, bool (RegisterPanel::*)()> actions = {
        {"clear", &RegisterPanel::clear},
        {"read-eeprom", &RegisterPanel::readEeprom},
        {"read-rfic", &RegisterPanel::readRfic},
        {"write-rfic", &RegisterPanel::writeRfic},
        {"save-eeprom", &RegisterPanel::saveEeprom},
    };
    const auto action = actions.at(request.action);
    const ServiceOutcome outcome = console.run(panel, [&] { return (panel.*action)(); });
    if (outcome != ServiceOutcome::Succeeded) return exitStatus(outcome);
    if (request.action.rfind("read", 0) != 0) return kExitOk;
    printLines(registerValueLines(panel.grid));
    return saveOutput(request, registerFileBytes(panel.grid), console.language());
}

int calibration(ServiceConsole& console, const ServiceRequest& request,
                const std::vector<Assignment>& values) {
    CalibrationPanel panel(console.channel());
    if (request.action == "version") {
        const ServiceOutcome outcome = console.run(panel, [&] { return panel.readVersion(); });
        if (outcome == ServiceOutcome::Succeeded) printLines(panel.version);
        return exitStatus(outcome);
    }
    if (request.action == "write") {
        // A value that does not fit is refused before the radio is even read.
        CalibrationValues given;
        QString name;
        applyCalibrationValues(values, &given, &name);
        if (!calibrationWriteRequest(given, 0, 0, console.language()).ok()) {
            panel.values = given;
            return exitStatus(console.run(panel, [&] { return panel.write(); }));
        }
    }
    // A write changes the values named and sends the others as the radio holds them.
    ServiceOutcome outcome = console.run(panel, [&] { return panel.read(); });
    if (outcome != ServiceOutcome::Succeeded) return exitStatus(outcome);
    if (request.action == "read") {
        printLines(calibrationValueLines(panel.values));
        return kExitOk;
    }
    QString name;
    applyCalibrationValues(values, &panel.values, &name);
    return exitStatus(console.run(panel, [&] { return panel.write(); }));
}

int band(ServiceConsole& console, const ServiceRequest& request,
         const std::optional<Source>& source, const QStringList& adjust) {
    BandPanel panel(console.channel());
    if (request.action == "defaults") {
        return exitStatus(console.run(panel, [&] { return panel.restoreDefaults(); }));
    }
    const bool fromFile = source && source->isFile;
    if (source && !fromFile) {
        // A cell that does not fit is refused before the radio is even read.
        QString name;
        applyBandValues(source->values, &panel.table, &name);
        for (int segment = 0; segment < 4; ++segment) {
            if (!bandSegmentData(panel.table, segment, console.language()).ok())
                return exitStatus(console.run(panel, [&] { return panel.write(); }));
        }
        panel.table = {};
    }
    if (!fromFile) {
        // Like the window, which shows what was read before it is changed and written.
        const ServiceOutcome outcome = console.run(panel, [&] { return panel.read(); });
        if (outcome != ServiceOutcome::Succeeded) return exitStatus(outcome);
    }
    if (request.action == "read") {
        printLines(bandValueLines(panel.table));
        return saveOutput(request, bandFileBytes(panel.table), console.language());
    }
    if (request.action == "adjust") {
        return exitStatus(console.run(
            panel, [&] { return panel.adjust(adjust[0], adjust[1], adjust[2], adjust[3]); }));
    }
    if (fromFile) {
        panel.table = loadPanelFile(source->fileBytes, console.language(), bandTableFromFile);
    } else {
        QString name;
        applyBandValues(source->values, &panel.table, &name);
    }
    return exitStatus(console.run(panel, [&] { return panel.write(); }));
}

int crystal(ServiceConsole& console, const ServiceRequest& request, const QString& value) {
    CrystalPanel panel(console.channel());
    if (request.action == "read") {
        const ServiceOutcome outcome = console.run(panel, [&] { return panel.read(); });
        if (outcome == ServiceOutcome::Succeeded) {
            printLines({QStringLiteral("%1=%2").arg(QLatin1String(kCrystalName), panel.value)});
        }
        return exitStatus(outcome);
    }
    panel.value = value;
    return exitStatus(console.run(panel, [&] { return panel.write(); }));
}

// The four "分段调整" values by name, the sliders' initial values for those not given.
std::optional<QStringList> adjustValues(const std::vector<Assignment>& values) {
    const QStringList names = {"tx-low", "tx-high", "rssi-low", "rssi-high"};
    QStringList chosen = {BandPanel::kInitialTxLow, BandPanel::kInitialTxHigh,
                          BandPanel::kInitialRssi, BandPanel::kInitialRssi};
    for (const auto& [name, value] : values) {
        const qsizetype at = names.indexOf(name);
        if (unknownName(at >= 0, name)) return std::nullopt;
        chosen[at] = value;
    }
    return chosen;
}

}  // namespace

int runServiceAction(const GlobalOptions& global, const ServiceRequest& request) {
    if (isBoardPanel(request.panel)) return runBoardAction(global, request);
    const std::optional<PortArgument> port = parsePortOption(request.port);
    if (!port) return kExitBadInput;
    const UiLanguage language = global.startupCodeplug().language;

    // Everything the command line says is checked before the port is opened.
    RegisterGrid grid;
    std::optional<Source> source;
    QStringList adjust;
    QString crystalValue;
    const std::string& action = request.action;
    if (request.panel == "registers" && action != "clear" && action != "read-eeprom") {
        if (!registerGrid(request, language, &grid)) return kExitBadInput;
    } else if (request.panel == "calibration" && action == "write") {
        source = readSource(request, language, false);
        CalibrationValues check;
        QString name;
        if (!source || unknownName(applyCalibrationValues(source->values, &check, &name), name))
            return kExitBadInput;
    } else if (request.panel == "band" && action == "write") {
        source = readSource(request, language, true);
        BandTable check;
        QString name;
        if (!source) return kExitBadInput;
        if (!source->isFile && unknownName(applyBandValues(source->values, &check, &name), name))
            return kExitBadInput;
    } else if (request.panel == "band" && action == "adjust") {
        QString bad;
        QStringList arguments;
        for (const std::string& a : request.arguments) arguments << QString::fromStdString(a);
        const auto values = parseAssignments(arguments, &bad);
        if (!values) return usage(QStringLiteral("expected NAME=VALUE, got: %1").arg(bad));
        const std::optional<QStringList> chosen = adjustValues(*values);
        if (!chosen) return kExitBadInput;
        adjust = *chosen;
    } else if (request.panel == "crystal" && action == "write") {
        if (request.arguments.size() != 1)
            return usage(QStringLiteral("crystal write takes one VALUE"));
        crystalValue = QString::fromStdString(request.arguments[0]);
        const QString prefix = QLatin1String(kCrystalName) + QLatin1Char('=');
        if (crystalValue.startsWith(prefix)) crystalValue = crystalValue.mid(prefix.size());
    }

    ServiceConsole console(global, *port, language);
    if (!console.traceTo(request.trace)) return kExitBadInput;
    if (request.panel == "registers") return registers(console, request, grid);
    if (request.panel == "calibration") {
        return calibration(console, request, source ? source->values : std::vector<Assignment>{});
    }
    if (request.panel == "band") return band(console, request, source, adjust);
    return crystal(console, request, crystalValue);
}
