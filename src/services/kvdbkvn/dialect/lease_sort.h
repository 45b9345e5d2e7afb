#pragma once

#include <string>
#include <string_view>

namespace kv::dialect {

/// Every number in a lease number counts as if written with so many digits.
inline constexpr int kLeaseDigits = 20;

/// The text by which a lease number sorts: each run of digits without its leading zeros, filled up
/// with zeros to `kLeaseDigits`; all else as it stands. Compared by byte, "SL 99" so comes ahead of
/// "SL 123", and "OCS-G 01234" beside "OCS-G 1234".
std::string LeaseSortKey(std::string_view lease);

}  // namespace kv::dialect
