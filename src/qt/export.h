#pragma once

/// Marks what KVGuiCtlQt shows to its hosts.
#define KVGUICTL_QT_API __attribute__((visibility("default")))
