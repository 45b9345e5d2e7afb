#pragma once

#include <string>

#include "pickers/area_combo_box.h"

/// The area box of a built map: it lists only areas with a block inside the map, which is a block
/// with a vertex there. All four bounds, in degrees, are set ahead of the first fill; no setter
/// refills the list.
///
/// What it lists by name or by MMS code takes two steps, and a failure of the first one is thrown,
/// as a `CKvException`. Whatever fails, and where there is no area, the rows that switch the mode
/// are offered.
class KVGUICTL_API CKvBuiltMapAreaComboBox : public CKvAreaComboBox {
public:
    void SetMinLat(double lat) { m_dMinLat = lat; }
    void SetMaxLat(double lat) { m_dMaxLat = lat; }
    void SetMinLon(double lon) { m_dMinLon = lon; }
    void SetMaxLon(double lon) { m_dMaxLon = lon; }

    void V_InitializeCombo() override;

private:
    double GetMinLat() const { return m_dMinLat; }
    double GetMaxLat() const { return m_dMaxLat; }
    double GetMinLon() const { return m_dMinLon; }
    double GetMaxLon() const { return m_dMaxLon; }

    /// The area codes of the blocks inside the map; `select` is ahead of the column.
    std::string AreaCodesInside(const char* select) const;
    /// The areas inside the map, as the mode names them, quoted and with commas between.
    std::string AreasInside() const;
    /// The statement of the present mode, empty for an unknown mode.
    std::string QueryInside() const;

    double m_dMinLat = 0;
    double m_dMaxLat = 0;
    double m_dMinLon = 0;
    double m_dMaxLon = 0;
};
