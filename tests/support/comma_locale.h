#pragma once

#include <clocale>
#include <cstdlib>
#include <string>

#include "support/temp_folder.h"

namespace test {

/// While it lives, the process runs in a locale that writes a comma for the decimal point: one that
/// is installed, else one that is compiled for the occasion.
class CommaLocale {
public:
    CommaLocale() : found_(Take() || Compile()) {}
    ~CommaLocale() { std::setlocale(LC_ALL, "C"); }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

    /// False where the machine has no such locale and cannot make one.
    bool Found() const { return found_; }

private:
    static bool Take() {
        for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE"}) {
            if (std::setlocale(LC_ALL, name)) return *std::localeconv()->decimal_point == ',';
        }
        return false;
    }
    bool Compile() {
        const std::string made = folder_.Native("de_DE.UTF-8");
        const std::string command = "localedef -i de_DE -f UTF-8 '" + made + "' >/dev/null 2>&1";
        folder_.Set("LOCPATH", folder_.Native());
        return std::system(command.c_str()) == 0 && Take();
    }

    TempFolder folder_;
    bool found_;
};

}  // namespace test
