#include "sampledata/names.h"

#include <array>
#include <chrono>

namespace kv::sample {
namespace {

constexpr std::array kMarks = {"SAMPLE", "EXAMPLE", "SPECIMEN", "PATTERN"};
constexpr std::array kTrades = {"PETROLEUM", "OFFSHORE",   "OIL AND GAS", "EXPLORATION",
                                "RESOURCES", "PRODUCTION", "ENERGY",      "MINERALS"};
constexpr std::array kForms = {"", " INC", " LLC", " LP", " CO"};

}  // namespace

std::string CompanyName(int company) {
    const size_t number = static_cast<size_t>(company);
    return std::string(kMarks[number % kMarks.size()]) + " " +
           kTrades[number / kMarks.size() % kTrades.size()] + " " + Padded(company, 3) +
           kForms[number % kForms.size()];
}

void WriteCompanies(Sink& sink) {
    sink.Begin(TableNamed("gulf_mexico_company"));
    for (int i = 0; i < kCompanies; ++i)
        sink.Add({std::to_string(i + 1), CompanyName(i)});
    sink.End();
}

std::string Padded(int number, int digits) {
    const std::string text = std::to_string(number);
    const size_t length = static_cast<size_t>(digits);
    return text.size() < length ? std::string(length - text.size(), '0') + text : text;
}

std::string DateText(Day day) {
    const std::chrono::year_month_day date{std::chrono::sys_days{std::chrono::days{day}}};
    return Padded(static_cast<int>(date.year()), 4) + "-" +
           Padded(static_cast<int>(static_cast<unsigned>(date.month())), 2) + "-" +
           Padded(static_cast<int>(static_cast<unsigned>(date.day())), 2);
}

Row BlockCells(const Block& block) {
    return {block.area->code, std::to_string(block.number), block.ext};
}

Row PlaceCells(const GeoPoint& place) {
    return {DegreesText(place.lat), DegreesText(place.lon)};
}

Row operator<<(Row left, const Row& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

}  // namespace kv::sample
