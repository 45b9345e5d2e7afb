#pragma once

#include <nlohmann/json.hpp>

#include "window/desktop.h"

/// What lies outside the windows, as the head of a script tells it.
namespace recording {

using Json = nlohmann::ordered_json;

/// As it is now: printer, drives, time, screen, current folder and the application's registry.
Json HeadOfNow();

Json PrinterAsJson(const kv::PrinterSettings& printer);

/// The text of the registry's file as an object of sections, each an object of texts.
Json RegistryAsJson(const std::string& text);

}  // namespace recording
