#pragma once

#include <string>

#include "pickers/blk_combo_box.h"

/// The block box of a built map: it lists only the blocks with a vertex inside the map. All four
/// bounds, in degrees, are set ahead of the first fill; no setter refills the list.
class KVGUICTL_API CKvBuiltMapBlkComboBox : public CKvBlkComboBox {
public:
    void SetMinLat(double lat) { m_dMinLat = lat; }
    void SetMaxLat(double lat) { m_dMaxLat = lat; }
    void SetMinLon(double lon) { m_dMinLon = lon; }
    void SetMaxLon(double lon) { m_dMaxLon = lon; }

protected:
    using CKvBlkComboBox::BlockQuery;
    std::string BlockQuery() const override;

private:
    double GetMinLat() const { return m_dMinLat; }
    double GetMaxLat() const { return m_dMaxLat; }
    double GetMinLon() const { return m_dMinLon; }
    double GetMaxLon() const { return m_dMaxLon; }

    double m_dMinLat = 0;
    double m_dMaxLat = 0;
    double m_dMinLon = 0;
    double m_dMaxLon = 0;
};
