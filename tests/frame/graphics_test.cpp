#include "frame/graphics.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "support/temp_folder.h"

namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;

class GraphicsTest : public testing::Test {
protected:
    ~GraphicsTest() override { kv::SetGraphics(nullptr); }

    static std::string Ask() { return graphics("someone", "secret", "db", 1, "text", "OWNER"); }
    /// The last line of the log, from its level on.
    std::string Logged() const {
        const std::string log = folder.Read("log.txt");
        return log.substr(std::min(log.rfind(" 101 "), log.size()));
    }

    test::TempFolder folder;
};

TEST_F(GraphicsTest, AsksTheHostsMapAndGivesItsAnswer) {
    std::vector<std::string> asked;
    kv::SetGraphics([&](const std::string& user, const std::string& password,
                        const std::string& server, int mode, const std::string& text,
                        const std::string& owner) {
        asked = {user, password, server, std::to_string(mode), text, owner};
        return std::string("1,2,GRAND ISLE,9,A,");
    });
    EXPECT_EQ(Ask(), "1,2,GRAND ISLE,9,A,");
    EXPECT_THAT(asked, ElementsAre("someone", "secret", "db", "1", "text", "OWNER"));
    EXPECT_FALSE(folder.Has("log.txt"));
}

TEST_F(GraphicsTest, WithoutAMapThereIsNoPickAndTheLogTellsWhy) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(Ask(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(Logged(), " 101 No blocks were picked on the map: the host has named no map\n");
}

TEST_F(GraphicsTest, AMapThatFailsIsNoPickAndTheLogTellsWhy) {
    kv::SetGraphics([](const auto&...) -> std::string { throw std::runtime_error("torn"); });
    EXPECT_EQ(Ask(), "");
    EXPECT_EQ(Logged(), " 101 No blocks were picked on the map: torn\n");
    kv::SetGraphics([](const auto&...) -> std::string { throw 7; });
    EXPECT_EQ(Ask(), "");
    EXPECT_EQ(Logged(), " 101 No blocks were picked on the map: the map failed\n");
}

TEST_F(GraphicsTest, NamingAMapGivesTheFormerOneBack) {
    EXPECT_FALSE(kv::SetGraphics([](const auto&...) { return std::string("first"); }));
    const kv::Graphics first = kv::SetGraphics([](const auto&...) { return std::string("next"); });
    EXPECT_EQ(first("", "", "", 1, "", ""), "first");
    EXPECT_EQ(Ask(), "next");
}

TEST_F(GraphicsTest, AMapStaysWholeWhileItNamesAnother) {
    const std::string answer = ",,AN AREA OF A LONG NAME,9,A,";
    kv::SetGraphics([answer](const auto&...) {
        kv::SetGraphics(nullptr);
        return answer;
    });
    EXPECT_EQ(Ask(), answer);
    EXPECT_EQ(Ask(), "");
}

}  // namespace
