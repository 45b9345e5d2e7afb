// The module's reader of files of any kind.

#include <cpl_conv.h>
#include <cpl_string.h>
#include <cpl_vsi.h>

#include <charconv>
#include <cmath>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/export.h"
#include "base/text.h"
#include "geofiles/gdal_handles.h"
#include "kvload/source.h"
#include "kvload/text_table.h"

namespace kvload {
namespace {

using geofiles::Complaints;
using geofiles::Dataset;
using geofiles::FeaturePtr;
using geofiles::Geometry;

OGRGeometryH Handle(const Geometry& geometry) {
    return static_cast<OGRGeometryH>(geometry.get());
}

Dataset OpenDataset(const std::string& path, const char* const* options) {
    return Dataset(GDALOpenEx(path.c_str(),
                              GDAL_OF_VECTOR | GDAL_OF_READONLY | GDAL_OF_VERBOSE_ERROR, nullptr,
                              options, nullptr));
}

/// What lies in an archive, by names within it.
struct Content {
    std::vector<std::string> folders;
    std::vector<std::string> texts;

    explicit Content(const std::string& root) {
        char** names = VSIReadDirRecursive(root.c_str());
        for (int i = 0; i < CSLCount(names); ++i) {
            std::string name = names[i];
            // Where one system keeps what only it knows of the files.
            if (name.starts_with("__MACOSX")) continue;
            if (name.ends_with('/')) {
                name.pop_back();
                folders.push_back(name);
            } else if (IsTextByName(name)) {
                texts.push_back(name);
            }
        }
        CSLDestroy(names);
    }
};

/// The one of those names that holds tables; null, with a reason, where several do.
template <typename OpenNamed>
Dataset OpenTheOne(const std::vector<std::string>& names, const OpenNamed& open,
                   std::string& failure) {
    Dataset found;
    std::string where;
    for (const std::string& name : names) {
        Dataset inside = open(name);
        if (!inside || GDALDatasetGetLayerCount(inside.get()) == 0) continue;
        if (found) {
            failure = "Tables lie in " + where + " and in " + name + ": unpack it first";
            return nullptr;
        }
        found = std::move(inside);
        where = name;
    }
    return found;
}

/// What lies in an archive, or in the one folder or else text of it that holds tables.
Dataset OpenArchive(const std::string& path, const char* const* options, std::string& failure) {
    const std::string root = "/vsizip/" + path;
    if (Dataset whole = OpenDataset(root, options)) return whole;
    const Content content(root);
    const auto full = [&](const std::string& name) { return root + "/" + name; };
    Dataset found = OpenTheOne(
        content.folders, [&](const std::string& name) { return OpenDataset(full(name), options); },
        failure);
    if (found || !failure.empty()) return found;
    return OpenTheOne(
        content.texts, [&](const std::string& name) { return OpenTextTable(full(name)); }, failure);
}

/// An archive is what lies in it, where it is no format of its own, and a text a table.
Dataset OpenAny(const std::string& path, const char* const* options, std::string& failure) {
    if (kv::ToLower(path).ends_with(".zip")) {
        Dataset inside = OpenArchive(path, options, failure);
        if (inside || !failure.empty()) return inside;
    }
    if (!IsTextByName(path)) return OpenDataset(path, options);
    if (HasFixedColumns(path)) {
        failure =
            "Its columns are of a fixed width, which it does not tell: part them by commas first";
        return nullptr;
    }
    Dataset known = OpenDataset(path, options);
    return known ? std::move(known) : OpenTextTable(path);
}

OGRLayerH FindLayer(GDALDatasetH dataset, const SourceName& source, std::string& failure) {
    const int count = GDALDatasetGetLayerCount(dataset);
    if (!source.layer.empty()) {
        if (OGRLayerH named = GDALDatasetGetLayerByName(dataset, source.layer.c_str()))
            return named;
        failure = "It has no layer \"" + source.layer + "\"";
    } else if (count == 1) {
        return GDALDatasetGetLayer(dataset, 0);
    } else if (count > 1) {
        failure = "It has several layers";
    }
    if (count <= 0) {
        failure = "It holds no table";
        return nullptr;
    }
    const char* separator = ": ";
    for (int i = 0; i < count; ++i) {
        failure.append(separator).append(OGR_L_GetName(GDALDatasetGetLayer(dataset, i)));
        separator = ", ";
    }
    if (source.layer.empty()) failure += "; name one as \"layer\" in the mapping, or by --layer";
    return nullptr;
}

/// A table of attributes that does not say in which letters it is written, or says so by the mark
/// that programs put there when they do not know.
bool LettersAreUnknown(OGRLayerH layer) {
    const auto item = [&](const char* name) {
        const char* value = GDALGetMetadataItem(layer, name, "SHAPEFILE");
        return std::string(value ? value : "");
    };
    if (!item("CPG_VALUE").empty()) return false;
    const std::string mark = item("ENCODING_FROM_LDID");
    return mark.empty() || mark == "ISO-8859-1";
}

/// Bytes that are no UTF-8 are letters of western Europe.
std::string Utf8(const char* text) {
    if (CPLIsUTF8(text, -1)) return text;
    char* recoded = CPLRecode(text, "CP1252", CPL_ENC_UTF8);
    std::string result = recoded ? recoded : text;
    CPLFree(recoded);
    return result;
}

Cell NumberCell(double value) {
    if (!std::isfinite(value)) return std::nullopt;
    char text[400];
    const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed);
    return std::string(text, end.ptr);
}

Cell DayCell(OGRFeatureH feature, int field) {
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0, zone = 0;
    if (!OGR_F_GetFieldAsDateTime(feature, field, &year, &month, &day, &hour, &minute, &second,
                                  &zone))
        return std::nullopt;
    char text[40];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", year, month, day);
    return text;
}

Cell CellOf(OGRFeatureH feature, int field, OGRFieldType type) {
    if (!OGR_F_IsFieldSetAndNotNull(feature, field)) return std::nullopt;
    switch (type) {
        case OFTReal:
            return NumberCell(OGR_F_GetFieldAsDouble(feature, field));
        case OFTDate:
        case OFTDateTime:
            return DayCell(feature, field);
        case OFTBinary:
            return std::nullopt;
        default:
            return Utf8(OGR_F_GetFieldAsString(feature, field));
    }
}

/// An entry of the list without a text stands for itself.
FieldFacts FactsOf(GDALDatasetH dataset, OGRFieldDefnH field) {
    FieldFacts facts{.alias = Utf8(OGR_Fld_GetAlternativeNameRef(field))};
    const std::string list = OGR_Fld_GetDomainName(field);
    OGRFieldDomainH domain =
        list.empty() ? nullptr : GDALDatasetGetFieldDomain(dataset, list.c_str());
    if (!domain || OGR_FldDomain_GetDomainType(domain) != OFDT_CODED) return facts;
    for (const OGRCodedValue* value = OGR_CodedFldDomain_GetEnumeration(domain);
         value && value->pszCode; ++value) {
        const std::string code = Utf8(value->pszCode);
        const std::string text = kv::TrimSpace(value->pszValue ? Utf8(value->pszValue) : "");
        facts.texts.emplace(code, text.empty() ? code : text);
    }
    return facts;
}

Spots PlacesOf(OGRGeometryH line) {
    static_assert(sizeof(Spot) == 2 * sizeof(double));
    Spots places(static_cast<size_t>(OGR_G_GetPointCount(line)));
    if (!places.empty())
        OGR_G_GetPoints(line, &places[0].x, sizeof(Spot), &places[0].y, sizeof(Spot), nullptr, 0);
    return places;
}

std::vector<Spots> PartOf(OGRGeometryH geometry, ShapeKind kind) {
    if (kind != ShapeKind::kPolygon) return {PlacesOf(geometry)};
    std::vector<Spots> rings;
    for (int i = 0; i < OGR_G_GetGeometryCount(geometry); ++i)
        rings.push_back(PlacesOf(OGR_G_GetGeometryRef(geometry, i)));
    return rings;
}

ShapeKind KindOf(OGRwkbGeometryType type) {
    switch (OGR_GT_Flatten(type)) {
        case wkbPoint:
        case wkbMultiPoint:
            return ShapeKind::kPoint;
        case wkbLineString:
        case wkbMultiLineString:
        case wkbCircularString:
        case wkbCompoundCurve:
        case wkbMultiCurve:
            return ShapeKind::kLine;
        case wkbPolygon:
        case wkbMultiPolygon:
        case wkbCurvePolygon:
        case wkbMultiSurface:
        case wkbTriangle:
        case wkbTIN:
        case wkbPolyhedralSurface:
            return ShapeKind::kPolygon;
        case wkbNone:
            return ShapeKind::kNone;
        default:
            return ShapeKind::kOther;
    }
}

bool HasParts(OGRwkbGeometryType type) {
    const OGRwkbGeometryType flat = OGR_GT_Flatten(type);
    return OGR_GT_IsSubClassOf(flat, wkbGeometryCollection) || flat == wkbTIN ||
           flat == wkbPolyhedralSurface;
}

void AddTo(Shape& shape, OGRGeometryH geometry) {
    if (OGR_G_IsEmpty(geometry)) return;
    const OGRwkbGeometryType type = OGR_G_GetGeometryType(geometry);
    if (HasParts(type)) {
        for (int i = 0; i < OGR_G_GetGeometryCount(geometry); ++i)
            AddTo(shape, OGR_G_GetGeometryRef(geometry, i));
        return;
    }
    const ShapeKind kind = KindOf(type);
    if (kind == ShapeKind::kOther || (shape.kind != ShapeKind::kNone && shape.kind != kind)) {
        shape.kind = ShapeKind::kOther;
        shape.trouble = std::string("a ") + OGR_G_GetGeometryName(geometry) +
                        (kind == ShapeKind::kOther ? " is no outline, line or place"
                                                   : " is mixed with shapes of other kinds");
        return;
    }
    shape.kind = kind;
    shape.parts.push_back(PartOf(geometry, kind));
}

/// Curves become the short lines that follow them.
Shape ShapeOf(OGRGeometryH geometry) {
    Shape shape;
    if (!geometry) return shape;
    Geometry straight;
    if (OGR_G_HasCurveGeometry(geometry, true)) {
        straight.reset(OGR_G_GetLinearGeometry(geometry, 0.0, nullptr));
        if (straight) geometry = Handle(straight);
    }
    AddTo(shape, geometry);
    return shape;
}

Shape ShapeOfText(const Cell& text) {
    Shape shape;
    if (!text || kv::TrimSpace(*text).empty()) return shape;
    std::string words = *text;
    char* rest = words.data();
    OGRGeometryH made = nullptr;
    const OGRErr error = OGR_G_CreateFromWkt(&rest, nullptr, &made);
    const Geometry geometry(made);
    if (error != OGRERR_NONE || !made || !kv::TrimSpace(rest).empty()) {
        shape.kind = ShapeKind::kOther;
        shape.trouble = "its text is no geometry: " + text->substr(0, 40);
        return shape;
    }
    return ShapeOf(made);
}

void Swap(Shape& shape) {
    for (auto& part : shape.parts)
        for (Spots& run : part)
            for (Spot& spot : run)
                std::swap(spot.x, spot.y);
}

class GdalLayer final : public Layer {
public:
    GdalLayer(Dataset dataset, OGRLayerH layer) : dataset_(std::move(dataset)), layer_(layer) {
        name_ = OGR_L_GetName(layer);
        kind_ = KindOf(OGR_L_GetGeomType(layer));
        count_ = OGR_L_GetFeatureCount(layer, false);
        OGRFeatureDefnH table = OGR_L_GetLayerDefn(layer);
        for (int i = 0; i < OGR_FD_GetFieldCount(table); ++i) {
            OGRFieldDefnH field = OGR_FD_GetFieldDefn(table, i);
            fields_.push_back(Utf8(OGR_Fld_GetNameRef(field)));
            types_.push_back(OGR_Fld_GetType(field));
            facts_.push_back(FactsOf(dataset_.get(), field));
        }
        ReadReferenceSystem();
    }

    /// False where there is no such field.
    bool TakeShapesFrom(const std::string& field) {
        for (size_t i = 0; i < fields_.size(); ++i)
            if (kv::EqualsNoCase(fields_[i], field)) wktField_ = static_cast<int>(i);
        kind_ = ShapeKind::kOther;
        return wktField_ >= 0;
    }

    const std::string& Name() const noexcept override { return name_; }
    const std::vector<std::string>& Fields() const noexcept override { return fields_; }
    const std::vector<FieldFacts>& Facts() const noexcept override { return facts_; }
    ShapeKind Kind() const noexcept override { return kind_; }
    const std::string& ReferenceSystem() const noexcept override { return referenceSystem_; }
    long long Count() const noexcept override { return count_; }

    Reading Read(Feature& feature, std::string& failure) noexcept override {
        const Complaints complaints;
        const FeaturePtr row(OGR_L_GetNextFeature(layer_));
        if (complaints.Any()) {
            failure = complaints.Words("");
            return Reading::kFailed;
        }
        if (!row) return Reading::kEnd;
        auto* handle = static_cast<OGRFeatureH>(row.get());
        feature.cells.resize(fields_.size());
        for (size_t i = 0; i < fields_.size(); ++i)
            feature.cells[i] = CellOf(handle, static_cast<int>(i), types_[i]);
        feature.shape = wktField_ >= 0 ? ShapeOfText(feature.cells[static_cast<size_t>(wktField_)])
                                       : ShapeOf(OGR_F_GetGeometryRef(handle));
        if (northFirst_) Swap(feature.shape);
        return Reading::kRow;
    }

private:
    void ReadReferenceSystem() {
        OGRSpatialReferenceH system = OGR_L_GetSpatialRef(layer_);
        if (!system) return;
        static constexpr const char* kOptions[] = {"FORMAT=WKT2_2019", nullptr};
        char* text = nullptr;
        if (OSRExportToWktEx(system, &text, kOptions) == OGRERR_NONE && text)
            referenceSystem_ = text;
        CPLFree(text);
        northFirst_ = OSRGetAxisMappingStrategy(system) == OAMS_AUTHORITY_COMPLIANT &&
                      (OSREPSGTreatsAsLatLong(system) || OSREPSGTreatsAsNorthingEasting(system));
    }

    Dataset dataset_;
    OGRLayerH layer_;
    std::string name_;
    ShapeKind kind_ = ShapeKind::kNone;
    long long count_ = -1;
    std::vector<std::string> fields_;
    std::vector<OGRFieldType> types_;
    std::vector<FieldFacts> facts_;
    std::string referenceSystem_;
    bool northFirst_ = false;
    int wktField_ = -1;
};

/// The layer that is meant, of a dataset that is opened with these options.
std::unique_ptr<GdalLayer> OpenWith(const SourceName& source, const char* const* options,
                                    std::string& failure) {
    const Complaints complaints;
    Dataset dataset = OpenAny(source.path, options, failure);
    if (!dataset) {
        if (failure.empty()) failure = complaints.Words("It is of no format that can be read");
        return nullptr;
    }
    OGRLayerH layer = FindLayer(dataset.get(), source, failure);
    if (!layer) return nullptr;
    return std::make_unique<GdalLayer>(std::move(dataset), layer);
}

bool IsShapefileOfUnknownLetters(const SourceName& source) {
    const Complaints complaints;
    std::string ignored;
    const Dataset dataset = OpenAny(source.path, nullptr, ignored);
    if (!dataset) return false;
    GDALDriverH driver = GDALGetDatasetDriver(dataset.get());
    if (std::string_view(GDALGetDriverShortName(driver)) != "ESRI Shapefile") return false;
    OGRLayerH layer = FindLayer(dataset.get(), source, ignored);
    return layer && LettersAreUnknown(layer);
}

}  // namespace
}  // namespace kvload

extern "C" KVGUICTL_API kvload::Layer* KVGuiCtlOpenLayer(const kvload::SourceName& source,
                                                         std::string& failure) {
    {
        const kvload::Complaints complaints;
        GDALAllRegister();
    }
    static constexpr const char* kAsTheyAre[] = {"ENCODING=", nullptr};
    const bool asTheyAre = kvload::IsShapefileOfUnknownLetters(source);
    auto layer = kvload::OpenWith(source, asTheyAre ? kAsTheyAre : nullptr, failure);
    if (layer && !source.wktField.empty() && !layer->TakeShapesFrom(source.wktField)) {
        failure = "It has no field \"" + source.wktField + "\"";
        return nullptr;
    }
    return layer.release();
}
