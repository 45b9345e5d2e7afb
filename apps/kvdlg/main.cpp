// kvdlg: runs one dialog from the shell and prints its outcome as JSON.

#include <CLI/CLI.hpp>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

#include "adaptors/adaptor.h"
#include "frame/db_abs_data_mgr.h"
#include "frame/module.h"
#include "frame/statement_trace.h"
#include "kvdlg/report.h"
#include "kvdlg/script.h"
#include "kvdlg/script_lines.h"
#include "window/headless_desktop.h"
#include "window/window_system.h"

namespace {

using adaptors::Adaptor;
using kvdlg::Json;

enum ExitCode { kDone = 0, kCancelled = 1, kWrongUse = 2, kDataFailure = 3 };

constexpr const char* kScriptHelp = R"(
A script plays the user. It is a JSON file:

  { "inputs": { "column": "lessee" },
    "user": [
      { "window": "CKvGuiListSel",
        "do": [ {"type": [1191, "shell"]}, {"click": 1192}, {"select": [1193, [0, 2]]},
                {"click": 1188}, {"click": 1} ] },
      { "message": "No Matches found!", "answer": "ok" },
      { "file": "C:\\tmp\\a.txt" } ] }

Scenes are taken in the order in which windows, message boxes and file dialogs open ("file": null
cancels). Actions: "type" [id, text], "key" [id, name], "paste" [id, text], "click" id,
"doubleclick" [id, row], "select" [id, row text | index | list of them], "drop" id, "focus" id,
"close" null, "call" [method, arguments...], "snapshot" name. "pump" N plays its actions when the
queue is pumped inside long work, after N pumpings.

Exit codes: 0 done, 1 cancelled, 2 wrong use or a script that does not fit, 3 a failure of the
database or of a file.)";

struct Options {
    std::string className;
    std::string inputFile;
    std::string scriptFile;
    std::string database;
    std::string picture;
    bool trace = false;
};

std::string ReadFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw kvdlg::BadScript("The file " + path + " cannot be read");
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

const Adaptor& Require(const std::string& className) {
    const Adaptor* adaptor = adaptors::Find(className);
    if (!adaptor) {
        throw adaptors::BadInput("There is no dialog \"" + className +
                                 "\"; \"kvdlg list\" tells which there are");
    }
    return *adaptor;
}

int List() {
    for (const Adaptor* each : adaptors::All()) {
        std::printf("%-26s %-28s %s\n", each->className.c_str(), each->family.c_str(),
                    each->caption.c_str());
    }
    return kDone;
}

int DescribeDialog(const std::string& className) {
    const Adaptor& adaptor = Require(className);
    Json inputs = Json::array();
    for (const adaptors::Input& each : adaptor.inputs) {
        Json input{{"name", each.name}, {"type", each.type}, {"meaning", each.meaning}};
        if (!each.sample.is_null()) input["sample"] = each.sample;
        inputs.push_back(std::move(input));
    }
    const Json description{{"class", adaptor.className},
                           {"family", adaptor.family},
                           {"caption", adaptor.caption},
                           {"inputs", inputs},
                           {"controls", kvdlg::DescribeTemplate(adaptor.templateId)},
                           {"returns", adaptor.returns}};
    std::cout << kvdlg::Print(description) << std::endl;
    return kDone;
}

/// The inputs: those of the input file over those of the script.
Json InputsOf(const Options& options, const Json& script) {
    Json inputs = script.value("inputs", Json::object());
    if (!options.inputFile.empty()) {
        const Json given =
            kvdlg::ParseJson(ReadFile(options.inputFile), "The file " + options.inputFile);
        const Json own = given.contains("inputs") ? given["inputs"] : given;
        if (!own.is_object()) throw kvdlg::BadScript("The input has to be an object");
        inputs.update(own);
    }
    return inputs;
}

int Play(const Options& options) {
    const Adaptor& adaptor = Require(options.className);
    const std::string text = ReadFile(options.scriptFile);
    const Json script = kvdlg::ParseJson(text, "The script " + options.scriptFile);
    if (!script.is_object()) throw kvdlg::BadScript("The script has to be an object");
    const Json inputs = InputsOf(options, script);
    adaptor.Check(inputs);

    Json windows = Json::array();
    Json sql = Json::array();
    adaptors::Run run(inputs);
    kv::HeadlessDesktop desktop;
    kv::WindowSystem::Get().SetDesktop(&desktop);
    desktop.SetWindowClosed(
        [&](kv::Node& window) { windows.push_back(kvdlg::Describe(window, "")); });
    std::string place;
    desktop.SetFailure([&](const std::string& words) {
        std::cerr << "kvdlg: " << place << (place.empty() ? "" : ": ") << words << std::endl;
        std::fflush(nullptr);
        // At once: no handler on the way may go on.
        std::_Exit(kWrongUse);
    });
    const auto snapshot = [&](kv::Node& window, const std::string& name) {
        windows.push_back(kvdlg::Describe(window, name));
    };
    const auto call = [&](const std::string& method, const Json& arguments) {
        try {
            run.DoCall(method, arguments);
        } catch (const adaptors::BadInput& e) {
            desktop.Fail(e.what());
        }
    };
    const auto at = [&](const std::string& where) { place = where; };
    kvdlg::AddScenes(script.value("user", Json::array()), kvdlg::LinesOf(text), desktop,
                     {snapshot, call, at});
    kv::db::SetStatementTrace([&](const std::string& statement) { sql.push_back(statement); });

    adaptor.run(run);
    kv::db::SetStatementTrace(nullptr);
    if (desktop.ScenesLeft() > 0) {
        desktop.Fail("the run is over, and " + std::to_string(desktop.ScenesLeft()) +
                     " scenes were not taken");
    }

    Json outcome{{"result", run.ResultName()}, {"outcome", run.outcome}};
    outcome["messages"] = desktop.Messages();
    if (options.trace) outcome["sql"] = sql;
    outcome["windows"] = windows;
    std::cout << kvdlg::Print(outcome) << std::endl;
    return run.result == IDCANCEL ? kCancelled : run.result == IDOK ? kDone : kDataFailure;
}

void UseDatabase(const std::string& server) {
    if (server.empty()) return;
    CKvDbInfo info("", "", server.c_str());
    CKvDbAbsDataMgr manager(1);
    manager.SetDbInfo(info);
    // A database that is not there ends the run here and not in some message box.
    manager.Connect();
    manager.Disconnect();
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app("Runs the dialogs of KVGuiCtl from the shell");
    app.footer(kScriptHelp);
    app.require_subcommand(1);
    Options options;

    auto* list = app.add_subcommand("list", "Every dialog: class, family, caption");
    auto* describe =
        app.add_subcommand("describe", "Inputs that a dialog takes, its controls, what it returns");
    describe->add_option("CLASS", options.className, "The dialog's class")->required();
    auto* run = app.add_subcommand("run", "Runs a dialog");
    run->add_option("CLASS", options.className, "The dialog's class")->required();
    run->add_option("--input", options.inputFile, "JSON file with the inputs");
    run->add_option("--script", options.scriptFile, "JSON file that plays the user");
    run->add_option("--db", options.database,
                    "Server text, as sqlite:PATH or postgresql://...; the sample database if left "
                    "out");
    run->add_flag("--trace", options.trace, "Adds the SQL texts that were sent");
    run->add_option("--picture", options.picture, "PNG file for a picture of the dialog");

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) {
        return app.exit(e) == 0 ? kDone : kWrongUse;
    }

    InitControlDll();
    try {
        UseDatabase(options.database);
        if (*list) return List();
        if (*describe) return DescribeDialog(options.className);
        return Play(options);
    } catch (const CKvException& e) {
        std::cerr << "kvdlg: " << e.GetErrorMessage(true, true) << std::endl;
        return kDataFailure;
    } catch (const std::exception& e) {
        std::cerr << "kvdlg: " << e.what() << std::endl;
        return kWrongUse;
    }
}
