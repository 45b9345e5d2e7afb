#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/file.h"
#include "window/controls/edit.h"
#include "window/controls/list_box.h"
#include "window/dialogs/dialog.h"
#include "window/named.h"

namespace kv::vertices {
struct Pair;
}

/// Edits an ordered list of map points as rows of text, in X and Y or in latitude and longitude;
/// these in decimal degrees or in degrees, minutes and seconds.
///
/// Ahead of a run: `SetProjection`, `SetImperialUnit`, and with rows to begin with `SetVertices`
/// and `SetModifyMode(true)`. Behind OK: `GetVertices`, and `GetModifyVertices` tells whether
/// anything changed.
class KVGUICTL_API CKvGuiVerticeBuilder : public CDialog {
public:
    explicit CKvGuiVerticeBuilder(CWnd* pParent = nullptr);

    void SetProjection(int nProj) { m_nProjection = nProj; }
    /// X and Y in feet, else in meters.
    void SetImperialUnit(bool bImperial) { m_bImperialUnit = bImperial; }
    void SetModifyMode(bool bModify) { m_bModifyMode = bModify; }
    bool GetModifyMode() const { return m_bModifyMode; }
    bool GetModifyVertices() const { return m_bModifyVertices; }
    /// Rows of X and Y. An empty vector changes nothing.
    void SetVertices(std::vector<std::string> vecRows);
    /// Adds the rows to the vector.
    void GetVertices(std::vector<std::string>& vecOut) const;

    /// The row as X and Y, "%.6f , %.6f"; the row itself gets blanks for its separators. Latitude
    /// and longitude are converted; one out of range is told, and the answer is false.
    bool DecodePts(std::string& strIn, std::string& strOut, bool bXY);
    void ConvertXYtoLatLon(double dX, double dY, double& dLat, double& dLon);
    void ConvertLatLontoXY(double dLat, double dLon, double& dX, double& dY);
    void ConvertStringXYtoLatLon(std::string strIn, std::string& strOut);
    void ConvertStringLatLontoXY(std::string strIn, std::string& strOut);
    void ConvertStringDegDegtoDMS(std::string strIn, std::string& strOut);
    void ConvertStringDMStoDegDeg(std::string strIn, std::string& strOut);
    /// Reads one line of a vertex file; true at the end of the file.
    bool ReadLine(CFile* pFile, std::string& strLine);

    /// Converts all rows: 1 X and Y to latitude and longitude, 2 back, 3 decimal degrees to
    /// degrees, minutes and seconds, 4 back. Rows that become equal are one row. Where the driver
    /// has no answer for a row, that is told and all rows stay.
    void UpdateList(int nMode);
    void UpdateEditArea();
    void ShowButtonStatus();
    void ClearEditFields();
    void OverWriteFormat();
    void EnableButton(int nId, int bEnable);
    void ResetX();
    void ResetY();
    void ResetXYContent();
    void SetHightLight(CEdit* pEdit);
    void OnEditing();
    bool OnKillfocus();

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnButtonAddPt();
    void OnButtonClosePolyPt();
    void OnButtonDeletePt();
    void OnButtonAccept();
    void OnButtonInsertPt();
    void OnButtonLoadFile();
    void OnButtonMovedownPt();
    void OnButtonMoveupPt();
    void OnButtonEditPt();
    void OnButtonSaveFile();
    void OnSelchangeLISTXYPos();
    void OnKillfocusEditXPos();
    void OnKillfocusEditYPos();
    void OnChangeEditXPos();
    void OnChangeEditYPos();
    void OnRadioXyMode();
    void OnRadioLatlonMode();
    void OnRadioDegdeg();
    void OnRadioDms();
    void OnChangeEditLatDegree() { OnEditing(); }
    void OnChangeEditLatMinute() { OnEditing(); }
    void OnChangeEditLatSecond() { OnEditing(); }
    void OnChangeEditLonDegree() { OnEditing(); }
    void OnChangeEditLonMinute() { OnEditing(); }
    void OnChangeEditLonSecond() { OnEditing(); }
    void OnKillfocusEditLatDegree();
    void OnKillfocusEditLatMinute();
    void OnKillfocusEditLatSecond();
    void OnKillfocusEditLonDegree();
    void OnKillfocusEditLonMinute();
    void OnKillfocusEditLonSecond();

    /// A box, into which a whole coordinate or a list of them may be pasted.
    class Box : public CEdit {
    public:
        static const kv::MessageMap& Messages();
        const kv::MessageMap& GetMessageMap() const override { return Messages(); }

    private:
        LRESULT OnPaste(WPARAM wParam, LPARAM lParam);
    };

    /// Read out as what its rows are: the labels ahead of it are those of the boxes.
    class List : public CListBox, public kv::Named {
    public:
        std::string SpokenName() const override { return "Vertices"; }
    };

    Box m_editLonSecond;
    Box m_editLonMinute;
    Box m_editLonDegree;
    Box m_editLatSecond;
    Box m_editLatMinute;
    Box m_editLatDegree;
    Box m_editY;
    Box m_editX;
    List m_listXY;
    double m_dX = 0.0;
    double m_dY = 0.0;
    double m_dLatDegree = 0.0;
    double m_dLatMinute = 0.0;
    double m_dLatSecond = 0.0;
    double m_dLonDegree = 0.0;
    double m_dLonMinute = 0.0;
    double m_dLonSecond = 0.0;
    bool m_bModifyMode = false;
    bool m_bModifyVertices = false;
    bool m_bXYMode = true;
    bool m_bDegDeg = true;
    int m_nProjection = 3;
    bool m_bImperialUnit = true;
    bool m_bLatLonEdited = false;
    bool m_bEditing = false;
    std::vector<std::string> m_vecVertices;

private:
    enum class Mode { kToLatLon = 1, kToXy, kToDms, kToDecimal };

    bool Convert(Mode mode, std::vector<std::string>& rows);
    bool ConvertRow(Mode mode, const std::string& row, std::string& out);
    void PutRows(const std::vector<std::string>& rows);
    std::string RowText(int row) const;
    bool HasRow(const std::string& text) const;
    bool HasRows() const { return m_listXY.GetCount() > 0; }
    bool AddIfNew(const std::string& text);
    void Changed();

    void ShowMode();
    void EnableMinutesAndSeconds(bool latitude, bool longitude);
    bool ReadBoxes();
    bool FocusInBoxes() const;
    /// Whether a box that the focus left is to be looked at: not where a handler moved it.
    bool LeftByUser() const { return m_nMovesFocus == 0; }
    void MoveFocusTo(CEdit& box, bool highlight);
    void ShowAngles(const std::string& row);
    std::string AddedRow() const;
    std::string InsertedRow() const;
    void TakeDecimalLatitude();
    void TakeWholeLatitude();
    void ReselectWithTexts(int row, const std::string& latitude, const std::string& longitude);
    void LeaveLatDegree();
    void LeaveLatSecond();
    void LeaveLonDegree();
    void MoveRow(int by);
    bool WriteRows(const CString& path);
    bool ReadRows(CFile& file);

    bool TakePaste(const std::string& text);
    bool AskForRows(const std::vector<std::string>& lines);
    void Fill(const kv::vertices::Pair& pair);

    int m_nMovesFocus = 0;
};
