#include "recording/outside.h"

#include <chrono>
#include <map>
#include <string>

#include "base/paths.h"
#include "base/text.h"
#include "base/user_folders.h"
#include "window/dialogs/print_dialog.h"
#include "window/window_system.h"

namespace recording {

namespace {

std::string InWords(std::chrono::system_clock::time_point time) {
    using namespace std::chrono;
    const auto day = floor<days>(time);
    const year_month_day date{day};
    const hh_mm_ss clock{floor<seconds>(time - day)};
    return kv::FormatText("%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(date.year()),
                          static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                          static_cast<int>(clock.hours().count()),
                          static_cast<int>(clock.minutes().count()),
                          static_cast<int>(clock.seconds().count()));
}

std::string RegistryFile() {
    return kv::FromEnvironment("KVGUICTL_REGISTRY", kv::ConfigFolder() + "/registry.ini");
}

Json DrivesAsJson() {
    static const std::map<kv::DriveKind, const char*> kWords{{kv::kDriveRemovable, "removable"},
                                                             {kv::kDriveFixed, "fixed"},
                                                             {kv::kDriveRemote, "remote"},
                                                             {kv::kDriveCdRom, "CD-ROM"}};
    Json drives = Json::object();
    for (const char letter : kv::DriveLetters()) {
        const std::string name(1, letter);
        const auto kind = kWords.find(kv::GetDriveKind(letter));
        if (kind == kWords.end()) continue;
        drives[name] = {{"folder", kv::ToNative(name + ":\\")}, {"kind", kind->second}};
    }
    return drives;
}

}  // namespace

Json PrinterAsJson(const kv::PrinterSettings& printer) {
    Json json{{"device", printer.device},
              {"paper", printer.paper},
              {"landscape", printer.landscape},
              {"width", printer.widthTenthMm},
              {"height", printer.heightTenthMm}};
    if (!printer.form.empty()) json["form"] = printer.form;
    return json;
}

Json RegistryAsJson(const std::string& text) {
    Json sections = Json::object();
    std::string section;
    for (const std::string& each : kv::Split(text, '\n')) {
        const std::string line = kv::TrimSpace(each);
        const auto sign = line.find('=');
        if (line.starts_with('[') && line.ends_with(']')) {
            section = line.substr(1, line.size() - 2);
        } else if (!line.starts_with(';') && !line.starts_with('#') && sign != std::string::npos) {
            sections[section][kv::TrimSpace(line.substr(0, sign))] =
                kv::TrimSpace(line.substr(sign + 1));
        }
    }
    return sections;
}

Json HeadOfNow(std::chrono::system_clock::time_point now) {
    kv::Desktop& desktop = kv::WindowSystem::Get().GetDesktop();
    const auto printer = kv::CurrentPrinter();
    const CSize screen = desktop.ScreenSize();
    return {{"printer", printer ? PrinterAsJson(*printer) : Json()},
            {"drives", DrivesAsJson()},
            {"time", InWords(now)},
            {"screen", {screen.cx, screen.cy}},
            {"folder", kv::CurrentFolder()},
            {"registry", RegistryAsJson(kv::ReadTextFile(RegistryFile()).value_or(""))}};
}

}  // namespace recording
