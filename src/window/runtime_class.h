#pragma once

#include <memory>

#include "base/export.h"

class CWnd;

/// What is known of a class while the program runs: its name, and how to make an object of it,
/// where that can be done.
struct CRuntimeClass {
    const char* m_lpszClassName;
    std::unique_ptr<CWnd> (*m_pfnCreateObject)() = nullptr;

    /// Null where objects of the class cannot be made by name.
    KVGUICTL_API std::unique_ptr<CWnd> CreateObject() const;
};
