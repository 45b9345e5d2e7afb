#pragma once

#include <chrono>
#include <nlohmann/json.hpp>

#include "window/desktop.h"

/// What lies outside the windows, as the head of a script tells it.
namespace recording {

using Json = nlohmann::ordered_json;

/// Printer, drives, screen, current folder and the application's registry, as they are now, and
/// that time.
Json HeadOfNow(std::chrono::system_clock::time_point now);

Json PrinterAsJson(const kv::PrinterSettings& printer);

/// The text of the registry's file as an object of sections, each an object of texts.
Json RegistryAsJson(const std::string& text);

}  // namespace recording
