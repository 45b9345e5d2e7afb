#pragma once

#include "base/export.h"
#include "base/types.h"
#include "window/drawing/device_context.h"

class CWnd;

/// The context of a window's WM_PAINT handler.
class KVGUICTL_API CPaintDC : public CDC {
public:
    struct PaintInfo {
        CRect rcPaint;
    };

    explicit CPaintDC(CWnd* window);

    /// The rectangle to paint, in the window's own coordinates.
    PaintInfo m_ps;
};

/// A context of a window outside of painting: good for measuring.
class KVGUICTL_API CClientDC : public CDC {
public:
    explicit CClientDC(CWnd* window);
};
