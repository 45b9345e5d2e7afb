#pragma once

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "drawing/vertice_builder_ids.h"
#include "frame/kvcom/util_lldrv.h"

namespace test {

/// The vertices builder as its rules are told, without a window: what it would hold and show after
/// each thing that a person does. Written apart from the dialog, with the platform's own functions
/// for numbers.
class VerticeModel {
public:
    // What can be compared.
    std::vector<std::string> rows;
    int selected = -1;
    std::map<int, std::string> texts;
    std::set<int> disabled;
    bool xy = true;
    bool decimal = true;
    bool decimalRadio = true;
    bool apply = false;
    bool modified = false;
    bool changed = false;
    int focus = kX;
    /// What the action tells in a message box, one at most.
    std::string message;

    VerticeModel(int projection, std::vector<std::string> start)
        : rows(std::move(start)), projection_(projection) {
        for (const int id : {kX, kY, kLatDegree, kLatSecond, kLonDegree, kLonSecond})
            texts[id] = "0.00";
        texts[kLatMinute] = texts[kLonMinute] = "0";
        disabled = {kAdd, kInsert, kSave};
        Four(false, false);
        Status();
    }

    bool Enabled(int id) const { return !disabled.contains(id); }
    bool Visible(int id) const {
        if (id == kX || id == kY) return xy;
        return id < kFirstBox || id > kLastBox || !xy;
    }
    bool Reachable(int id) const { return id > 0 && Enabled(id) && Visible(id); }

    /// A click into a box, or of the list's row.
    void Focus(int id) {
        Leave(id);
        Settle();
    }
    void Select(int row) {
        Leave(kRows);
        selected = row;
        SelectionChanged();
        Settle();
    }
    /// Over the whole text of the box that has the focus.
    void Type(const std::string& text) {
        SetText(focus, text);
        Settle();
    }
    void Tab(bool forward) {
        Leave(NextStop(focus, forward));
        Settle();
    }
    void Enter() {
        if (IsButton(focus)) {
            Press(focus);
        } else {
            WalkOn();
        }
        Settle();
    }
    void Click(int id) {
        Leave(id);
        if (Enabled(id)) Press(id);
        Settle();
    }
    /// Whether Insert would write an empty row, with which nothing can be done.
    bool InsertsNothing() const {
        return !xy && HasPoint(texts.at(kLonDegree)) && !HasPoint(texts.at(kLatDegree));
    }

private:
    static constexpr int kX = kv::vertice_builder::kX;
    static constexpr int kY = kv::vertice_builder::kY;
    static constexpr int kLatDegree = kv::vertice_builder::kLatDegree;
    static constexpr int kLatMinute = kv::vertice_builder::kLatMinute;
    static constexpr int kLatSecond = kv::vertice_builder::kLatSecond;
    static constexpr int kLonDegree = kv::vertice_builder::kLonDegree;
    static constexpr int kLonMinute = kv::vertice_builder::kLonMinute;
    static constexpr int kLonSecond = kv::vertice_builder::kLonSecond;
    static constexpr int kRows = kv::vertice_builder::kRows;
    static constexpr int kAdd = kv::vertice_builder::kAdd;
    static constexpr int kInsert = kv::vertice_builder::kInsert;
    static constexpr int kEditRow = kv::vertice_builder::kEditRow;
    static constexpr int kDelete = kv::vertice_builder::kDelete;
    static constexpr int kMoveUp = kv::vertice_builder::kMoveUp;
    static constexpr int kMoveDown = kv::vertice_builder::kMoveDown;
    static constexpr int kLoad = kv::vertice_builder::kLoad;
    static constexpr int kSave = kv::vertice_builder::kSave;
    static constexpr int kAccept = kv::vertice_builder::kAccept;
    static constexpr int kXyMode = kv::vertice_builder::kXyMode;
    static constexpr int kLatLonMode = kv::vertice_builder::kLatLonMode;
    static constexpr int kDecimal = kv::vertice_builder::kDecimal;
    static constexpr int kDms = kv::vertice_builder::kDms;
    static constexpr int kExit = 2;
    /// The boxes of angles, and the formats, lie between these.
    static constexpr int kFirstBox = kLatDegree;
    static constexpr int kLastBox = kDms;

    static bool HasPoint(const std::string& text) { return text.find('.') != std::string::npos; }
    static bool IsBox(int id) {
        return id == kX || id == kY || (id >= kLatDegree && id <= kLonSecond);
    }
    static bool IsButton(int id) { return !IsBox(id) && id != kRows && !IsRadio(id); }
    static bool IsRadio(int id) {
        return id == kXyMode || id == kLatLonMode || id == kDecimal || id == kDms;
    }
    static int GroupOf(int radio) { return radio == kXyMode || radio == kLatLonMode; }
    bool Checked(int radio) const {
        switch (radio) {
            case kXyMode:
                return xy;
            case kLatLonMode:
                return !xy;
            case kDecimal:
                return decimalRadio;
            default:
                return !decimalRadio;
        }
    }
    void Enable(int id, bool on) { on ? (void)disabled.erase(id) : (void)disabled.insert(id); }
    void Four(bool latitude, bool longitude) {
        Enable(kLatMinute, latitude);
        Enable(kLatSecond, latitude);
        Enable(kLonMinute, longitude);
        Enable(kLonSecond, longitude);
    }
    double Number(int id) const { return std::strtod(texts.at(id).c_str(), nullptr); }

    template <typename... Values>
    static std::string Print(const char* format, Values... values) {
        char text[500];
        std::snprintf(text, sizeof text, format, values...);
        return text;
    }

    void SetText(int id, const std::string& text) {
        texts[id] = text;
        if (id == kX || id == kY) {
            Enable(kAdd, true);
            Enable(kInsert, true);
        }
    }

    // The platform.

    int NextStop(int from, bool forward) const {
        const std::vector<int> order = {
            kXyMode,    kLatLonMode, kDecimal,   kDms,       kX,    kY,      kLatDegree, kLatMinute,
            kLatSecond, kLonDegree,  kLonMinute, kLonSecond, kRows, kAdd,    kInsert,    kEditRow,
            kDelete,    kMoveUp,     kMoveDown,  kLoad,      kSave, kAccept, kExit};
        const auto count = static_cast<int>(order.size());
        int at = static_cast<int>(std::find(order.begin(), order.end(), from) - order.begin());
        for (int tried = 0; tried < count; ++tried) {
            at = (at + (forward ? 1 : count - 1)) % count;
            const int id = order[static_cast<std::size_t>(at)];
            if (IsRadio(id) && IsRadio(from) && GroupOf(id) == GroupOf(from)) continue;
            if (Reachable(id) && (!IsRadio(id) || Checked(id))) return id;
        }
        return from;
    }
    /// A holder that was disabled or hidden hands the focus on.
    void Settle() {
        if (!Reachable(focus)) focus = NextStop(focus, true);
    }

    // The boxes.

    /// The focus goes from where it is to `to`; what was left acts.
    void Leave(int to) {
        const int from = focus;
        if (from == to) return;
        focus = to;
        if (from == kLatSecond) {
            Read();
            focus = kLonDegree;
        } else if (from == kLatDegree) {
            LeftLatDegree();
        } else if (from == kLonDegree) {
            LeftLonDegree();
        } else if (IsBox(from)) {
            Read();
        }
    }
    /// All values are right here, so reading the boxes brings Exit back and nothing else.
    void Read() { Enable(kExit, true); }

    void Reselect(int row) { selected = row < static_cast<int>(rows.size()) ? row : -1; }
    void LeftLatDegree() {
        Read();
        if (!IsBox(focus)) return;
        Four(false, false);
        const std::string latitude = texts[kLatDegree];
        const std::string longitude = texts[kLonDegree];
        const int row = selected;
        if (HasPoint(latitude)) {
            focus = kLonDegree;
            if (!decimal) {
                FormatDecimal();
                Reselect(row);
                texts[kLatDegree] = latitude;
                texts[kLonDegree] = longitude;
            }
            decimalRadio = true;
        } else if (decimal) {
            FormatDms();
            Reselect(row);
            texts[kLatDegree] = latitude + ".00";
            texts[kLonDegree] = longitude;
            focus = kLonDegree;
        } else {
            Enable(kLatMinute, true);
            Enable(kLatSecond, true);
            focus = kLatMinute;
        }
        Enable(kAdd, true);
    }
    void LeftLonDegree() {
        Read();
        if (!IsBox(focus)) return;
        Four(false, false);
        if (HasPoint(texts[kLonDegree])) {
            Add();
        } else if (decimal) {
            texts[kLonDegree] += ".00";
            Add();
        } else {
            Enable(kLonMinute, true);
            Enable(kLonSecond, true);
            focus = kLonMinute;
        }
        Enable(kAdd, true);
    }
    void WalkOn() {
        const std::map<int, int> kNext = {
            {kX, kY}, {kLatMinute, kLatSecond}, {kLatSecond, kLonDegree}, {kLonMinute, kLonSecond}};
        Read();
        if (const auto next = kNext.find(focus); next != kNext.end()) {
            if (Enabled(next->second)) focus = next->second;
            Enable(kAdd, true);
        } else if (focus == kY || focus == kLonSecond) {
            Add();
        } else if (focus == kLatDegree) {
            LeftLatDegree();
        } else if (focus == kLonDegree) {
            LeftLonDegree();
        }
    }

    // The buttons.

    void Press(int id) {
        switch (id) {
            case kAdd:
                return Add();
            case kInsert:
                return Insert();
            case kEditRow:
                return Edit();
            case kDelete:
                return Delete();
            case kMoveUp:
                return Move(-1);
            case kMoveDown:
                return Move(1);
            case kXyMode:
                return ModeXy();
            case kLatLonMode:
                return ModeLatLon();
            case kDecimal:
                decimalRadio = true;
                return FormatDecimal();
            case kDms:
                decimalRadio = false;
                return FormatDms();
            default:
                return;
        }
    }
    bool Has(const std::string& row) const {
        return std::find(rows.begin(), rows.end(), row) != rows.end();
    }
    void Add() {
        Read();
        std::string row;
        const bool lat = HasPoint(texts[kLatDegree]);
        const bool lon = HasPoint(texts[kLonDegree]);
        const auto whole = [this](int id) { return static_cast<int>(Number(id)); };
        if (xy) {
            row = Print("%.2f   ,   %.2f", Number(kX), Number(kY));
        } else if (lat && lon) {
            row = Print("%.6f ,   %.6f", Number(kLatDegree), Number(kLonDegree));
        } else if (lat) {
            row = Print("%.6f ,   %d %d %.6f", Number(kLatDegree), whole(kLonDegree),
                        whole(kLonMinute), Number(kLonSecond));
        } else if (lon) {
            row = Print("%d %d %.6f  ,   %.6f", whole(kLatDegree), whole(kLatMinute),
                        Number(kLatSecond), Number(kLonDegree));
        } else {
            row =
                Print("%d %d %.6f  ,   %d %d %.6f", whole(kLatDegree), whole(kLatMinute),
                      Number(kLatSecond), whole(kLonDegree), whole(kLonMinute), Number(kLonSecond));
        }
        if (!Has(row)) {
            if (editing_ && selected >= 0) {
                rows[static_cast<std::size_t>(selected)] = row;
                selected = -1;
                editing_ = false;
            } else {
                rows.push_back(row);
            }
            Changed();
        }
        SelectionChanged();
    }
    void Insert() {
        if (selected < 0) {
            message = "Must highlight a row for insert";
            return;
        }
        Read();
        std::string row;
        const bool lat = HasPoint(texts[kLatDegree]);
        const bool lon = HasPoint(texts[kLonDegree]);
        const auto whole = [this](int id) { return static_cast<int>(Number(id)); };
        if (xy) {
            row = Print("%f   ,   %f", Number(kX), Number(kY));
        } else if (lat && lon) {
            row = Print("%.2f %d %.2f  ,   %.2f %d %.2f", Number(kLatDegree), whole(kLatMinute),
                        Number(kLatSecond), Number(kLonDegree), whole(kLonMinute),
                        Number(kLonSecond));
        } else if (lat) {
            row =
                Print("%.2f %d %.2f  ,   %d %d %.2f", Number(kLatDegree), whole(kLatMinute),
                      Number(kLatSecond), whole(kLonDegree), whole(kLonMinute), Number(kLonSecond));
        } else if (!lon) {
            row =
                Print("%d %d %.2f  ,   %d %d %.2f", whole(kLatDegree), whole(kLatMinute),
                      Number(kLatSecond), whole(kLonDegree), whole(kLonMinute), Number(kLonSecond));
        }
        if (!Has(row)) {
            rows.insert(rows.begin() + selected, row);
            ++selected;
            Changed();
        }
        SetText(kX, "0.00");
        SetText(kY, "0.00");
        focus = kX;
        SelectionChanged();
        Enable(kAdd, false);
        Enable(kInsert, false);
    }
    void Edit() {
        if (selected < 0) return;
        if (editing_) {
            Add();
        } else {
            focus = xy ? kX : kLatDegree;
        }
        editing_ = !editing_;
        Status();
    }
    void Delete() {
        if (selected < 0) {
            message = "Nothing selected";
        } else {
            rows.erase(rows.begin() + selected);
            selected = -1;
            Enable(kAccept, true);
            Changed();
        }
        Enable(kSave, !rows.empty());
    }
    void Move(int by) {
        const int to = selected + by;
        if (selected < 0 || to < 0 || to >= static_cast<int>(rows.size())) return;
        std::swap(rows[static_cast<std::size_t>(selected)], rows[static_cast<std::size_t>(to)]);
        selected = to;
        SelectionChanged();
        Enable(kAccept, true);
        Changed();
    }
    void Changed() { modified = changed = true; }
    void SelectionChanged() {
        modified = false;
        editing_ = false;
        Status();
        Boxes();
    }
    void Status() {
        for (const int id : {kAccept, kAdd, kInsert, kMoveDown, kMoveUp, kDelete})
            Enable(id, false);
        Four(false, false);
        const auto count = static_cast<int>(rows.size());
        if (count > 0) {
            for (const int id : {kSave, kAccept, kAdd, kInsert, kDelete})
                Enable(id, true);
            Enable(kMoveDown, selected >= 0 && selected != count - 1);
            Enable(kMoveUp, selected > 0);
        }
        if (!editing_) {
            apply = false;
        } else if (selected >= 0) {
            apply = true;
            for (const int id : {kAdd, kInsert, kMoveDown, kMoveUp, kDelete})
                Enable(id, false);
        }
    }
    void Boxes() {
        if (selected < 0) return;
        const std::string& row = rows[static_cast<std::size_t>(selected)];
        char a[100] = "", b[100] = "", c[100] = "", comma = 0;
        if (xy) {
            std::sscanf(row.c_str(), "%99s %c %99s", a, &comma, b);
            SetText(kX, a);
            SetText(kY, b);
            return;
        }
        const std::size_t at = row.find(',');
        const auto half = [&](const std::string& text, int degree, int minute, int second) {
            a[0] = b[0] = c[0] = 0;
            std::sscanf(text.c_str(), "%99s %99s %99s", a, b, c);
            texts[degree] = a;
            texts[minute] = HasPoint(a) ? "0" : b;
            texts[second] = HasPoint(a) ? "0.00" : c;
        };
        half(row.substr(0, at), kLatDegree, kLatMinute, kLatSecond);
        half(row.substr(at + 1), kLonDegree, kLonMinute, kLonSecond);
    }

    // Conversion.

    static std::string Blank(std::string row) {
        for (char& ch : row)
            ch = ch == ',' ? ' ' : ch;
        return row;
    }
    static void Two(const std::string& row, double& a, double& b) {
        a = b = 0;
        std::sscanf(row.c_str(), "%lf %lf", &a, &b);
    }
    static void Six(const std::string& row, double& a, double& b) {
        int d[2] = {}, m[2] = {};
        double s[2] = {};
        std::sscanf(row.c_str(), "%d %d %lf %d %d %lf", &d[0], &m[0], &s[0], &d[1], &m[1], &s[1]);
        CKvUtilLLdrv::GetDegDeg(a, d[0], m[0], s[0]);
        CKvUtilLLdrv::GetDegDeg(b, d[1], m[1], s[1]);
    }
    static std::string InDms(double a, double b) {
        int d[2], m[2];
        double s[2];
        CKvUtilLLdrv::GetDegMinSec(a, d[0], m[0], s[0]);
        CKvUtilLLdrv::GetDegMinSec(b, d[1], m[1], s[1]);
        return Print("%d %d %.6f , %d %d %.6f", d[0], m[0], s[0], d[1], m[1], s[1]);
    }
    /// None where there is no answer.
    std::optional<std::string> Converted(int mode, const std::string& text) const {
        const std::string row = Blank(text);
        double a = 0, b = 0, c = 0, d = 0;
        if (mode == 1) {
            Two(row, a, b);
            CKvUtilLLdrv::XYdrv(a, b, &c, &d, projection_, 1, 1, 100.0F, 0.0F, 0.0F);
            if (std::isinf(c)) return std::nullopt;
            return decimal ? Print("%.6f , %.6f", c, d) : InDms(c, d);
        }
        if (mode == 2) {
            decimal ? Two(row, a, b) : Six(row, a, b);
            CKvUtilLLdrv::LLdrv(a, b, &c, &d, projection_, 1, 1, 100.0F, 0.0F, 0.0F);
            if (c == 100000000.0 && d == 100000000.0) return std::nullopt;
            return Print("%.6f , %.6f", c, d);
        }
        mode == 3 ? Two(row, a, b) : Six(row, a, b);
        return mode == 3 ? InDms(a, b) : Print("%.6f , %.6f", a, b);
    }
    bool Convert(int mode, std::vector<std::string>& out) {
        for (const std::string& row : rows) {
            const auto converted = Converted(mode, row);
            if (!converted) {
                message =
                    "The projection has no answer for the row\n" + row + "\nNo row is converted.";
                return false;
            }
            if (std::find(out.begin(), out.end(), *converted) == out.end()) {
                out.push_back(*converted);
            }
        }
        return true;
    }
    void Put(const std::vector<std::string>& converted) {
        if (rows.empty()) return;
        rows = converted;
        selected = std::max(selected, 0);
        if (selected >= static_cast<int>(rows.size())) selected = -1;
        Boxes();
    }
    void ModeXy() {
        std::vector<std::string> converted;
        if (!Convert(2, converted)) return;
        xy = true;
        focus = kX;
        Put(converted);
    }
    void ModeLatLon() {
        std::vector<std::string> converted;
        if (!Convert(1, converted)) return;
        xy = false;
        focus = kLatDegree;
        Four(!decimal, !decimal);
        Put(converted);
    }
    void FormatDecimal() {
        std::vector<std::string> converted;
        decimal = true;
        Convert(4, converted);
        Put(converted);
        Enable(kInsert, false);
        Four(false, false);
    }
    void FormatDms() {
        std::vector<std::string> converted;
        decimal = false;
        Convert(3, converted);
        Put(converted);
        Four(true, true);
    }

    int projection_;
    bool editing_ = false;
};

}  // namespace test
