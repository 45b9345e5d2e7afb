#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "frame/kvcom/map_bounds.h"
#include "frame/kvcom/min_max_2dd.h"
#include "mapbuild/builders/picked_places.h"
#include "mapbuild/proj_ctrl.h"
#include "window/dialogs/dialog.h"

class CKvGuiSizingDlg;

/// Makes the bounds of a map of picked blocks (offshore) or counties (onshore): those of the picks,
/// enlarged by a width and height in blocks and by a percentage, snapped to a grid, with X/Y and
/// latitude/longitude kept in step.
///
/// A host constructs it, gives it the picks and the mode, runs it, asks `GetTermination`, and reads
/// the outcome. Angles are decimal degrees; X and Y are in the unit of the map. Bounds of which the
/// projection has no X/Y hold `CKvUtilLLdrv::kNoXY`, those without angles 1000.0, and their boxes
/// are empty.
///
/// The computing operations need no window. Without one, bounds of blocks are in meters, all else
/// in feet.
class KVGUICTL_API CKvGuiQuickOffBldDlg : public CDialog {
public:
    explicit CKvGuiQuickOffBldDlg(CWnd* pParent);
    CKvGuiQuickOffBldDlg(UINT nTemplate, CWnd* pParent);
    ~CKvGuiQuickOffBldDlg() override;

    // The picks. Each setter appends one entry; those at one place make one pick. A county is named
    // by its identifier, as a block.
    void SetArea(std::string area);
    void SetBlock(std::string block);
    void SetExt(std::string ext);
    void ResetABEVec();
    /// Appends a pick for each identifier, area + "#" + block and extension, also for one that is
    /// none, whose texts are then empty.
    void SetIDs(std::vector<std::string>& ids);

    void SetProj(int nProjection) { m_nProjection = nProjection; }
    /// Despite its name it stores the dataset that bounds are looked up in.
    void GetOwnerDataset(std::string dataset) { m_strDataset = std::move(dataset); }
    /// How the map was picked: 1 for one block, whose width and height can be chosen; for several
    /// blocks; for a window, or, with the block "ALL", for a whole area.
    void SetMode(int nBlock, int nArea, int nAll);
    /// Whether the properties of a map that there is are shown.
    void SetMapPropMode(bool bMapPropMode) { m_bMapPropMode = bMapPropMode; }
    void SetXYBounded(bool bXYBounded) { m_bXYBounded = bXYBounded; }
    bool IsXYBounded() const { return m_bXYBounded; }
    void SetTemplateType(ETemplateType eType) { m_eTemplateType = eType; }
    ETemplateType GetTemplateType() const { return m_eTemplateType; }
    void SetScale(int nScale);
    int GetScale() const { return m_nScale; }
    int GetProjection() const { return m_nProjection; }
    CKvMapBounds& GetBounds() { return m_tBounds; }
    void SetBounds(CKvMapBounds& tBounds) { m_tBounds = tBounds; }
    CMinMax2Dd_t GetXYMapBounds() const;
    /// Longitude in the X places, latitude in the Y places.
    CMinMax2Dd_t GetLLMapBounds() const;
    void SetMapName(std::string name) { m_strMapName = std::move(name); }
    std::string GetMapName() const { return m_strMapName; }

    /// Whether the dialog was left by OK. The first call after a run lets the projection control
    /// go; further ones answer the same.
    bool GetTermination();

    // The computing operations.
    bool ParseAreaBlockExt(std::string& area, std::string& block, std::string& ext,
                           std::string& id);
    /// The bounds of the picks, into `target`. False, with the bounds of `target` as they were,
    /// where the mode has none, and where the database knows none of them.
    bool ComputeBounds(CKvMapBounds& target);
    bool ComputeBoundsoOnshore(CKvMapBounds& target);
    bool ComputeBoundsoOffshore(CKvMapBounds& target);
    /// What every change runs through: all steps anew, from the bounds of the picks on.
    void ComputeALL();
    void ComputePercentage();
    bool ComputeWidthHeight();
    void ComputeProjection();
    void CoumputeSnapRange();
    void OnChangePercentXYMap(int nPercent);
    void OnChangePercentLLMap(int nPercent);
    /// What the bounds were ahead of the percentage.
    void GetOriginalXYBounds();
    void GetOriginalLLBounds();
    /// Shows the bounds.
    void UpdateCoordinates();
    void PopulateMapName();
    void PopulatePojection();

    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

    /// Width and height in blocks as they were chosen last, by any dialog of the program.
    static int m_nDefHeight;
    static int m_nDefWidth;

protected:
    void OnXyboundRadio();
    void OnLlboundRadio();
    void OnRadioFeet();
    void OnRadioMeters();
    void OnEditchangeWidthCombo();
    void OnSelchangeWidthCombo();
    void OnEditchangeHeightCombo();
    void OnSelchangeHeightCombo();
    void OnEditchangePerCombo();
    void OnSelchangePerCombo();
    void OnSelchangeProjCombo();
    void OnKillfocusWidthCombo();
    void OnKillfocusHeightCombo();
    void OnKillfocusPerCombo();
    void OnKillFocusXYCoord(UINT nId);
    void OnKillFocusLLCoord(UINT nId);
    void OnScaleRadio();
    void OnButtonSnapBounds();

    /// The text of a combo box: that of the line that is selected, else its own.
    std::string GetComboSelValue(int nId) const;
    /// Makes the coordinate boxes read-only. True.
    bool EditBoxSetReadOnly();

    int m_nModeAll = 0;
    int m_nModeArea = 0;
    int m_nModeBlock = 0;
    int m_nCustomMap = 0;
    std::string m_strMapWidth;
    std::string m_strMapHeight;
    std::string m_strMapPercent;
    bool m_bAreaMapKnown = false;
    bool m_bBlockMapKnown = false;
    bool m_bMapPropMode = false;
    int m_nFeetScale = 0;
    int m_nMeterScale = 0;
    std::string m_strMapName;
    bool m_bInInit = false;
    bool m_bScaleSet = false;
    bool m_bTermination = false;
    bool m_bXYBounded = false;
    CKvMapBounds m_tBounds;
    CKvMapBounds m_tOrigBounds;
    int m_nScale = 0;
    int m_nProjection = 0;
    std::vector<std::string> m_vExts;
    std::vector<std::string> m_vBlocks;
    std::vector<std::string> m_vAreas;
    std::string m_strDataset;
    std::unique_ptr<CKvGuiProjCtrl> m_pProjCtrl;
    int m_nSnapRange = 0;
    ETemplateType m_eTemplateType = KV_TEMPLATE_OFFSHORE;

private:
    /// The projection and the unit that corners are projected with.
    kv::mapbuild::Plane CornerPlane() const;
    bool HasPicks() const;
    bool IsFirstBlockAll() const;
    kv::mapbuild::PickedPlaces::Picks BlockPicks() const;
    bool TakeBounds(const std::optional<kv::mapbuild::PickedBounds>& found, CKvMapBounds& target);
    std::string NameFromPicks();
    std::string OffshoreName() const;
    std::string OnshoreName() const;
    std::string CountyName() const;

    /// Shows a message, and meanwhile no other by a box that has lost the focus.
    void Tell(const std::string& text);
    /// Asks the database by `ask`, and tells of its failure.
    void Ask(const std::function<void()>& ask);
    /// A focus-lost check failed: shows the message, and puts the focus back.
    void Refuse(int id, const char* text);
    void CheckRange(int id, const char* text);
    void CheckPair(int on, int off);
    void TakeAllMode();
    void FillSizeCombo(int id, int remembered, const std::string& known);
    void EnableSizes();
    void MakeProjCtrl();
    void InitBounds();
    void ShowBoundsType();
    void FillPercent();
    void ShowText(int id, const std::string& text);
    void ShowNumber(int id, double value);
    bool IsTyped(UINT id);
    void ReadAngles();
    void StorePicks();
    void GiveBounds(CKvGuiSizingDlg& sizing) const;

    kv::mapbuild::PickedPlaces m_tPlaces;
    /// What the coordinate boxes were given to show.
    std::map<int, std::string> m_tShown;
    bool m_bTelling = false;
};
