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
    /// The last call: all steps are done (`whole`), or somebody ended it ahead of that. None
    /// follows a step that has thrown a failure.
    virtual void Finished([[maybe_unused]] bool whole) {}
    /// Whether it makes a file or prints, of which nothing is left where it is ended early.
    virtual bool Writes() const { return false; }
};

}  // namespace workbench
