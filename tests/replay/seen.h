// What a window displays: the value of each of its controls.
#pragma once

#include "platform/controls.h"

#include <string>
#include <variant>

namespace plotvue::replay {

struct SeenText {
    enum class Of { Button, Label, TextBox } of;
    Text text;
};
using SeenList = std::vector<Text>;
using Seen = std::variant<SeenText, SeenList, OptionGroup, Grid, Chart>;

struct SeenWindow {
    Text caption, notice;                              // an empty notice: none
    std::map<std::string, Seen, std::less<>> controls; // without pictures and frames
};

SeenWindow seenIn(Controls& controls);

} // namespace plotvue::replay
