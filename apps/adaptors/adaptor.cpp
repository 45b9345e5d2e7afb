#include "adaptors/adaptor.h"

#include <algorithm>
#include <memory>
#include <tuple>

namespace adaptors {

namespace {

std::vector<std::unique_ptr<Adaptor>>& Registered() {
    static auto* list = new std::vector<std::unique_ptr<Adaptor>>;
    return *list;
}

template <typename Named>
std::string NamesOf(const std::vector<Named>& list) {
    std::string names;
    for (const Named& each : list)
        names += (names.empty() ? "" : ", ") + each.name;
    return names.empty() ? "none" : names;
}

template <typename Named>
const Named* FindNamed(const std::vector<Named>& list, const std::string& name) {
    const auto at = std::find_if(list.begin(), list.end(),
                                 [&](const Named& each) { return each.name == name; });
    return at == list.end() ? nullptr : &*at;
}

bool IsListOfTexts(const Json& value) {
    return value.is_array() && std::all_of(value.begin(), value.end(),
                                           [](const Json& each) { return each.is_string(); });
}

/// A type in other words than these is looked at by the adaptor itself.
bool IsOfType(const Json& value, const std::string& type) {
    if (type == "text") return value.is_string();
    if (type == "number") return value.is_number();
    if (type == "flag") return value.is_boolean();
    if (type == "list of texts") return IsListOfTexts(value);
    return true;
}

}  // namespace

std::string TypeInWords(const std::string& type) {
    return type == "flag" ? "true or false" : "a " + type;
}

void Run::DoCall(const std::string& method, const Json& arguments) const {
    if (!call_) throw BadInput("There is nothing to call here: \"" + method + "\"");
    call_(method, arguments);
}

std::string Run::ResultName() const {
    switch (result) {
        case 1:
            return "IDOK";
        case 2:
            return "IDCANCEL";
        default:
            return result > 0 ? std::to_string(result) : "failed";
    }
}

Json Adaptor::SampleInputs() const {
    Json sample = Json::object();
    for (const Input& input : inputs) {
        if (!input.sample.is_null()) sample[input.name] = input.sample;
    }
    return sample;
}

const Input& Adaptor::RequireInput(const std::string& name) const {
    const Input* input = FindNamed(inputs, name);
    if (input) return *input;
    throw BadInput(className + " takes no input \"" + name + "\"; it takes: " + NamesOf(inputs),
                   name);
}

void Adaptor::Check(const Json& given) const {
    if (!given.is_object()) throw BadInput("\"inputs\" has to be an object");
    for (const auto& [name, value] : given.items()) {
        const Input& input = RequireInput(name);
        if (!IsOfType(value, input.type)) {
            throw BadInput("The input \"" + name + "\" takes " + TypeInWords(input.type) +
                               ", and not " + value.dump(),
                           name);
        }
    }
}

void Adaptor::CheckCall(const std::string& method, const Json& arguments) const {
    const Method* found = FindNamed(calls, method);
    if (!found) {
        throw BadInput(className + " has no method \"" + method +
                       "\" to call; it has: " + NamesOf(calls));
    }
    const auto& wanted = found->arguments;
    bool fits = arguments.size() == wanted.size();
    for (std::size_t i = 0; fits && i < wanted.size(); ++i)
        fits = IsOfType(arguments[i], wanted[i].type);
    if (fits) return;
    throw BadInput("The method \"" + method + "\" takes: " + NamesOf(wanted) + "; and not " +
                   arguments.dump());
}

Register::Register(Adaptor adaptor) {
    Registered().push_back(std::make_unique<Adaptor>(std::move(adaptor)));
}

std::vector<const Adaptor*> All() {
    std::vector<const Adaptor*> list;
    for (const auto& each : Registered())
        list.push_back(each.get());
    std::sort(list.begin(), list.end(), [](const Adaptor* a, const Adaptor* b) {
        return std::tie(a->family, a->className) < std::tie(b->family, b->className);
    });
    return list;
}

const Adaptor* Find(const std::string& className) {
    const auto& list = Registered();
    const auto at = std::find_if(list.begin(), list.end(),
                                 [&](const auto& each) { return each->className == className; });
    return at == list.end() ? nullptr : at->get();
}

}  // namespace adaptors
