#pragma once

#include <string>

#include "adaptors/callers_combo.h"

namespace adaptors {

/// The adaptor of a dialog that picks words from groups of check boxes.
template <typename Dialog>
Adaptor CheckListAdaptor(const std::string& className, const std::string& caption,
                         const std::string& purpose, int templateId,
                         const std::string& sampleWord) {
    std::vector<Input> inputs = CallerInputs();
    inputs.back().sample = sampleWord;
    inputs.push_back({"readOnly", "flag", "only show the selection", nullptr});
    return {className,
            "Qualifiers",
            caption,
            purpose,
            templateId,
            inputs,
            "values (the chosen words), text (of the caller's control)",
            [](Run& run) {
                Caller caller(run);
                Dialog dialog(&caller.combo, caller.values, run.Get("readOnly", false), nullptr);
                run.result = dialog.DoModal();
                caller.Tell(run);
            }};
}

}  // namespace adaptors
