#include "workbench/printing/printing.h"

#include <QAction>
#include <QActionGroup>
#include <QDateTime>
#include <QMainWindow>
#include <QMenu>
#include <algorithm>
#include <chrono>
#include <utility>

#include "print/print_control.h"
#include "qt/qt_desktop.h"
#include "window/dialogs/file_dialog.h"
#include "window/window_system.h"
#include "workbench/document/map_shape.h"
#include "workbench/failure_words.h"
#include "workbench/file_name.h"
#include "workbench/printing/page_painter.h"
#include "workbench/printing/print_job.h"
#include "workbench/printing/print_preview.h"

namespace workbench {

namespace {

constexpr double kTenthMmPerInch = 254;
/// More pages than that are not begun without a question.
constexpr std::int64_t kManyPages = 12;
constexpr std::size_t kMostNames = 3;

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString NamesOf(const std::vector<const AreaMap*>& areas) {
    QStringList names;
    for (std::size_t i = 0; i < areas.size() && i < kMostNames; ++i)
        names << Text(areas[i]->name);
    QString text = names.join(QStringLiteral(", "));
    if (areas.size() > kMostNames)
        text += QStringLiteral(" and %1 more").arg(areas.size() - kMostNames);
    return text;
}

QString Today() {
    const auto seconds =
        std::chrono::duration_cast<std::chrono::seconds>(kv::Now().time_since_epoch());
    return QDateTime::fromSecsSinceEpoch(seconds.count()).date().toString(Qt::ISODate);
}

/// The sheet that the dialog has shown: the printer's, or without one that which it begins with. It
/// lies as was chosen.
Sheet SheetOf(const std::optional<kv::PrinterSettings>& printer, bool landscape) {
    using Control = CKvGuiPrintControl;
    double width = Control::m_fPrintBoundWidth;
    double height = Control::m_fPrintBoundHeight;
    Sheet sheet{width, height, width - Control::m_fMargin, height - Control::m_fMargin, landscape};
    if (printer) {
        sheet.width = printer->widthTenthMm / kTenthMmPerInch;
        sheet.height = printer->heightTenthMm / kTenthMmPerInch;
        if (printer->landscape) std::swap(sheet.width, sheet.height);
    }
    if (landscape != (printer && printer->landscape)) {
        std::swap(sheet.width, sheet.height);
        std::swap(sheet.roomWidth, sheet.roomHeight);
    }
    return sheet;
}

/// The scale that the map was built at: in meters that is a ratio.
int ScaleInFeet(const BuiltMap& map) {
    constexpr int kInchesPerFoot = 12;
    return map.Feet() ? map.bounds.GetScale() : map.bounds.GetScale() / kInchesPerFoot;
}

InkMode InkOf(const CKvGuiPrintControl& dialog) {
    if (!dialog.GetColorMode()) return InkMode::kBlackAndWhite;
    return dialog.GetGrayMode() ? InkMode::kGray : InkMode::kColor;
}

}  // namespace

Printing::Printing(MainFrame& frame, const MapModel& model, MapCanvas& canvas, WorkRunner& runner,
                   StatusLine& status, Fail fail)
    : frame_(frame),
      model_(model),
      canvas_(canvas),
      runner_(runner),
      status_(status),
      fail_(std::move(fail)),
      exportPaper_(kv::ToDevMode({})) {}

void Printing::AddTo(QMenu& menu, Commands& commands, Commands::WhyNot noMap) {
    commands.Add(
        menu, tr("&Print..."), QKeySequence::Print, [this] { Print(); }, noMap);
    commands.Add(
        menu, tr("Print Pre&view..."), {}, [this] { Preview(); }, noMap);
    commands.Add(
        menu, tr("&Export PDF..."), {}, [this] { ExportPdf(); }, noMap);
    commands.Add(
        menu, tr("Export SV&G..."), {}, [this] { ExportSvg(); }, noMap);
    AddChoice(*menu.addMenu(tr("&What is printed")));
}

void Printing::AddChoice(QMenu& menu) {
    const std::pair<QString, What> rows[] = {
        {tr("The &built map, or else the pick"), What::kMap},
        {tr("The &pick, or else what is seen"), What::kPick},
        {tr("What is &seen"), What::kView},
    };
    auto* group = new QActionGroup(&menu);
    for (const auto& [text, what] : rows) {
        QAction* row = menu.addAction(text);
        row->setCheckable(true);
        row->setChecked(what == what_);
        group->addAction(row);
        connect(row, &QAction::triggered, this, [this, what = what] { SetWhat(what); });
    }
}

// What is printed.

std::optional<Printing::Subject> Printing::BuiltSubject() {
    const PaperProjection projection{map_->Projection(), ProjectionName(map_->Projection()),
                                     PlaneOf(*map_).rectifyingPoint};
    const Box bounds = XyBoundsOf(*map_, projection.Plane());
    if (!(bounds.Width() > 0) || !(bounds.Height() > 0)) {
        fail_(tr("%1 has no X and Y in its projection, %2.")
                  .arg(Text(map_->name), Text(projection.name)));
        return {};
    }
    return Subject{projection, bounds, Text(map_->name), ScaleInFeet(*map_)};
}

std::optional<Printing::Subject> Printing::FindSubject() {
    if (map_ && what_ == What::kMap) return BuiltSubject();
    const Pick& pick = canvas_.GetPick();
    const bool picked = !pick.Empty() && what_ != What::kView;
    const Box seen = canvas_.Seen();
    std::vector<const AreaMap*> areas = AreasIn(model_, seen);
    if (picked) areas = pick.block ? std::vector{pick.block->area} : pick.areas;
    if (areas.empty()) {
        fail_(tr("There is nothing on this part of the map to print."));
        return {};
    }
    std::optional<PaperProjection> projection;
    QString failure = tr("The database has no projection for %1.").arg(Text(areas.front()->name));
    try {
        projection = ProjectionOf(*areas.front());
    } catch (const CKvException& e) {
        failure = FailureWords(e);
    }
    if (!projection) {
        fail_(failure);
        return {};
    }
    const Box bounds = picked ? BoundsOf(pick, *projection) : BoundsOf(seen, *projection);
    if (!(bounds.Width() > 0) || !(bounds.Height() > 0)) {
        fail_(tr("%1 has no X and Y in its projection, %2.")
                  .arg(Text(areas.front()->name), Text(projection->name)));
        return {};
    }
    QString title = NamesOf(areas);
    if (picked && pick.block) title += tr(", block %1").arg(Text(pick.block->Label()));
    return Subject{*projection, bounds, title};
}

std::optional<PrintPlan> Printing::Ask(DEVMODE* paper) {
    // What has not been read yet cannot be printed.
    runner_.Finish();
    const auto subject = FindSubject();
    if (!subject) return {};
    CKvGuiPrintControl dialog(paper, &frame_);
    dialog.SetUnit(0);
    if (subject->scale > 0) dialog.SetScale(subject->scale);
    dialog.SetBounds(
        {subject->bounds.minX, subject->bounds.maxX, subject->bounds.minY, subject->bounds.maxY});
    dialog.IsCGM(true);
    dialog.SetPrintMode(true);
    if (dialog.DoModal() != IDOK) return {};

    PrintPlan plan;
    plan.scale = dialog.GetScale();
    plan.sheet =
        SheetOf(paper ? kv::FromDevMode(*paper) : kv::CurrentPrinter(), dialog.GetLandScapeMode());
    plan.map.projection = subject->projection;
    plan.ink = InkOf(dialog);
    plan.leastFontSize = dialog.GetMinimalFontSize();
    plan.layers = canvas_.Layers();
    plan.title = subject->title;
    plan.date = Today();
    if (plan.scale <= 0) {
        fail_(tr("A map is printed at a scale above 0."));
        return {};
    }
    plan.grid = PageGrid(subject->bounds, plan.scale, plan.sheet);
    if (!IsPrintable(plan)) return {};
    if (!dialog.GetTrueTypeFont())
        fail_(tr("There is no stroke font here. Texts are written in the True Type font."));
    plan.map = MapOnPaper(model_, subject->projection, plan.grid.Covered());
    plan.drawings = DrawingsOnPaper(drawings_(), subject->projection);
    plan.map.leftOut += plan.drawings.leftOut;
    return plan;
}

bool Printing::IsPrintable(const PrintPlan& plan) {
    if (plan.sheet.roomWidth <= 0 || plan.sheet.roomHeight <= 0) {
        fail_(tr("The paper has no room within its margin."));
        return false;
    }
    if (plan.grid.Count() <= kManyPages) return true;
    const QString question = tr("At 1 inch = %1 feet the map takes %2 pages. Go on?")
                                 .arg(plan.scale)
                                 .arg(plan.grid.Count());
    return frame_.MessageBox(question.toUtf8().constData(), "Workbench",
                             MB_YESNO | MB_ICONQUESTION) == IDYES;
}

// Where it comes out.

void Printing::Print() {
    if (auto plan = Ask(nullptr)) PrintPages(std::move(*plan));
}

void Printing::PrintPages(PrintPlan plan) {
    const auto settings = kv::CurrentPrinter();
    auto printer = settings ? PrinterFor(*settings, plan.sheet.landscape, plan.title,
                                         plan.ink == InkMode::kColor)
                            : nullptr;
    if (!printer) {
        fail_(tr("There is no printer. Export PDF writes the same pages to a file."));
        return;
    }
    const QString name = Text(settings->device);
    Write(std::move(plan), PrinterPages(std::move(printer)), tr("Printed on %1").arg(name),
          tr("%1 could not print the map.").arg(name));
}

void Printing::Preview() {
    auto plan = Ask(nullptr);
    if (!plan) return;
    PrintPreview preview(std::move(*plan), kv::qt::MainWindowOf(*frame_.m_hWnd));
    if (preview.exec() == QDialog::Accepted) PrintPages(preview.Plan());
}

void Printing::ExportPdf() {
    static constexpr Format kPdf{"PDF", "pdf", "PDF files (*.pdf)|*.pdf|All files (*.*)|*.*||"};
    Export(kPdf, [](const std::string& path, const PrintPlan& plan) {
        return PdfFile(path, plan.sheet, plan.title);
    });
}

void Printing::ExportSvg() {
    static constexpr Format kSvg{"SVG", "svg", "SVG files (*.svg)|*.svg|All files (*.*)|*.*||"};
    Export(kSvg, [](const std::string& path, const PrintPlan& plan) {
        return SvgFile(path, plan.sheet, plan.title, plan.grid.Count());
    });
}

void Printing::Export(const Format& format, const MakeSink& makeSink) {
    kv::PrinterSettings settings = kv::FromDevMode(exportPaper_);
    settings.device = format.name;
    exportPaper_ = kv::ToDevMode(settings);
    auto plan = Ask(&exportPaper_);
    if (!plan) return;
    CFileDialog file(FALSE, format.extension, FileNameOf(plan->title.toStdString()).c_str(),
                     OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY, format.filter, &frame_);
    if (file.DoModal() != IDOK) return;
    const std::string path = file.GetPathName().str();
    auto sink = makeSink(path, *plan);
    const QString shown = Text(kv::ToNative(path));
    Write(std::move(*plan), std::move(sink), tr("Saved %1").arg(shown),
          tr("%1 could not be saved.").arg(shown));
}

void Printing::Write(PrintPlan plan, std::unique_ptr<PageSink> sink, const QString& done,
                     const QString& failed) {
    QString said = done;
    if (plan.grid.Count() > 1) said += tr(", %1 pages").arg(plan.grid.Count());
    if (plan.map.leftOut > 0) {
        said += tr(", without %1 things that the projection cannot show").arg(plan.map.leftOut);
    }
    runner_.Begin(std::make_shared<PrintJob>(
        std::move(plan), std::move(sink), [this, said, failed](const PrintEnd& end) {
            if (!end.failure.isEmpty()) {
                fail_(failed + QStringLiteral("\n") + end.failure);
                return;
            }
            status_.Say(end.whole ? said : tr("The pages were cancelled."));
            if (end.whole && !end.leftOut.isEmpty()) fail_(NoRoomFor(end.leftOut));
        }));
}

}  // namespace workbench
