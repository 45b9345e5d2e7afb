#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "support/database_helpers.h"
#include "support/temp_folder.h"
#include "workbench/dataset.h"
#include "workbench/map_loader.h"

namespace test {

inline std::string SampleServer() {
    const char* path = std::getenv("KVGUICTL_SAMPLE_DB");
    return std::string("sqlite:") + (path ? path : "");
}

/// Works on the sample database, and keeps settings to itself.
class SampleTest : public ::testing::Test {
protected:
    SampleTest() { ConnectTo({"", "", SampleServer().c_str()}); }
    ~SampleTest() override { ConnectTo({}); }

    static std::string Single(const std::string& statement) {
        return workbench::Rows(statement).Cell(0, 0);
    }
    static int Count(const std::string& fromWhere) {
        return std::atoi(Single("select count(*) from " + fromWhere).c_str());
    }

    TempFolder folder;
};

inline void ReadAll(workbench::StepWork& work) {
    while (work.Step()) {
    }
    work.Finished(true);
}

/// What a map loader tells where nothing is to be lacking.
inline void LacksNothing(const QString& words) {
    ADD_FAILURE() << words.toStdString();
}

}  // namespace test
