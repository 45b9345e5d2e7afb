// Feeding the readouts, beside the same calls of the coordinate driver and the same texts put into
// bare controls.

#include <array>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "base/numbers.h"
#include "coordtools/coord_dialog.h"
#include "coordtools/coord_ids.h"
#include "coordtools/distance_dialog.h"
#include "coordtools/distance_ids.h"
#include "frame/kvcom/angle.h"
#include "frame/kvcom/util_lldrv.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/module.h"
#include "peers.h"
#include "ratio.h"
#include "window/acting/headless_desktop.h"
#include "window/controls/edit.h"
#include "window/window_system.h"

namespace {

constexpr double kBound = 1.3;
constexpr int kMapProjection = 115;
constexpr int kOtherProjection = 3;
constexpr const char* kUnit = "feet";
constexpr int kPositions = 100;

/// A mouse that moves over the Gulf.
double XOf(int step) {
    return 2'000'000.25 + step * 137.5;
}
double YOf(int step) {
    return 10'200'000.75 + step * 89.25;
}

/// A desktop without a screen, and the table of zones.
class Outside {
public:
    Outside() {
        InitControlDll();
        kv::WindowSystem::Get().SetDesktop(&desktop_);
        CKvDbInfo info("", "", ("sqlite:" + bench::SamplePath()).c_str());
        CKvDbAbsDataMgr(KV_CONNECT_DEFAULT).SetDbInfo(info);
    }
    ~Outside() { kv::WindowSystem::Get().SetDesktop(nullptr); }
    Outside(const Outside&) = delete;
    Outside& operator=(const Outside&) = delete;

private:
    kv::HeadlessDesktop desktop_;
};

struct Pair {
    double first;
    double second;
};

Pair Angles(double x, double y) {
    Pair angles{};
    CKvUtilLLdrv::XYdrv(x, y, &angles.first, &angles.second, kMapProjection, 0, 1, 100.0F, 0.0F,
                        0.0F);
    return angles;
}

Pair Plane(const Pair& angles) {
    Pair plane{};
    CKvUtilLLdrv::LLdrv(angles.first, angles.second, &plane.first, &plane.second, kOtherProjection,
                        0, 1, 100.0F, 0.0F, 0.0F);
    return plane;
}

/// Edits of a dialog's template, without what the dialog makes of them.
class BareControls {
public:
    BareControls(int templateId, const std::vector<int>& ids) {
        dialog_.Create(static_cast<UINT>(templateId));
        for (const int id : ids) {
            edits_.push_back(std::make_unique<CEdit>());
            edits_.back()->SubclassDlgItem(static_cast<UINT>(id), &dialog_);
        }
    }
    void Begin() { next_ = 0; }
    void Write(const std::string& text) { edits_[next_++]->SetWindowText(text.c_str()); }
    void WriteLength(double value) { Write(kv::FormatFixed(value, 2)); }
    void WriteAngle(double value) {
        const kv::AngleParts parts = kv::SplitAngle(value, 2);
        Write((parts.negative ? "-" : "") + std::to_string(parts.degrees));
        Write(std::to_string(parts.minutes));
        Write(kv::FormatFixed(parts.seconds, 2));
    }

private:
    CDialog dialog_;
    std::vector<std::unique_ptr<CEdit>> edits_;
    std::size_t next_ = 0;
};

std::vector<int> EditsOf(std::vector<int> plain,
                         std::initializer_list<kv::coordtools::AngleIds> angles) {
    for (const auto& ids : angles) {
        for (const int id : {ids.degrees.edit, ids.minutes.edit, ids.seconds.edit})
            plain.push_back(id);
    }
    return plain;
}

void CoordOurs(benchmark::State& state, bool other) {
    const Outside outside;
    CKvCoordDialog dialog(nullptr);
    dialog.Create(kv::coord_dialog::kTemplate);
    dialog.ResetToDefault(other ? kOtherProjection : kMapProjection, CString(kUnit));
    for (auto _ : state)
        for (int step = 0; step < kPositions; ++step)
            dialog.DialogUpdateText(XOf(step), YOf(step), kMapProjection, kUnit);
    if (dialog.DlgItemText(kv::coord_dialog::kX).empty()) state.SkipWithError("nothing is shown");
}

void CoordPeer(benchmark::State& state, bool other) {
    using namespace kv::coord_dialog;
    const Outside outside;
    BareControls controls(
        kTemplate, EditsOf({kX, kY, kv::coord_dialog::kMapProjection}, {kLatitude, kLongitude}));
    for (auto _ : state) {
        for (int step = 0; step < kPositions; ++step) {
            const Pair angles = Angles(XOf(step), YOf(step));
            const Pair plane = other ? Plane(angles) : Pair{XOf(step), YOf(step)};
            controls.Begin();
            controls.WriteLength(plane.first);
            controls.WriteLength(plane.second);
            controls.Write(std::to_string(::kMapProjection));
            controls.WriteAngle(angles.first);
            controls.WriteAngle(angles.second);
        }
    }
}

void DistanceOurs(benchmark::State& state, bool other) {
    const Outside outside;
    CKvDistanceDialog dialog(nullptr, nullptr);
    dialog.Create(kv::distance_dialog::kTemplate);
    dialog.ResetToDefault(other ? kOtherProjection : kMapProjection, CString(kUnit));
    for (auto _ : state)
        for (int step = 0; step < kPositions; ++step)
            dialog.DialogUpdateText(XOf(0), YOf(0), XOf(step + 1), YOf(step + 1), kMapProjection,
                                    kUnit);
    if (dialog.DlgItemText(kv::distance_dialog::kDistance).empty()) {
        state.SkipWithError("nothing is shown");
    }
}

void DistancePeer(benchmark::State& state, bool other) {
    using namespace kv::distance_dialog;
    const Outside outside;
    BareControls controls(kTemplate,
                          EditsOf({kDistance, kOffsetX, kOffsetY, kStartX, kStartY, kEndX, kEndY,
                                   kv::distance_dialog::kMapProjection},
                                  {kStartLatitude, kStartLongitude, kEndLatitude, kEndLongitude}));
    for (auto _ : state) {
        for (int step = 0; step < kPositions; ++step) {
            Pair start{XOf(0), YOf(0)};
            Pair end{XOf(step + 1), YOf(step + 1)};
            const Pair startAngles = Angles(start.first, start.second);
            const Pair endAngles = Angles(end.first, end.second);
            if (other) {
                start = Plane(startAngles);
                end = Plane(endAngles);
            }
            const Pair offset{end.first - start.first, end.second - start.second};
            controls.Begin();
            controls.WriteLength(std::hypot(offset.first, offset.second));
            for (const Pair& each : {offset, start, end}) {
                controls.WriteLength(each.first);
                controls.WriteLength(each.second);
            }
            controls.Write(std::to_string(::kMapProjection));
            for (const Pair& each : {startAngles, endAngles}) {
                controls.WriteAngle(each.first);
                controls.WriteAngle(each.second);
            }
        }
    }
}

const bench::Subject kSubjects[] = {
    {"readouts/feed a position", kBound, [](benchmark::State& state) { CoordOurs(state, false); },
     [](benchmark::State& state) { CoordPeer(state, false); }},
    {"readouts/feed a position, shown in another projection", kBound,
     [](benchmark::State& state) { CoordOurs(state, true); },
     [](benchmark::State& state) { CoordPeer(state, true); }},
    {"readouts/feed a line", kBound, [](benchmark::State& state) { DistanceOurs(state, false); },
     [](benchmark::State& state) { DistancePeer(state, false); }},
    {"readouts/feed a line, shown in another projection", kBound,
     [](benchmark::State& state) { DistanceOurs(state, true); },
     [](benchmark::State& state) { DistancePeer(state, true); }},
};

}  // namespace
