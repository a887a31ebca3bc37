#pragma once

#include <QFile>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <array>
#include <memory>
#include <optional>

#include "link/link_trace.h"
#include "link/link_transport.h"
#include "link/port_control.h"
#include "link/radio_session.h"
#include "link/session_view.h"
#include "mainwindow/window_prompts.h"
#include "model/codeplug.h"
#include "model/editing.h"
#include "service/service_channel.h"

class QAction;
class QActionGroup;
class QComboBox;
class QGroupBox;
class QLabel;
class QMenu;
class QPushButton;
class BootLoaderWindow;
class CalibrationWindow;
class CrystalWindow;
class HardwareWindow;
class IdentityWindow;
class PlayerWindow;
class TestModeWindow;
class VolumeWindow;
class RegisterWindow;
class ChannelGridModel;
class DocumentHistory;
class ChannelGridView;
class PortPickerDialog;
class ProgressWindow;
class SplashScreen;

// What the program hands the main window at start-up.
struct MainWindowSetup {
    Codeplug document;  // built from config.ini
    QString configPath;
    PortCatalogue catalogue;
    std::optional<int> portToSelect;        // chosen after the start-up scan (the simulated radio)
    std::optional<Error> configUnreadable;  // config.ini is there but could not be read
};

// The main window: menus, the settings panel, the channel grid, the edit panel, the buttons
// and the status bar, all views of one document. Reads and writes run the link's sessions; the
// window only shows what they report through the Prompts and SessionView seams.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    MainWindow(MainWindowSetup setup, SerialPort& port, Clock& clock, WindowPrompts& prompts,
               QWidget* parent = nullptr);
    ~MainWindow() override;

    // The start-up screen over the window, closed after two seconds, a click or a key.
    void showWithSplash();

    const Codeplug& document() const { return doc_; }
    ChannelGridModel& gridModel() { return *gridModel_; }
    bool sessionRunning() const;

protected:
    void closeEvent(QCloseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    // The status bar's first panel, in front of the prompts: it remembers the message it
    // shows, so that a language switch can redraw it.
    class StatusRelay : public Prompts {
    public:
        explicit StatusRelay(MainWindow& window) : window_(window) {}
        void showStatus(const StatusText& status) override;
        void showMessage(const MessageBox& box) override;

    private:
        MainWindow& window_;
    };
    class WidgetSessionView : public SessionView {
    public:
        explicit WidgetSessionView(MainWindow& window) : window_(window) {}
        void setSessionButtonsEnabled(bool enabled) override;
        void showProgress(const QString& caption) override;
        void setProgress(int value) override;
        void hideProgress() override;
        void pauseStatusTimers() override;
        void resumeStatusTimers() override;

    private:
        MainWindow& window_;
    };

    // Construction (main_window.cpp).
    void buildMenus();
    QWidget* buildSettingsPanel();
    QWidget* buildEditPanel();
    void startUp(const std::optional<int>& portToSelect);

    // Captions and views (main_window_views.cpp).
    void applyCaptions();
    void fillSettingLists();
    void refreshDocumentViews();
    void switchLanguage(UiLanguage language);
    void settingChosen(SettingKey key, int index);
    void takeOverSetting(SettingKey key, int index);
    void channelCountChosen(const QString& text);
    void stepChosen(const QString& text);
    void showNotices(const Notices& notices);
    void openCustomToneDialog(int slot, CodeDirection direction);
    void openFile();
    void saveFile();
    // The path to save to, with `suffix` added when it has none; before it is returned the grid's
    // editor is closed and the cells redrawn, as saving shows them. Empty: cancelled.
    QString chooseSavePath(const char* filter, const QString& suffix);

    // CSV (main_window_csv.cpp).
    void exportCsv();
    void importCsv();
    void redrawStatus();

    // Ports (main_window_ports.cpp).
    void refreshPortViews();
    void portMenuChosen(int number);
    void portListChosen(int index);
    void scanPorts();
    void openPortPicker();
    // The port finder named the cable's device: it joins the port list and is opened.
    void cableFound(const QString& device);
    void openCableCheck();
    void statusTimerTick();

    // Sessions and closing (main_window_session.cpp).
    void startRead();
    void openBootLoader();
    // Starts or stops writing the serial traffic to a file the user chooses.
    void traceToFile(bool on);
    void openCalibrationWindow();
    void openCrystalWindow();
    void openRegisterWindow();
    void openHardwareWindow();
    void openVolumeWindow();
    void openPlayerWindow();
    void openIdentityWindow();
    void openTestModeWindow();
    template <typename Window, typename... Args>
    void openEngineering(QPointer<Window>& window, Args&... args);
    void startWrite();
    // The Setup menu's backup and verify items, written to config.ini.
    void rememberSafeWrite();
    void startSession(std::unique_ptr<RadioSession> session);
    void sessionFinished();
    void progressClosedByUser();
    void closeGridEditor();
    void stepHistory(bool back);

    Codeplug doc_;
    QString configPath_;
    SerialPort& port_;
    WindowPrompts& prompts_;
    StatusRelay statusRelay_{*this};
    WidgetSessionView sessionView_{*this};
    PortControl portControl_;
    LinkTransport transport_;
    ServiceChannel serviceChannel_{transport_, prompts_};  // shared by the engineering windows
    std::unique_ptr<RadioSession> session_;
    std::unique_ptr<RadioSession> finishedSession_;
    std::optional<StatusText> status_;  // the message shown, with only its suffix as text

    DocumentHistory* history_ = nullptr;
    QAction* undoAction_ = nullptr;
    QAction* redoAction_ = nullptr;
    QTimer statusTimer_;  // Timer1: the port state in the status bar, a second after resuming
    ChannelGridModel* gridModel_ = nullptr;
    ChannelGridView* grid_ = nullptr;
    ProgressWindow* progress_ = nullptr;
    QPointer<SplashScreen> splash_;
    QPointer<PortPickerDialog> portPicker_;
    QPointer<BootLoaderWindow> bootLoaderWindow_;
    QPointer<CalibrationWindow> calibrationWindow_;
    QPointer<CrystalWindow> crystalWindow_;
    QPointer<RegisterWindow> registerWindow_;
    QPointer<HardwareWindow> hardwareWindow_;
    QPointer<VolumeWindow> volumeWindow_;
    QPointer<PlayerWindow> playerWindow_;
    QPointer<IdentityWindow> identityWindow_;
    QPointer<TestModeWindow> testModeWindow_;

    // Widgets that change caption with the language, by role.
    std::array<QComboBox*, kSettingCount> settingBoxes_{};
    std::array<QLabel*, kSettingCount> settingLabels_{};
    QComboBox* portList_ = nullptr;         // Combo18
    QPushButton* scanButton_ = nullptr;     // Command3
    QComboBox* channelCountBox_ = nullptr;  // Combo12
    QComboBox* stepBox_ = nullptr;          // Combo13
    QLabel* channelCountLabel_ = nullptr;
    QLabel* stepLabel_ = nullptr;
    QPushButton* rxButton_ = nullptr;     // Command9
    QPushButton* txButton_ = nullptr;     // Command10
    QPushButton* writeButton_ = nullptr;  // Command1
    QPushButton* readButton_ = nullptr;   // Command2
    QPushButton* openButton_ = nullptr;   // Command5
    QPushButton* saveButton_ = nullptr;   // Command6
    QGroupBox* gridFrame_ = nullptr;
    QGroupBox* editFrame_ = nullptr;
    QLabel* statusPanel_ = nullptr;

    QMenu* fileMenu_ = nullptr;
    QMenu* setupMenu_ = nullptr;
    QMenu* portMenu_ = nullptr;
    QMenu* rateMenu_ = nullptr;
    QMenu* modelMenu_ = nullptr;
    QMenu* programMenu_ = nullptr;
    QMenu* languageMenu_ = nullptr;
    QAction* openAction_ = nullptr;
    QAction* saveAction_ = nullptr;
    QAction* exportCsvAction_ = nullptr;
    QAction* importCsvAction_ = nullptr;
    QAction* exitAction_ = nullptr;  // FormCancel; its check mark is the closing flag
    QAction* otherAction_ = nullptr;
    QAction* readAction_ = nullptr;
    QAction* writeAction_ = nullptr;
    QAction* engineeringAction_ = nullptr;
    QAction* audioTestAction_ = nullptr;
    QAction* testModeAction_ = nullptr;
    QAction* identityAction_ = nullptr;
    QAction* traceAction_ = nullptr;   // "Trace to file…"
    QAction* backupAction_ = nullptr;  // "Backup before write"
    QAction* verifyAction_ = nullptr;  // "Verify after write"
    QAction* cableCheckAction_ = nullptr;
    std::unique_ptr<QFile> traceFile_;
    std::unique_ptr<LinkTrace> trace_;
    QAction* chineseAction_ = nullptr;
    QAction* englishAction_ = nullptr;
    std::array<QAction*, PortControl::kComxItem + 1> portActions_{};  // [1..16] comN, [17] comx
};
