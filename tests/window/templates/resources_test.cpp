#include "window/templates/resources.h"

#include <cstddef>
#include <memory>
#include <new>
#include <vector>

#include "support/dialog_fixture.h"
#include "support/failing_memory.h"

namespace {

using kv::ResourceModule;

const kv::DialogTemplate kFirst{500, "First", 10, 10, {}};
const kv::DialogTemplate kOther{500, "Other", 10, 10, {}};
const kv::DialogTemplate kOnlyInFirst{501, "Only", 10, 10, {}};

class ResourceChain : public ::testing::Test {
protected:
    ResourceChain() {
        first_.templates = {&kFirst, &kOnlyInFirst};
        second_.templates = {&kOther};
    }
    ResourceModule first_;
    ResourceModule second_;
};

TEST_F(ResourceChain, FindsNothingThatIsNotInIt) {
    EXPECT_EQ(kv::FindTemplate(500), nullptr);
    EXPECT_EQ(kv::FindImage(500), nullptr);
    EXPECT_EQ(AfxFindResourceHandle(500, ResourceKind::kDialog), nullptr);
}

TEST_F(ResourceChain, IsSearchedFromTheModuleThatJoinedLast) {
    kv::AddToResourceChain(first_);
    EXPECT_EQ(kv::FindTemplate(500), &kFirst);
    kv::AddToResourceChain(second_);
    EXPECT_EQ(kv::FindTemplate(500), &kOther);
    EXPECT_EQ(kv::FindTemplate(501), &kOnlyInFirst);
    EXPECT_EQ(AfxFindResourceHandle(500, ResourceKind::kDialog), &second_);
    EXPECT_EQ(AfxFindResourceHandle(501, ResourceKind::kDialog), &first_);
    EXPECT_EQ(AfxFindResourceHandle(501, ResourceKind::kImage), nullptr);
    kv::RemoveFromResourceChain(second_);
    EXPECT_EQ(kv::FindTemplate(500), &kFirst);
    kv::RemoveFromResourceChain(first_);
    EXPECT_EQ(kv::FindTemplate(500), nullptr);
}

TEST_F(ResourceChain, AModuleThatJoinedTwiceLeavesTwice) {
    kv::AddToResourceChain(first_);
    kv::AddToResourceChain(first_);
    kv::RemoveFromResourceChain(first_);
    EXPECT_EQ(kv::FindTemplate(500), &kFirst);
    kv::RemoveFromResourceChain(first_);
    EXPECT_EQ(kv::FindTemplate(500), nullptr);
    kv::RemoveFromResourceChain(first_);
}

TEST_F(ResourceChain, ATemplateJoinsTheModuleThatItIsRegisteredIn) {
    ResourceModule module;
    const kv::RegisterTemplate registered(kOnlyInFirst, module);
    ASSERT_EQ(module.templates.size(), 1u);
    EXPECT_EQ(module.templates[0], &kOnlyInFirst);
}

TEST_F(ResourceChain, AnExtensionModuleIsInItFromItsLibraryObjectToItsEnd) {
    AFX_EXTENSION_MODULE record;
    EXPECT_FALSE(AfxInitExtensionModule(record, nullptr));
    EXPECT_FALSE(record.bInitialized);
    EXPECT_TRUE(AfxInitExtensionModule(record, &first_));
    EXPECT_TRUE(record.bInitialized);
    EXPECT_EQ(record.hModule, &first_);
    EXPECT_EQ(kv::FindTemplate(500), nullptr);

    auto* library = new CDynLinkLibrary(record, FALSE);
    EXPECT_EQ(library->m_hModule, &first_);
    EXPECT_EQ(kv::FindTemplate(500), &kFirst);

    AfxTermExtensionModule(record);
    EXPECT_FALSE(record.bInitialized);
    EXPECT_EQ(kv::FindTemplate(500), nullptr);
    AfxTermExtensionModule(record);
}

TEST_F(ResourceChain, AModuleThatEndedMayBeginAgain) {
    AFX_EXTENSION_MODULE record;
    AfxInitExtensionModule(record, &first_);
    new CDynLinkLibrary(record);
    AfxTermExtensionModule(record);
    EXPECT_EQ(record.hModule, nullptr);
    EXPECT_TRUE(AfxInitExtensionModule(record, &second_));
    EXPECT_EQ(record.hModule, &second_);
    EXPECT_EQ(kv::FindTemplate(500), nullptr);
    new CDynLinkLibrary(record);
    EXPECT_EQ(kv::FindTemplate(500), &kOther);
    AfxTermExtensionModule(record);
    EXPECT_EQ(kv::FindTemplate(500), nullptr);
}

TEST_F(ResourceChain, ARecordThatIsNotFilledPutsNothingIn) {
    AFX_EXTENSION_MODULE record;
    {
        const CDynLinkLibrary library(record);
        EXPECT_EQ(library.m_hModule, nullptr);
        EXPECT_EQ(kv::FindTemplate(500), nullptr);
    }
    AfxTermExtensionModule(record);
    AfxInitExtensionModule(record, &first_);
    AfxTermExtensionModule(record);
    {
        const CDynLinkLibrary library(record);
        EXPECT_EQ(kv::FindTemplate(500), nullptr);
    }
}

TEST_F(ResourceChain, LibraryObjectsGoInAnyOrder) {
    AFX_EXTENSION_MODULE one;
    AFX_EXTENSION_MODULE two;
    AfxInitExtensionModule(one, &first_);
    AfxInitExtensionModule(two, &second_);
    new CDynLinkLibrary(one);
    auto between = std::make_unique<CDynLinkLibrary>(two);
    new CDynLinkLibrary(one);
    between.reset();
    EXPECT_EQ(kv::FindTemplate(500), &kFirst);
    AfxTermExtensionModule(one);
    EXPECT_EQ(kv::FindTemplate(500), nullptr);
    AfxTermExtensionModule(two);
}

TEST_F(ResourceChain, WithoutMemoryAModuleDoesNotJoin) {
    AFX_EXTENSION_MODULE record;
    AfxInitExtensionModule(record, &first_);
    // As many as fill whatever room the chain has at hand.
    std::vector<std::unique_ptr<CDynLinkLibrary>> joined;
    int refused = 0;
    for (int each = 0; each < 40; ++each) {
        const auto place = std::make_unique<std::byte[]>(sizeof(CDynLinkLibrary));
        try {
            const test::FailingMemory memory;
            std::destroy_at(new (place.get()) CDynLinkLibrary(record));
        } catch (const std::bad_alloc&) {
            ++refused;
        }
        joined.push_back(std::make_unique<CDynLinkLibrary>(record));
    }
    EXPECT_GT(refused, 0);
    joined.clear();
    EXPECT_EQ(kv::FindTemplate(500), nullptr);
}

TEST_F(ResourceChain, ALibraryObjectThatGoesEarlyTakesItsModuleOut) {
    AFX_EXTENSION_MODULE record;
    AfxInitExtensionModule(record, &first_);
    {
        const CDynLinkLibrary library(record);
        EXPECT_EQ(kv::FindTemplate(500), &kFirst);
    }
    EXPECT_EQ(kv::FindTemplate(500), nullptr);
}

TEST_F(ResourceChain, EndingAModuleLeavesOthersIn) {
    AFX_EXTENSION_MODULE one;
    AFX_EXTENSION_MODULE two;
    AfxInitExtensionModule(one, &first_);
    AfxInitExtensionModule(two, &second_);
    new CDynLinkLibrary(one);
    new CDynLinkLibrary(two);
    AfxTermExtensionModule(two);
    EXPECT_EQ(kv::FindTemplate(500), &kFirst);
    AfxTermExtensionModule(one);
}

TEST_F(ResourceChain, NoDialogOpensBeforeItsModuleIsInIt) {
    CDialog dialog(500);
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_FALSE(dialog.Create(500));
    kv::AddToResourceChain(first_);
    EXPECT_TRUE(dialog.Create(500));
    EXPECT_EQ(dialog.WindowText(), "First");
    kv::RemoveFromResourceChain(first_);
}

}  // namespace
