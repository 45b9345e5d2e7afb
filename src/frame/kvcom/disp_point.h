#pragma once

#include <string>

#include "base/export.h"

/// A point of three coordinates. Outlines carry latitude in X and longitude in Y.
class KVGUICTL_API CKvDispPoint {
public:
    CKvDispPoint() = default;
    CKvDispPoint(double x, double y, double z = 0.0) : m_dX(x), m_dY(y), m_dZ(z) {}
    /// From texts, read as the platform's `atof` reads them. The flag says that they are degrees;
    /// nothing is converted either way.
    CKvDispPoint(const std::string& x, const std::string& y, const std::string& z, bool degrees);

    double GetX() const { return m_dX; }
    double GetY() const { return m_dY; }
    double GetZ() const { return m_dZ; }

    bool operator==(const CKvDispPoint&) const = default;

private:
    double m_dX = 0.0;
    double m_dY = 0.0;
    double m_dZ = 0.0;
};
