#include "kvdlg/inputs.h"

#include <fcntl.h>
#include <unistd.h>

#include "kvdlg/failure.h"
#include "kvdlg/script.h"

namespace kvdlg {

namespace {

std::string NameOf(const std::string& path) {
    return path == kStandardInput ? "Standard input" : "The file " + path;
}

std::string ReadText(const std::string& path) {
    const bool standard = path == kStandardInput;
    const int file = standard ? STDIN_FILENO : open(path.c_str(), O_RDONLY | O_CLOEXEC);
    std::string text;
    char bytes[65536];
    ssize_t count = file < 0 ? -1 : 1;
    while (count > 0) {
        count = read(file, bytes, sizeof bytes);
        if (count > 0) text.append(bytes, static_cast<std::size_t>(count));
    }
    if (!standard && file >= 0) close(file);
    if (count < 0) throw FileFailure(NameOf(path) + " cannot be read");
    return text;
}

/// The inputs of the input file, under "inputs" or by themselves.
Json InputsOfFile(const std::string& path) {
    Json given = ParseJson(ReadText(path), NameOf(path));
    if (given.is_object() && given.contains("inputs")) given = Json(given["inputs"]);
    if (!given.is_object()) throw BadScript(NameOf(path) + ": expected an object of inputs");
    return given;
}

Json FromText(const std::string& text, const adaptors::Input& input) {
    if (input.type == "text") return text;
    const Json value = Json::parse(text, nullptr, false);
    if (!value.is_discarded()) return value;
    throw BadUse("The input \"" + input.name + "\" takes " + adaptors::TypeInWords(input.type) +
                 ", and not " + text);
}

/// A list of texts grows with each setting of its name.
void Set(const std::string& setting, const adaptors::Adaptor& adaptor, Json& settings) {
    const auto sign = setting.find('=');
    if (sign == std::string::npos) {
        throw BadUse("--set takes NAME=VALUE, and not \"" + setting + "\"");
    }
    const std::string name = setting.substr(0, sign);
    const std::string text = setting.substr(sign + 1);
    const adaptors::Input& input = adaptor.RequireInput(name);
    if (input.type == "list of texts") {
        settings[name].push_back(text);
    } else {
        settings[name] = FromText(text, input);
    }
}

}  // namespace

std::optional<Script> ReadScript(const Given& given) {
    if (given.scriptFile.empty()) return {};
    Script script{ReadText(given.scriptFile), {}};
    script.json = ParseJson(script.text, given.scriptFile == kStandardInput
                                             ? "The script"
                                             : "The script " + given.scriptFile);
    if (!script.json.is_object()) throw BadScript("Line 1: expected the script to be an object");
    return script;
}

Json InputsOf(const Given& given, const adaptors::Adaptor& adaptor,
              const std::optional<Script>& script) {
    if (given.scriptFile == kStandardInput && given.inputFile == kStandardInput) {
        throw BadUse("Standard input is either the script or the inputs, and not both");
    }
    Json inputs = Json::object();
    if (script) {
        inputs = script->json.value("inputs", Json::object());
        // What is no object is told with its line where the inputs are checked.
        if (!inputs.is_object()) return inputs;
    } else if (given.inputFile.empty()) {
        inputs = adaptor.SampleInputs();
    }
    if (!given.inputFile.empty()) inputs.update(InputsOfFile(given.inputFile));
    Json settings = Json::object();
    for (const std::string& each : given.settings)
        Set(each, adaptor, settings);
    inputs.update(settings);
    return inputs;
}

}  // namespace kvdlg
