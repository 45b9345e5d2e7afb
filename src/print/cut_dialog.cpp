#include "print/cut_dialog.h"

namespace kv::print {

namespace {

/// In the dialog.
CRect PlaceOf(const CDialog& dialog, int id) {
    const CWnd* control = dialog.GetDlgItem(id);
    return control ? control->m_hWnd->Rect() : CRect{};
}

}  // namespace

void CutDialog(CDialog& dialog, std::initializer_list<int> hidden, int last, int next) {
    for (const int id : hidden)
        dialog.Control<CWnd>(id).ShowWindow(SW_HIDE);
    const CRect level = PlaceOf(dialog, last);
    const int up = PlaceOf(dialog, IDCANCEL).top - level.top;
    for (const int id : {IDOK, IDCANCEL}) {
        CRect place = PlaceOf(dialog, id);
        place.OffsetRect(0, -up);
        dialog.Control<CWnd>(id).MoveWindow(place);
    }
    CRect all;
    dialog.GetClientRect(&all);
    dialog.SetWindowPos(nullptr, 0, 0, all.Width(), (level.bottom + PlaceOf(dialog, next).top) / 2,
                        SWP_NOMOVE | SWP_NOZORDER);
}

}  // namespace kv::print
