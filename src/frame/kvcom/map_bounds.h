#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/export.h"

/// Kind of map: every value but 0 is offshore.
enum ETemplateType : int { KV_TEMPLATE_ONSHORE = 0, KV_TEMPLATE_OFFSHORE = 1 };

/// One map's description: its bounds, units, scale and projection, and how it was picked. A plain
/// record that is copied whole.
///
/// X, Y and Z are in feet or meters as `GetFeet` says, latitude and longitude in decimal degrees,
/// north and east positive. A fresh record is in feet, bounded by X/Y, with no projection (-1) and
/// all else 0, false or empty.
class KVGUICTL_API CKvMapBounds {
public:
    double GetXMin() const { return m_tX.minimum; }
    double GetXMax() const { return m_tX.maximum; }
    double GetYMin() const { return m_tY.minimum; }
    double GetYMax() const { return m_tY.maximum; }
    double GetZMin() const { return m_tZ.minimum; }
    double GetZMax() const { return m_tZ.maximum; }
    double GetLatMin() const { return m_tLat.minimum; }
    double GetLatMax() const { return m_tLat.maximum; }
    double GetLonMin() const { return m_tLon.minimum; }
    double GetLonMax() const { return m_tLon.maximum; }
    double GetDepthMin() const { return m_tDepth.minimum; }
    double GetDepthMax() const { return m_tDepth.maximum; }
    void SetXMin(const double& value) { m_tX.minimum = value; }
    void SetXMax(const double& value) { m_tX.maximum = value; }
    void SetYMin(const double& value) { m_tY.minimum = value; }
    void SetYMax(const double& value) { m_tY.maximum = value; }
    void SetZMin(const double& value) { m_tZ.minimum = value; }
    void SetZMax(const double& value) { m_tZ.maximum = value; }
    void SetLatMin(const double& value) { m_tLat.minimum = value; }
    void SetLatMax(const double& value) { m_tLat.maximum = value; }
    void SetLonMin(const double& value) { m_tLon.minimum = value; }
    void SetLonMax(const double& value) { m_tLon.maximum = value; }
    void SetDepthMin(const double& value) { m_tDepth.minimum = value; }
    void SetDepthMax(const double& value) { m_tDepth.maximum = value; }

    /// The texts of a corner: latitude degrees, minutes, seconds, then longitude degrees, minutes,
    /// seconds. Setting them sets the corner's angles, each text read as `atof` reads it, a minus
    /// ahead of the degrees standing for the whole angle. What was set is given back as it was for
    /// as long as the angles stay; otherwise the texts are made from the angles, seconds to six
    /// significant digits, "-0" where an angle lies between -1 and 0, all empty for an angle of
    /// 1000.0 (no value) or more.
    void SetMinLL(const std::string& latDeg, const std::string& latMin, const std::string& latSec,
                  const std::string& lonDeg, const std::string& lonMin, const std::string& lonSec);
    void SetMaxLL(const std::string& latDeg, const std::string& latMin, const std::string& latSec,
                  const std::string& lonDeg, const std::string& lonMin, const std::string& lonSec);
    void GetMinLL(std::string& latDeg, std::string& latMin, std::string& latSec,
                  std::string& lonDeg, std::string& lonMin, std::string& lonSec) const;
    void GetMaxLL(std::string& latDeg, std::string& latMin, std::string& latSec,
                  std::string& lonDeg, std::string& lonMin, std::string& lonSec) const;

    /// The texts of the height, in the latitude's places, and the width: maximum less minimum.
    void GetWidthHeightLL(std::string& heightDeg, std::string& heightMin, std::string& heightSec,
                          std::string& widthDeg, std::string& widthMin,
                          std::string& widthSec) const;
    /// Sets the maximum corner to the minimum plus that height and width.
    void UpdateLLMax(const std::string& heightDeg, const std::string& heightMin,
                     const std::string& heightSec, const std::string& widthDeg,
                     const std::string& widthMin, const std::string& widthSec);
    /// Sets X and Y maximum to the minimum plus the numbers of these texts.
    void UpdateXYMax(const std::string& width, const std::string& height);

    /// X/Y minimum and maximum from the corners of least and of greatest latitude and longitude, in
    /// the record's projection and units. The rectifying point, unless the user named it, becomes
    /// the middle of the angles, and is handed to the coordinate driver. False, with X/Y unchanged,
    /// where the driver has no answer for a corner.
    bool PopulateXY();
    /// The reverse, with the rectifying point that the record holds.
    bool PopulateLL();

    bool GetFeet() const { return m_bFeet; }
    void SetFeet(bool feet) { m_bFeet = feet; }
    /// Whether X/Y bounds the map, or latitude/longitude.
    bool GetXYBounded() const { return m_bXYBounded; }
    void SetXYBounded(bool bounded) { m_bXYBounded = bounded; }
    int GetScale() const { return m_nScale; }
    void SetScale(int scale) { m_nScale = scale; }

    /// Projection code, -1 for none.
    int GetPrimeProj() const { return m_nPrimeProj; }
    void SetPrimeProj(const int& projection) { m_nPrimeProj = projection; }
    /// UTM zone; 99 for Straight Mercator.
    int GetProjZoneCode() const { return m_nProjZoneCode; }
    void SetProjZoneCode(int zone) { m_nProjZoneCode = zone; }
    /// Whether the user named the rectifying point.
    bool GetRectSpec() const { return m_bRectSpec; }
    void SetRectSpec(bool specified) { m_bRectSpec = specified; }
    double GetRectifyingLat() const { return m_dRectifyingLat; }
    void SetRectifyingLat(double degrees) { m_dRectifyingLat = degrees; }
    double GetRectifyingLon() const { return m_dRectifyingLon; }
    void SetRectifyingLon(double degrees) { m_dRectifyingLon = degrees; }

    /// Grid that the bounds are snapped to, in map units; 0 for none.
    int GetSnapBoundsRange() const { return m_nSnapBoundsRange; }
    void SetSnapBoundsRange(int range) { m_nSnapBoundsRange = range; }
    ETemplateType GetTemplateType() const { return m_eTemplateType; }
    void SetTemplateType(ETemplateType type) { m_eTemplateType = type; }

    /// How the map was picked: one block, several, a window, or built by hand.
    bool GetPickOneFlag() const { return m_bPickOne; }
    void SetPickOneFlag(bool flag) { m_bPickOne = flag; }
    bool GetPickMultFlag() const { return m_bPickMult; }
    void SetPickMultFlag(bool flag) { m_bPickMult = flag; }
    bool GetPickWinFlag() const { return m_bPickWin; }
    void SetPickWinFlag(bool flag) { m_bPickWin = flag; }
    bool GetCustomMapFlag() const { return m_bCustomMap; }
    void SetCustomMapFlag(bool flag) { m_bCustomMap = flag; }

    /// The pick lists: the setters append one entry each, `ResetABEVec` empties all three.
    void ResetABEVec();
    void SetPickArea(std::string area);
    void SetPickBlock(std::string block);
    void SetPickExt(std::string ext);
    const std::vector<std::string>& GetPickArea() const { return m_vPickArea; }
    const std::vector<std::string>& GetPickBlock() const { return m_vPickBlock; }
    const std::vector<std::string>& GetPickExt() const { return m_vPickExt; }

    /// Texts of the size boxes.
    const std::string& GetPickMapWidth() const { return m_sPickMapWidth; }
    void SetPickMapWidth(std::string text);
    const std::string& GetPickMapHeight() const { return m_sPickMapHeight; }
    void SetPickMapHeight(std::string text);
    const std::string& GetPickMapPercent() const { return m_sPickMapPercent; }
    void SetPickMapPercent(std::string text);

    bool operator==(const CKvMapBounds&) const = default;

private:
    struct Range {
        double minimum = 0.0;
        double maximum = 0.0;
        bool operator==(const Range&) const = default;
    };
    using Texts = std::array<std::string, 6>;
    /// The texts that a corner was set by, and the angles that they gave.
    struct Corner {
        Texts texts;
        double lat = 0.0;
        double lon = 0.0;
        bool set = false;
        bool operator==(const Corner&) const = default;
    };
    static Corner CornerOf(Texts texts);
    static Texts TextsOf(double lat, double lon, const Corner& corner);
    void UseRectifyingPoint() const;

    Range m_tX;
    Range m_tY;
    Range m_tZ;
    Range m_tLat;
    Range m_tLon;
    Range m_tDepth;
    Corner m_tMinLL;
    Corner m_tMaxLL;
    bool m_bFeet = true;
    bool m_bXYBounded = true;
    int m_nScale = 0;
    int m_nPrimeProj = -1;
    int m_nProjZoneCode = 0;
    bool m_bRectSpec = false;
    double m_dRectifyingLat = 0.0;
    double m_dRectifyingLon = 0.0;
    int m_nSnapBoundsRange = 0;
    ETemplateType m_eTemplateType = KV_TEMPLATE_OFFSHORE;
    bool m_bPickOne = false;
    bool m_bPickMult = false;
    bool m_bPickWin = false;
    bool m_bCustomMap = false;
    std::vector<std::string> m_vPickArea;
    std::vector<std::string> m_vPickBlock;
    std::vector<std::string> m_vPickExt;
    std::string m_sPickMapWidth;
    std::string m_sPickMapHeight;
    std::string m_sPickMapPercent;
};
