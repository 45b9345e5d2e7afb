#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "base/text.h"
#include "support/temp_folder.h"

namespace test {

/// The program kvdlg, run from the shell on the sample database, with files in a folder of its own.
class Kvdlg {
public:
    using Json = nlohmann::ordered_json;

    struct Ended {
        int exit = -1;
        std::string out;
        std::string error;

        /// What was printed, as JSON; discarded where it is none.
        Json Printed() const { return Json::parse(out, nullptr, false); }
    };

    Kvdlg() {
        const char* sample = std::getenv("KVGUICTL_SAMPLE_DB");
        folder.Set("KVGUICTL_DB", std::string("sqlite:") + (sample ? sample : ""));
        for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            folder.Set(display, std::nullopt);
    }

    /// What is printed goes where `output` says, in words of the shell, or else to the outcome.
    Ended Run(const std::vector<std::string>& arguments, const std::string& output = {}) const {
        std::string line = Quoted(KVDLG_PROGRAM);
        for (const std::string& argument : arguments)
            line += " " + Quoted(argument);
        line += " >" + Quoted(folder.Native("kvdlg.out")) + " " + output + " 2>" +
                Quoted(folder.Native("kvdlg.error"));
        const int status = std::system(line.c_str());
        EXPECT_TRUE(WIFEXITED(status)) << line;
        return {WEXITSTATUS(status), folder.Read("kvdlg.out"), folder.Read("kvdlg.error")};
    }
    /// Runs a dialog with a script, and what else stands on the command line.
    Ended Play(const std::string& className, const std::string& script,
               const std::vector<std::string>& options = {}, const std::string& output = {}) const {
        folder.Write("kvdlg.script", script);
        std::vector<std::string> arguments{"run", className, "--script",
                                           folder.Native("kvdlg.script")};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return Run(arguments, output);
    }
    Json Describe(const std::string& className) const {
        return Run({"describe", className}).Printed();
    }
    /// Every class that "kvdlg list" names.
    std::vector<std::string> Classes() const {
        std::vector<std::string> classes;
        for (const std::string& line : kv::Split(Run({"list"}).out, '\n')) {
            if (!line.empty()) classes.push_back(line.substr(0, line.find(' ')));
        }
        return classes;
    }

    TempFolder folder;

private:
    static std::string Quoted(const std::string& argument) {
        return "'" + kv::ReplaceAll(argument, "'", "'\\''") + "'";
    }
};

}  // namespace test
