// Letters that are too much for the library that makes crisp ones.
#include "media/intricate_letters.h"

#include <QTransform>

#include <gtest/gtest.h>

namespace coinlet {
namespace {

/// Upright bars, each a quarter of a pixel wide and of the same height.
QPainterPath Bars(int count, double height) {
    QPainterPath path;
    for (int i = 0; i < count; ++i)
        path.addRect(i * 1.25 + 0.375, 3.25, 0.25, height);
    return path;
}

TEST(IntricateLetters, EdgesOfARowOfPixelsCount) {
    // Each bar has two edges.
    EXPECT_FALSE(IsIntricate(Bars(90, 8)));
    EXPECT_TRUE(IsIntricate(Bars(91, 8)));
    EXPECT_TRUE(IsIntricate(Bars(91, 0.2)));
}

TEST(IntricateLetters, EdgesOfAColumnCountLikewise) {
    const QTransform quarter = QTransform().rotate(90);
    EXPECT_FALSE(IsIntricate(quarter.map(Bars(90, 8))));
    EXPECT_TRUE(IsIntricate(quarter.map(Bars(91, 8))));
}

TEST(IntricateLetters, ManyRowsAndColumnsWithFewEdgesAreNone) {
    QPainterPath scattered;
    for (int i = 0; i < 300; ++i)
        scattered.addRect(i, i, 0.75, 0.75);
    EXPECT_GT(scattered.elementCount(), 1000);
    EXPECT_FALSE(IsIntricate(scattered));
    // Until they are as small as a row.
    EXPECT_TRUE(IsIntricate(QTransform::fromScale(1, 0.003).map(scattered)));
}

TEST(IntricateLetters, StepsInOneDirectionAreOneEdge) {
    QPainterPath stairs;
    for (int i = 0; i < 400; ++i) {
        stairs.lineTo(i, i * 0.01);
        stairs.lineTo(i + 1, i * 0.01);
    }
    EXPECT_FALSE(IsIntricate(stairs));
    QPainterPath saw;
    for (int i = 0; i < 400; ++i)
        saw.lineTo(i, i % 2);
    EXPECT_TRUE(IsIntricate(saw));
}

TEST(IntricateLetters, WhatIsNoLetterIsNoHarm) {
    EXPECT_FALSE(IsIntricate(QPainterPath()));
    EXPECT_FALSE(IsIntricate(QTransform::fromScale(1, 1e9).map(Bars(300, 8))));
    EXPECT_FALSE(IsIntricate(Bars(300, 8).translated(0, 1e12)));
}

}  // namespace
}  // namespace coinlet
