#pragma once

#include <gtest/gtest.h>

#include <QComboBox>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <memory>
#include <vector>

#include "mainwindow/channel_grid_model.h"
#include "mainwindow/main_window.h"
#include "mainwindow/port_with_simulator.h"
#include "platform/qt_serial_port.h"
#include "platform/steady_clock.h"

// Records what the windows show and answers their questions from the test's script.
struct ScriptedPrompts : WindowPrompts {
    QStringList statuses;
    std::vector<MessageBox> boxes;
    std::vector<Question> questions;
    bool answer = false;
    QString openPath;
    QString savePath;

    void showStatus(const StatusText& status) override { statuses << status.text; }
    void showMessage(const MessageBox& box) override { boxes.push_back(box); }
    bool askYesNo(const Question& question) override {
        questions.push_back(question);
        return answer;
    }
    QString chooseOpenFile(const QString&) override { return openPath; }
    QString chooseSaveFile(const QString&) override { return savePath; }

    QStringList boxTexts() const {
        QStringList texts;
        for (const MessageBox& box : boxes) texts << box.text;
        return texts;
    }
};

inline Codeplug startupDocument(UiLanguage language = UiLanguage::English, bool fixed = false) {
    StartupConfig config;
    config.language = language;
    config.channelsFixed = fixed;
    return buildStartupCodeplug(config);
}

// The main window on the in-process simulated radio, which the catalogue knows as COM1.
class WindowFixture {
public:
    explicit WindowFixture(Codeplug doc = startupDocument(),
                           std::optional<Error> configUnreadable = std::nullopt) {
        MainWindowSetup setup;
        setup.configUnreadable = std::move(configUnreadable);
        setup.document = std::move(doc);
        setup.configPath = dir.filePath(QStringLiteral("config.ini"));
        setup.catalogue = PortCatalogue({}, {{1, PortWithSimulator::simulatorDevice()}});
        setup.portToSelect = 1;
        window = std::make_unique<MainWindow>(std::move(setup), port, clock, prompts);
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }

    template <typename T>
    T* find(const char* name) {
        T* widget = window->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    QTableView* grid() { return find<QTableView>("MSFlexGrid1"); }
    QModelIndex cell(int row, int column) { return grid()->model()->index(row, column); }
    QString text(int row, int column) { return cell(row, column).data().toString(); }
    void click(int row, int column) {
        QTableView* view = grid();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                          view->visualRect(cell(row, column)).center());
    }
    // What a user's choice in a list does (the activated signal is what the window hears).
    void choose(const char* boxName, int index) {
        QComboBox* box = find<QComboBox>(boxName);
        box->setCurrentIndex(index);
        Q_EMIT box->activated(index);
        Q_EMIT box->textActivated(box->itemText(index));
    }
    bool waitFor(const std::function<bool()>& condition, int timeoutMs = 15000) {
        return QTest::qWaitFor(condition, timeoutMs);
    }
    SimRadio& radio() { return port.simulatedRadio(); }

    QTemporaryDir dir;
    SteadyClock clock;
    PortWithSimulator port{std::make_unique<QtSerialPort>(), clock};
    ScriptedPrompts prompts;
    std::unique_ptr<MainWindow> window;
};
