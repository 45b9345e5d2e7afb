#include "workbench/drawing_tools/drawing_tools.h"

#include <QAction>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QStyleHints>
#include <QTimer>
#include <algorithm>
#include <array>
#include <set>
#include <utility>

#include "base/text.h"
#include "drawing/clear_custom_obj_dlg.h"
#include "drawing/search_replace_dlg.h"
#include "window/acting/input.h"
#include "window/window_system.h"
#include "workbench/document/map_shape.h"
#include "workbench/drawing_tools/replace_labels.h"
#include "workbench/drawing_tools/text_scale.h"

namespace workbench {

namespace {

/// Pixels that Ctrl with an arrow key moves a drawing.
constexpr double kStep = 4;
/// Clicks that lie closer together are on one place.
constexpr double kSamePlace = 4;

/// The plane has X and Y for all of them.
std::vector<CKvDispPoint> InPlane(const std::vector<Place>& places, const DriverPlane& plane) {
    std::vector<CKvDispPoint> points;
    for (const Place& place : places) {
        const Point xy = plane.ToXY(place).value();
        points.emplace_back(xy.x, xy.y);
    }
    return points;
}

/// What the history calls a deed on one of the drawings.
QString Label(const char* deed, const DrawingRef& ref) {
    static constexpr std::array kKinds{"line", "text", "block"};
    return QStringLiteral("%1 %2").arg(QLatin1String(deed),
                                       QLatin1String(kKinds[static_cast<std::size_t>(ref.kind)]));
}

QString InWords(const ReplaceCount& count) {
    const QString texts = count.texts == 1 ? DrawingTools::tr("1 text")
                                           : DrawingTools::tr("%1 texts").arg(count.texts);
    const QString labels = count.labels == 1 ? DrawingTools::tr("1 label")
                                             : DrawingTools::tr("%1 labels").arg(count.labels);
    return DrawingTools::tr("Replaced in %1 and %2").arg(texts, labels);
}

}  // namespace

DrawingTools::DrawingTools(DrawingDesk desk)
    : desk_(std::move(desk)),
      canvas_(&desk_.canvas),
      layer_(desk_.model),
      positions_(desk_.model, desk_.fail) {
    layer_.SetDark(canvas_->IsDark());
    layer_.SetRepaint([this] {
        if (canvas_) canvas_->update();
    });
    canvas_->SetOverlay(&layer_);
    canvas_->installEventFilter(this);
    canvas_->AddDrawnOver([this](QPainter& painter, const MapView& view) { Paint(painter, view); });
    connect(canvas_, &MapCanvas::PlaceClicked, this, [this](const Place& place) {
        if (HasMouse()) Clicked(place);
    });
    connect(canvas_, &MapCanvas::PlaceDragged, this,
            [this](const Place& from, const Place& to, bool done) {
                if (HasMouse()) Dragged(from, to, done);
            });
    connect(canvas_, &MapCanvas::Pointed, this, [this](const Place& place) {
        if (!HasMouse()) return;
        pointer_ = place;
        byKeys_ = false;
        canvas_->update();
    });
    connect(&desk_.history, &DocumentHistory::Changed, this, &DrawingTools::ShowDocument);
    ShowDocument();
}

DrawingTools::~DrawingTools() {
    if (text_) text_->DestroyWindow();
    if (canvas_) canvas_->SetOverlay(nullptr);
}

void DrawingTools::MakeMenu(QMenu& menu, Commands::WhyNot noMap) {
    AddTool(menu, Tool::kLine, tr("Poly&line"), Qt::CTRL | Qt::SHIFT | Qt::Key_L, noMap);
    AddTool(menu, Tool::kPolygon, tr("Poly&gon"), Qt::CTRL | Qt::SHIFT | Qt::Key_G, noMap);
    AddTool(menu, Tool::kText, tr("&Text"), Qt::CTRL | Qt::SHIFT | Qt::Key_T, noMap);
    AddTool(menu, Tool::kFill, tr("Fill &block"), Qt::CTRL | Qt::SHIFT | Qt::Key_K, noMap);
    menu.addSeparator();
    AddTool(menu, Tool::kSelect, tr("&Select"), Qt::CTRL | Qt::Key_E, noMap);
    const auto noSelection = [this] {
        return selected_ ? QString() : tr("Nothing that was drawn is selected: Select does that.");
    };
    desk_.commands.Add(
        menu, tr("C&hange..."), {}, [this] { ChangeSelected(); }, noSelection);
    desk_.commands.Add(
        menu, tr("&Delete"), {}, [this] { DeleteSelected(); }, noSelection);
    menu.addSeparator();
    const auto nothing = [this] {
        return Current().Empty() ? tr("Nothing was drawn yet.") : QString();
    };
    desk_.commands.Add(
        menu, tr("&Clear..."), {}, [this] { Clear(); }, nothing);
    desk_.commands.Add(
        menu, tr("Search and &Replace..."), Qt::CTRL | Qt::Key_H, [this] { SearchAndReplace(); },
        noMap);
}

void DrawingTools::AddTool(QMenu& menu, Tool tool, const QString& text, const QKeySequence& key,
                           const Commands::WhyNot& noMap) {
    QAction* row = desk_.commands.Add(
        menu, text, key, [this, tool] { Choose(tool); }, noMap);
    row->setCheckable(true);
    rows_.emplace_back(tool, row);
}

// Tools begin and end.

void DrawingTools::Choose(Tool tool) {
    if (!MayLeave()) {
        // The row of the menu has changed its check of itself.
        ShowTool();
    } else if (tool == tool_) {
        End();
    } else {
        Begin(tool);
    }
}

void DrawingTools::Begin(Tool tool) {
    End();
    tool_ = tool;
    ShowTool();
    desk_.mouse.Raise(this);
    switch (tool) {
        case Tool::kLine:
        case Tool::kPolygon:
            OpenLine(lastLine_, PlaneFor({MiddleOfMap().value_or(Place())}).value_or(DriverPlane()),
                     false);
            break;
        case Tool::kText: {
            DrawnText text = lastText_;
            text.text = " ";
            OpenText(text);
            break;
        }
        case Tool::kFill:
            OpenFill();
            break;
        default:
            GiveKeysToMap();
    }
}

/// It is there that is drawn.
void DrawingTools::GiveKeysToMap() {
    canvas_->window()->activateWindow();
    canvas_->setFocus();
}

bool DrawingTools::HasBegun() const {
    const bool typed = text_ && !changed_ &&
                       !kv::TrimSpace(static_cast<const TextDialog*>(text_)->Shown().text).empty();
    return !points_.empty() || ready_ || typed || (line_ && line_->HasNewVertices());
}

bool DrawingTools::MayLeave() {
    return !HasBegun() ||
           desk_.frame.MessageBox("What is being drawn was not accepted yet, and goes. Go on?",
                                  "Workbench", MB_YESNO | MB_ICONQUESTION) == IDYES;
}

void DrawingTools::End() {
    EndDialogs();
    tool_ = Tool::kNone;
    points_.clear();
    ready_.reset();
    move_.reset();
    Select({});
    ShowTool();
}

/// They are gone when their own handlers have returned.
void DrawingTools::EndDialogs() {
    changed_.reset();
    for (CDialog* dialog : std::initializer_list<CDialog*>{line_.get(), fill_.get(), text_})
        if (dialog && dialog->m_hWnd) dialog->ShowWindow(SW_HIDE);
    if (text_) {
        text_->SetHostPointer(nullptr);
        const std::weak_ptr<kv::Node> window = text_->m_hWnd->weak_from_this();
        QTimer::singleShot(0, this, [window] {
            const auto node = window.lock();
            if (node && !node->Destroyed()) kv::WindowSystem::Get().Destroy(*node);
        });
        text_ = nullptr;
    }
    QTimer::singleShot(0, this, [line = std::move(line_), fill = std::move(fill_)] {});
    line_.reset();
    fill_.reset();
}

CDialog* DrawingTools::Dialog() const {
    for (CDialog* dialog : std::initializer_list<CDialog*>{line_.get(), text_, fill_.get()})
        if (dialog && dialog->m_hWnd && dialog->IsWindowVisible()) return dialog;
    return nullptr;
}

DialogHost DrawingTools::HostOf(std::function<bool()> mayEnd, std::function<void()> accepted) {
    return {std::move(mayEnd), [this, accepted = std::move(accepted)](bool ok) {
                if (ok) {
                    accepted();
                } else if (changed_) {
                    EndDialogs();
                    ShowTool();
                } else {
                    End();
                }
            }};
}

void DrawingTools::OpenLine(const DrawnLine& line, const DriverPlane& plane, bool exists) {
    line_ = std::make_shared<LineDialog>(
        line, HostOf([this] { return MayAcceptLine(); }, [this] { AcceptLine(); }));
    plane_ = plane;
    line_->SetPlane(plane_);
    if (exists) {
        line_->SetModifyMode(true);
        line_->SetPolygonFlag(line.closed);
        line_->SetFilledFlag(line.filled);
        line_->SetUserInputPts(InPlane(line.points, plane_));
    }
    line_->Create(&desk_.frame);
    line_->MoveTo(desk_.tools.PlaceBeside(*line_));
    if (tool_ == Tool::kPolygon) line_->Close();
    line_->SetWaitMode(exists);
    kv::WindowSystem::Get().AddIdleUpdate(*line_->m_hWnd, [this] {
        if (line_ && line_->GetWaitMode() != HasEnough()) line_->SetWaitMode(HasEnough());
        ShowTool();
    });
    if (exists) {
        kv::input::Activate(*line_->m_hWnd);
    } else {
        GiveKeysToMap();
    }
    ShowTool();
}

void DrawingTools::OpenText(const DrawnText& text) {
    text_ = new TextDialog(&desk_.frame, text,
                           HostOf([this] { return MayAcceptText(); }, [this] { AcceptText(); }));
    text_->SetHostPointer(&text_);
    text_->Create(&desk_.frame);
    text_->SetMoveTo(desk_.tools.PlaceBeside(*text_));
    text_->SetWaitMode(true);
    kv::WindowSystem::Get().AddIdleUpdate(*text_->m_hWnd, [this] { canvas_->update(); });
    kv::input::Activate(*text_->m_hWnd);
    ShowTool();
}

void DrawingTools::OpenFill() {
    fill_ = std::make_shared<FillDialog>(lastFill_, HostOf([] { return true; }, [this] { End(); }));
    fill_->Create(static_cast<UINT>(fill_->GetTemplateId()), &desk_.frame);
    const CPoint at = desk_.tools.PlaceBeside(*fill_);
    fill_->SetWindowPos(nullptr, at.x, at.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    GiveKeysToMap();
    ShowTool();
}

// What is shown.

QString DrawingTools::ModeNow() const {
    switch (tool_) {
        case Tool::kLine:
        case Tool::kPolygon:
            if (!line_ || !line_->ByMouse()) return tr("Draw: vertices from the builder");
            return points_.empty() ? tr("Draw: first point") : tr("Draw: next point");
        case Tool::kText:
            return tr("Text: its place");
        case Tool::kFill:
            return tr("Fill: a block");
        case Tool::kSelect:
            return selected_ ? tr("Select: drag moves") : tr("Select: a drawing");
        case Tool::kNone:
            break;
    }
    return {};
}

MouseUse DrawingTools::UseNow() const {
    if (tool_ == Tool::kNone) return {};
    if (tool_ == Tool::kSelect) return {Taken::kDrags, Qt::PointingHandCursor, ModeNow()};
    return {Taken::kClicks, Qt::CrossCursor, ModeNow()};
}

void DrawingTools::ShowTool() {
    if (!canvas_) return;
    desk_.mouse.Use(this, UseNow());
    for (const auto& [tool, row] : rows_)
        row->setChecked(tool == tool_);
    canvas_->update();
}

void DrawingTools::ShowDocument() {
    if (!canvas_) return;
    const MapDocument& document = desk_.history.Current();
    const auto drawings = document.drawings;
    if (changed_) EndDialogs();
    layer_.Show(drawings, canvas_->Projection(), FeetPerInch(document));
    move_.reset();
    Select({});
    desk_.commands.Refresh();
    ShowTool();
}

// The mouse.

void DrawingTools::Clicked(const Place& place) {
    const auto at = canvas_->ScreenAt(place);
    const bool twice =
        sinceClick_.isValid() && at &&
        sinceClick_.elapsed() < QGuiApplication::styleHints()->mouseDoubleClickInterval() &&
        (*at - lastClick_).manhattanLength() < kSamePlace;
    sinceClick_.restart();
    lastClick_ = at.value_or(QPointF());
    pointer_ = place;
    switch (tool_) {
        case Tool::kLine:
        case Tool::kPolygon:
            if (!line_ || !line_->ByMouse()) break;
            if (twice) {
                Enter();
            } else {
                points_.push_back(place);
            }
            break;
        case Tool::kText:
            points_.assign(1, place);
            if (ready_) AcceptText();
            break;
        case Tool::kFill:
            FillBlock(place);
            break;
        default:
            ClickedToSelect(place, twice);
    }
    kv::WindowSystem::Get().Settle();
    if (line_) line_->SetWaitMode(HasEnough());
    ShowTool();
}

void DrawingTools::ClickedToSelect(const Place& place, bool twice) {
    if (twice && selected_) {
        ChangeSelected();
    } else if (!changed_) {
        Select(At(place));
    }
}

void DrawingTools::FillBlock(const Place& place) {
    const auto block = desk_.model.BlockAt(ToMap(place));
    if (!block || !fill_) return;
    const BlockKey key{block->area->code, std::string(block->Label())};
    lastFill_ = fill_->Color();
    Drawings drawings = Current();
    const auto filled = drawings.fills.find(key);
    if (filled != drawings.fills.end() && filled->second == lastFill_) {
        drawings.fills.erase(filled);
    } else {
        drawings.fills[key] = lastFill_;
    }
    Do(std::move(drawings), tr("fill block"));
}

void DrawingTools::Dragged(const Place& from, const Place& to, bool done) {
    if (tool_ != Tool::kSelect || changed_) return;
    if (!move_) {
        Select(At(from));
        if (!selected_) return;
    }
    move_ = Move{from, to};
    canvas_->update();
    if (!done) return;
    Drawings drawings = Current();
    const DrawingRef moved = *selected_;
    Shift(drawings, moved, to.lat - from.lat, to.lon - from.lon);
    move_.reset();
    Do(std::move(drawings), Label("move", moved));
    Select(moved);
}

// Keys.

bool DrawingTools::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::PaletteChange && canvas_) layer_.SetDark(canvas_->IsDark());
    if (event->type() == QEvent::KeyPress && HasMouse()) {
        const auto* pressed = static_cast<QKeyEvent*>(event);
        if (Key(pressed->key(), pressed->modifiers())) return true;
    }
    return QObject::eventFilter(watched, event);
}

bool DrawingTools::Key(int key, Qt::KeyboardModifiers modifiers) {
    const bool arrow =
        key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
    if (arrow) {
        byKeys_ = true;
        pointer_.reset();
        const bool moves = modifiers == Qt::ControlModifier && selected_ && !changed_;
        if (moves) MoveByKeys(key);
        return moves;
    }
    switch (key) {
        case Qt::Key_Space:
            byKeys_ = true;
            // The middle is always there: two of them are no double click.
            sinceClick_.invalidate();
            if (const auto middle = MiddleOfMap()) Clicked(*middle);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            Enter();
            return true;
        case Qt::Key_Backspace:
            TakeBack();
            return true;
        case Qt::Key_Delete:
            if (selected_) DeleteSelected();
            return selected_.has_value() || tool_ == Tool::kSelect;
        case Qt::Key_Escape:
            return Escape();
        default:
            return false;
    }
}

/// Ends what is going on: a move, the line, the selection, and then the tool.
bool DrawingTools::Escape() {
    const bool drawing = tool_ != Tool::kSelect && !points_.empty();
    if (drawing) {
        points_.clear();
        if (line_) line_->SetWaitMode(HasEnough());
    } else if (selected_ && !changed_) {
        move_.reset();
        Select({});
    } else {
        End();
    }
    ShowTool();
    return true;
}

void DrawingTools::Enter() {
    if (tool_ == Tool::kSelect && !Dialog()) {
        if (selected_) ChangeSelected();
    } else if (CDialog* dialog = Dialog()) {
        kv::input::Click(*dialog->GetDlgItem(IDOK)->m_hWnd);
        kv::WindowSystem::Get().Settle();
    }
}

void DrawingTools::TakeBack() {
    if (points_.empty()) return;
    points_.pop_back();
    if (line_) line_->SetWaitMode(HasEnough());
    ShowTool();
}

void DrawingTools::MoveByKeys(int key) {
    const auto middle = MiddleOfMap();
    const auto at = middle ? canvas_->ScreenAt(*middle) : std::nullopt;
    if (!at) return;
    const QPointF by(key == Qt::Key_Right  ? kStep
                     : key == Qt::Key_Left ? -kStep
                                           : 0,
                     key == Qt::Key_Down ? kStep
                     : key == Qt::Key_Up ? -kStep
                                         : 0);
    const auto to = canvas_->PlaceAt(*at + by);
    if (!to) return;
    const DrawingRef moved = *selected_;
    Drawings drawings = Current();
    Shift(drawings, moved, to->lat - middle->lat, to->lon - middle->lon);
    const QString label = Label("move", moved);
    Do(std::move(drawings), label, label + QString::number(moved.number));
    Select(moved);
}

// Lines.

/// A plane with X and Y for all of the places: that of the map, or else one of theirs. None where
/// no such plane has them.
std::optional<DriverPlane> DrawingTools::PlaneFor(const std::vector<Place>& places) {
    const auto holdsAll = [&](const DriverPlane& plane) {
        return std::ranges::all_of(places,
                                   [&](const Place& at) { return plane.ToXY(at).has_value(); });
    };
    const auto& map = desk_.history.Current().map;
    if (map && holdsAll(PlaneOf(*map))) return PlaneOf(*map);
    const Box& bounds = desk_.model.Bounds();
    const Place middle = bounds.Empty() ? Place() : ToPlace(bounds.Middle());
    std::set<int> tried;
    for (const Place& place : places) {
        const DriverPlane plane{positions_.ProjectionAt(place), true, middle};
        if (tried.insert(plane.code).second && holdsAll(plane)) return plane;
    }
    return {};
}

/// None where one of them is nowhere on the earth.
std::optional<std::vector<Place>> DrawingTools::NewVertices() const {
    if (line_->HasEmptyVertex()) return {};
    std::vector<Place> places;
    for (const CKvDispPoint& point : line_->NewVertices()) {
        const auto place = plane_.ToPlace({point.GetX(), point.GetY()});
        if (!place) return {};
        places.push_back(*place);
    }
    return places;
}

std::vector<Place> DrawingTools::PointsNow() const {
    if (line_ && line_->HasNewVertices()) return NewVertices().value_or(std::vector<Place>());
    if (changed_ && line_) return Current().lines[changed_->number].points;
    return points_;
}

bool DrawingTools::HasEnough() const {
    // A vertex that cannot be shown is told at OK.
    if (line_->HasNewVertices()) return line_->NewVertices().size() >= 2;
    return PointsNow().size() >= (line_->Look().closed ? 3U : 2U);
}

bool DrawingTools::MayAcceptLine() {
    if (!line_->HasNewVertices() || NewVertices()) return true;
    desk_.fail(tr("One of the vertices is no place on the earth."));
    return false;
}

void DrawingTools::AcceptLine() {
    const E_KV_LINE_OPTION option = line_->GetOptionFlag();
    DrawnLine line;
    line.closed = option.bPolygon;
    line.filled = option.bFilled;
    line.color = line_->GetLineColor();
    line.fillColor = line_->GetFillColor();
    line.width = line_->GetWidth();
    line.type = line_->GetType();
    lastLine_ = line;
    lastLine_.closed = lastLine_.filled = false;
    line.points = points_;
    if (changed_) line.points = Current().lines[changed_->number].points;
    if (option.bNewVertices) {
        line.points.clear();
        std::vector<CKvDispPoint> points;
        line_->GetUserInputPts(points, true);
        for (const CKvDispPoint& point : points)
            line.points.push_back(plane_.ToPlace({point.GetX(), point.GetY()}).value_or(Place()));
    }
    Drawings drawings = Current();
    if (const auto changed = std::exchange(changed_, {})) {
        drawings.lines[changed->number] = std::move(line);
        EndDialogs();
        Do(std::move(drawings), tr("change line"));
        Select(changed);
    } else {
        drawings.lines.push_back(std::move(line));
        End();
        Do(std::move(drawings), tr("draw line"));
    }
}

// Texts.

bool DrawingTools::MayAcceptText() {
    const DrawnText text = static_cast<const TextDialog*>(text_)->Shown();
    if (kv::TrimSpace(text.text).empty()) {
        desk_.fail(tr("A text of blanks would not be seen."));
        return false;
    }
    // The dialog itself judges a height that is out of its range.
    if (text.height > 0) return true;
    desk_.fail(tr("A text with a height of 0 would not be seen."));
    return false;
}

/// Without a place yet, the next click is that.
void DrawingTools::AcceptText() {
    DrawnText text;
    if (ready_) {
        text = *ready_;
    } else {
        text = static_cast<const TextDialog*>(text_)->Shown();
        lastText_ = text;
    }
    Drawings drawings = Current();
    if (const auto changed = std::exchange(changed_, {})) {
        text.at = drawings.texts[changed->number].at;
        drawings.texts[changed->number] = text;
        EndDialogs();
        Do(std::move(drawings), tr("change text"));
        Select(changed);
    } else if (points_.empty()) {
        ready_ = text;
        EndDialogs();
        GiveKeysToMap();
        ShowTool();
    } else {
        text.at = points_.front();
        drawings.texts.push_back(text);
        End();
        Do(std::move(drawings), tr("write text"));
    }
}

// What is drawn already.

std::optional<DrawingRef> DrawingTools::At(const Place& place) const {
    const auto at = canvas_->ScreenAt(place);
    if (!at) return {};
    return layer_.At(canvas_->View(), {at->x(), at->y()});
}

std::optional<Place> DrawingTools::MiddleOfMap() const {
    return canvas_->PlaceAt(QPointF(canvas_->width() / 2.0, canvas_->height() / 2.0));
}

void DrawingTools::Select(std::optional<DrawingRef> ref) {
    if (selected_ == ref) return;
    selected_ = std::move(ref);
    desk_.commands.Refresh();
    if (canvas_) canvas_->update();
}

void DrawingTools::ChangeSelected() {
    if (!selected_ || Dialog()) return;
    if (selected_->kind == DrawingRef::kFill) {
        desk_.status.Say(tr("Fill block gives the block another color."));
        return;
    }
    if (selected_->kind == DrawingRef::kText) {
        changed_ = selected_;
        OpenText(Current().texts[selected_->number]);
        return;
    }
    const DrawnLine line = Current().lines[selected_->number];
    const auto plane = PlaneFor(line.points);
    if (!plane) {
        desk_.fail(
            tr("No projection of this line's points has X and Y for all of them, so that "
               "its vertices cannot be shown."));
        return;
    }
    changed_ = selected_;
    OpenLine(line, *plane, true);
}

void DrawingTools::DeleteSelected() {
    const DrawingRef deleted = *selected_;
    Drawings drawings = Current();
    Erase(drawings, deleted);
    Do(std::move(drawings), Label("delete", deleted));
}

void DrawingTools::Clear() {
    CKvGuiClearCustomObjDlg dialog(&desk_.frame);
    if (dialog.DoModal() != IDOK) return;
    Drawings drawings = Current();
    if (dialog.GetClearTextFlg()) drawings.texts.clear();
    if (dialog.GetClearPolyFlg()) drawings.lines.clear();
    if (dialog.GetClearColorFillFlg()) drawings.fills.clear();
    Do(std::move(drawings), tr("clear"));
}

void DrawingTools::SearchAndReplace() {
    CKvGuiSearchReplaceDlg dialog(&desk_.frame);
    while (dialog.DoModal() == IDOK) {
        const std::string search = dialog.GetSearchContent();
        if (search.empty()) {
            desk_.fail(tr("Type the text that is to be searched for."));
            continue;
        }
        // What has not been read yet has no labels.
        desk_.runner.Finish();
        Drawings drawings = Current();
        const ReplaceCount count =
            ReplaceEverywhere(drawings, desk_.model, LayerOf(dialog.GetLayerSelect()), search,
                              dialog.GetReplaceContent());
        Do(std::move(drawings), tr("replace texts"));
        desk_.status.Say(InWords(count));
        return;
    }
}

void DrawingTools::Do(Drawings drawings, const QString& label, const QString& series) {
    MapDocument next = desk_.history.Current();
    next.drawings = std::make_shared<const Drawings>(std::move(drawings));
    desk_.history.Do(std::move(next), label, series);
}

}  // namespace workbench
