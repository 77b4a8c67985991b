#include "support/privatesettings.h"

#include <QtWidgets/QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    vxtest::usePrivateSettings(argv);
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
