#include "bexa/design/canvas.h"

#include "bexa/names/id_name.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

namespace {

// What a drawing program has to supply.
class Paper : public BexCanvas {
public:
    unsigned long beginPicture() override { return 1; }
    unsigned long endPicture() override { return 1; }
    void clear() override { ++drawn; }
    void flush() override { ++drawn; }
    void refresh(const YintPoint&, const YintPoint&) override { ++drawn; }
    YintPoint viewOrigin() const override { return {}; }
    void setViewOrigin(const YintPoint&) override { ++drawn; }
    double viewScale() const override { return 1.0; }
    void setViewScale(double) override { ++drawn; }
    void pan(const YintPoint&) override { ++drawn; }
    void zoom(const YintPoint&, double) override { ++drawn; }
    void fit(const YintPoint&, const YintPoint&) override { ++drawn; }
    YintPoint toDevice(const YintPoint&) const override { return {}; }
    YintPoint fromDevice(const YintPoint&) const override { return {}; }
    void clip(const YintPoint&, const YintPoint&) override { ++drawn; }
    void unclip() override { ++drawn; }
    unsigned long isVisible(const YintPoint&, const YintPoint&) const override { return 1; }
    void saveState() override { ++drawn; }
    void restoreState() override { ++drawn; }
    void translate(const YintPoint&) override { ++drawn; }
    void rotate(Yangle, const YintPoint&) override { ++drawn; }
    void mirror(const YintPoint&) override { ++drawn; }
    void resetTransform() override { ++drawn; }
    void setColor(unsigned int) override { ++drawn; }
    void setLineWidth(unsigned int) override { ++drawn; }
    void setLineStyle(unsigned long) override { ++drawn; }
    void setFillStyle(unsigned int) override { ++drawn; }
    void setTextFont(unsigned int) override { ++drawn; }
    void setTextAngle(Yangle) override { ++drawn; }
    void setTextJustify(int) override { ++drawn; }
    void setHighlight(unsigned long) override { ++drawn; }
    void moveTo(const YintPoint&) override { ++drawn; }
    void lineTo(const YintPoint&) override { ++drawn; }
    void line(const YintPoint&, const YintPoint&) override { ++drawn; }
    void polyline(const YintPoint*, int) override { ++drawn; }
    void polygon(const YintPoint*, int) override { ++drawn; }
    void fillPolygon(const YintPoint*, int) override { ++drawn; }
    void rectangle(const YintPoint&, const YintPoint&) override { ++drawn; }
    void fillRectangle(const YintPoint&, const YintPoint&) override { ++drawn; }
    void circle(const YintPoint&, long) override { ++drawn; }
    void fillCircle(const YintPoint&, long) override { ++drawn; }
    void arc(const YintPoint&, long, Yangle, Yangle) override { ++drawn; }
    void fillArc(const YintPoint&, long, Yangle, Yangle) override { ++drawn; }
    void ellipse(const YintPoint&, long, long) override { ++drawn; }
    void node(const YintPoint&, long) override { ++drawn; }
    void cross(const YintPoint&, long) override { ++drawn; }
    void grid(const YintPoint&, const YintPoint&) override { ++drawn; }
    void figure(const YgeoFigure&) override { ++drawn; }
    void text(const YintPoint&, const char*) override { ++drawn; }
    long textWidth(const char*) const override { return 0; }
    long textHeight() const override { return 0; }
    void rubberLine(const YintPoint&, const YintPoint&) override { ++drawn; }
    void rubberRectangle(const YintPoint&, const YintPoint&) override { ++drawn; }
    void rubberFigure(const YgeoFigure&) override { ++drawn; }
    void eraseRubber() override { ++drawn; }

    int drawn = 0;
};

class Store : public BexCdb {
public:
    explicit Store(bool& ended) : ended_(ended) {}
    ~Store() override { ended_ = true; }

    unsigned long open(const char*, BexOpenMode) override { return 1; }
    unsigned long close(BexCloseMode) override { return 1; }
    unsigned long save() override { return 1; }
    unsigned long isChanged() const override { return 1; }
    int objectCount(BexObjectType) const override { return 0; }
    unsigned long object(BexObjectType, int, BexIdName&) const override { return 1; }
    unsigned long property(const BexIdName&, const char*, YString&) const override { return 1; }
    unsigned long setProperty(const BexIdName&, const char*, const char*) override { return 1; }

private:
    bool& ended_;
};

static_assert(std::is_abstract_v<BexCanvas>);
static_assert(std::is_abstract_v<BexCdb>);
static_assert(std::has_virtual_destructor_v<BexCanvas>);
static_assert(std::has_virtual_destructor_v<BexCdb>);
static_assert(sizeof(BexCdb) == sizeof(void*)); // no data

TEST(Canvas, KeepsAnOmitSize) {
    Paper paper;
    EXPECT_EQ(paper.omitsize(), 0);
    paper.omitsize(-12);
    EXPECT_EQ(paper.omitsize(), -12);
}

TEST(Canvas, TakesTheOmitSizeOver) {
    Paper paper;
    paper.omitsize(12);
    const Paper copy(paper);
    EXPECT_EQ(copy.omitsize(), 12);
    Paper assigned;
    BexCanvas& canvas = assigned;
    canvas = paper;
    EXPECT_EQ(assigned.omitsize(), 12);
}

TEST(Canvas, IsDrawnOnThroughItsBase) {
    Paper paper;
    BexCanvas& canvas = paper;
    canvas.line(YintPoint(0, 0), YintPoint(1, 1));
    EXPECT_EQ(paper.drawn, 1);
}

TEST(CircuitDatabase, EndsThroughItsBase) {
    bool ended = false;
    {
        const std::unique_ptr<BexCdb> store = std::make_unique<Store>(ended);
        EXPECT_EQ(store->save(), 1u);
        EXPECT_FALSE(ended);
    }
    EXPECT_TRUE(ended);
}

} // namespace
