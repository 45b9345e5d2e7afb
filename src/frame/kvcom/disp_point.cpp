#include "frame/kvcom/disp_point.h"

#include "base/numbers.h"

CKvDispPoint::CKvDispPoint(const std::string& x, const std::string& y, const std::string& z,
                           bool /*degrees*/)
    : m_dX(kv::Atof(x)), m_dY(kv::Atof(y)), m_dZ(kv::Atof(z)) {}
