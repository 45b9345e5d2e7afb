// The commands of docs/exporting.md, run on what the workbench has saved of the dataset that
// docs/loading-data.md makes.

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>

#include "frame/kvcom/util_lldrv.h"
#include "workbench_person.h"

namespace workbench {
namespace {

using testing::IsEmpty;

class ExportingPage : public WorkbenchPerson {
protected:
    /// Runs the page's commands in a folder with these files; false where they print something else
    /// than it says.
    bool Holds(const std::string& page, const std::string& files, const std::string& work) const {
        std::string command = "bash";
        for (const std::string& word :
             {std::string(CONSOLE), DOCS "/" + page, files, std::string(PROGRAMS), work})
            command += " '" + word + "'";
        return std::system(command.c_str()) == 0;
    }
    std::string Path(const char* name) const { return folder.Native(name); }

    /// Opens the dataset, all of which is in sight, writes one label anew and reports the wells.
    void OpenAt(const std::string& database) {
        Open("sqlite:" + database);
        MapDocument next = host->History().Current();
        auto drawings = std::make_shared<Drawings>();
        drawings->labels = {{{LabelLayer::kLeases, "43602", "123A"}, "OURS"}};
        next.drawings = drawings;
        host->History().Do(next, "label");
        host->ShowOnMap({"43602", "43610"}, "ALL");
        host->PickInBar(*host->Model().FindPick({"43602"}, "123A").block);
        Report("Wells");
        host->ShowOnMap({"43602", "43610"}, "ALL");
    }
};

TEST_F(ExportingPage, ItsCommandsPrintWhatItSays) {
    if (!KVGUICTL_HAS_GDAL) GTEST_SKIP() << "There is no GDAL here";
    double lon = 0, lat = 0;
    if (CKvUtilLLdrv::Nad2783(-90, 28, lon, lat) != 0)
        GTEST_SKIP() << "The datum grid us_noaa_conus.tif is not installed here";
    ASSERT_TRUE(Holds("loading-data.md", DOCS "/examples/loading", Path("loading")));
    std::filesystem::create_directory(Path("files"));
    std::filesystem::copy_file(Path("loading/run/mine.db"), Path("files/mine.db"));
    OpenAt(Path("files/mine.db"));
    Trigger("Export GeoPackage...", {NameFile(Path("files/map.gpkg"))});
    Trigger("Export GeoJSON...", {NameFile(Path("files/map.geojson"))});
    Trigger("Save results...", {NameFile(Path("files/wells.csv"))});
    Trigger("Save results...", {NameFile(Path("files/wells.xlsx"))});
    EXPECT_THAT(failures, IsEmpty());
    EXPECT_TRUE(Holds("exporting.md", Path("files"), Path("exporting")));
}

}  // namespace
}  // namespace workbench
