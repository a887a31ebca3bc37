#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

// The widgets need an application; without a display they draw offscreen (test discovery
// runs this binary too).
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // The backups a write takes go to a data folder of the tests' own.
    const QTemporaryDir dataHome;
    qputenv("XDG_DATA_HOME", dataHome.path().toLocal8Bit());
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("radioprog"));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
