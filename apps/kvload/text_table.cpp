#include "kvload/text_table.h"

#include <cpl_vsi.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <string_view>

#include "base/foreign_text.h"
#include "base/text.h"

namespace kvload {
namespace {

constexpr vsi_l_offset kMostOfALine = 1 << 16;

/// What a file holds, but no more than so many bytes of it.
std::string ContentOf(const std::string& path, vsi_l_offset most) {
    std::string content;
    VSILFILE* file = VSIFOpenL(path.c_str(), "rb");
    if (!file) return content;
    char bytes[1 << 16];
    while (content.size() < most) {
        const size_t count = VSIFReadL(bytes, 1, sizeof bytes, file);
        content.append(bytes, count);
        if (count < sizeof bytes) break;
    }
    VSIFCloseL(file);
    return content;
}

std::string FirstLine(const std::string& text) {
    return text.substr(0, text.find('\n'));
}

/// Opens what lies in memory by a name that tells GDAL what it is. The name is free again at once;
/// the bytes are gone with the dataset.
geofiles::Dataset OpenInMemory(const std::string& text, const std::string& name) {
    const std::string path = "/vsimem/kvguictl/" + name + ".csv";
    auto* bytes = static_cast<GByte*>(VSIMalloc(text.size()));
    if (!bytes) return nullptr;
    std::memcpy(bytes, text.data(), text.size());
    constexpr int kTakesThem = true;
    VSIFCloseL(VSIFileFromMemBuffer(path.c_str(), bytes, text.size(), kTakesThem));
    geofiles::Dataset dataset(
        GDALOpenEx(path.c_str(), GDAL_OF_VECTOR | GDAL_OF_READONLY, nullptr, nullptr, nullptr));
    VSIUnlink(path.c_str());
    return dataset;
}

}  // namespace

bool IsTextByName(const std::string& path) {
    static constexpr std::string_view kEndings[] = {".csv", ".txt", ".dat", ".asc"};
    const std::string name = kv::ToLower(path);
    return std::ranges::any_of(kEndings,
                               [&](std::string_view ending) { return name.ends_with(ending); });
}

bool HasFixedColumns(const std::string& path) {
    const std::string head =
        kv::TrimSpace(FirstLine(kv::DecodeText(ContentOf(path, kMostOfALine))));
    return head.find_first_of(",;\t|") == std::string::npos && head.find("  ") != std::string::npos;
}

geofiles::Dataset OpenTextTable(const std::string& path) {
    std::string text = kv::DecodeText(ContentOf(path, static_cast<vsi_l_offset>(-1)));
    const std::string head = FirstLine(text);
    const bool byStrokes = head.find('|') != std::string::npos;
    if (!byStrokes && head.find_first_of(",;\t") == std::string::npos) return nullptr;
    // GDAL knows no strokes; a tab that stands in a cell is a blank.
    if (byStrokes) text = kv::ReplaceAll(kv::ReplaceAll(text, "\t", " "), "|", "\t");
    return OpenInMemory(text, std::filesystem::path(path).stem().string());
}

}  // namespace kvload
