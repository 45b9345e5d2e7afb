#pragma once

#include <map>
#include <string>
#include <utility>

#include "pickers/built_map_area_combo_box.h"
#include "pickers/built_map_blk_combo_box.h"
#include "window/dialogs/dialog.h"

/// Asks which well is meant: by its API number, picked or typed, or by area, block and well number,
/// of which the boxes offer what lies inside the map at hand. It looks for nothing itself: its host
/// reads the search string and does so.
///
/// The bounds of the map are always to be set.
class KVGUICTL_API CKvGuiWellSearch : public CDialog {
public:
    explicit CKvGuiWellSearch(CWnd* parent = nullptr);

    void SearchByAPI(bool byApi) { m_bSearchByAPI = byApi; }
    /// What the area and the block box show at the start.
    void SetAreaCode(std::string areaCode) { m_sAreaCode = std::move(areaCode); }
    void SetBlockNumber(std::string block) { m_sBlockNumber = std::move(block); }
    void SetExtension(std::string extension) { m_sExtension = std::move(extension); }
    void SetSearchString(std::string search) { m_sSearchString = std::move(search); }
    /// Offers an API number; the same one twice is offered once.
    void AddApiNum(std::string number) { m_mapApiNum[number] = number; }
    /// The corners of the map in degrees: the longitude comes first, whatever the names say.
    void SetMinLatLon(double lon, double lat) { m_MinLatLon = {lon, lat}; }
    void SetMaxLatLon(double lon, double lat) { m_MaxLatLon = {lon, lat}; }
    /// The area mode of both boxes.
    void SetMode(int mode);

    bool IsSearchByAPI() const { return m_bSearchByAPI; }
    /// An API number, or area + "#" + block + "#" + well number with "_" for an area or a block
    /// that was left empty. After Cancel what was set before.
    std::string GetSearchString() const { return m_sSearchString; }
    /// Whether OK was pressed.
    bool GetTermination() const { return m_bTermination; }
    // As they were set.
    std::string GetAreaCode() const { return m_sAreaCode; }
    std::string GetBlockNumber() const { return m_sBlockNumber; }
    std::string GetExtension() const { return m_sExtension; }
    int GetMode() const { return m_comboArea.GetMode(); }

    /// Whether what is entered will do. What will not is told, and gets the focus.
    bool CheckForValidEntry();
    /// Fills the box of API numbers.
    void PopulateApiNum();

    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnRadioWellsearchApi();
    void OnRadioSearchWellAbe();
    // For dialogs that route these notifications of the area box.
    void OnEditchangeCombo3dAbeMms();
    void OnSelchangeCombo3dAbeMms();

    std::pair<double, double> m_MinLatLon;
    std::pair<double, double> m_MaxLatLon;
    std::string m_sAreaCode;
    std::string m_sBlockNumber;
    std::string m_sExtension;
    CKvBuiltMapBlkComboBox m_comboBlock;
    CKvBuiltMapAreaComboBox m_comboArea;
    bool m_bSearchByAPI = true;
    std::string m_sSearchString;
    bool m_bTermination = false;
    std::map<std::string, std::string> m_mapApiNum;

private:
    void FillAreas();
    void EnableBoxes();
    bool Refuse(const char* words, int box);
};
