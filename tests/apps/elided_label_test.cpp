#include "workbench/elided_label.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>

namespace workbench {
namespace {

const QString kText = QStringLiteral("EUGENE ISLAND SOUTH ADDITION 391");

class Elided : public ::testing::Test {
protected:
    Elided() {
        label.setText(kText);
        label.resize(label.sizeHint());
    }
    ~Elided() override { QToolTip::hideText(); }

    void Rest() {
        QHelpEvent rest(QEvent::ToolTip, label.rect().center(),
                        label.mapToGlobal(label.rect().center()));
        QApplication::sendEvent(&label, &rest);
    }

    ElidedLabel label;
};

TEST_F(Elided, ATextThatFitsIsShownWhole) {
    EXPECT_EQ(label.Shown(), kText);
    Rest();
    EXPECT_EQ(QToolTip::text(), QString());
}

TEST_F(Elided, WhatDoesNotFitEndsInDotsAndIsToldWhole) {
    label.resize(label.width() / 2, label.height());
    EXPECT_TRUE(kText.startsWith(label.Shown().chopped(1)));
    EXPECT_TRUE(label.Shown().endsWith(QChar(0x2026)));
    EXPECT_EQ(label.text(), kText) << "a screen reader is told all of it";
    Rest();
    EXPECT_EQ(QToolTip::text(), kText);
}

TEST_F(Elided, TheDotsAreDrawn) {
    label.resize(label.width() / 2, label.height());
    const QImage cut = label.grab().toImage();
    label.setText(label.Shown());
    EXPECT_EQ(label.Shown(), label.text());
    EXPECT_EQ(label.grab().toImage(), cut);
}

TEST_F(Elided, LongTextsAskForMoreRoomAndInsistOnNone) {
    ElidedLabel other;
    other.setText(kText + kText);
    EXPECT_GT(other.sizeHint().width(), label.sizeHint().width());
    EXPECT_EQ(other.minimumSizeHint().width(), label.minimumSizeHint().width());
    EXPECT_LT(label.minimumSizeHint().width(), label.sizeHint().width() / 2);
}

TEST_F(Elided, RoomIsKeptForTheWidestText) {
    label.SetWidest(kText);
    const QSize room = label.sizeHint();
    label.setText("A");
    EXPECT_EQ(label.sizeHint().width(), room.width());
    label.clear();
    EXPECT_EQ(label.sizeHint().width(), room.width());
}

}  // namespace
}  // namespace workbench
