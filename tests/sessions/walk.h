// A random walk through the windows. It takes only actions that are possible for the user, and checks rules
// as it goes.
#pragma once

#include "replay/player.h"
#include "sessions/captures.h"

#include <optional>
#include <set>
#include <sstream>

namespace plotvue::sessions {

// Thrown when a rule does not hold.
struct Wrong : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Throws Wrong unless this is a sentence for the user that reports no error in PlotVue itself.
void mustBePlain(TextSpan sentence);
void mustBeEqual(const std::string& what, const std::string& one, const std::string& other);

// Checks that the directory holds no files except the small files, readable only by their owner, and
// deletes them.
void takeFiles(const std::string& directory);

class Walk {
public:
    struct Manner {
        bool careful = false;   // takes no action that could end the session
        bool talkative = false; // dumps each window before it uses it
    };

    // Plays on the stage and writes each line to the script. Captures are saved in ../captures.
    Walk(replay::Stage& stage, const Random& random, std::ostream& script, Manner manner);

    void start();
    void tour();   // visits all windows and options; starts and ends at the start-up window
    void step();   // one possible action, or a check of a rule
    void finish(); // checks that the loaded and visible windows match the events

    bool over() const { return stage_.platform().over(); }
    std::string end() const { return end_; } // how the session ended, or "still alive"
    std::string takePrinted();               // the output since the last call

private:
    using Offer = std::vector<std::string>; // the possible script lines of one control

    void heard(const Event& event);
    void play(const std::string& line);
    void put(const std::string& name, const std::string& bytes);  // writes a capture and copies it
    void take(const std::string& name, const std::string& bytes); // copies a capture
    void copy();
    void use(const std::string& window);
    std::vector<Offer> offers(const std::string& window);
    std::string dumped(const std::string& window);
    std::string noticeOf(const std::string& window);
    bool isVisible(const std::string& window) const { return visible_.contains(window); }

    // Notes in drawn_ what the window charts, so that noticesMustBeTrue() knows which notices are due.
    void watch(const std::string& window);
    void noticesMustBeTrue(const std::string& line);

    // Whether the line must lead to "End of list"; absent if it is no step through a list.
    std::optional<bool> endOfListIsDue(const std::string& line) const;

    void twiceRefreshedIsTheSame(const std::string& window);
    void shownAgainIsTheSame(const std::string& window);
    void backThenDownIsTheSame(const std::string& window, const std::string& clickRow);

    replay::Stage& stage_;
    Random random_;
    std::ostream& script_;
    Manner manner_;
    std::ostringstream out_;
    replay::Player player_;
    // lists_ holds the list windows, charts_ the windows of all other screens. The drill-down window of a
    // list has the name of the list with an A at the end.
    std::set<std::string> lists_, charts_;
    std::map<std::string, const DrillDownDesign*> designs_; // of the drill-down windows, by name
    std::set<std::string> loaded_, visible_;                // according to the events
    std::vector<std::string> loadedNow_, shownNow_;         // while the last line was played
    std::vector<std::string> drawnNow_;
    bool listEndedNow_ = false; // whether the last line led to "End of list"

    struct Drawing {
        std::string copied; // the text that was on the clipboard
        std::map<Name, std::vector<int>> options;
        std::optional<EntryLines> record; // only of a drill-down window
    };
    std::map<std::string, Drawing> drawn_; // by window: what it charted last
    std::string held_;                     // the clipboard's text

    std::string end_ = "still alive";
    std::optional<Text> error_; // text of the error report
    int copied_ = 0;
    bool whole_ = true; // no damaged capture was copied so far
};

} // namespace plotvue::sessions
