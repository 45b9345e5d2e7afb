#pragma once

#include <string>

namespace workbench {

/// Long work, done step by step between which the windows live.
class StepWork {
public:
    virtual ~StepWork() = default;
    /// What is being done, for the user.
    virtual std::string Title() const = 0;
    /// Steps done, and all of them as far as is known.
    virtual int Done() const = 0;
    virtual int Total() const = 0;
    /// Does the next step. False when there is none left. Throws CKvException.
    virtual bool Step() = 0;
    /// All steps are done, or one failed, or the user cancelled; the last call.
    virtual void Finished() {}
};

}  // namespace workbench
