#include "adaptors/callers_combo.h"

namespace adaptors {

Caller::Caller(const Run& run) : values(run.Get<std::vector<std::string>>("values", {})) {
    frame_.Create("Caller");
    combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, {0, 0, 120, 120}, &frame_, 1);
    combo.SetWindowText(run.Get<std::string>("text", "").c_str());
}

void Caller::Tell(Run& run) const {
    run.outcome["values"] = values;
    run.outcome["text"] = combo.WindowText();
}

std::vector<Input> CallerInputs() {
    return {
        {"values", "list of texts", "the caller's vector; taken over where \"text\" is \"<LIST>\"",
         nullptr},
        {"text", "text", "what the caller's own control shows: one value, \"<LIST>\", or nothing",
         nullptr},
    };
}

}  // namespace adaptors
