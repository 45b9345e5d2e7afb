#pragma once

#include <optional>
#include <string>
#include <vector>

#include "kvdlg/play.h"

/// What a run is given on the command line.
namespace kvdlg {

/// What names standard input in the place of a file.
inline constexpr const char* kStandardInput = "-";

struct Given {
    std::string inputFile;
    std::string scriptFile;
    std::vector<std::string> settings;  ///< NAME=VALUE
};

/// The script, where one is given. Throws FileFailure, and BadScript for what is no script.
std::optional<Script> ReadScript(const Given& given);

/// Settings go over the inputs of the input file, and those over the script's. A person who gives
/// neither file gets the samples, under the settings. Throws FileFailure, BadUse and BadScript.
Json InputsOf(const Given& given, const adaptors::Adaptor& adaptor,
              const std::optional<Script>& script);

}  // namespace kvdlg
