#pragma once

#include <functional>
#include <vector>

#include "drawing/new_line_ctrl_dlg.h"
#include "drawing/new_text_dlg.h"
#include "drawing/swatches/color_fill_ctrl_dlg.h"
#include "workbench/drawings/drawings.h"
#include "workbench/map/map_projection.h"

/// The dialogs that stand beside the map while something is drawn. Each is made anew for each
/// drawing, and tells the host how it ended.
namespace workbench {

/// What a dialog beside the map tells its host.
struct DialogHost {
    /// Whether OK may end it: where not, the person was told why.
    std::function<bool()> mayEnd;
    /// It is hidden.
    std::function<void(bool ok)> ended;
};

class LineDialog final : public CKvNewLineCtrlDlg {
public:
    LineDialog(const DrawnLine& look, DialogHost host);

    /// What the builder's X and Y are of.
    void SetPlane(const DriverPlane& plane);

    void OnOK() override;
    void OnCancel() override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, void* info) override;

    /// Checks the box of polygons, as a click on it does.
    void Close();
    /// The look that is shown now. It has no points.
    DrawnLine Look() const;
    /// Whether vertices came from the builder, and those.
    bool HasNewVertices() const { return m_option.bNewVertices; }
    std::vector<CKvDispPoint> NewVertices();
    /// Whether one of them was out of range, as the builder has told: its row is empty.
    bool HasEmptyVertex() const;
    /// Whether clicks on the map are vertices: as long as the builder gave none.
    bool ByMouse() const { return !HasNewVertices(); }
    bool RubberBand() const { return m_option.bRubberBand; }

private:
    DialogHost host_;
    DriverPlane plane_;
};

/// Modeless: it deletes itself when its window is destroyed.
class TextDialog final : public CKvNewTextDlg {
public:
    TextDialog(CWnd* parent, const DrawnText& text, DialogHost host);

    void OnOK() override;
    void OnCancel() override;

    /// What is shown now. It has no place.
    DrawnText Shown() const;

private:
    DialogHost host_;
};

class FillDialog final : public CKvColorFillCtrlDlg {
public:
    FillDialog(int color, DialogHost host);

    void OnOK() override;
    void OnCancel() override;

    /// The colour that is shown now.
    int Color() const { return m_pColorBtn->GetCWTValue(); }

private:
    DialogHost host_;
};

}  // namespace workbench
