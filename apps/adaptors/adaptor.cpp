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

std::string NamesOf(const std::vector<Input>& inputs) {
    std::string names;
    for (const Input& input : inputs)
        names += (names.empty() ? "" : ", ") + input.name;
    return names.empty() ? "none" : names;
}

}  // namespace

void Run::DoCall(const std::string& method, const Json& arguments) const {
    if (!call_) throw BadInput("There is nothing to call here: \"" + method + "\"");
    call_(method, arguments);
}

const char* Run::ResultName() const {
    switch (result) {
        case 1:
            return "IDOK";
        case 2:
            return "IDCANCEL";
        default:
            return "failed";
    }
}

Json Adaptor::SampleInputs() const {
    Json sample = Json::object();
    for (const Input& input : inputs) {
        if (!input.sample.is_null()) sample[input.name] = input.sample;
    }
    return sample;
}

void Adaptor::Check(const Json& given) const {
    if (!given.is_object()) throw BadInput("\"inputs\" has to be an object");
    for (const auto& [name, value] : given.items()) {
        const bool known = std::any_of(inputs.begin(), inputs.end(),
                                       [&](const Input& input) { return input.name == name; });
        if (!known) {
            throw BadInput(className + " takes no input \"" + name +
                           "\"; it takes: " + NamesOf(inputs));
        }
    }
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
