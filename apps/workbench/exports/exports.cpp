#include "workbench/exports/exports.h"

#include <stdexcept>
#include <utility>

#include "base/paths.h"
#include "geofiles/geopackage.h"
#include "window/dialogs/file_dialog.h"
#include "workbench/exports/export_job.h"
#include "workbench/exports/geojson.h"

namespace workbench {

namespace {

/// Degrees on the North American Datum of 1927, as the tables are.
constexpr int kNad27 = 4267;

}  // namespace

const Exports::Format Exports::kGeoPackage{
    "gpkg", "GeoPackages (*.gpkg)|*.gpkg|All files (*.*)|*.*||", &geofiles::NeedGeoPackages,
    [](const std::vector<geofiles::Table>& tables) {
        return geofiles::GeoPackageOf(tables, kNad27);
    }};
const Exports::Format Exports::kGeoJson{
    "geojson", "GeoJSON files (*.geojson)|*.geojson|All files (*.*)|*.*||", [] {}, &GeoJsonOf};

Exports::Exports(Host host, QObject* parent) : QObject(parent), host_(std::move(host)) {}

void Exports::AddTo(QMenu& menu, Commands& commands, const Commands::WhyNot& noMap) {
    commands.Add(
        menu, tr("Export GeoPac&kage..."), {}, [this] { Export(kGeoPackage); }, noMap);
    commands.Add(
        menu, tr("Export Geo&JSON..."), {}, [this] { Export(kGeoJson); }, noMap);
}

void Exports::Export(const Format& format) {
    try {
        format.need();
    } catch (const std::runtime_error& failure) {
        host_.fail(QString::fromUtf8(failure.what()));
        return;
    }
    // What has not been read yet cannot be exported.
    host_.runner.Finish();
    CFileDialog file(FALSE, format.extension, "Map", OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY,
                     format.filter, &host_.frame);
    if (file.DoModal() != IDOK) return;
    const std::string path = file.GetPathName().str();
    const QString shown = QString::fromStdString(kv::ToNative(path));
    host_.runner.Begin(std::make_shared<ExportJob>(
        host_.model,
        ExportPlan{path, host_.canvas.Seen(), host_.canvas.Layers(), host_.history.Current(),
                   format.bytesOf},
        [this, shown](const ExportEnd& end) {
            if (!end.failure.isEmpty()) {
                host_.fail(tr("%1 could not be saved.\n%2").arg(shown, end.failure));
                return;
            }
            QString said = tr("Saved %1, %2 things").arg(shown).arg(end.things);
            if (end.leftOut > 0) said += tr(", without %1 that have no shape").arg(end.leftOut);
            host_.status.Say(end.whole ? said : tr("The export was cancelled."));
        }));
}

}  // namespace workbench
