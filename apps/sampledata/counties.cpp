#include "sampledata/counties.h"

#include "sampledata/areas.h"
#include "sampledata/geo_point.h"

namespace kv::sample {
namespace {

/// One county or parish: its number within the state is that of the Federal Information Processing
/// Standard, its bounds are rounded.
struct County {
    int number;
    const char* name;
    double minLat, maxLat, minLon, maxLon;
};

/// One state, and the projection that its coast is usually mapped in.
struct State {
    int number;
    const char* code;
    int projection;
    std::span<const County> counties;
};

constexpr County kTexasSouthern[] = {
    {61, "Cameron", 25.84, 26.41, -97.87, -97.13}, {489, "Willacy", 26.33, 26.61, -98.0, -97.22},
    {261, "Kenedy", 26.6, 27.28, -97.99, -97.26},  {273, "Kleberg", 27.21, 27.64, -98.06, -97.22},
    {355, "Nueces", 27.56, 27.99, -97.94, -96.98},
};
constexpr County kTexasCentral[] = {
    {409, "San Patricio", 27.84, 28.19, -97.91, -97.04},
    {7, "Aransas", 27.83, 28.27, -97.26, -96.78},
    {391, "Refugio", 28.06, 28.55, -97.54, -96.8},
    {57, "Calhoun", 28.13, 28.73, -96.85, -96.29},
    {239, "Jackson", 28.69, 29.26, -96.94, -96.3},
    {469, "Victoria", 28.5, 29.1, -97.31, -96.64},
    {321, "Matagorda", 28.4, 29.23, -96.38, -95.5},
    {39, "Brazoria", 28.83, 29.6, -95.88, -95.05},
    {167, "Galveston", 29.05, 29.6, -95.23, -94.37},
    {201, "Harris", 29.5, 30.17, -95.96, -94.91},
    {71, "Chambers", 29.52, 29.89, -95.02, -94.35},
    {245, "Jefferson", 29.55, 30.19, -94.45, -93.83},
    {361, "Orange", 29.97, 30.25, -94.12, -93.69},
};
constexpr County kLouisiana[] = {
    {23, "Cameron", 29.56, 30.06, -93.94, -92.62},
    {19, "Calcasieu", 30.04, 30.49, -93.74, -92.88},
    {113, "Vermilion", 29.49, 30.11, -92.74, -91.82},
    {45, "Iberia", 29.42, 30.06, -92.11, -91.35},
    {101, "St. Mary", 29.33, 29.96, -91.82, -91.08},
    {7, "Assumption", 29.63, 30.07, -91.28, -90.87},
    {109, "Terrebonne", 29.03, 29.78, -91.35, -90.36},
    {57, "Lafourche", 29.05, 29.95, -91.02, -89.97},
    {89, "St. Charles", 29.68, 30.11, -90.55, -90.18},
    {51, "Jefferson", 29.16, 30.05, -90.28, -89.91},
    {71, "Orleans", 29.87, 30.2, -90.14, -89.63},
    {75, "Plaquemines", 28.93, 29.94, -90.04, -89.0},
    {87, "St. Bernard", 29.64, 30.2, -90.01, -88.81},
    {103, "St. Tammany", 30.12, 30.71, -90.26, -89.52},
};
constexpr County kMississippi[] = {
    {45, "Hancock", 30.17, 30.67, -89.69, -89.28},
    {47, "Harrison", 30.21, 30.68, -89.34, -88.84},
    {59, "Jackson", 30.2, 30.73, -88.89, -88.37},
};
constexpr County kAlabama[] = {
    {97, "Mobile", 30.2, 31.17, -88.43, -87.92},
    {3, "Baldwin", 30.22, 31.32, -88.04, -87.37},
};
constexpr County kFloridaNorthern[] = {
    {33, "Escambia", 30.28, 31.0, -87.63, -86.92},
    {113, "Santa Rosa", 30.34, 31.0, -87.31, -86.8},
    {91, "Okaloosa", 30.37, 31.0, -86.8, -86.39},
    {131, "Walton", 30.28, 31.0, -86.4, -85.99},
    {5, "Bay", 29.92, 30.57, -86.0, -85.38},
    {45, "Gulf", 29.59, 30.2, -85.43, -85.03},
    {37, "Franklin", 29.6, 30.06, -85.25, -84.34},
    {129, "Wakulla", 30.01, 30.31, -84.74, -84.07},
    {65, "Jefferson", 30.06, 30.68, -84.08, -83.65},
    {123, "Taylor", 29.67, 30.3, -84.03, -83.34},
    {29, "Dixie", 29.29, 29.84, -83.41, -82.95},
};
constexpr County kFloridaWestern[] = {
    {75, "Levy", 29.02, 29.59, -83.1, -82.4},
    {17, "Citrus", 28.69, 29.05, -82.81, -82.17},
    {53, "Hernando", 28.43, 28.7, -82.69, -82.06},
    {101, "Pasco", 28.17, 28.48, -82.8, -82.05},
    {103, "Pinellas", 27.61, 28.17, -82.85, -82.54},
    {57, "Hillsborough", 27.57, 28.17, -82.65, -82.05},
    {81, "Manatee", 27.21, 27.65, -82.75, -82.05},
    {115, "Sarasota", 26.94, 27.39, -82.65, -82.06},
    {15, "Charlotte", 26.77, 27.03, -82.38, -81.56},
    {71, "Lee", 26.32, 26.77, -82.27, -81.56},
    {21, "Collier", 25.8, 26.52, -81.85, -80.87},
    {87, "Monroe", 24.52, 25.81, -82.14, -80.25},
};

constexpr int kMississippiEast = 5023;
constexpr int kAlabamaWest = 5002;
constexpr int kFloridaWest = 5008;
constexpr int kFloridaNorth = 17;

constexpr State kStates[] = {
    {48, "TX", kTexasSouth, kTexasSouthern},   {48, "TX", kTexasSouthCentral, kTexasCentral},
    {22, "LA", kLouisianaSouth, kLouisiana},   {28, "MS", kMississippiEast, kMississippi},
    {1, "AL", kAlabamaWest, kAlabama},         {12, "FL", kFloridaNorth, kFloridaNorthern},
    {12, "FL", kFloridaWest, kFloridaWestern},
};

/// State and county number, two and three digits.
std::string Identifier(const State& state, const County& county) {
    return std::to_string(100'000 + state.number * 1000 + county.number).substr(1);
}

}  // namespace

void WriteCounties(Sink& sink) {
    sink.Begin(TableNamed("nvd2000_county"));
    for (const State& state : kStates) {
        for (const County& county : state.counties) {
            sink.Add({Identifier(state, county), state.code, county.name,
                      std::to_string(county.number), DegreesText(Units(county.minLat)),
                      DegreesText(Units(county.maxLat)), DegreesText(Units(county.minLon)),
                      DegreesText(Units(county.maxLon)), std::to_string(state.projection)});
        }
    }
    sink.End();
}

}  // namespace kv::sample
