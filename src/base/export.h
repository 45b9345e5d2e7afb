#pragma once

/// Marks what the shared library shows to its hosts. All else stays hidden.
#define KVGUICTL_API __attribute__((visibility("default")))
