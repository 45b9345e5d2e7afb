#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/paths.h"
#include "window/drawing/raster.h"

namespace kv {

namespace {

void AppendNumber(std::string& bytes, std::uint32_t value) {
    for (const int shift : {24, 16, 8, 0})
        bytes += static_cast<char>(value >> shift & 0xFF);
}

constexpr std::array<std::uint32_t, 256> MakeCrcTable() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t byte = 0; byte < 256; ++byte) {
        std::uint32_t crc = byte;
        for (int bit = 0; bit < 8; ++bit)
            crc = crc & 1 ? 0xEDB88320u ^ (crc >> 1) : crc >> 1;
        table[byte] = crc;
    }
    return table;
}

std::uint32_t Crc32(std::string_view bytes) {
    static constexpr auto kTable = MakeCrcTable();
    std::uint32_t crc = 0xFFFFFFFFu;
    for (const char byte : bytes) {
        crc = kTable[(crc ^ static_cast<unsigned char>(byte)) & 0xFF] ^ (crc >> 8);
    }
    return ~crc;
}

std::uint32_t Adler32(std::string_view bytes) {
    std::uint32_t a = 1;
    std::uint32_t b = 0;
    for (const char byte : bytes) {
        a = (a + static_cast<unsigned char>(byte)) % 65521;
        b = (b + a) % 65521;
    }
    return b << 16 | a;
}

/// A zlib stream whose blocks are stored as they are.
std::string Stored(std::string_view bytes) {
    constexpr std::size_t kMostInBlock = 0xFFFF;
    std::string stream = "\x78\x01";
    std::string_view rest = bytes;
    do {
        const std::string_view block = rest.substr(0, kMostInBlock);
        rest.remove_prefix(block.size());
        const auto length = static_cast<std::uint32_t>(block.size());
        stream += rest.empty() ? '\x01' : '\x00';
        for (const std::uint32_t half : {length, ~length}) {
            stream += static_cast<char>(half & 0xFF);
            stream += static_cast<char>(half >> 8 & 0xFF);
        }
        stream += block;
    } while (!rest.empty());
    AppendNumber(stream, Adler32(bytes));
    return stream;
}

void AppendChunk(std::string& file, std::string_view type, std::string_view data) {
    AppendNumber(file, static_cast<std::uint32_t>(data.size()));
    std::string body(type);
    body += data;
    file += body;
    AppendNumber(file, Crc32(body));
}

/// Rows of red, green, blue and opacity, each behind the number 0 of the filter that is none.
std::string Scanlines(const Raster& picture) {
    std::string bytes;
    for (int y = 0; y < picture.Height(); ++y) {
        bytes += '\0';
        for (int x = 0; x < picture.Width(); ++x) {
            const std::uint32_t argb = picture.Argb(x, y);
            AppendNumber(bytes, argb << 8 | argb >> 24);
        }
    }
    return bytes;
}

}  // namespace

bool SavePng(const Raster& picture, const std::string& machinePath) {
    if (picture.Width() == 0 || picture.Height() == 0) return false;
    std::string header;
    AppendNumber(header, static_cast<std::uint32_t>(picture.Width()));
    AppendNumber(header, static_cast<std::uint32_t>(picture.Height()));
    header += std::string_view("\x08\x06\x00\x00\x00", 5);
    std::string file = "\x89PNG\r\n\x1A\n";
    AppendChunk(file, "IHDR", header);
    AppendChunk(file, "IDAT", Stored(Scanlines(picture)));
    AppendChunk(file, "IEND", "");
    return WriteFileWhole(machinePath, file);
}

}  // namespace kv
