// The computing core of the quick map builder.

#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "frame/catalogue.h"
#include "frame/kvcom/util_lldrv.h"
#include "mapbuild/builders/clock_name.h"
#include "mapbuild/builders/quick_off_bld_dlg.h"
#include "mapbuild/builders/quick_off_bld_ids.h"
#include "window/controls/combo_box.h"

using namespace kv::quick_bld;
using kv::catalogue::kAllBlocks;
using kv::mapbuild::PickedBounds;
using kv::mapbuild::Plane;

namespace {

constexpr int kFeetUnits = 0;
constexpr int kMeterUnits = 1;
constexpr const char* kAndOthers = " ET AL";

std::string At(const std::vector<std::string>& texts, std::size_t i) {
    return i < texts.size() ? texts[i] : std::string();
}

}  // namespace

// The picks.

bool CKvGuiQuickOffBldDlg::ParseAreaBlockExt(std::string& area, std::string& block,
                                             std::string& ext, std::string& id) {
    kv::catalogue::AbeItem item;
    const bool parsed = kv::catalogue::ParseAbeItem(id, item);
    area = item.area;
    block = item.block;
    ext = item.ext;
    return parsed;
}

void CKvGuiQuickOffBldDlg::SetIDs(std::vector<std::string>& ids) {
    for (std::string& id : ids) {
        std::string area;
        std::string block;
        std::string ext;
        ParseAreaBlockExt(area, block, ext, id);
        SetArea(area);
        SetBlock(block);
        SetExt(ext);
    }
}

kv::mapbuild::PickedPlaces::Picks CKvGuiQuickOffBldDlg::BlockPicks() const {
    const bool offshore = m_eTemplateType != KV_TEMPLATE_ONSHORE;
    const std::size_t count = offshore ? m_vAreas.size() : m_vBlocks.size();
    kv::mapbuild::PickedPlaces::Picks picks;
    for (std::size_t i = 0; i < count; ++i)
        picks.push_back({At(m_vAreas, i), At(m_vBlocks, i), At(m_vExts, i)});
    return picks;
}

bool CKvGuiQuickOffBldDlg::IsFirstBlockAll() const {
    return !m_vBlocks.empty() && m_vBlocks.front() == kAllBlocks;
}

bool CKvGuiQuickOffBldDlg::HasPicks() const {
    return m_nModeBlock == 1 || m_nModeArea == 1 || (m_nModeAll == 1 && IsFirstBlockAll());
}

// Their bounds.

Plane CKvGuiQuickOffBldDlg::CornerPlane() const {
    return {m_nProjection, IsDlgButtonChecked(kMeters) == BST_CHECKED ? kMeterUnits : kFeetUnits};
}

bool CKvGuiQuickOffBldDlg::ComputeBounds(CKvMapBounds& target) {
    const bool computed = m_eTemplateType != KV_TEMPLATE_ONSHORE ? ComputeBoundsoOffshore(target)
                                                                 : ComputeBoundsoOnshore(target);
    target.SetTemplateType(m_eTemplateType);
    return computed;
}

bool CKvGuiQuickOffBldDlg::ComputeBoundsoOffshore(CKvMapBounds& target) {
    if (!HasPicks()) return false;
    const bool feet = IsDlgButtonChecked(kFeet) == BST_CHECKED;
    const Plane plane{m_nProjection, feet ? kFeetUnits : kMeterUnits};
    std::optional<PickedBounds> found;
    Ask([&] {
        found = m_tPlaces.OfBlocks(BlockPicks(), m_strDataset, plane,
                                   {target.GetRectifyingLat(), target.GetRectifyingLon()});
    });
    return TakeBounds(found, target);
}

bool CKvGuiQuickOffBldDlg::ComputeBoundsoOnshore(CKvMapBounds& target) {
    if (m_nModeBlock != 1 && m_nModeArea != 1) return false;
    const bool feet = !m_hWnd || IsDlgButtonChecked(kFeet) == BST_CHECKED;
    const Plane plane{m_nProjection, feet ? kFeetUnits : kMeterUnits};
    std::optional<PickedBounds> found;
    Ask([&] {
        found = m_tPlaces.OfCounties(BlockPicks(), plane,
                                     {target.GetRectifyingLat(), target.GetRectifyingLon()});
    });
    return TakeBounds(found, target);
}

bool CKvGuiQuickOffBldDlg::TakeBounds(const std::optional<PickedBounds>& found,
                                      CKvMapBounds& target) {
    if (!found) return false;
    constexpr double kNone = CKvUtilLLdrv::kNoXY;
    const CMinMax2Dd_t xy = found->xy.value_or(CMinMax2Dd_t{kNone, kNone, kNone, kNone});
    target.SetXMin(xy.minX);
    target.SetXMax(xy.maxX);
    target.SetYMin(xy.minY);
    target.SetYMax(xy.maxY);
    target.SetZMin(0.0);
    target.SetZMax(0.0);
    target.SetLatMin(found->angles.minX);
    target.SetLatMax(found->angles.maxX);
    target.SetLonMin(found->angles.minY);
    target.SetLonMax(found->angles.maxY);
    target.SetDepthMin(0.0);
    target.SetDepthMax(0.0);
    return true;
}

// What every change runs through.

void CKvGuiQuickOffBldDlg::ComputeALL() {
    m_tBounds = m_tOrigBounds;
    if (!m_bInInit) ComputeProjection();
    if (m_nModeBlock == 1) ComputeWidthHeight();
    ComputePercentage();
    if (IsXYBounded()) CoumputeSnapRange();
    UpdateCoordinates();
}

void CKvGuiQuickOffBldDlg::ComputeProjection() {
    if (m_pProjCtrl) {
        m_nProjection = m_pProjCtrl->GetProjection();
        // Only now: what was picked is judged by the kind that the map had.
        m_pProjCtrl->IsXYBounded(IsXYBounded());
        m_tBounds.SetProjZoneCode(m_pProjCtrl->m_nUTMZone);
        m_tBounds.SetRectSpec(m_pProjCtrl->m_bRectSpec);
        m_tBounds.SetRectifyingLat(m_pProjCtrl->m_dRectLat);
        m_tBounds.SetRectifyingLon(m_pProjCtrl->m_dRectLon);
    }
    kv::mapbuild::UseRectifyingPoint(m_tBounds);
    if (HasPicks()) {
        ComputeBounds(m_tBounds);
    } else {
        m_tBounds.SetLatMin(m_tOrigBounds.GetLatMin());
        m_tBounds.SetLatMax(m_tOrigBounds.GetLatMax());
        m_tBounds.SetLonMin(m_tOrigBounds.GetLonMin());
        m_tBounds.SetLonMax(m_tOrigBounds.GetLonMax());
        kv::mapbuild::ProjectToXY(m_tBounds, CornerPlane());
        m_tBounds.SetZMin(0.0);
        m_tBounds.SetZMax(0.0);
        m_tBounds.SetDepthMin(0.0);
        m_tBounds.SetDepthMax(0.0);
    }
    m_tOrigBounds = m_tBounds;
}

bool CKvGuiQuickOffBldDlg::ComputeWidthHeight() {
    m_bScaleSet = false;
    kv::mapbuild::UseRectifyingPoint(m_tBounds);
    const int width = kv::Atoi(GetComboSelValue(kWidth));
    const int height = kv::Atoi(GetComboSelValue(kHeight));
    if (m_nModeBlock == 1 && !m_bBlockMapKnown) {
        m_nDefWidth = width;
        m_nDefHeight = height;
    }
    if (IsXYBounded()) {
        kv::mapbuild::WidenX(m_tBounds, width);
        kv::mapbuild::WidenY(m_tBounds, height);
        kv::mapbuild::ProjectToAngles(m_tBounds, CornerPlane());
    } else {
        kv::mapbuild::WidenLon(m_tBounds, width);
        kv::mapbuild::WidenLat(m_tBounds, height);
        kv::mapbuild::ProjectToXY(m_tBounds, CornerPlane());
    }
    return true;
}

void CKvGuiQuickOffBldDlg::ComputePercentage() {
    m_bScaleSet = false;
    kv::mapbuild::UseRectifyingPoint(m_tBounds);
    const std::string text = GetComboSelValue(kPercent);
    const int percent = kv::Atoi(text);
    if (!kv::mapbuild::IsPercent(percent)) {
        Tell("Please enter a percentage between 0 and 1000");
        Control<CComboBox>(kPercent).SetCurSel(-1);
        return;
    }
    m_strMapPercent = text;
    if (IsXYBounded()) {
        OnChangePercentXYMap(percent);
    } else {
        OnChangePercentLLMap(percent);
    }
}

void CKvGuiQuickOffBldDlg::OnChangePercentXYMap(int nPercent) {
    m_bScaleSet = false;
    kv::mapbuild::AddMarginXY(m_tBounds, nPercent);
    kv::mapbuild::ProjectToAngles(m_tBounds, CornerPlane());
}

void CKvGuiQuickOffBldDlg::OnChangePercentLLMap(int nPercent) {
    m_bScaleSet = false;
    kv::mapbuild::AddMarginAngles(m_tBounds, nPercent);
    kv::mapbuild::ProjectToXY(m_tBounds, CornerPlane());
}

void CKvGuiQuickOffBldDlg::GetOriginalXYBounds() {
    kv::mapbuild::TakeMarginXY(m_tOrigBounds, m_tBounds, kv::Atoi(m_strMapPercent));
    kv::mapbuild::ProjectToAngles(m_tOrigBounds, CornerPlane());
    UpdateCoordinates();
}

void CKvGuiQuickOffBldDlg::GetOriginalLLBounds() {
    kv::mapbuild::TakeMarginAngles(m_tOrigBounds, m_tBounds, kv::Atoi(m_strMapPercent));
    kv::mapbuild::ProjectToXY(m_tOrigBounds, CornerPlane());
    UpdateCoordinates();
}

void CKvGuiQuickOffBldDlg::CoumputeSnapRange() {
    if (m_nSnapRange <= 0) return;
    kv::mapbuild::SnapXY(m_tBounds, m_nSnapRange);
    kv::mapbuild::ProjectToAngles(m_tBounds, CornerPlane());
}

// What picks are called, and where they are mapped.

void CKvGuiQuickOffBldDlg::PopulatePojection() {
    Ask([this] {
        if (m_eTemplateType != KV_TEMPLATE_ONSHORE) {
            if (m_vAreas.empty()) return;
            m_nProjection = CKvDbUtil::S_GetProjectionByArea(m_vAreas.front(), m_strDataset);
        } else if (!m_vBlocks.empty()) {
            std::string state;
            std::string name;
            double unused = 0.0;
            int number = 0;
            CKvDbUtil::S_GetCountyInfo(m_vBlocks.front(), state, name, unused, unused, unused,
                                       unused, m_nProjection, number, false);
        }
    });
}

std::string CKvGuiQuickOffBldDlg::CountyName() const {
    std::string state;
    std::string name;
    double unused = 0.0;
    int projection = 0;
    int number = 0;
    CKvDbUtil::S_GetCountyInfo(m_vBlocks.front(), state, name, unused, unused, unused, unused,
                               projection, number, false);
    return name.empty() ? m_vBlocks.front() : name;
}

std::string CKvGuiQuickOffBldDlg::OnshoreName() const {
    return CountyName() + (m_nModeArea == 1 ? kAndOthers : "");
}

std::string CKvGuiQuickOffBldDlg::OffshoreName() const {
    const std::string area = At(m_vAreas, 0);
    const bool all = IsFirstBlockAll();
    std::string name = all ? "" : CKvDbUtil::S_GetAreaName(area, true);
    if (name.empty()) name = CKvDbUtil::S_GetAreaName(area, false);
    // Areas are also picked by MMS codes, which the look-up does not take.
    if (name.empty()) name = area;
    if (all) return name + (m_vBlocks.size() > 1 ? kAndOthers : "");
    return name + m_vBlocks.front() + At(m_vExts, 0) + (m_nModeArea == 1 ? kAndOthers : "");
}

std::string CKvGuiQuickOffBldDlg::NameFromPicks() {
    const bool fromPicks = m_nModeBlock == 1 || (m_nModeArea == 1 && !m_bAreaMapKnown) ||
                           (m_nModeAll == 1 && IsFirstBlockAll());
    if (!fromPicks || m_vBlocks.empty()) return "";
    std::string name;
    Ask([&] { name = m_eTemplateType != KV_TEMPLATE_ONSHORE ? OffshoreName() : OnshoreName(); });
    while (!name.empty() && kv::IsSpace(name.back()))
        name.pop_back();
    return kv::ReplaceAll(name, " ", "_");
}

void CKvGuiQuickOffBldDlg::PopulateMapName() {
    m_strMapName = NameFromPicks();
    if (m_strMapName.empty()) m_strMapName = kv::mapbuild::ClockName();
}
