// The steps of zooming, what fits a room, the ticks of rulers, and reaches of the hand at a zoom.
#include "document/element_place.h"
#include "editing/group_scale.h"
#include "editing/hit_test.h"
#include "editing/manipulation.h"
#include "editing/pick_index.h"
#include "editing/zoom.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarvel {
namespace {

Element boxAt(const Place& place) {
    Element element;
    setPlace(element.elementControl, place);
    return element;
}

Element lineAt(const Place& ends) {
    Element element;
    element.elementKind = ElementKind::Line;
    element.elementControl.kind = ControlKind::lin;
    setPlace(element.elementControl, ends);
    return element;
}

TEST(Zoom, GoesThroughItsStepsAndStopsAtTheirEnds) {
    int zoom = smallestZoom;
    for (const int step : zoomSteps) {
        EXPECT_EQ(zoom, step);
        zoom = zoomedIn(zoom);
    }
    EXPECT_EQ(zoom, largestZoom);
    for (auto step = zoomSteps.rbegin(); step != zoomSteps.rend(); ++step) {
        EXPECT_EQ(zoom, *step);
        zoom = zoomedOut(zoom);
    }
    EXPECT_EQ(zoom, smallestZoom);
}

TEST(Zoom, GoesOnFromBetweenTwoSteps) {
    EXPECT_EQ(zoomedIn(137), 150);
    EXPECT_EQ(zoomedOut(137), 100);
    EXPECT_EQ(zoomedIn(99), 100);
    EXPECT_EQ(zoomedOut(101), 100);
}

TEST(Zoom, FitsTheWholeScreenIntoARoom) {
    struct Case {
        double width;
        double height;
        int zoom;
    };
    for (const auto& [width, height, zoom] : {Case{640, 480, 100},
                                              {640, 4800, 100},
                                              {6400, 480, 100},
                                              {639, 480, 99},
                                              {716.8, 537.6, 100},
                                              {723.2, 542.4, 113},
                                              {1280, 960, 200},
                                              {1279, 960, 199},
                                              {320, 480, 50},
                                              {10, 10, 25},
                                              {0, -5, 25},
                                              {1e9, 1e9, 1600}}) {
        EXPECT_EQ(fittingZoom(width, height), zoom) << width << " x " << height;
    }
}

TEST(Zoom, TicksStandApartAtEveryStep) {
    for (const int zoom : zoomSteps) {
        const double scale = zoom / 100.0;
        const auto [number, tick] = rulerTicks(scale);
        EXPECT_GE(number * scale, 48) << zoom;
        EXPECT_LE(number * scale, 150) << zoom;
        EXPECT_GE(tick * scale, 5) << zoom;
        EXPECT_EQ(number % tick, 0) << zoom;
    }
    EXPECT_EQ(rulerTicks(1), (RulerTicks{50, 5}));
    EXPECT_EQ(rulerTicks(16), (RulerTicks{5, 1}));
    EXPECT_EQ(rulerTicks(0.25), (RulerTicks{200, 20}));
}

// So many pixels of the window from a corner at 100, 100.
SkinPoint besideCorner(double zoom, double pixels) {
    return {toSingle(100 + pixels / zoom), toSingle(100 + pixels / zoom)};
}

class ReachAtZoom : public testing::TestWithParam<double> {};

TEST_P(ReachAtZoom, OfHandlesIsTheSameOnTheDisplay) {
    const double zoom = GetParam();
    const Element box = boxAt({100, 100, 400, 400});
    EXPECT_EQ(handleAt(box, besideCorner(zoom, -5), zoom), Handle::topLeft);
    EXPECT_EQ(handleAt(box, besideCorner(zoom, 5), zoom), Handle::topLeft);
    EXPECT_EQ(handleAt(box, besideCorner(zoom, -6), zoom), Handle::none);
    EXPECT_EQ(handleAt(box, besideCorner(zoom, 6), zoom), Handle::none);
    const Place frame{100, 100, 400, 400};
    EXPECT_EQ(frameHandleAt(frame, besideCorner(zoom, 5), zoom), Handle::topLeft);
    EXPECT_EQ(frameHandleAt(frame, besideCorner(zoom, 6), zoom), Handle::none);
}

TEST_P(ReachAtZoom, OfMiddleHandlesGoesByTheSideOnTheDisplay) {
    const double zoom = GetParam();
    const Element small = boxAt({0, 0, toSingle(23.5 / zoom), 400});
    const Element large = boxAt({0, 0, toSingle(24.5 / zoom), 400});
    EXPECT_FALSE(hasHandle(small, Handle::top, zoom));
    EXPECT_TRUE(hasHandle(large, Handle::top, zoom));
    EXPECT_TRUE(hasFrameHandle({0, 0, toSingle(24.5 / zoom), 400}, Handle::top, zoom));
}

TEST_P(ReachAtZoom, OfLineEndsIsTheSameAroundTheMiddleOfTheirPixel) {
    const double zoom = GetParam();
    SkinDocument document;
    document.addElement(lineAt({100, 100, 400, 400}));
    PickIndex index;
    const double middle = lineEndShift(zoom) * zoom; // in pixels of the window
    for (const double pixels : {-8.0, -6.5, 0.0, 6.5, 8.0}) {
        const SkinPoint point = besideCorner(zoom, middle + pixels);
        const bool isHit = pixels > -7 && pixels < 7;
        EXPECT_EQ(rowAt(document, point, zoom), isHit ? 0 : -1) << pixels;
        EXPECT_EQ(index.rowAt(document, point, zoom), isHit ? 0 : -1) << pixels;
        EXPECT_EQ(handleAt(document.element(1), point, zoom),
                  isHit ? Handle::firstEnd : Handle::none);
    }
}

INSTANTIATE_TEST_SUITE_P(Zooms, ReachAtZoom, testing::Values(0.25, 1.0, 4.0, 16.0));

TEST(Zoom, AnIndexFollowsTheZoom) {
    SkinDocument document;
    document.addElement(lineAt({100, 100, 400, 400}));
    PickIndex index;
    EXPECT_EQ(index.rowAt(document, {120, 100}, 1), -1);
    EXPECT_EQ(index.rowAt(document, {120, 100}, 0.25), 0);
    EXPECT_EQ(index.rowAt(document, {106, 100}, 16), -1);
    EXPECT_EQ(index.rowAt(document, {106, 100}, 1), 0);
}

TEST(Zoom, APressDrawsFromFourPixelsOfTheWindowOn) {
    EXPECT_EQ(drawThresholdAt(1), 4);
    EXPECT_EQ(drawThresholdAt(0.25), 16);
    EXPECT_EQ(drawThresholdAt(2), 2);
    EXPECT_EQ(drawThresholdAt(16), 1);
    SkinDocument document;
    const int id = document.addElement(boxAt({100, 100, 0, 0}));
    DrawDrag click(id, {100, 100});
    click.finish(document, {112, 100}, std::nullopt, 0.25);
    EXPECT_EQ(placeOf(document.element(id).elementControl)[2], 120); // the default size
    const int other = document.addElement(boxAt({100, 100, 0, 0}));
    DrawDrag drawn(other, {100, 100});
    drawn.finish(document, {101, 100}, std::nullopt, 4);
    EXPECT_EQ(placeOf(document.element(other).elementControl)[2], 1);
}

} // namespace
} // namespace tarvel
