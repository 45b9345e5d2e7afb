#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include "base/text.h"
#include "support/template_check.h"
#include "window/dialog_keys.h"
#include "window/drawing/text_metrics.h"
#include "window/mnemonics.h"
#include "window/templates/resources.h"

namespace {

const std::vector<const kv::DialogTemplate*>& Templates() {
    return kv::LibraryResources().templates;
}

/// By their ids, which name the tests; addresses would name them anew in every run.
std::vector<int> Ids() {
    std::vector<int> ids;
    for (const kv::DialogTemplate* each : Templates())
        ids.push_back(static_cast<int>(each->id));
    return ids;
}

class LibraryTemplates : public testing::TestWithParam<int> {};

TEST_P(LibraryTemplates, AreLaidOutSoundly) {
    const auto& templates = Templates();
    const auto found = std::ranges::find_if(templates, [](const kv::DialogTemplate* each) {
        return static_cast<int>(each->id) == GetParam();
    });
    ASSERT_NE(found, templates.end());
    EXPECT_THAT(test::CheckTemplate(**found), testing::IsEmpty());
}

/// The letters of a text in capitals.
std::set<char> LettersOf(const kv::Node& node) {
    std::set<char> letters;
    for (const char ch : kv::ToUpper(kv::WithoutMnemonic(node.Text()))) {
        if (ch >= 'A' && ch <= 'Z') letters.insert(ch);
    }
    return letters;
}

bool NamesAField(const kv::Node& label) {
    const kv::Node* field = kv::FieldOf(label);
    const auto& siblings = label.Parent()->Children();
    const auto place = [&](const kv::Node* node) {
        return std::ranges::find_if(siblings,
                                    [node](const auto& each) { return each.get() == node; });
    };
    return field && place(field) > place(&label);
}

TEST_P(LibraryTemplates, GiveEachButtonAndLabelledFieldALetterThatIsLeft) {
    kv::AddToResourceChain(kv::LibraryResources());
    const kv::DialogTemplate* found = kv::FindTemplate(GetParam());
    kv::RemoveFromResourceChain(kv::LibraryResources());
    const auto dialog = std::make_shared<kv::Node>(kv::NodeClass::kDialog, 0, DWORD{0});
    kv::CreateControls(*dialog, *found);
    std::map<char, const kv::Node*> owners;
    for (const auto& child : dialog->Children()) {
        const char letter = kv::MnemonicOf(*child);
        const bool given = letter && !kv::MarkedMnemonicOf(*child);
        if (given) {
            EXPECT_TRUE(LettersOf(*child).contains(letter)) << child->Text();
            EXPECT_FALSE(owners.contains(letter)) << child->Text() << ": " << letter;
        }
        if (letter) owners[letter] = child.get();
    }
    for (const auto& child : dialog->Children()) {
        const bool wants = kv::IsPushButton(*child) || NamesAField(*child);
        if (!wants || kv::MnemonicOf(*child)) continue;
        for (const char letter : LettersOf(*child))
            EXPECT_TRUE(owners.contains(letter)) << child->Text() << " could have " << letter;
    }
}

INSTANTIATE_TEST_SUITE_P(, LibraryTemplates, testing::ValuesIn(Ids()),
                         [](const auto& each) { return std::to_string(each.param); });

TEST(TemplateIds, AreGivenOnce) {
    std::set<int> ids;
    for (const kv::DialogTemplate* each : Templates()) {
        EXPECT_TRUE(ids.insert(each->id).second) << each->id << " " << each->caption;
    }
    EXPECT_FALSE(ids.empty());
}

}  // namespace
