#pragma once

#include <memory>
#include <string>
#include <vector>

#include "mapbuild/dms_ctrl.h"
#include "support/dialog_fixture.h"

namespace test {

/// Ids of a group of boxes in the dialogs of the tests: a multiple of 100 and these.
enum AngleId : int {
    kDegEdit = 1,
    kDegSpin,
    kDegLabel,
    kMinEdit,
    kMinSpin,
    kMinLabel,
    kSecEdit,
    kSecSpin,
    kSecLabel,
};
inline constexpr int kLatGroup = 100;
inline constexpr int kLonGroup = 200;

inline std::vector<kv::ControlRow> AngleRows(int group, int y) {
    using enum kv::ControlKind;
    return {
        {group + kDegEdit, kEdit, "", {7, y, 30, 12}},
        {group + kDegSpin, kSpin, "", {37, y, 10, 12}},
        {group + kDegLabel, kLabel, "D", {51, y + 2, 10, 8}},
        {group + kMinEdit, kEdit, "", {65, y, 24, 12}},
        {group + kMinSpin, kSpin, "", {89, y, 10, 12}},
        {group + kMinLabel, kLabel, "M", {103, y + 2, 10, 8}},
        {group + kSecEdit, kEdit, "", {117, y, 34, 12}},
        {group + kSecSpin, kSpin, "", {151, y, 10, 12}},
        {group + kSecLabel, kLabel, "S", {165, y + 2, 10, 8}},
    };
}

/// A dialog with a latitude and a longitude.
class AngleDialog : public CDialog {
public:
    AngleDialog() : CDialog(kTestTemplate) {}

    std::unique_ptr<CKvGuiDMSCtrl> lat;
    std::unique_ptr<CKvGuiDMSCtrl> lon;
    double firstLat = CKvGuiDMSCtrl::kNoValue;
    double firstLon = CKvGuiDMSCtrl::kNoValue;

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        lat = Make(kLatGroup, firstLat, true);
        lon = Make(kLonGroup, firstLon, false);
        return TRUE;
    }

private:
    std::unique_ptr<CKvGuiDMSCtrl> Make(int group, double value, bool latitude) {
        auto control = std::make_unique<CKvGuiDMSCtrl>();
        control->Initialize(this, group + kDegEdit, group + kDegSpin, group + kMinEdit,
                            group + kMinSpin, group + kSecEdit, group + kSecSpin, value, latitude);
        control->SetCtrl(0, 0, group + kDegLabel, 0, 0, group + kMinLabel, 0, 0, group + kSecLabel);
        return control;
    }
};

class AngleTest : public DialogTest {
protected:
    void RunDialog(const std::function<void(kv::User&)>& act) {
        std::vector<kv::ControlRow> rows = AngleRows(kLatGroup, 7);
        for (const kv::ControlRow& row : AngleRows(kLonGroup, 23))
            rows.push_back(row);
        rows.push_back({IDOK, kv::ControlKind::kDefaultButton, "OK", {7, 42, 50, 14}});
        const TestTemplate dialogTemplate(std::move(rows));
        Run(dialog, [&](kv::User& user) {
            person = &user;
            act(user);
        });
    }
    CKvGuiDMSCtrl& Lat() { return *dialog.lat; }
    CKvGuiDMSCtrl& Lon() { return *dialog.lon; }

    /// The texts of a group's boxes, with a bar between them.
    std::string Boxes(int group) {
        return person->Text(group + kDegEdit) + "|" + person->Text(group + kMinEdit) + "|" +
               person->Text(group + kSecEdit);
    }
    std::string LatBoxes() { return Boxes(kLatGroup); }
    std::string LonBoxes() { return Boxes(kLonGroup); }

    void Write(int group, const char* degrees, const char* minutes, const char* seconds) {
        dialog.SetDlgItemText(group + kDegEdit, degrees);
        dialog.SetDlgItemText(group + kMinEdit, minutes);
        dialog.SetDlgItemText(group + kSecEdit, seconds);
    }
    CRect RectOf(int id) { return dialog.GetDlgItem(id)->m_hWnd->Rect(); }

    AngleDialog dialog;
    kv::User* person = nullptr;
};

}  // namespace test
