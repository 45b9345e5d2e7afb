#include <gtest/gtest.h>

#include <QApplication>
#include <chrono>

#include "window/blocked_windows.h"

namespace {

/// What is slow on a busy machine brings up no window of its own. Tests of that window ask for it.
class PatientPerson : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { kv::SetPatience(std::chrono::hours(1)); }
};

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new PatientPerson);
    return RUN_ALL_TESTS();
}
