#include "workbench/file_name.h"

#include <string_view>

namespace workbench {

std::string FileNameOf(std::string title) {
    for (char& ch : title) {
        if (std::string_view("\\/:*?\"<>|").find(ch) != std::string_view::npos) ch = '_';
    }
    return title;
}

}  // namespace workbench
