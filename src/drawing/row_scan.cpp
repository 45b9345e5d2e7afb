#include "drawing/row_scan.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/numbers.h"
#include "base/text.h"

namespace kv::vertices {

namespace {

std::size_t SpaceAhead(std::string_view text) {
    const auto* const end = std::find_if_not(text.begin(), text.end(), IsSpace);
    return static_cast<std::size_t>(end - text.begin());
}

}  // namespace

double RowScan::Double() {
    if (m_failed) return 0.0;
    std::size_t end = 0;
    const auto number = ScanNumber(m_rest, &end);
    m_failed = !number;
    m_rest.remove_prefix(end);
    return number.value_or(0.0);
}

/// Too large a number is infinite.
float RowScan::Float() {
    using Limits = std::numeric_limits<float>;
    const double number = Double();
    if (std::abs(number) <= Limits::max()) return static_cast<float>(number);
    return number < 0 ? -Limits::infinity() : Limits::infinity();
}

int RowScan::Int() {
    if (m_failed) return 0;
    std::size_t end = 0;
    const auto number = ScanInteger(m_rest, &end);
    m_failed = !number;
    m_rest.remove_prefix(end);
    return number.value_or(0);
}

char RowScan::Char() {
    const std::string_view rest = m_rest.substr(SpaceAhead(m_rest));
    m_failed = m_failed || rest.empty();
    if (m_failed) return 0;
    m_rest = rest.substr(1);
    return rest.front();
}

std::string RowScan::Token() {
    const std::string_view rest = m_rest.substr(SpaceAhead(m_rest));
    m_failed = m_failed || rest.empty();
    if (m_failed) return {};
    const auto* const end = std::find_if(rest.begin(), rest.end(), IsSpace);
    const auto length = static_cast<std::size_t>(end - rest.begin());
    m_rest = rest.substr(length);
    return std::string(rest.substr(0, length));
}

}  // namespace kv::vertices
