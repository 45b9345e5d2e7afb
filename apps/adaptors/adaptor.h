#pragma once

#include <functional>
#include <memory>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <vector>

#include "window/templates/dialog_template.h"

class CWnd;

/// An adaptor runs one dialog or tool from JSON: inputs in, outcome out. Both hosts find it by the
/// class name. A new dialog is one new file here, which defines one `Register` object.
namespace adaptors {

using Json = nlohmann::ordered_json;

class Tool;

/// One input that an adaptor takes.
struct Input {
    std::string name;
    std::string type;  ///< "text", "number", "flag", "list of texts", or in other words
    std::string meaning;
    Json sample;  ///< what makes sense on the sample data; null where the input may be left out
};

/// "a number", or "true or false".
std::string TypeInWords(const std::string& type);

/// What a tool's host may call while the tool is open.
struct Method {
    std::string name;
    std::vector<Input> arguments;
    std::string meaning;
};

/// Inputs that do not fit; the words say which and why.
class BadInput : public std::runtime_error {
public:
    explicit BadInput(const std::string& words, std::string input = {})
        : std::runtime_error(words), input_(std::move(input)) {}
    /// The input at fault; "" where it is none of them.
    const std::string& InputName() const { return input_; }

private:
    std::string input_;
};

/// What a run takes and gives.
class Run {
public:
    explicit Run(Json inputs) : inputs_(std::move(inputs)) {}

    /// The value of an input, or the default where it was left out. Throws BadInput for a value of
    /// another type.
    template <typename T>
    T Get(const std::string& name, T byDefault) const {
        if (!inputs_.contains(name)) return byDefault;
        try {
            return inputs_.at(name).template get<T>();
        } catch (const nlohmann::json::exception&) {
            throw BadInput(
                "The input \"" + name + "\" is of the wrong type: " + inputs_.at(name).dump(),
                name);
        }
    }
    const Json& Inputs() const { return inputs_; }

    /// What a modeless tool's host may do to it while it is open; throws BadInput for a method that
    /// it has not.
    using Call = std::function<void(const std::string& method, const Json& arguments)>;
    void SetCall(Call call) { call_ = std::move(call); }
    void DoCall(const std::string& method, const Json& arguments) const;

    /// "IDOK" or "IDCANCEL"; the number of another control that ended the dialog; "failed" when
    /// nothing could be opened.
    std::string ResultName() const;

    /// What getters and the caller's vectors hold in the end.
    Json outcome = Json::object();
    /// 1 for OK, 2 for Cancel, or another control's id; -1 when nothing could be opened.
    int result = 1;

private:
    Json inputs_;
    Call call_;
};

/// A control that a dialog makes itself, in the tab order behind one of its template.
struct AddedControl {
    int behind;
    kv::ControlRow row;
};

struct Adaptor {
    std::string className;
    std::string family;
    std::string caption;  ///< of its window
    std::string purpose;  ///< what it is for, as a menu names it
    int templateId = 0;
    std::vector<Input> inputs;
    std::string returns;  ///< what the outcome holds: each name in it, and what it means
    std::function<void(Run&)> run;
    std::vector<Method> calls = {};  ///< what `Run::SetCall` understands
    /// Of a modeless tool: makes one over a window, null for none, that the host then keeps.
    std::function<std::unique_ptr<Tool>(CWnd* owner)> makeTool = {};
    std::vector<AddedControl> added = {};

    /// The sample inputs, those that are left out excepted.
    Json SampleInputs() const;
    /// Throws BadInput for a name that is none of the inputs.
    const Input& RequireInput(const std::string& name) const;
    /// Throws BadInput when `given` is no object, holds a name that is none of the inputs, or a
    /// value that is not of the input's type.
    void Check(const Json& given) const;
    /// Throws BadInput for a method that is none of `calls`, and for arguments that do not fit.
    void CheckCall(const std::string& method, const Json& arguments) const;
};

/// Puts an adaptor in the list; defined as a static object in the adaptor's file.
class Register {
public:
    explicit Register(Adaptor adaptor);
};

/// All adaptors, by family and class name.
std::vector<const Adaptor*> All();
/// Null for an unknown class.
const Adaptor* Find(const std::string& className);

}  // namespace adaptors
