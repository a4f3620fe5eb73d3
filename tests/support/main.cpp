#include <gtest/gtest.h>

#include <QCoreApplication>
#include <clocale>

// Archives that the tests write have names outside ASCII, whatever the tester's locale is.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    std::setlocale(LC_ALL, "C.UTF-8");
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
