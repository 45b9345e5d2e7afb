#include "workbench/drawing_tools/drawing_dialogs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "drawing/new_line_ctrl_ids.h"
#include "drawing/new_text_ids.h"

namespace workbench {

namespace {

/// The last of the words for a text that is none of them.
template <typename Word>
Word WordOf(const std::array<const char*, 3>& words, const std::string& text) {
    const auto at = std::ranges::find(words.begin(), words.end() - 1, text);
    return static_cast<Word>(at - words.begin());
}

/// As it was typed: a float has more digits than that.
double FourDecimals(double number) {
    constexpr double kTenThousand = 10'000;
    return std::round(number * kTenThousand) / kTenThousand;
}

}  // namespace

LineDialog::LineDialog(const DrawnLine& look, DialogHost host) : host_(std::move(host)) {
    SetLineColor(static_cast<KVColor>(look.color));
    SetFillColor(static_cast<KVColor>(look.fillColor));
    SetWidth(static_cast<BYTE>(look.width));
    SetType(static_cast<BYTE>(look.type));
}

void LineDialog::SetPlane(const DriverPlane& plane) {
    plane_ = plane;
    m_option.nProjection = plane.code;
    m_option.bImperial = plane.feet;
}

/// Another tool may have set another rectifying point meanwhile.
BOOL LineDialog::OnCmdMsg(UINT id, int code, void* extra, void* info) {
    if (id == static_cast<UINT>(kv::new_line_ctrl::kVertices)) plane_.UseRectifyingPoint();
    return CKvNewLineCtrlDlg::OnCmdMsg(id, code, extra, info);
}

void LineDialog::OnOK() {
    if (!host_.mayEnd()) return;
    CKvNewLineCtrlDlg::OnOK();
    host_.ended(true);
}

void LineDialog::OnCancel() {
    CKvNewLineCtrlDlg::OnCancel();
    host_.ended(false);
}

void LineDialog::Close() {
    CheckDlgButton(kv::new_line_ctrl::kClose, BST_CHECKED);
    OnCheckPolygon();
}

DrawnLine LineDialog::Look() const {
    DrawnLine look;
    look.closed = IsDlgButtonChecked(kv::new_line_ctrl::kClose) != BST_UNCHECKED;
    look.filled = IsDlgButtonChecked(kv::new_line_ctrl::kFill) != BST_UNCHECKED;
    look.color = m_pColorBtn->GetCWTValue();
    look.fillColor = m_pFillColorBtn->GetCWTValue();
    look.width = m_pWidthBtn->GetLineWidth();
    look.type = m_pTypeBtn->GetLineType();
    return look;
}

bool LineDialog::HasEmptyVertex() const {
    return std::ranges::any_of(m_vecStaged, [](const std::string& row) { return row.empty(); });
}

std::vector<CKvDispPoint> LineDialog::NewVertices() {
    std::vector<CKvDispPoint> points;
    std::swap(m_vecVertices, m_vecStaged);
    GetUserInputPts(points, true);
    std::swap(m_vecVertices, m_vecStaged);
    return points;
}

TextDialog::TextDialog(CWnd* parent, const DrawnText& text, DialogHost host)
    : CKvNewTextDlg(parent), host_(std::move(host)) {
    SetModeLessState(true);
    SetContent(text.text.c_str());
    SetHeight(static_cast<float>(text.height));
    SetAngle(text.angle);
    SetColor(static_cast<KVColor>(text.color));
    SetWeight(static_cast<BYTE>(text.weight));
    SetVertJust(WordFor(kTextRows, text.row));
    SetHorzJust(WordFor(kTextParts, text.part));
}

void TextDialog::OnOK() {
    if (!host_.mayEnd()) return;
    CKvNewTextDlg::OnOK();
    if (!IsWindowVisible()) host_.ended(true);
}

void TextDialog::OnCancel() {
    CKvNewTextDlg::OnCancel();
    host_.ended(false);
}

DrawnText TextDialog::Shown() const {
    DrawnText text;
    text.text = DlgItemText(kv::new_text::kContent);
    text.height = FourDecimals(m_pHeightSpin->GetPos());
    text.angle = m_pAngleSpin->GetPos();
    text.color = m_pColorBtn->GetCWTValue();
    text.weight = m_pWidthBtn->GetLineWidth();
    text.row = WordOf<TextRow>(kTextRows, DlgItemText(kv::new_text::kVertical));
    text.part = WordOf<TextPart>(kTextParts, DlgItemText(kv::new_text::kHorizontal));
    return text;
}

FillDialog::FillDialog(int color, DialogHost host) : host_(std::move(host)) {
    SetFillColor(static_cast<KVColor>(color));
}

void FillDialog::OnOK() {
    CKvColorFillCtrlDlg::OnOK();
    host_.ended(true);
}

void FillDialog::OnCancel() {
    CKvColorFillCtrlDlg::OnCancel();
    host_.ended(false);
}

}  // namespace workbench
