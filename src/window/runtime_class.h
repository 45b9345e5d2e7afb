#pragma once

#include <memory>

#include "window/wnd.h"

/// What is known of a class while the program runs: its name, and how to make an object of it,
/// where that can be done.
struct CRuntimeClass {
    const char* m_lpszClassName;
    std::unique_ptr<CWnd> (*m_pfnCreateObject)() = nullptr;

    /// Null where objects of the class cannot be made by name.
    std::unique_ptr<CWnd> CreateObject() const {
        return m_pfnCreateObject ? m_pfnCreateObject() : nullptr;
    }
};
