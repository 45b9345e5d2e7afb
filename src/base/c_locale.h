#pragma once

#include <locale.h>

namespace kv {

/// While it lives, this thread reads and writes numbers as in the "C" locale.
class CLocale {
public:
    CLocale() : previous_(uselocale(Shared())) {}
    ~CLocale() { uselocale(previous_); }
    CLocale(const CLocale&) = delete;
    CLocale& operator=(const CLocale&) = delete;

private:
    static locale_t Shared() {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
        return locale;
    }

    locale_t previous_;
};

}  // namespace kv
