#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kvload/load.h"
#include "kvload/store.h"
#include "support/temp_folder.h"

namespace test {

/// Loads files of a folder of its own into a database there.
class LoadTest : public testing::Test {
protected:
    static kvload::Watcher Nobody() {
        return {[](const std::string&, long long, long long) {}, [] { return false; }};
    }

    std::string Server() const { return "sqlite:" + folder.Native("data.db"); }

    kvload::Job JobOf(const std::string& file, const std::string& mapping) const {
        return {folder.Native(file), kvload::ReadMapping(mapping)};
    }

    std::vector<kvload::Outcome> LoadAll(std::vector<kvload::Job> jobs, bool replace = false) {
        const auto store = kvload::OpenStore(Server(), kvload::Purpose::kLoad);
        return kvload::Load(std::move(jobs), *store, replace, Nobody());
    }

    kvload::Outcome Load(const std::string& file, const std::string& mapping,
                         bool replace = false) {
        return LoadAll({JobOf(file, mapping)}, replace).front();
    }

    /// Why nothing is loaded; "" where something is.
    std::string Complaint(const std::string& file, const std::string& mapping) {
        try {
            Load(file, mapping);
            return {};
        } catch (const std::exception& error) {
            return error.what();
        }
    }

    /// Rows as "a|b", each on a line of its own.
    static std::string RowsOf(const std::string& server, const std::string& sql) {
        std::string text;
        for (const auto& row : kvload::OpenStore(server, kvload::Purpose::kCheck)->Query(sql)) {
            for (size_t i = 0; i < row.size(); ++i)
                text += (i ? "|" : "") + row[i];
            text += "\n";
        }
        return text;
    }
    std::string Rows(const std::string& sql) const { return RowsOf(Server(), sql); }

    /// One area, by which blocks can be loaded.
    void LoadArea() {
        folder.Write("areas.csv", "name,code,abbr\nGreen Canyon,43602,GC\n");
        Load("areas.csv", kAreas);
    }

    static constexpr const char* kAreas =
        R"({"table": "areas", "fields": {"areaname": "name", "stcode": "code", "area_abbr": "abbr"}})";
    static constexpr const char* kBlocks =
        R"({"table": "blocks", "crs": "EPSG:4267", "fields": {"areacode": "area", "label": "block"}})";
    static constexpr const char* kSquare = "\"POLYGON ((-90 27,-90 28,-89 28,-89 27,-90 27))\"";

    TempFolder folder;
};

}  // namespace test
