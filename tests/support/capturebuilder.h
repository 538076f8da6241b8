// Builds host screens for tests, from nothing or from a sample. Lines and columns are counted from 1.
#pragma once

#include "capture/text.h"

#include <string_view>
#include <vector>

namespace plotvue::test {

class CaptureBuilder {
public:
    explicit CaptureBuilder(std::size_t lines = 24) : lines_(lines) {}
    explicit CaptureBuilder(TextSpan capture); // its lines end in CR LF

    CaptureBuilder& put(std::size_t line, std::size_t column, TextSpan text);
    CaptureBuilder& replaceLine(std::size_t line, TextSpan text);
    CaptureBuilder& insertLine(std::size_t line, TextSpan text); // before the line with that number

    const Text& line(std::size_t line) const { return lines_.at(line - 1); }

    // The result has fewer characters than `width` where the line ends earlier.
    Text characters(std::size_t line, std::size_t column, std::size_t width) const;

    // The number in these characters, read without its commas. Throws std::runtime_error unless they hold one
    // number between blanks.
    double number(std::size_t line, std::size_t column, std::size_t width) const;

    // The lines with CR LF, or another line end. Empty lines hold a single ".", because readers skip blank
    // ones.
    Text text(TextSpan lineEnd = u"\r\n") const;

private:
    std::vector<Text> lines_; // without line ends
};

// The whole text of a UTF-8 file. Throws std::runtime_error when it cannot be read.
Text readFile(const std::string& path);

// A capture of samples/: sample("product").
Text sample(std::string_view name);

// Every occurrence of the word overwritten with dots.
Text blotted(Text capture, TextSpan word);

// The capture, filled up so that the word follows with its first letter at the position.
Text withWordAt(Text capture, TextSpan word, std::size_t position);

} // namespace plotvue::test
