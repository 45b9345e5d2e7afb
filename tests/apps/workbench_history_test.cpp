#include "workbench/document/document_history.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <random>
#include <vector>

namespace workbench {
namespace {

MapDocument Named(const std::string& name) {
    MapDocument document{"owner.stem", BuiltMap{}, {}};
    document.map->name = name;
    return document;
}

TEST(DocumentHistory, GoesBackAndForthThroughWhatWasDone) {
    DocumentHistory history;
    history.Begin(Named("a"));
    history.Do(Named("b"), "first");
    history.Do(Named("c"), "second");
    EXPECT_EQ(history.UndoLabel(), "second");
    history.Undo();
    EXPECT_EQ(history.Current(), Named("b"));
    EXPECT_EQ(history.UndoLabel(), "first");
    EXPECT_EQ(history.RedoLabel(), "second");
    history.Undo();
    EXPECT_EQ(history.Current(), Named("a"));
    EXPECT_FALSE(history.CanUndo());
    EXPECT_EQ(history.UndoLabel(), "");
    history.Undo();
    EXPECT_EQ(history.Current(), Named("a"));
    history.Redo();
    history.Redo();
    EXPECT_EQ(history.Current(), Named("c"));
    EXPECT_FALSE(history.CanRedo());
    history.Redo();
    EXPECT_EQ(history.Current(), Named("c"));
}

TEST(DocumentHistory, WhatWasUndoneGoesWithTheNextChange) {
    DocumentHistory history;
    history.Begin(Named("a"));
    history.Do(Named("b"), "first");
    history.Undo();
    history.Do(Named("c"), "second");
    EXPECT_FALSE(history.CanRedo());
    history.Undo();
    EXPECT_EQ(history.Current(), Named("a"));
}

TEST(DocumentHistory, ADocumentThatIsNoOtherIsNoChange) {
    DocumentHistory history;
    history.Begin(Named("a"));
    QSignalSpy changed(&history, &DocumentHistory::Changed);
    history.Do(Named("a"), "nothing");
    EXPECT_FALSE(history.CanUndo());
    EXPECT_TRUE(changed.isEmpty());
    MapDocument shared = Named("a");
    shared.drawings = std::make_shared<const Drawings>();
    history.Do(shared, "nothing");
    EXPECT_TRUE(changed.isEmpty()) << "no drawings are drawings without any";
    history.Do(Named("b"), "something");
    EXPECT_EQ(changed.size(), 1);
}

TEST(DocumentHistory, KnowsWhichStateIsInTheFile) {
    DocumentHistory history;
    history.Begin(Named("a"));
    EXPECT_TRUE(history.IsSaved());
    history.Do(Named("b"), "first");
    EXPECT_FALSE(history.IsSaved());
    history.MarkSaved();
    history.Undo();
    EXPECT_FALSE(history.IsSaved()) << "the file holds what was undone";
    history.Redo();
    EXPECT_TRUE(history.IsSaved());
    history.Undo();
    history.Do(Named("c"), "second");
    EXPECT_FALSE(history.IsSaved());
    history.Undo();
    history.Redo();
    EXPECT_FALSE(history.IsSaved()) << "what is in the file cannot be reached any more";
}

TEST(DocumentHistory, DeedsOfOneSeriesAreUndoneAsOne) {
    DocumentHistory history;
    history.Begin(Named("a"));
    history.Do(Named("b"), "move", "1");
    history.Do(Named("c"), "move", "1");
    history.Do(Named("d"), "move", "2");
    history.Do(Named("e"), "move", "2");
    EXPECT_EQ(history.Current(), Named("e"));
    history.Undo();
    EXPECT_EQ(history.Current(), Named("c"));
    history.Undo();
    EXPECT_EQ(history.Current(), Named("a"));
    history.Do(Named("f"), "move", "1");
    history.MarkSaved();
    history.Do(Named("g"), "move", "1");
    history.Undo();
    EXPECT_EQ(history.Current(), Named("f")) << "what is in the file is a state of its own";
    EXPECT_TRUE(history.IsSaved());
    history.Do(Named("h"), "draw");
    history.Do(Named("i"), "draw");
    history.Undo();
    EXPECT_EQ(history.Current(), Named("h")) << "other deeds are each undone by themselves";
}

TEST(DocumentHistory, KeepsAHundredDeeds) {
    DocumentHistory history;
    history.Begin(Named("0"));
    for (int deed = 1; deed <= 150; ++deed)
        history.Do(Named(std::to_string(deed)), "deed");
    int undone = 0;
    for (; history.CanUndo(); ++undone)
        history.Undo();
    EXPECT_EQ(undone, 100);
    EXPECT_EQ(history.Current(), Named("50"));
    EXPECT_FALSE(history.IsSaved()) << "what is in the file was ahead of them";
}

/// Against a plain list of documents and a place in it.
TEST(DocumentHistory, IsAListAndAPlaceInItWhateverIsDone) {
    std::mt19937 random(11);
    DocumentHistory history;
    history.Begin(Named("start"));
    std::vector<std::string> names{"start"};
    std::size_t at = 0;
    int saved = 0;
    for (int step = 0; step < 3000; ++step) {
        switch (random() % 5) {
            case 0:
            case 1:
                names.resize(at + 1);
                if (saved > static_cast<int>(at)) saved = -1;
                names.push_back(std::to_string(step));
                ++at;
                if (names.size() > 101) {
                    names.erase(names.begin());
                    --at;
                    if (saved >= 0) --saved;
                }
                history.Do(Named(names.back()), QString::number(step));
                break;
            case 2:
                if (at > 0) --at;
                history.Undo();
                break;
            case 3:
                if (at + 1 < names.size()) ++at;
                history.Redo();
                break;
            default:
                if (random() % 8 != 0) break;
                saved = static_cast<int>(at);
                history.MarkSaved();
        }
        ASSERT_EQ(history.Current(), Named(names[at]));
        ASSERT_EQ(history.CanUndo(), at > 0);
        ASSERT_EQ(history.CanRedo(), at + 1 < names.size());
        ASSERT_EQ(history.IsSaved(), saved == static_cast<int>(at));
    }
}

}  // namespace
}  // namespace workbench
