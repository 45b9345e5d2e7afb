#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "qualifiers/list_sel.h"

/// One company's interest range, in percent.
struct T_KV_LESSEE_PER_STRUCT {
    std::string sCompany;
    int nMinPercent = 0;
    int nMaxPercent = 100;
    bool operator==(const T_KV_LESSEE_PER_STRUCT&) const = default;
};

/// Selects lessee companies, and how leases are to match them: by the highest-percentage lessee, or
/// by any lessee, with OR or AND and an interest range for each company.
///
/// The flags are the caller's own: radios, check box and Clear write them at once, ahead of OK, and
/// Cancel does not bring them back. The ranges are written at OK, where they are specified.
class KVGUICTL_API CKvGuiLesseeListSel : public CKvGuiListSel {
public:
    explicit CKvGuiLesseeListSel(CWnd* parent = nullptr);
    CKvGuiLesseeListSel(const std::string& column, const std::string& table, CComboBox* combo,
                        std::vector<std::string>& values, bool& high, bool& any, bool& orFlag,
                        bool& andFlag, bool& specifyPercent,
                        std::vector<T_KV_LESSEE_PER_STRUCT>& percents, UINT templateId,
                        CWnd* parent);

    BOOL OnInitDialog() override;
    void OnOK() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnRadioAny();
    void OnRadioHigh();
    void OnRadioAnd();
    void OnRadioOr();
    void OnCheckSpecPer();
    void OnEditchangeComboMin();
    void OnSelchangeComboMin();
    void OnEditchangeComboMax();
    void OnSelchangeComboMax();
    void OnSelchangeSelectList();
    void OnClearButton();

    void UpdateControls();
    void ConvertToMap();
    void ConvertToVector();
    /// True if the company has a range. Otherwise it gets 0 to 100.
    bool AddCompany(const std::string& name);

    bool* m_pSpecPercent;
    bool* m_pAnd;
    bool* m_pOr;
    bool* m_pAny;
    bool* m_pHigh;
    std::map<std::string, std::pair<int, int>> m_mapPercent;
    std::vector<T_KV_LESSEE_PER_STRUCT>* m_pPercents;

private:
    using Range = std::pair<int, int>;

    void Choose(bool* on, bool* off);
    std::string CurrentCompany() const;
    bool IsCaretRowSelected() const;
    void ShowPercent(int id, const std::string& text);
    void ShowRange(const std::string& company);
    void TakePercent(int Range::*limit, const std::string& text);
    std::string PickedText(int id) const;

    // What stands in for the caller's, in a dialog that was made without them.
    bool m_bNoHigh = true;
    bool m_bNoAny = false;
    bool m_bNoOr = true;
    bool m_bNoAnd = false;
    bool m_bNoSpecPercent = false;
    std::vector<T_KV_LESSEE_PER_STRUCT> m_noPercents;
};
