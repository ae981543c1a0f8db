#include "bexa/design/figures.h"

#include "bexa/foundation/ygeometry/ygeo_line.h"

#include <gtest/gtest.h>

namespace {

const YintPoint origin(0, 0);

TEST(FigureArray, HoldsPointersAndOwnsNothing) {
    YgeoLine line(origin, YintPoint(10, 0));
    {
        BexFigureArray figures;
        EXPECT_EQ(figures.append(&line), 1u);
        EXPECT_EQ(figures.size(), 1);
        EXPECT_EQ(figures[0], &line);
        EXPECT_EQ(figures[2], nullptr); // reading past the end extends the array
        EXPECT_EQ(figures.size(), 3);
        figures.removeAll();
    }
    EXPECT_EQ(line.to(), YintPoint(10, 0));
}

TEST(FigureStack, GivesFiguresBackInReverse) {
    YgeoLine first(origin, YintPoint(10, 0));
    YgeoLine second(origin, YintPoint(0, 10));
    BexFigureStack figures;
    EXPECT_EQ(figures.isEmpty(), 1u);
    EXPECT_EQ(figures.pop(), nullptr);
    figures.push(&first);
    figures.push(&second);
    EXPECT_EQ(figures.count(), 2);
    EXPECT_EQ(figures.top(), &second);
    EXPECT_EQ(figures.bottom(), &first);
    EXPECT_EQ(figures.pop(), &second);
    EXPECT_EQ(figures.pop(), &first);
    EXPECT_EQ(figures.pop(), &first); // an empty stack gives the first of its array
    EXPECT_EQ(figures.count(), 0);
}

} // namespace
