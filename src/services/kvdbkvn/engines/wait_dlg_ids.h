#pragma once

/// Template and controls of the window that comes up while a query takes long.
namespace kv::wait_dlg {

inline constexpr int kTemplate = 12100;

inline constexpr int kTime = 1003;

}  // namespace kv::wait_dlg
