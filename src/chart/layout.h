// Where every part of a chart is drawn. Units are those of the paper; x grows to the right, y downwards.
#pragma once

#include "chart/scale.h"

namespace plotvue::chart {

// Sizes of type. A title that does not fit is set smaller, down to BodyTitle; labels, down to Tiny.
enum class TextRole { Tiny, Small, Body, BodyTitle, MediumTitle, LargeTitle };
inline constexpr std::size_t textRoles = 6;

// How much room text takes in the fonts in which it will be drawn.
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

struct Line { // of text, drawn from the left of its box
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
    std::size_t series = 0; // of PlotData
    Rect swatch;
    Line name;
    bool operator==(const LegendEntry&) const = default;
};
struct Tick {
    double y = 0;
    Line figure;
    bool operator==(const Tick&) const = default;
};
// The box of a slanted label is where it would be if it were level: it is turned by -45 degrees about the
// middle of its right edge. A January whose months are set as initials has two labels: "J" and, below it, its
// year.
struct SlotLabel {
    int slot = 0;
    Line name;
    bool strong = true; // false: one of the months between the Januaries
    bool operator==(const SlotLabel&) const = default;
};
struct Bar {
    std::size_t series = 0; // of PlotData
    int slot = 0;
    Rect box;
    bool up = true;
    bool end = true; // of its stack: no other bar follows beyond it
    bool operator==(const Bar&) const = default;
};
struct SlotValue {
    int slot = 0;
    Line figure;
    bool operator==(const SlotValue&) const = default;
};

struct Layout {
    Size paper;
    double pixel = 0;    // of the device, to which all edges are snapped; 0: they are not
    double hairline = 1; // thickness of all lines
    double em = 0;       // height of a small line

    std::vector<Title> titles; // only those with text
    std::vector<LegendEntry> legend;

    int slotCount = 0, pointCount = 0; // 0: nothing of what follows is set
    Rect plot;
    Scale scale;
    double slotWidth = 0;
    std::vector<Tick> ticks;
    double zero = 0; // y of the zero line
    std::vector<SlotLabel> labels;
    TextRole labelRole = TextRole::Small;
    bool slanted = false;          // the labels
    std::vector<double> yearRules; // x, between December and January
    std::vector<Bar> bars;         // figures of zero have none, but a component of zero has a flat one
    std::vector<SlotValue> values; // written above or below the bars; empty unless all fit

    Rect slotBox(int slot) const;
    int slotAt(double x, double y) const; // the point whose slot or label is at this place; -1: none
    double y(double value) const;         // a value beyond an end of the axis is placed at that end
    double snapped(double length) const;

    bool operator==(const Layout&) const = default;
};

// `deviceScale`: device pixels per unit; 0 for paper, on which nothing is snapped.
Layout layoutChart(const PlotData& data, Size paper, const Metrics& metrics, double deviceScale);

} // namespace plotvue::chart
