#include "kvdlg/class_name.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "base/text.h"
#include "kvdlg/failure.h"

namespace kvdlg {

namespace {

using adaptors::Adaptor;

/// How many letters have to be put in, left out or changed to make one text of the other
/// (Levenshtein).
std::size_t Distance(const std::string& a, const std::string& b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t changed = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

/// A name that holds what was typed is near, and one with a third of its letters wrong is not.
std::size_t Farness(const std::string& typed, const std::string& name) {
    if (typed.size() >= 3 && name.find(typed) != std::string::npos) return 0;
    return Distance(typed, name);
}

/// Null where none is near.
const Adaptor* Nearest(const std::string& typed) {
    const Adaptor* nearest = nullptr;
    std::size_t least = std::max<std::size_t>(typed.size() / 3, 1);
    for (const Adaptor* each : adaptors::All()) {
        const std::size_t far = Farness(kv::ToUpper(typed), kv::ToUpper(each->className));
        if (far < least) nearest = each, least = far;
    }
    return nearest;
}

}  // namespace

const Adaptor& Require(const std::string& className) {
    if (const Adaptor* exact = adaptors::Find(className)) return *exact;
    for (const Adaptor* each : adaptors::All()) {
        if (kv::EqualsNoCase(each->className, className)) return *each;
    }
    const Adaptor* nearest = Nearest(className);
    throw BadUse("There is no dialog \"" + className + "\"; " +
                 (nearest ? "did you mean " + nearest->className + "?"
                          : "\"kvdlg list\" tells which there are"));
}

}  // namespace kvdlg
