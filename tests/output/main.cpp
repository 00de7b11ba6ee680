#include <gtest/gtest.h>
#include <QGuiApplication>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
