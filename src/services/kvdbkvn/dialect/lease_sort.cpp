#include "services/kvdbkvn/dialect/lease_sort.h"

#include <algorithm>

#include "base/text.h"

namespace kv::dialect {

std::string LeaseSortKey(std::string_view lease) {
    std::string key;
    key.reserve(lease.size() + kLeaseDigits);
    while (!lease.empty()) {
        const auto digits = static_cast<std::size_t>(
            std::ranges::find_if_not(lease, [](char ch) { return IsDigit(ch); }) - lease.begin());
        if (digits == 0) {
            key += lease.front();
            lease.remove_prefix(1);
            continue;
        }
        std::string_view number = lease.substr(0, digits);
        number.remove_prefix(std::min(number.find_first_not_of('0'), digits));
        if (number.size() < kLeaseDigits) key.append(kLeaseDigits - number.size(), '0');
        key += number;
        lease.remove_prefix(digits);
    }
    return key;
}

}  // namespace kv::dialect
