#include "recording/recorded_run.h"

#include <optional>

#include "base/paths.h"
#include "recording/recording.h"

namespace recording {

bool RunRecorded(const adaptors::Adaptor& adaptor, adaptors::Run& run, const std::string& path) {
    bool written = true;
    std::optional<Recording> recording;
    const auto write = [&] {
        written = kv::WriteFileWhole(path, TextOf(recording->Script())) && written;
    };
    recording.emplace(run.Inputs(), write);
    write();
    if (written) adaptor.run(run);
    write();
    return written;
}

}  // namespace recording
