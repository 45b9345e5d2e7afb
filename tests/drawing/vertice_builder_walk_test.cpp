#include <random>

#include "vertice_builder_fixture.h"
#include "vertice_builder_model.h"
#include "window/controls/edit.h"

using namespace kv::vertice_builder;

namespace {

constexpr int kBoxes[] = {kX,         kY,         kLatDegree, kLatMinute,
                          kLatSecond, kLonDegree, kLonMinute, kLonSecond};
constexpr int kButtons[] = {kAdd, kInsert, kEditRow, kDelete, kMoveUp, kMoveDown};
constexpr int kRadios[] = {kXyMode, kLatLonMode, kDecimal, kDms};
/// What opens a dialog, or ends this one.
constexpr int kLeading[] = {kLoad, kSave, kAccept, IDCANCEL};

const std::map<int, std::vector<const char*>> kTyped = {
    {kX, {"500000.25", "500000.254", "612345", "700000.5"}},
    {kY, {"3000000", "3100000.75", "3200000.125"}},
    {kLatDegree, {"28", "28.5", "29.25", "27"}},
    {kLatMinute, {"0", "30", "15"}},
    {kLatSecond, {"0.00", "7.5", "59.9"}},
    {kLonDegree, {"-91", "-91.25", "-90.5", "-92"}},
    {kLonMinute, {"0", "15", "45"}},
    {kLonSecond, {"0.00", "12.25", "30"}},
};

/// A person who does one thing after the other at random, and the model beside the dialog.
class Walk {
public:
    Walk(test::TestDesktop& desktop, kv::User& user, test::VerticeModel& model, unsigned seed)
        : desktop_(desktop), user_(user), model_(model), random_(seed) {}

    /// What was done last, in words.
    std::string done;

    void Step() {
        switch (Below(10)) {
            case 0:
            case 1:
                return FocusBox();
            case 2:
            case 3:
            case 4:
                return Type();
            case 5:
                return Tab();
            case 6:
                return Enter();
            case 7:
                return SelectRow();
            case 8:
                return Click(kRadios[Below(4)]);
            default:
                return Click(kButtons[Below(6)]);
        }
    }

    /// What differs; empty when nothing does.
    std::string Difference(const CKvGuiVerticeBuilder& dialog) {
        std::string words;
        const auto compare = [&](const std::string& what, const auto& is, const auto& told) {
            if (is != told) words += what + " is " + Text(is) + " and not " + Text(told) + "\n";
        };
        compare("rows", Joined(user_.Rows(kRows)), Joined(model_.rows));
        const auto selected = user_.Selected(kRows);
        compare("selection", selected.empty() ? -1 : selected.front(), model_.selected);
        for (const int id : kBoxes) {
            compare("text of " + std::to_string(id), user_.Text(id), model_.texts.at(id));
            compare("visible " + std::to_string(id), user_.Visible(id), model_.Visible(id));
        }
        for (const auto& ids : {std::vector<int>(std::begin(kBoxes), std::end(kBoxes)),
                                std::vector<int>(std::begin(kButtons), std::end(kButtons)),
                                std::vector<int>(std::begin(kLeading), std::end(kLeading))}) {
            for (const int id : ids)
                compare("enabled " + std::to_string(id), user_.Enabled(id), model_.Enabled(id));
        }
        compare("label", user_.Text(kEditRow), std::string(model_.apply ? "Apply" : "Edit"));
        compare("mode", user_.Checked(kXyMode), model_.xy);
        compare("format", user_.Checked(kDecimal), model_.decimalRadio);
        compare("modified", dialog.GetModifyMode(), model_.modified);
        compare("changed", dialog.GetModifyVertices(), model_.changed);
        compare("focus", test::FocusedId(), model_.focus);
        return words;
    }

private:
    static std::string Text(int value) { return std::to_string(value); }
    static std::string Text(const std::string& value) { return "\"" + value + "\""; }
    static std::string Joined(const std::vector<std::string>& rows) {
        std::string all;
        for (const std::string& row : rows)
            all += row + "|";
        return all;
    }
    std::size_t Below(std::size_t count) { return random_() % count; }

    /// The model goes first, and says what will be told.
    template <typename InModel, typename ByUser>
    void Do(const std::string& words, InModel inModel, ByUser byUser) {
        done = words;
        model_.message.clear();
        inModel();
        if (!model_.message.empty()) desktop_.ExpectMessage(model_.message);
        byUser();
    }

    void FocusBox() {
        const int id = kBoxes[Below(std::size(kBoxes))];
        if (!model_.Reachable(id)) return;
        Do(
            "focus " + std::to_string(id), [&] { model_.Focus(id); }, [&] { user_.Focus(id); });
    }
    void Type() {
        const auto texts = kTyped.find(model_.focus);
        if (texts == kTyped.end()) return;
        const int id = model_.focus;
        const std::string text = texts->second[Below(texts->second.size())];
        Do(
            "type " + text + " into " + std::to_string(id), [&] { model_.Type(text); },
            [&] {
                kv::Send(*user_.WindowNode().FindChild(id), EM_SETSEL, 0, -1);
                kv::input::TypeHere(text);
                kv::WindowSystem::Get().Settle();
            });
    }
    void Tab() {
        const bool forward = Below(3) != 0;
        Do(
            forward ? "Tab" : "Shift+Tab", [&] { model_.Tab(forward); },
            [&] { user_.Key(0, forward ? "Tab" : "Shift+Tab"); });
    }
    void Enter() {
        const int id = model_.focus;
        const bool leads =
            std::find(std::begin(kLeading), std::end(kLeading), id) != std::end(kLeading);
        if (leads || (id == kInsert && model_.InsertsNothing())) return;
        Do(
            "Enter", [&] { model_.Enter(); }, [&] { user_.Key(0, "Enter"); });
    }
    void SelectRow() {
        if (model_.rows.empty()) return;
        // What leaving a box adds comes last, so that the row is there.
        const int row = static_cast<int>(Below(model_.rows.size()));
        Do(
            "select " + std::to_string(row), [&] { model_.Select(row); },
            [&] { user_.Select(kRows, row); });
    }
    void Click(int id) {
        // Angles that are taken for X and Y once more become such as no box takes the parts of.
        if (id == (model_.xy ? kXyMode : kLatLonMode)) return;
        if (!model_.Reachable(id) || (id == kInsert && model_.InsertsNothing())) return;
        Do(
            "click " + std::to_string(id), [&] { model_.Click(id); }, [&] { user_.Click(id); });
    }

    test::TestDesktop& desktop_;
    kv::User& user_;
    test::VerticeModel& model_;
    std::mt19937 random_;
};

class VerticeWalk : public test::VerticeBuilderTest {};

TEST_F(VerticeWalk, GoesAsTheModelDoesWhateverAPersonDoes) {
    constexpr unsigned kSequences = 2000;
    constexpr int kSteps = 30;
    int steps = 0;
    for (unsigned seed = 1; seed <= kSequences && !HasFailure(); ++seed) {
        CKvGuiVerticeBuilder own;
        own.SetProjection(test::kUtm15);
        own.SetImperialUnit(false);
        std::vector<std::string> start;
        if (seed % 2 == 0) {
            start = {"500000.000000 , 3000000.000000", "612345.000000 , 3100000.000000",
                     "650000.500000 , 3050000.000000"};
            own.SetVertices(start);
            own.SetModifyMode(true);
        }
        test::VerticeModel model(test::kUtm15, start);
        Run(own, [&](kv::User& user) {
            Walk walk(desktop, user, model, seed);
            std::string course;
            for (int step = 0; step < kSteps; ++step) {
                walk.done.clear();
                walk.Step();
                if (walk.done.empty()) continue;
                ++steps;
                course += walk.done + "\n";
                const std::string difference = walk.Difference(own);
                ASSERT_EQ(difference, "") << "seed " << seed << " behind:\n" << course;
            }
        });
    }
    EXPECT_GT(steps, 20000);
}

}  // namespace
