// The arithmetic of scales beside a plain reading of its rules, over random extents.

#include "print/map_scale.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <random>
#include <vector>

#include "print/print_control.h"
#include "print/sizing_dlg.h"

using kv::print::Extent;
using kv::print::kFeet;
using kv::print::kMeters;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int kLargest = std::numeric_limits<int>::max();
constexpr int kManyTimes = 1'000'000;

// Plain readings.

/// Cut towards zero, and to what an int holds.
long long Cut(double value) {
    if (std::isnan(value)) return 0;
    if (value > 2147483647.0) return 2147483647LL;
    if (value < -2147483648.0) return -2147483648LL;
    return static_cast<long long>(std::trunc(value));
}

long long PlainStep(long long s) {
    if (s < 1000) return 1;
    if (s < 10000) return 10;
    if (s < 100000) return 100;
    if (s < 1000000) return 1000;
    return 1;
}

struct PlainFit {
    long long scale = 0;
    std::vector<int> added;
};

/// The least whole scale at which the map is not larger than the room, by halving.
std::optional<long long> PlainLeast(double w, double h, double pw, double ph) {
    const auto fits = [&](long long n) {
        const auto scale = static_cast<double>(n);
        return !(w / scale > pw) && !(h / scale > ph);
    };
    long long low = 1;
    long long high = kLargest;
    if (!fits(high)) return std::nullopt;
    while (low < high) {
        const long long middle = (low + high) / 2;
        if (fits(middle)) {
            high = middle;
        } else {
            low = middle + 1;
        }
    }
    return low;
}

PlainFit ReadPlainly(double w, double h, double pw, double ph, bool landscape) {
    if (!(w > 0)) w = 0;
    if (!(h > 0)) h = 0;
    const long long s = Cut(landscape ? h / ph : w / pw);
    const long long step = PlainStep(s);
    const long long base = s / step * step;
    PlainFit fit;
    long long cur = base;
    long long k = 1;
    std::optional<long long> lastFitting;
    while (cur > 0) {
        fit.added.push_back(static_cast<int>(cur));
        if (w / static_cast<double>(cur) > pw || h / static_cast<double>(cur) > ph) break;
        lastFitting = cur;
        cur = base - k * step;
        k = k + 1;
    }
    fit.scale = base;
    if (!(pw > 0) || !(ph > 0)) return fit;
    for (long long i = 0; i <= 99; ++i) {
        const double wide = w / static_cast<double>(cur);
        const double high = h / static_cast<double>(cur);
        if (cur <= kLargest && wide < pw && high < ph) {
            fit.scale = cur;
            return fit;
        }
        cur += i * step;
    }
    fit.scale = lastFitting ? *lastFitting : PlainLeast(w, h, pw, ph).value_or(base);
    return fit;
}

int PlainClosed(long long s, int unit, int former) {
    if (s <= 0) return former;
    const bool feet = unit == 0;
    if (s <= 1000) return feet ? 1000 : 12500;
    if (s <= 2000) return feet ? 2000 : 25000;
    if (s <= 4000) return feet ? 4000 : 50000;
    if (s <= 8000) return feet ? 8000 : 100000;
    if (s <= 16000) return feet ? 16000 : 200000;
    if (s <= 32000) return feet ? 32000 : 400000;
    return feet ? 64000 : 800000;
}

/// The smaller side of bounds in whole feet.
long long PlainSmaller(const CMinMax2Dd_t& bounds, int unit) {
    long long w = Cut(bounds.maxX - bounds.minX);
    long long h = Cut(bounds.maxY - bounds.minY);
    if (unit == 1) {
        w = Cut(static_cast<double>(w) * 3.28083333);
        h = Cut(static_cast<double>(h) * 3.28083333);
    }
    return w < h ? w : h;
}

int PlainListed(int n, int unit) {
    if (unit == 0) {
        for (const int each :
             {512000, 256000, 128000, 64000, 32000, 16000, 8000, 4000, 2000, 1000}) {
            if (each <= n) return each;
        }
        return 0;
    }
    if (n == 800000) return 800000;
    if (n > 400000) return 0;
    for (const int each : {200000, 100000, 50000, 25000, 12500}) {
        if (each <= n) return each;
    }
    return 0;
}

// Random cases.

class Cases {
public:
    /// Of every order of magnitude, often whole and round.
    double Length() {
        const double length = std::pow(10.0, Between(-2.0, 12.5));
        switch (Pick(6)) {
            case 0:
                return std::floor(length);
            case 1:
                return std::round(length / 1000.0) * 1000.0;
            case 2:
                return 35.0 * std::floor(Between(0.0, 3000.0));
            case 3:
                return Between(0.0, 200'000.0);
            default:
                return Pick(50) == 0 ? -length : length;
        }
    }
    /// Paper less its margin, in inches.
    double Room() {
        switch (Pick(8)) {
            case 0:
                return static_cast<double>(Pick(40));
            case 1:
                return Between(-2.0, 2.0);
            default:
                return static_cast<double>(static_cast<float>(Between(0.1, 60.0)));
        }
    }
    CMinMax2Dd_t Bounds() {
        const double x = Between(-1e6, 1e7);
        const double y = Between(-1e6, 1e7);
        return {x, x + Length(), y, y + Length()};
    }
    int Pick(int below) { return std::uniform_int_distribution<int>(0, below - 1)(random_); }
    double Between(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }

private:
    std::mt19937_64 random_{20260101};
};

// Tables.

TEST(MapScales, AreListedByUnit) {
    EXPECT_THAT(kv::print::MapScales(kFeet),
                ElementsAre(1000, 2000, 4000, 8000, 16000, 32000, 64000));
    EXPECT_THAT(kv::print::MapScales(kMeters),
                ElementsAre(12500, 25000, 50000, 100000, 200000, 400000, 800000));
    EXPECT_THAT(kv::print::PrintScales(kFeet),
                ElementsAre(1000, 2000, 4000, 8000, 16000, 32000, 64000, 128000, 256000, 512000));
    EXPECT_THAT(kv::print::PrintScales(kMeters),
                ElementsAre(12500, 25000, 50000, 100000, 200000, 400000, 800000, 1600000, 3200000,
                            6400000));
}

TEST(ClosedMapScale, IsTheFirstListedOneThatIsNotBelow) {
    for (const int unit : {kFeet, kMeters}) {
        for (int s = -5; s < 70'000; ++s)
            ASSERT_EQ(kv::print::ClosedMapScale(s, unit), PlainClosed(s, unit, 0)) << s;
        EXPECT_EQ(kv::print::ClosedMapScale(kLargest, unit), PlainClosed(kLargest, unit, 0));
    }
}

TEST(ListedPrintScale, IsTheLargestUpToTheScale) {
    Cases cases;
    for (const int unit : {kFeet, kMeters}) {
        for (const int scale : kv::print::PrintScales(unit)) {
            for (const int near : {scale - 1, scale, scale + 1})
                EXPECT_EQ(kv::print::ListedPrintScale(near, unit), PlainListed(near, unit)) << near;
        }
        for (int i = 0; i < 100'000; ++i) {
            const int scale = cases.Pick(10'000'000) - 1000;
            ASSERT_EQ(kv::print::ListedPrintScale(scale, unit), PlainListed(scale, unit)) << scale;
        }
    }
    EXPECT_EQ(kv::print::ListedPrintScale(400'000, kMeters), 200'000);
    EXPECT_EQ(kv::print::ListedPrintScale(800'000, kMeters), 800'000);
    EXPECT_EQ(kv::print::ListedPrintScale(799'999, kMeters), 0);
    EXPECT_EQ(kv::print::ListedPrintScale(1'600'000, kMeters), 0);
    EXPECT_EQ(kv::print::ListedPrintScale(999, kFeet), 0);
}

TEST(SizeOnPaper, OfMetersIsARatioInInches) {
    EXPECT_EQ(kv::print::SizeOnPaper({30000, 20000}, 1000, kFeet), (Extent{30, 20}));
    const Extent size = kv::print::SizeOnPaper({10000, 5000}, 12500, kMeters);
    EXPECT_NEAR(size.x, 31.496, 1e-6);
    EXPECT_NEAR(size.y, 15.748, 1e-6);
    EXPECT_TRUE(std::isinf(kv::print::SizeOnPaper({1, 1}, 0, kFeet).x));
    EXPECT_TRUE(std::isnan(kv::print::SizeOnPaper({0, 1}, 0, kMeters).x));
}

// The closed scale of the two dialogs.

TEST(CalculateScaleClosed, OfPrintingGoesByTheHeightOfThePage) {
    Cases cases;
    for (int i = 0; i < kManyTimes; ++i) {
        const int unit = cases.Pick(2);
        const CMinMax2Dd_t bounds = cases.Bounds();
        const float height = static_cast<float>(cases.Pick(5) == 0 ? cases.Room() : 36.0);
        const int former = cases.Pick(3) * 1234;
        CKvGuiPrintControl::m_nMapScale = former;
        CKvGuiPrintControl dialog(nullptr, nullptr);
        dialog.SetDefaultPaperHeight(height);
        dialog.SetDefaultPaperWidth(1.0F);
        dialog.SetBounds(bounds);
        dialog.SetUnit(unit);
        const float quotient = static_cast<float>(PlainSmaller(bounds, unit)) / height;
        ASSERT_EQ(dialog.CalculateScaleClosed(), PlainClosed(Cut(quotient), unit, former))
            << i << ": " << bounds.maxX - bounds.minX << " by " << bounds.maxY - bounds.minY;
        ASSERT_EQ(CKvGuiPrintControl::m_nMapScale, PlainClosed(Cut(quotient), unit, former));
    }
    CKvGuiPrintControl::m_nMapScale = 0;
    CKvGuiPrintControl::m_fPrintBoundWidth = CKvGuiPrintControl::m_fPrintBoundHeight = 36.0F;
}

TEST(CalculateScaleClosed, OfSizingDividesByWholeInches) {
    Cases cases;
    for (int i = 0; i < kManyTimes; ++i) {
        const int unit = cases.Pick(2);
        const CMinMax2Dd_t bounds = cases.Bounds();
        const int former = cases.Pick(3) * 1234;
        CKvGuiSizingDlg dialog;
        dialog.SetBounds(bounds);
        dialog.SetUnit(unit);
        dialog.SetScale(former);
        const long long s = PlainSmaller(bounds, unit) / 36;
        ASSERT_EQ(dialog.CalculateScaleClosed(), PlainClosed(s, unit, former))
            << i << ": " << bounds.maxX - bounds.minX << " by " << bounds.maxY - bounds.minY;
        ASSERT_EQ(dialog.GetScale(), PlainClosed(s, unit, former));
    }
}

// The scale that fits.

TEST(FitScale, IsThatOfAPlainReading) {
    Cases cases;
    for (int i = 0; i < 2 * kManyTimes; ++i) {
        const Extent map{cases.Length(), cases.Length()};
        const Extent room{cases.Room(), cases.Room()};
        const bool landscape = cases.Pick(2) == 1;
        const PlainFit plain = ReadPlainly(map.x, map.y, room.x, room.y, landscape);
        const kv::print::Fit fit = kv::print::FitScale(map, room, landscape);
        if (fit.scale == plain.scale && fit.passed == plain.added) continue;
        FAIL() << map.x << " by " << map.y << " on " << room.x << " by " << room.y
               << (landscape ? " in landscape" : "") << ": " << fit.scale << " and not "
               << plain.scale;
    }
}

TEST(FitScale, LeavesTheMapWhollyOnThePage) {
    Cases cases;
    for (int i = 0; i < kManyTimes / 4; ++i) {
        const Extent map{std::abs(cases.Length()), std::abs(cases.Length())};
        const Extent room{cases.Between(0.1, 60.0), cases.Between(0.1, 60.0)};
        if (map.x / room.x > kLargest || map.y / room.y > kLargest) continue;
        const kv::print::Fit fit = kv::print::FitScale(map, room, cases.Pick(2) == 1);
        ASSERT_GT(fit.scale, 0);
        ASSERT_LE(fit.page.x, room.x) << map.x << " by " << map.y;
        ASSERT_LE(fit.page.y, room.y) << map.x << " by " << map.y;
        ASSERT_EQ(fit.page, (Extent{map.x / fit.scale, map.y / fit.scale}));
    }
}

TEST(FitScale, GoesOnWhereTheMapFillsThePageExactly) {
    const kv::print::Fit fit = kv::print::FitScale({35000, 10000}, {35, 35}, false);
    EXPECT_EQ(fit.scale, 1020);
    EXPECT_THAT(fit.passed, ElementsAre(1000, 990));
}

TEST(FitScale, StepsGrowWithTheScale) {
    // Each begins a little above its quotient, and so a jump of one or three steps ahead.
    const auto scaleOf = [](double quotient) {
        return kv::print::FitScale({quotient * 10, 1}, {10, 10}, false).scale;
    };
    EXPECT_EQ(scaleOf(857.5), 858);
    EXPECT_EQ(scaleOf(1007.5), 1010);
    EXPECT_EQ(scaleOf(9995.0), 10'000);
    EXPECT_EQ(scaleOf(10'050.0), 10'100);
    EXPECT_EQ(scaleOf(100'500.0), 101'000);
    EXPECT_EQ(scaleOf(1'000'000.5), 1'000'001);
}

TEST(FitScale, InLandscapeItBeginsAtTheQuotientUp) {
    EXPECT_THAT(kv::print::FitScale({35000, 7000}, {35, 35}, true).passed, ElementsAre(200));
    EXPECT_THAT(kv::print::FitScale({7000, 35000}, {35, 35}, false).passed, ElementsAre(200));
}

TEST(FitScale, IsTheLeastWholeOneWhereTheJumpsMissIt) {
    const kv::print::Fit fit = kv::print::FitScale({1000, 3'500'000}, {35, 35}, false);
    EXPECT_EQ(fit.scale, 100'000);
    EXPECT_THAT(fit.passed, ElementsAre(28));
    EXPECT_EQ(fit.page.y, 35.0);
}

TEST(FitScale, EndsForBoundsWithoutExtent) {
    for (const Extent& map :
         {Extent{0, 0}, Extent{-0.0, -0.0}, Extent{-5, -5}, Extent{std::nan(""), 0}}) {
        for (const bool landscape : {false, true}) {
            const kv::print::Fit fit = kv::print::FitScale(map, {35, 35}, landscape);
            EXPECT_EQ(fit.scale, 1);
            EXPECT_THAT(fit.passed, IsEmpty());
            EXPECT_EQ(fit.page, (Extent{0, 0}));
            // Which would be shown.
            EXPECT_FALSE(std::signbit(fit.page.x) || std::signbit(fit.page.y));
        }
    }
}

TEST(FitScale, EndsWhereTheWayDownReachesNought) {
    const kv::print::Fit fit = kv::print::FitScale({35, 1}, {35, 35}, false);
    EXPECT_THAT(fit.passed, ElementsAre(1));
    EXPECT_EQ(fit.scale, 3);
}

TEST(FitScale, IsTheRoundedQuotientWhereNothingCanBePrinted) {
    EXPECT_EQ(kv::print::FitScale({35123, 10}, {35, -1}, false).scale, 1000);
    EXPECT_EQ(kv::print::FitScale({35123, 10}, {-0.5, 35}, false).scale, -70246);
    EXPECT_THAT(kv::print::FitScale({35123, 10}, {-0.5, 35}, false).passed, IsEmpty());
    constexpr double kEndless = std::numeric_limits<double>::infinity();
    EXPECT_EQ(kv::print::FitScale({kEndless, 10}, {35, 35}, false).scale, kLargest);
    EXPECT_EQ(kv::print::FitScale({1e300, 10}, {35, 35}, false).scale, kLargest);
}

}  // namespace
