// Main of every test program: one QApplication, headless unless a display is asked for.
#include <QApplication>
#include <cstring>
#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    bool listing = false;
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--gtest_list_tests") == 0)
            listing = true;
    ::testing::InitGoogleTest(&argc, argv);
    if (listing)
        return RUN_ALL_TESTS();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
