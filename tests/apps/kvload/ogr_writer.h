#pragma once

#include <string>
#include <utility>
#include <vector>

namespace test {

/// A row to be written: its geometry as well-known text, "" for none, and its fields.
struct OgrRow {
    std::string shape;
    std::vector<std::string> cells;
};

/// The values that a field may have, each with the text that stands for it.
struct OgrList {
    std::string field;
    std::vector<std::pair<std::string, std::string>> texts;
};

/// A file to be written through GDAL.
struct OgrFile {
    std::string path;
    std::string driver;
    /// As EPSG:4267; "" for none.
    std::string system;
    std::vector<std::string> fields;
    std::vector<OgrRow> rows;
    /// Of the geometry, as MULTIPOLYGON; a file geodatabase wants to know.
    std::string type = "GEOMETRY";
    std::vector<std::string> layerOptions = {};
    /// Other names of the fields, in their order.
    std::vector<std::string> aliases = {};
    std::vector<OgrList> lists = {};
};

/// Throws std::runtime_error.
void WriteOgrFile(const OgrFile& file);

/// A ZIP archive that holds one file, which may lie in a folder of it. Throws std::runtime_error.
void WriteArchive(const std::string& path, const std::string& name, const std::string& content);

}  // namespace test
