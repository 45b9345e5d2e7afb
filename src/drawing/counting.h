#pragma once

namespace kv::drawing {

/// Counts one more for as long as it lives.
class Counting {
public:
    explicit Counting(int& count) : count_(count) { ++count_; }
    ~Counting() { --count_; }
    Counting(const Counting&) = delete;
    Counting& operator=(const Counting&) = delete;

private:
    int& count_;
};

}  // namespace kv::drawing
