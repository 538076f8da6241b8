#include "sessions/walk.h"

#include "support/windows.h"

#include <algorithm>
#include <fstream>

namespace plotvue::sessions {

Walk::Walk(replay::Stage& stage, const Random& random, std::ostream& script, Manner manner)
    : stage_(stage),
      random_(random),
      script_(script),
      manner_(manner),
      player_(stage, out_)
{
    stage.events().listener = [this, print = stage.events().listener](const Event& event) {
        print(event);
        heard(event);
    };
    for (const Screen& screen : screens)
        if (const Ranked* ranked = std::get_if<Ranked>(&screen.window))
            designs_.emplace(ranked->drillDown->window, ranked->drillDown);
    for (const Screen& screen : screens)
        (screen.ranked() ? lists_ : charts_).emplace(test::windowOf(player_.application(), screen).name());
}

void Walk::heard(const Event& event)
{
    const std::string window(event.window);
    switch (event.kind) {
    case Event::Kind::Load:
        loaded_.insert(window);
        loadedNow_.push_back(window);
        watch(window);
        break;
    case Event::Kind::Show:
        visible_.insert(window);
        shownNow_.push_back(window);
        break;
    case Event::Kind::Hide:
        visible_.erase(window);
        break;
    case Event::Kind::Unload:
        loaded_.erase(window);
        drawn_.erase(window);
        break;
    case Event::Kind::Message:
        listEndedNow_ = listEndedNow_ || event.text == u"End of list";
        break;
    case Event::Kind::Error:
        error_ = event.text;
        end_ = "error";
        break;
    case Event::Kind::End:
        end_ = "end";
        break;
    case Event::Kind::Wait:
        end_ = "spin";
        break;
    default:
        break;
    }
}

void Walk::play(const std::string& line)
{
    script_ << line << std::endl; // flushed, so that the script is complete after a crash
    loadedNow_.clear();
    shownNow_.clear();
    drawnNow_.clear();
    listEndedNow_ = false;
    const std::optional<bool> listEnds = endOfListIsDue(line);
    std::istringstream one(line);
    player_.play(one);
    if (listEnds && *listEnds != listEndedNow_)
        throw Wrong(*listEnds ? "\"End of list\" is not told at the end"
                              : "\"End of list\" is told too early");
    if (error_)
        mustBePlain(*error_);
    if (!loaded_.empty() && visible_.empty() && !over())
        throw Wrong("no window is visible");
    if (!manner_.careful && !over())
        noticesMustBeTrue(line);
}

void Walk::start()
{
    if (!manner_.careful)
        copy();
    play("start");
}

void Walk::step()
{
    const std::size_t chance = random_.below(100);
    if (chance < 20 && (!manner_.careful || visible_ == std::set<std::string>{"startup"}))
        copy();
    else if (chance < 25)
        play(random_.from(Offer{"printer cancel", "printer fail", "printer accept 0", "printer accept 2"}));
    else
        use(random_.from(std::vector<std::string>(visible_.begin(), visible_.end())));
}

void Walk::copy()
{
    const Capture& capture = random_.from(wholeCaptures());
    if (!manner_.careful && random_.inPercent(5)) {
        held_.clear();
        return play("clipboard");
    }
    const bool damage = !manner_.careful && random_.inPercent(30);
    whole_ = whole_ && !damage;
    ++copied_;
    if (damage)
        put("damaged" + std::to_string(copied_), damaged(random_, capture.bytes));
    else
        take(capture.name, capture.bytes);
}

void Walk::take(const std::string& name, const std::string& bytes)
{
    held_ = bytes;
    play("clipboard ../captures/" + name + ".txt");
}

void Walk::put(const std::string& name, const std::string& bytes)
{
    std::ofstream("../captures/" + name + ".txt", std::ios::binary) << bytes;
    take(name, bytes);
}

void Walk::tour()
{
    const auto playAll = [this](const Offer& lines) {
        for (const std::string& line : lines)
            play(line);
    };
    const auto isOf = [](const Offer& offer, std::string_view verb) {
        return offer.front().starts_with(verb);
    };
    for (const Capture& capture : wholeCaptures()) {
        play("clipboard ../captures/" + capture.name + ".txt");
        play("click startup Command1");
        const std::string window = *visible_.begin(), chart = window + "A";
        for (const Offer& offer : offers(window)) {
            if (!isOf(offer, "row"))
                continue;
            play(offer.front());
            for (const Offer& inside : isVisible(chart) ? offers(chart) : std::vector<Offer>{})
                if (isOf(inside, "choose"))
                    playAll(inside);
            if (isVisible(chart))
                play("close " + chart);
        }
        for (const Offer& offer : offers(window))
            if (isOf(offer, "choose"))
                playAll(offer);
        play("click " + window + " cmdExit");
    }
}

void Walk::use(const std::string& window)
{
    if (charts_.contains(window) && random_.inPercent(15))
        return random_.inPercent(50) ? twiceRefreshedIsTheSame(window) : shownAgainIsTheSame(window);
    std::vector<Offer> all = offers(window);
    all.push_back({"close " + window});
    // If the user left the list now, the open drill-down window would read the files of the next list.
    if (manner_.careful && isVisible(window + "A"))
        std::erase_if(all, [](const Offer& offer) { return !offer.front().starts_with("row"); });
    if (window == "startup") {
        all = {{"click startup Command1"}};
        if (!manner_.careful && random_.inPercent(2))
            all = {{"click startup Command2", "close startup"}};
    }
    const std::string line = random_.from(random_.from(all));
    if (lists_.contains(window) && line.starts_with("row") && whole_)
        return backThenDownIsTheSame(window, line);
    play(line);
}

std::vector<Walk::Offer> Walk::offers(const std::string& window)
{
    if (manner_.talkative)
        play("dump " + window);
    std::vector<Offer> all;
    const Window& form = *test::windowNamed(player_.application(), window);
    for (const auto& [name, seen] : stage_.look(form).controls) {
        Offer offer;
        if (const auto* text = std::get_if<replay::SeenText>(&seen);
            text && text->of == replay::SeenText::Of::Button)
            offer.push_back("click " + window + " " + name);
        if (const auto* group = std::get_if<OptionGroup>(&seen))
            for (const OptionGroup::Entry& option : group->options)
                if (option.visible)
                    offer.push_back("choose " + window + " " + name + " " + std::to_string(option.index));
        if (const auto* grid = std::get_if<Grid>(&seen))
            for (int row = 1; row < grid->rows; ++row)
                offer.push_back("row " + window + " " + name + " " + std::to_string(row));
        if (!offer.empty())
            all.push_back(std::move(offer));
        if (std::holds_alternative<Grid>(seen) || std::holds_alternative<Chart>(seen))
            all.push_back({"copy " + window + " " + name});
    }
    return all;
}

std::string Walk::takePrinted()
{
    std::string printed = out_.str();
    out_.str({});
    return printed;
}

} // namespace plotvue::sessions
