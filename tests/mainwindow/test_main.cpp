#include <gtest/gtest.h>

#include <QApplication>

// The widgets need an application; without a display they draw offscreen (test discovery
// runs this binary too).
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
