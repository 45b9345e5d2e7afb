#include "adaptors/adaptor.h"
#include "drawing/new_text_dlg.h"
#include "drawing/new_text_ids.h"
#include "window/desktop.h"
#include "window/window_system.h"

namespace adaptors {

namespace {

void SetUp(const Run& run, CKvNewTextDlg& dialog) {
    dialog.SetContent(run.Get<std::string>("text", " "));
    dialog.SetHeight(run.Get("height", dialog.GetHeight()));
    dialog.SetAngle(run.Get("angle", 0.0));
    dialog.SetWeight(static_cast<BYTE>(run.Get("weight", 0)));
    dialog.SetColor(static_cast<KVColor>(run.Get("color", int{KV_COLOR_DEFAULT})));
    dialog.SetVertJust(run.Get<std::string>("vertical", "ON"));
    dialog.SetHorzJust(run.Get<std::string>("horizontal", "CENTER"));
}

Json OutcomeOf(const CKvNewTextDlg& dialog) {
    return {{"text", dialog.GetContent().str()},
            {"height", dialog.GetHeight()},
            {"angle", dialog.GetAngle()},
            {"weight", dialog.GetWeight()},
            {"color", int{dialog.GetColor()}},
            {"vertical", dialog.GetVertJust().str()},
            {"horizontal", dialog.GetHorzJust().str()},
            {"ok", dialog.GetOkFlag()}};
}

void RunModeless(Run& run) {
    auto* dialog = new CKvNewTextDlg;
    dialog->SetHostPointer(&dialog);
    dialog->SetModeLessState(true);
    SetUp(run, *dialog);
    if (!dialog->Create(nullptr)) {
        delete dialog;
        run.result = -1;
        return;
    }
    dialog->SetMoveTo({100, 100});
    dialog->SetWaitMode(true);
    kv::WindowSystem::Get().GetDesktop().RunModeless(*dialog->m_hWnd, *dialog->m_hWnd);
    run.result = dialog && dialog->GetOkFlag() ? IDOK : IDCANCEL;
    if (!dialog) return;
    run.outcome = OutcomeOf(*dialog);
    dialog->DestroyWindow();
}

void RunText(Run& run) {
    if (run.Get("modeless", false)) return RunModeless(run);
    CKvNewTextDlg dialog;
    SetUp(run, dialog);
    run.result = dialog.DoModal();
    run.outcome = OutcomeOf(dialog);
}

const Register kRegistered({
    "CKvNewTextDlg",
    "Drawing tools",
    "Text Property",
    "Content and look of a text",
    kv::new_text::kTemplate,
    {
        {"text", "text", "the text; a blank by itself", "Platform A"},
        {"height", "number", "height in inches, 0 to 1", 0.1},
        {"angle", "number", "degrees, -360 to 360", nullptr},
        {"weight", "number", "weight of its strokes, 0 to 9", nullptr},
        {"color", "number", "index of its color", nullptr},
        {"vertical", "text", "ABOVE, ON or BELOW", nullptr},
        {"horizontal", "text", "LEFT, CENTER or RIGHT", nullptr},
        {"modeless", "flag", "whether the dialog stands beside its host", nullptr},
    },
    "text, height, angle, weight, color, vertical, horizontal, ok (whether OK closed it)",
    RunText,
});

}  // namespace

}  // namespace adaptors
