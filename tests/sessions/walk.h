// A random walk through the windows: only what a person could do at that moment, and the rules that hold on
// the way.
#pragma once

#include "replay/player.h"
#include "sessions/captures.h"

#include <optional>
#include <set>
#include <sstream>

namespace plotvue::sessions {

// Something that must hold does not.
struct Wrong : std::runtime_error {
    using std::runtime_error::runtime_error;
};

void mustBePlain(TextSpan sentence); // of an error report, and none about a mistake of the program's own
void mustBeEqual(const std::string& what, const std::string& one, const std::string& other);

// The directory holds the small files at most, for their owner only; they are taken away.
void takeFiles(const std::string& directory);

class Walk {
public:
    struct Manner {
        bool careful = false;   // nothing is copied or clicked that could end the session
        bool talkative = false; // every window that is used is dumped before
    };

    // Plays on the stage and writes the script down, line by line. Captures go to ../captures.
    Walk(replay::Stage& stage, const Random& random, std::ostream& script, Manner manner);

    void start();
    void tour();   // once through all windows and their options, from the start-up window back to it
    void step();   // one thing that a person could do, or a rule that is looked at
    void finish(); // the windows are loaded and visible as the events told

    bool over() const { return stage_.platform().over(); }
    std::string end() const { return end_; } // the last event's kind; "still alive"
    std::string takePrinted();               // since it was last taken

private:
    using Offer = std::vector<std::string>; // the lines that one control offers

    void heard(const Event& event);
    void play(const std::string& line);
    void put(const std::string& name, const std::string& bytes);
    void copy();
    void use(const std::string& window);
    std::vector<Offer> offers(const std::string& window);
    std::string dumped(const std::string& window);
    bool isVisible(const std::string& window) const { return visible_.contains(window); }

    void twiceRefreshedIsTheSame(const std::string& window);
    void shownAgainIsTheSame(const std::string& window);
    void backThenDownIsTheSame(const std::string& window, const std::string& clickRow);

    replay::Stage& stage_;
    Random random_;
    std::ostream& script_;
    Manner manner_;
    std::ostringstream out_;
    replay::Player player_;
    std::set<std::string> lists_, charts_;   // windows that a ranked or another screen opens; a row of a list
                                             // opens the window with the name of the list and an A
    std::set<std::string> loaded_, visible_; // by the events
    std::vector<std::string> loadedNow_, shownNow_; // by the line played last
    std::string end_ = "still alive";
    std::optional<Text> error_; // what the error report says
    int copied_ = 0;
    bool whole_ = true; // everything copied so far
};

} // namespace plotvue::sessions
