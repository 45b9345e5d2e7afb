// kvdlg: runs one dialog from the shell and prints its outcome as JSON.

#include <fcntl.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>

#include "base/text.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/statement_trace.h"
#include "frame/module.h"
#include "kvdlg/failure.h"
#include "kvdlg/help.h"
#include "kvdlg/play.h"
#include "kvdlg/report.h"
#include "kvdlg/script.h"
#include "kvdlg/script_lines.h"

namespace {

using namespace kvdlg;
using adaptors::Adaptor;

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
    std::ostringstream text;
    text << file.rdbuf();
    if (!file) throw FileFailure("The file " + path + " cannot be read");
    return text.str();
}

const Adaptor& Require(const std::string& className) {
    const Adaptor* adaptor = adaptors::Find(className);
    if (!adaptor) {
        throw BadUse("There is no dialog \"" + className +
                     "\"; \"kvdlg list\" tells which there are");
    }
    return *adaptor;
}

/// Prints what was asked for. Throws FileFailure where it does not arrive.
void PrintOut(const std::string& text) {
    std::cout << text << std::flush;
    if (!std::cout) {
        throw FileFailure(std::string("The output cannot be written: ") + std::strerror(errno));
    }
}

int List() {
    std::string lines;
    for (const Adaptor* each : adaptors::All()) {
        lines += kv::FormatText("%-26s %-28s %s\n", each->className.c_str(), each->family.c_str(),
                                each->caption.c_str());
    }
    PrintOut(lines);
    return kDone;
}

int DescribeClass(const Options& options) {
    PrintOut(Print(DescribeDialog(Require(options.className))) + "\n");
    return kDone;
}

std::optional<Script> ReadScript(const Options& options) {
    if (options.scriptFile.empty()) return {};
    Script script{ReadFile(options.scriptFile), {}};
    script.json = ParseJson(script.text, "The script " + options.scriptFile);
    if (!script.json.is_object()) throw BadScript("Line 1: expected the script to be an object");
    return script;
}

/// The inputs of the input file, under "inputs" or by themselves.
Json InputsOfFile(const std::string& path) {
    const Json given = ParseJson(ReadFile(path), "The file " + path);
    return given.is_object() && given.contains("inputs") ? given["inputs"] : given;
}

/// Those of the input file go over those of the script. A person who gives none gets the samples.
Json InputsOf(const Options& options, const Adaptor& adaptor, const std::optional<Script>& script) {
    if (!script && options.inputFile.empty()) return adaptor.SampleInputs();
    Json inputs = script ? script->json.value("inputs", Json::object()) : Json::object();
    if (!options.inputFile.empty()) {
        const Json own = InputsOfFile(options.inputFile);
        if (!own.is_object() || !inputs.is_object()) {
            throw BadScript("The file " + options.inputFile + ": expected an object of inputs");
        }
        inputs.update(own);
    }
    return inputs;
}

/// Puts the line of the script ahead of a complaint about an input that stands there.
std::string WithLine(const adaptors::BadInput& e, const std::optional<Script>& script) {
    const auto lines = script ? LinesOf(script->text) : LinesOf("");
    const std::string input = e.InputName().empty() ? "" : "/" + e.InputName();
    const auto at = lines.find("/inputs" + input);
    return at == lines.end() ? e.what() : "Line " + std::to_string(at->second) + ": " + e.what();
}

/// The path as it stands now: handlers change the current folder.
std::string Absolute(const std::string& path) {
    return path.empty() ? path : std::filesystem::absolute(path).string();
}

void Connect() {
    CKvDbAbsDataMgr manager(KV_CONNECT_DEFAULT);
    manager.Connect();
    manager.Disconnect();
}

/// A database that is asked for and is not there ends the run here, and not in some message box.
void UseDatabase(const std::string& server) {
    constexpr std::string_view kFile = "sqlite:";
    const std::string whole = server.starts_with(kFile)
                                  ? std::string(kFile) + Absolute(server.substr(kFile.size()))
                                  : server;
    CKvDbInfo info("", "", whole.c_str());
    CKvDbAbsDataMgr(KV_CONNECT_DEFAULT).SetDbInfo(info);
    Connect();
}

/// What is wrong with the database that nobody asked for; "" for nothing. Some dialogs need none.
std::string FaultOfDatabase() {
    try {
        Connect();
        return {};
    } catch (const CKvException& e) {
        return e.GetErrorMessage(true, true);
    }
}

/// Windows that do not fit the script end the program at once: no handler on the way may go on.
std::function<void(const std::string&)> EndOnMismatch(const std::string& databaseFault) {
    return [databaseFault](const std::string& words) {
        std::cerr << "kvdlg: " << words << std::endl;
        if (!databaseFault.empty()) std::cerr << "kvdlg: " << databaseFault << std::endl;
        std::fflush(nullptr);
        std::_Exit(databaseFault.empty() ? kWrongUse : kDataFailure);
    };
}

/// Runs the dialog, with the script or a person in front of it.
void RunOn(const Adaptor& adaptor, adaptors::Run& run, const Options& options,
           const std::optional<Script>& script, Records& records) {
    const std::string picture = Absolute(options.picture);
    bool pictured = false;
    std::unique_ptr<Screen> screen;
    const WindowClosed closed = [&](kv::Node& window) {
        records.windows.push_back(Describe(window, ""));
        // The window that opened first closes last.
        if (!picture.empty()) screen->SavePicture(window, picture), pictured = true;
    };
    if (script) {
        const std::string fault = options.database.empty() ? FaultOfDatabase() : "";
        if (!picture.empty()) screen = OpenHiddenScreen();
        Play(adaptor, run, *script, records, closed, EndOnMismatch(fault));
    } else {
        screen = OpenDisplay(records, closed);
        adaptor.run(run);
    }
    if (!picture.empty() && !pictured) {
        throw FileFailure("There was no window to take the picture " + options.picture + " of");
    }
}

int RunDialog(const Options& options) {
    const Adaptor& adaptor = Require(options.className);
    const std::optional<Script> script = ReadScript(options);
    if (!options.database.empty()) UseDatabase(options.database);
    adaptors::Run run(InputsOf(options, adaptor, script));
    Records records;
    kv::db::SetStatementTrace(
        [&](const std::string& statement) { records.sql.push_back(statement); });
    try {
        adaptor.Check(run.Inputs());
        RunOn(adaptor, run, options, script, records);
    } catch (const adaptors::BadInput& e) {
        throw BadScript(WithLine(e, script));
    }
    kv::db::SetStatementTrace(nullptr);
    PrintOut(Print(Outcome(run, records, options.trace)) + "\n");
    return run.result == IDCANCEL ? kCancelled : run.result == IDOK ? kDone : kDataFailure;
}

/// Does the work of a command; what went wrong is told in one line.
template <typename Work>
int Guarded(Work work) {
    const auto failed = [](const std::string& words, ExitCode code) {
        std::cerr << "kvdlg: " << words << std::endl;
        return code;
    };
    try {
        return work();
    } catch (const CKvException& e) {
        return failed(e.GetErrorMessage(true, true), kDataFailure);
    } catch (const FileFailure& e) {
        return failed(e.what(), kDataFailure);
    } catch (const std::exception& e) {
        return failed(e.what(), kWrongUse);
    }
}

/// The number of a stream that is closed would be that of the next file that is opened, a database
/// say, and what is printed would go there. This one takes no print.
void OccupyClosedStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) < 0) open("/dev/null", O_RDONLY);
    }
}

void AddRunOptions(CLI::App& run, Options& options) {
    run.add_option("CLASS", options.className, "The dialog's class")->required();
    run.add_option("--input", options.inputFile,
                   "JSON file with the inputs; those of a script are overridden. Without this, a "
                   "window opens with the samples that \"describe\" names");
    run.add_option("--script", options.scriptFile,
                   "JSON file that plays the user, without a window; if left out, a window opens");
    run.add_option("--db", options.database,
                   "Server text, as sqlite:PATH or postgresql://...; the sample database if left "
                   "out");
    run.add_flag("--trace", options.trace, "Adds the SQL texts that were sent");
    run.add_option("--picture", options.picture,
                   "PNG file for a picture of the dialog as it stands when it closes; with a "
                   "script, no display is needed for it");
    run.footer(kScriptHelp);
}

}  // namespace

int main(int argc, char** argv) {
    OccupyClosedStreams();
    CLI::App app("Runs the dialogs of KVGuiCtl from the shell", "kvdlg");
    app.footer(kHelp);
    app.require_subcommand(1);
    Options options;

    auto* list = app.add_subcommand("list", "Every dialog: class, family, caption");
    auto* describe = app.add_subcommand(
        "describe", "Inputs that a dialog takes, its controls, what it returns, a first script");
    describe->add_option("CLASS", options.className, "The dialog's class")->required();
    describe->footer(kDescribeHelp);
    AddRunOptions(*app.add_subcommand("run", "Runs a dialog and prints its outcome as JSON"),
                  options);

    return Guarded([&]() -> int {
        try {
            app.parse(argc, argv);
        } catch (const CLI::ParseError& e) {
            std::ostringstream help;
            const bool asked = app.exit(e, help, std::cerr) == 0;
            PrintOut(help.str());
            return asked ? kDone : kWrongUse;
        }
        InitControlDll();
        if (*list) return List();
        return *describe ? DescribeClass(options) : RunDialog(options);
    });
}
