#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

/// What is measured on datasets of several sizes. A process that measures prints a figure on a
/// line, with tabs in between; the one that started it compares.
namespace growth {

struct Figure {
    std::string name;
    /// Seconds, or MiB.
    double value = 0;
    /// Whether it is memory.
    bool isMemory = false;
    /// How much was given or shown for it, in rows. What gives the same at every size takes the
    /// same.
    double answer = 1;
    /// It is never to be more than that; 0 for no such bound.
    double most = 0;
};

inline void Print(const Figure& figure) {
    std::printf("%s\t%.9g\t%d\t%.9g\t%.9g\n", figure.name.c_str(), figure.value, figure.isMemory,
                figure.answer, figure.most);
    std::fflush(stdout);
}

class Watch {
public:
    double Seconds() const {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin_).count();
    }

private:
    std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
};

inline double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// What the work takes, in seconds; the first time is left out. Work that is short is done more
/// often, so that a moment in which the machine is busy with something else counts for nothing.
template <typename Work>
double Time(int least, const Work& work) {
    constexpr double kLeastTime = 0.3;
    work();
    std::vector<double> taken;
    const Watch all;
    while (static_cast<int>(taken.size()) < least || all.Seconds() < kLeastTime) {
        const Watch watch;
        work();
        taken.push_back(watch.Seconds());
    }
    return Median(std::move(taken));
}

}  // namespace growth
