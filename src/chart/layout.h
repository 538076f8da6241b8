// The position and size of each part of a chart, in the units of the area on which it is drawn, the paper. x
// grows to the right, y downwards.
#pragma once

#include "chart/scale.h"

namespace plotvue {

// Text sizes. A title that does not fit is set in smaller sizes down to BodyTitle, labels and values down to
// Tiny.
enum class TextRole { Tiny, Small, Body, BodyTitle, MediumTitle, LargeTitle };
inline constexpr std::size_t textRoles = 6;

// Measures text in the fonts in which it will be drawn.
class Metrics {
public:
    virtual ~Metrics() = default;
    virtual double width(TextSpan text, TextRole role) const = 0;
    virtual double height(TextRole role) const = 0; // of a line
};

struct Size {
    double width = 0, height = 0;
    bool operator==(const Size&) const = default;
};

struct Rect {
    double left = 0, top = 0, width = 0, height = 0;
    double right() const { return left + width; }
    double bottom() const { return top + height; }
    double centreX() const { return left + width / 2; }
    double centreY() const { return top + height / 2; }
    bool operator==(const Rect&) const = default;
};

struct Line { // a line of text, drawn from the left edge of its box
    Rect box;
    Text text;
    bool operator==(const Line&) const = default;
};

struct Title : Line {
    TextRole role = TextRole::Small;
    bool main = false;
    bool operator==(const Title&) const = default;
};
struct LegendEntry {
    std::size_t series = 0; // index in PlotData::series()
    Rect swatch;
    Line name;
    bool operator==(const LegendEntry&) const = default;
};
struct Tick {
    double y = 0;
    Line figure;
    bool operator==(const Tick&) const = default;
};
// The box of a slanted label is its box before it is rotated by -45 degrees about the middle of its right
// edge. Where months are abbreviated to initials, a January has two labels: "J" and the year below it.
struct SlotLabel {
    int slot = 0;
    Line name;
    bool strong = true; // false for the months other than January in a chart of whole years
    bool operator==(const SlotLabel&) const = default;
};
struct Bar {
    std::size_t series = 0; // index in PlotData::series()
    int slot = 0;
    Rect box;
    bool up = true;
    bool end = true; // the outermost bar of its stack
    bool operator==(const Bar&) const = default;
};
struct SlotValue {
    int slot = 0;
    Line figure;
    bool operator==(const SlotValue&) const = default;
};

struct Layout {
    Size paper;
    double pixel = 0;    // size of a device pixel, to which all edges are snapped; 0: no snapping
    double hairline = 1; // thickness of all lines
    double em = 0;       // line height of TextRole::Small

    std::vector<Title> titles; // without empty ones
    std::vector<LegendEntry> legend;

    int slotCount = 0, pointCount = 0; // 0: the members below are not set
    Rect plot;
    Scale scale;
    double slotWidth = 0;
    std::vector<Tick> ticks;
    double zero = 0; // y of the zero line
    std::vector<SlotLabel> labels;
    TextRole labelRole = TextRole::Small;
    bool slanted = false;          // whether the labels are slanted
    std::vector<double> yearRules; // x of the lines between December and January
    std::vector<Bar> bars;         // a figure of zero has no bar, but a component of zero has a flat one
    std::vector<SlotValue> values; // figures above or below the bars; empty unless all of them fit
    TextRole valueRole = TextRole::Small;

    Rect slotBox(int slot) const;
    int slotAt(double x, double y) const; // the point with its slot or label at this position; -1: none
    double y(double value) const;         // a value outside the axis is clamped to its end
    double snapped(double length) const;

    bool operator==(const Layout&) const = default;
};

// `deviceScale` is the number of device pixels per unit; 0 for printing, where nothing is snapped.
Layout layoutChart(const PlotData& data, Size paper, const Metrics& metrics, double deviceScale);

} // namespace plotvue
