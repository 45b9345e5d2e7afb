// kvdlg: runs one dialog from the shell and prints its outcome as JSON.

#include <fcntl.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>

#include "base/text.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/statement_trace.h"
#include "frame/module.h"
#include "kvdlg/class_name.h"
#include "kvdlg/failure.h"
#include "kvdlg/help.h"
#include "kvdlg/inputs.h"
#include "kvdlg/play.h"
#include "kvdlg/printed_value.h"
#include "kvdlg/report.h"
#include "kvdlg/script.h"
#include "kvdlg/script_lines.h"
#include "recording/recorded_run.h"

namespace {

using namespace kvdlg;
using adaptors::Adaptor;

struct Options {
    std::string className;
    Given given;
    std::string database;
    std::string picture;
    std::string record;
    std::string printed;         ///< key of the one value to print, by itself
    std::string printedWithNul;  ///< the same, each item with a NUL behind it
    bool trace = false;
};

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

/// The adaptor, with what is done in its windows written to a file.
Adaptor Recorded(const Adaptor& adaptor, const std::string& file) {
    Adaptor recorded = adaptor;
    recorded.run = [&adaptor, path = Absolute(file), file](adaptors::Run& run) {
        if (recording::RunRecorded(adaptor, run, path)) return;
        throw FileFailure("The script " + file + " cannot be written");
    };
    return recorded;
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

std::string WhatIsAskedFor(const Json& outcome, const Options& options) {
    if (!options.printed.empty()) return Bare(ValueOf(outcome, options.printed), '\n');
    if (!options.printedWithNul.empty())
        return Bare(ValueOf(outcome, options.printedWithNul), '\0');
    return Print(outcome) + "\n";
}

int RunDialog(const Options& options) {
    const Adaptor& adaptor = Require(options.className);
    const std::optional<Script> script = ReadScript(options.given);
    const Json inputs = InputsOf(options.given, adaptor, script);
    if (!options.database.empty()) UseDatabase(options.database);
    adaptors::Run run(inputs);
    Records records;
    kv::db::SetStatementTrace(
        [&](const std::string& statement) { records.sql.push_back(statement); });
    try {
        adaptor.Check(run.Inputs());
        RunOn(options.record.empty() ? adaptor : Recorded(adaptor, options.record), run, options,
              script, records);
    } catch (const adaptors::BadInput& e) {
        throw BadScript(WithLine(e, script));
    }
    kv::db::SetStatementTrace(nullptr);
    PrintOut(WhatIsAskedFor(Outcome(run, records, options.trace), options));
    return run.result == IDCANCEL ? kCancelled : run.result > 0 ? kDone : kDataFailure;
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
    Given& given = options.given;
    run.add_option("--input", given.inputFile,
                   "JSON file with the inputs, - for standard input; those of a script are "
                   "overridden. Without this, a window opens with the samples that \"describe\" "
                   "names");
    run.add_option(
           "--set", given.settings,
           "NAME=VALUE, one input, over those of the files; may be given again, and adds to "
           "a list then")
        ->allow_extra_args(false);
    run.add_option("--script", given.scriptFile,
                   "JSON file that plays the user, without a window, - for standard input; if left "
                   "out, a window opens");
    run.add_option("--db", options.database,
                   "Server text, as sqlite:PATH or postgresql://...; the sample database if left "
                   "out");
    run.add_flag("--trace", options.trace, "Adds the SQL texts that were sent");
    auto* print =
        run.add_option("--print", options.printed,
                       "Prints one value of the outcome by itself, of a list each item on "
                       "a line; its name, or \"result\", or \"messages\"");
    run.add_option("--print0", options.printedWithNul,
                   "The same with a NUL behind each, for values of several lines")
        ->excludes(print);
    run.add_option("--picture", options.picture,
                   "PNG file for a picture of the dialog as it stands when it closes; with a "
                   "script, no display is needed for it");
    run.add_option("--record", options.record,
                   "File for a script of what is done in the windows, which --script plays");
    run.footer(kScriptHelp);
}

}  // namespace

int main(int argc, char** argv) {
    OccupyClosedStreams();
    CLI::App app("Runs the dialogs of KVGuiCtl from the shell", "kvdlg");
    app.footer(kHelp);
    app.require_subcommand(1);
    app.set_version_flag("--version", std::string("kvdlg ") + KVGUICTL_VERSION);
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
