#pragma once

#include <string>

#include "frame/catalogue.h"
#include "pickers/area_combo_box.h"
#include "pickers/blk_combo_box.h"
#include "window/frames/control_bar.h"

/// A bar for the host's main frame: area, block and layer pickers, a choice of map or report, and a
/// Run button, which sends the message 1039 to the application's main window. The host then reads
/// the getters. The bar touches no database until the user first touches the area box, or the host
/// calls `SetArea`.
class KVGUICTL_API CKvABEBar : public CDialogBar {
public:
    /// The message that Run sends, with both parameters 0.
    static constexpr UINT kRunMessage = 1039;

    /// Makes the bar from the template `id`; the second argument is ignored. 1 when it was made. A
    /// bar whose window was destroyed can be made again, and then begins anew.
    BOOL Create(CWnd* parent, UINT templateId, UINT style, UINT id) override;

    virtual E_Layer GetLayer();

    int GetAreaMode() const { return m_areaCombo.GetMode(); }
    std::string GetArea() const { return m_areaCombo.GetArea(); }
    std::string GetAreacode(bool bQuoted) const { return m_areaCombo.GetAreacode(bQuoted); }
    std::string GetBlk(bool bStripSuffix) const { return m_blkCombo.GetBlk(bStripSuffix); }
    bool IsMapSelected() const;
    void SetRadioState(bool bReport);
    /// Selects the area with that area code, filling the area list first where it is not filled
    /// yet. The focus goes on to the block box, but from a widget of the host's own.
    void SetArea(const std::string& areacode);
    void SetBlkExt(const std::string& text) { m_blkCombo.SetWindowText(text.c_str()); }
    void SetIncludeAll(bool includeAll) { m_blkCombo.SetIncludeAll(includeAll); }
    void SetEnableABE(bool enable) { m_bEnableABE = enable; }
    bool GetEnableABE() const { return m_bEnableABE; }
    /// Owned by the bar.
    CKvAreaComboBox* GetAreaCombo() { return &m_areaCombo; }

    /// Presses Run, as Enter in the block box does. False where that is disabled.
    bool Run();
    /// Moves the focus into the area box as Tab does: what a host's shortcut is for.
    void GoToArea();

    BOOL OnCmdMsg(UINT id, int code, void* extra, void* info) override;
    BOOL PreTranslateMessage(MSG* message) override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void SetLayerFromTitle(const std::string& title);
    void PopulateLayerCombo();

    void OnABERun();
    void OnSelchangeComboLayer();
    void OnUpdateRunButton(CCmdUI* update);
    void OnUpdateMapRadio(CCmdUI* update);
    void OnUpdateRepRadio(CCmdUI* update);
    void OnUpdateLayerCombo(CCmdUI* update);
    void OnUpdateBlkCombo(CCmdUI* update);
    void OnUpdateAreaCombo(CCmdUI* update);
    void OnUpdateButton(CCmdUI* update);

    CKvBlkComboBox m_blkCombo;
    CKvAreaComboBox m_areaCombo;
    E_Layer m_eLayer = KV_LAYER_NONE;
    bool m_bFirstUse = true;
    bool m_bEnableABE = true;

private:
    bool IsComplete() const;
    void FillAreasOnce();
    bool IsEnterInBlockBox(const MSG& message) const;
};

/// The bar under the name that the host docks it by.
class KVGUICTL_API CVZABEBar : public CKvABEBar {
public:
    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }
};
