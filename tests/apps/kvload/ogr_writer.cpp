#include "apps/kvload/ogr_writer.h"

#include <cpl_conv.h>
#include <cpl_string.h>
#include <cpl_vsi.h>
#include <gdal.h>
#include <ogr_api.h>
#include <ogr_srs_api.h>

#include <stdexcept>

namespace test {
namespace {

void Require(bool holds, const std::string& words) {
    if (!holds) throw std::runtime_error("GDAL cannot write " + words);
}

/// "GEOMETRY" is any.
OGRwkbGeometryType TypeNamed(const std::string& name) {
    std::string text = name + " EMPTY";
    char* rest = text.data();
    OGRGeometryH empty = nullptr;
    if (name == "GEOMETRY" || OGR_G_CreateFromWkt(&rest, nullptr, &empty) != OGRERR_NONE)
        return wkbUnknown;
    const OGRwkbGeometryType type = OGR_G_GetGeometryType(empty);
    OGR_G_DestroyGeometry(empty);
    return type;
}

void AddList(GDALDatasetH dataset, const OgrList& list, OGRFieldDefnH field) {
    std::vector<OGRCodedValue> values;
    std::vector<std::pair<std::string, std::string>> texts = list.texts;
    for (auto& [code, text] : texts)
        values.push_back({code.data(), text.data()});
    values.push_back({nullptr, nullptr});
    const std::string name = list.field + "_list";
    OGRFieldDomainH domain =
        OGR_CodedFldDomain_Create(name.c_str(), "", OFTString, OFSTNone, values.data());
    char* reason = nullptr;
    const bool added = GDALDatasetAddFieldDomain(dataset, domain, &reason);
    CPLFree(reason);
    OGR_FldDomain_Destroy(domain);
    Require(added, name);
    OGR_Fld_SetDomainName(field, name.c_str());
}

void AddFields(GDALDatasetH dataset, OGRLayerH layer, const OgrFile& file) {
    for (size_t i = 0; i < file.fields.size(); ++i) {
        OGRFieldDefnH field = OGR_Fld_Create(file.fields[i].c_str(), OFTString);
        if (i < file.aliases.size()) OGR_Fld_SetAlternativeName(field, file.aliases[i].c_str());
        for (const OgrList& list : file.lists)
            if (list.field == file.fields[i]) AddList(dataset, list, field);
        OGR_L_CreateField(layer, field, true);
        OGR_Fld_Destroy(field);
    }
}

void WriteRow(OGRLayerH layer, const OgrRow& row) {
    OGRFeatureH feature = OGR_F_Create(OGR_L_GetLayerDefn(layer));
    for (size_t i = 0; i < row.cells.size(); ++i)
        OGR_F_SetFieldString(feature, static_cast<int>(i), row.cells[i].c_str());
    if (!row.shape.empty()) {
        std::string text = row.shape;
        char* rest = text.data();
        OGRGeometryH geometry = nullptr;
        Require(OGR_G_CreateFromWkt(&rest, nullptr, &geometry) == OGRERR_NONE, row.shape);
        OGR_F_SetGeometryDirectly(feature, geometry);
    }
    const OGRErr error = OGR_L_CreateFeature(layer, feature);
    OGR_F_Destroy(feature);
    Require(error == OGRERR_NONE, "a row");
}

}  // namespace

void WriteOgrFile(const OgrFile& file) {
    GDALAllRegister();
    GDALDriverH driver = GDALGetDriverByName(file.driver.c_str());
    Require(driver, file.driver);
    GDALDatasetH dataset = GDALCreate(driver, file.path.c_str(), 0, 0, 0, GDT_Unknown, nullptr);
    Require(dataset, file.path);
    OGRSpatialReferenceH system = nullptr;
    if (!file.system.empty()) {
        system = OSRNewSpatialReference(nullptr);
        Require(OSRSetFromUserInput(system, file.system.c_str()) == OGRERR_NONE, file.system);
        OSRSetAxisMappingStrategy(system, OAMS_TRADITIONAL_GIS_ORDER);
    }
    char** options = nullptr;
    for (const std::string& option : file.layerOptions)
        options = CSLAddString(options, option.c_str());
    OGRLayerH layer =
        GDALDatasetCreateLayer(dataset, "rows", system, TypeNamed(file.type), options);
    CSLDestroy(options);
    if (system) OSRRelease(system);
    Require(layer, "a layer");
    AddFields(dataset, layer, file);
    for (const OgrRow& row : file.rows)
        WriteRow(layer, row);
    GDALClose(dataset);
}

void WriteArchive(const std::string& path, const std::string& name, const std::string& content) {
    VSILFILE* file = VSIFOpenL(("/vsizip/" + path + "/" + name).c_str(), "wb");
    Require(file, path);
    const bool written = VSIFWriteL(content.data(), 1, content.size(), file) == content.size();
    Require(VSIFCloseL(file) == 0 && written, path);
}

}  // namespace test
