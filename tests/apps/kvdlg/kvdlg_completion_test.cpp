#include <gmock/gmock.h>

#include <set>

#include "kvdlg_program.h"

namespace {

using test::Kvdlg;

/// What bash offers behind those words of a command line, the last of which is being typed.
std::set<std::string> Offered(const std::vector<std::string>& words) {
    const Kvdlg kvdlg;
    std::string typed = std::string("'") + KVDLG_PROGRAM + "'";
    for (const std::string& word : words)
        typed += " '" + word + "'";
    kvdlg.folder.Write("complete.sh", std::string("source '") + KVDLG_COMPLETION + "'\n" +
                                          "COMP_WORDS=(" + typed + ")\n" +
                                          "COMP_CWORD=" + std::to_string(words.size()) + "\n" +
                                          "_kvdlg\nprintf '%s\\n' \"${COMPREPLY[@]}\"\n");
    const std::string out = kvdlg.folder.Native("offered");
    const std::string line =
        "bash '" + kvdlg.folder.Native("complete.sh") + "' >'" + out + "' 2>&1";
    EXPECT_EQ(std::system(line.c_str()), 0);
    std::set<std::string> offered;
    for (const std::string& each : kv::Split(kvdlg.folder.Read("offered"), '\n'))
        if (!each.empty()) offered.insert(each);
    return offered;
}

TEST(KvdlgCompletion, OffersCommandsThenClassesThenOptions) {
    EXPECT_THAT(Offered({"de"}), testing::ElementsAre("describe"));
    EXPECT_THAT(Offered({"run", "CKvGuiPipeSt"}), testing::ElementsAre("CKvGuiPipeStatusDlg"));
    EXPECT_THAT(Offered({"describe", "CNone"}), testing::IsEmpty());
    EXPECT_THAT(Offered({"run", "CKvGuiPipeStatusDlg", "--pr"}),
                testing::ElementsAre("--print", "--print0"));
}

TEST(KvdlgCompletion, OffersEveryOptionThatRunTakes) {
    const std::string help = Kvdlg().Run({"run", "--help"}).out;
    for (const std::string& option : Offered({"run", "CKvGuiPipeStatusDlg", "--"}))
        EXPECT_THAT(help, testing::HasSubstr(option)) << option;
    const auto offered = Offered({"run", "CKvGuiPipeStatusDlg", "--"});
    for (const std::string& line : kv::Split(help.substr(0, help.find("A script plays")), '\n')) {
        const auto at = line.find("--");
        if (line.rfind("  ", 0) != 0 || at == std::string::npos || at > 6) continue;
        const std::string option = line.substr(at, line.find_first_of(" ,", at) - at);
        EXPECT_TRUE(offered.contains(option)) << option;
    }
}

TEST(KvdlgCompletion, OffersTheInputsOfTheClass) {
    EXPECT_THAT(Offered({"run", "CKvGuiSizingDlg", "--set", "s"}), testing::ElementsAre("scale="));
}

}  // namespace
