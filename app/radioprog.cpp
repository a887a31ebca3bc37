// radioprog: the desktop program.
#include <QApplication>
#include <QCommandLineParser>
#include <QDateTime>
#include <cstdio>

#include "l10n/error_texts.h"
#include "link/port_catalogue.h"
#include "mainwindow/main_window.h"
#include "mainwindow/port_with_simulator.h"
#include "mainwindow/window_prompts.h"
#include "persistence/config_file.h"
#include "platform/qt_serial_port.h"
#include "platform/steady_clock.h"

namespace {

// For the start-up benchmark: the wall clock at the main window's first paint, on stderr.
class FirstPaintReporter : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            std::fprintf(stderr, "first-paint-epoch-ms %lld\n",
                         static_cast<long long>(QDateTime::currentMSecsSinceEpoch()));
            watched->removeEventFilter(this);
        }
        return false;
    }
};

// The simulated radio takes the lowest port number config.ini has not pinned, so the scan of
// COM1..COM16 finds it.
std::optional<int> pinSimulator(QMap<int, QString>& pins) {
    for (int number = 1; number <= PortControl::kScannedPorts; ++number) {
        if (pins.contains(number)) continue;
        pins.insert(number, PortWithSimulator::simulatorDevice());
        return number;
    }
    return std::nullopt;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("radioprog"));
    QApplication::setApplicationVersion(QStringLiteral(RADIOPROG_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Programs the hand-held radio's channel plan"));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption simulator(QStringLiteral("simulator"),
                                       QStringLiteral("add the simulated radio as port \"sim\""));
    const QCommandLineOption config(QStringLiteral("config"),
                                    QStringLiteral("folder that holds config.ini"),
                                    QStringLiteral("DIR"));
    const QCommandLineOption lang(QStringLiteral("lang"),
                                  QStringLiteral("language for this run: zh or en"),
                                  QStringLiteral("zh|en"));
    parser.addOptions({simulator, config, lang});
    parser.process(application);

    std::optional<UiLanguage> language;
    if (parser.isSet(lang)) {
        const QString value = parser.value(lang);
        if (value != QLatin1String("zh") && value != QLatin1String("en")) {
            std::fprintf(stderr, "radioprog: --lang takes zh or en\n");
            return 2;
        }
        language = value == QLatin1String("en") ? UiLanguage::English : UiLanguage::Chinese;
    }

    const QString configPath = configFilePath(parser.value(config));
    MainWindowSetup setup;
    setup.configPath = configPath;
    setup.document = loadStartupCodeplug(configPath, ConfigCompletion::SaveMissingKeys, language,
                                         &setup.configUnreadable);
    if (setup.configUnreadable) {
        std::fprintf(
            stderr, "radioprog: %s\n",
            qPrintable(l10n::configWarning(*setup.configUnreadable, setup.document.language)));
    }
    QMap<int, QString> pins = readPortPins(configPath);
    if (parser.isSet(simulator)) setup.portToSelect = pinSimulator(pins);
    setup.catalogue = PortCatalogue::fromSystem(pins);

    SteadyClock clock;
    PortWithSimulator port(std::make_unique<QtSerialPort>(), clock);
    port.setSimulatorPacing(true);
    WidgetPrompts prompts;
    MainWindow window(std::move(setup), port, clock, prompts);
    prompts.setParent(&window);
    if (qEnvironmentVariableIsSet("RADIOPROG_REPORT_FIRST_PAINT")) {
        window.installEventFilter(new FirstPaintReporter(&window));
    }
    window.showWithSplash();
    return QApplication::exec();
}
