#pragma once

#include <gtest/gtest.h>

#include <QList>
#include <QTest>
#include <QWidget>
#include <memory>

#include "link/link_transport.h"
#include "platform/steady_clock.h"
#include "platform/window_prompts.h"
#include "service/service_channel.h"
#include "sim/simulated_radio_port.h"

// Records the boxes a window shows and answers file choices from the test.
struct RecordingPrompts : WindowPrompts {
    QList<MessageBox> boxes;
    QString openPath;
    QString savePath;
    void showStatus(const StatusText&) override {}
    void showMessage(const MessageBox& box) override { boxes.append(box); }
    bool askYesNo(const Question&) override { return false; }
    QString chooseOpenFile(const QString&) override { return openPath; }
    QString chooseSaveFile(const QString&) override { return savePath; }
};

// The link to an in-process simulated radio, with the service channel on it.
class ServiceWindowTest : public ::testing::Test {
protected:
    ServiceWindowTest() {
        // The radio answers after the link's settle time, as a real one does.
        port->open(SimulatedPort::kDefaultDevice);
    }

    template <typename T>
    static T* find(QWidget& window, const char* name) {
        T* widget = window.findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    // Clicks `button` and waits for the operation to end with its box.
    bool press(QWidget* button) {
        const qsizetype before = prompts.boxes.size();
        QTest::mouseClick(button, Qt::LeftButton);
        return QTest::qWaitFor([&] { return prompts.boxes.size() > before && button->isEnabled(); },
                               10'000);
    }
    QString lastBox() const {
        return prompts.boxes.isEmpty()
                   ? QString()
                   : prompts.boxes.last().text + " | " + prompts.boxes.last().title;
    }

    SteadyClock clock;
    std::unique_ptr<SimulatedRadioPort> port = SimulatedRadioPort::create(clock);
    LinkTransport transport{*port, clock};
    RecordingPrompts prompts;
    ServiceChannel channel{transport, prompts};
};
