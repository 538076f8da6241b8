// Host screens for tests: text put at a line and a column, both counted from 1.
#pragma once

#include "capture/text.h"

#include <string_view>
#include <vector>

namespace plotvue::test {

class CaptureBuilder {
public:
    explicit CaptureBuilder(std::size_t lines = 24) : lines_(lines) {}

    // Lines never written to hold a single "." so that they do not vanish as blank ones do.
    CaptureBuilder& put(std::size_t line, std::size_t column, TextSpan text);

    // The lines with CR LF, or another line end.
    Text text(TextSpan lineEnd = u"\r\n") const;

private:
    std::vector<Text> lines_;
};

// The text of a file, UTF-8, as it stands. Throws std::runtime_error when it cannot be read.
Text readFile(const std::string& path);

// A capture of samples/: sample("product").
Text sample(std::string_view name);

} // namespace plotvue::test
