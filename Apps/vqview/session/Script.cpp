// SPDX-License-Identifier: MIT
#include "vqview/session/Script.h"

#include "vqview/session/Session.h"
#include "vqview/session/Waiting.h"
#include "vqview/text/Text.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <limits>
#include <numbers>
#include <optional>

namespace vqview {

namespace {

using Words = std::vector<std::string_view>;

std::string quoted(std::string_view word)
{
    return std::string(1, '\'').append(word).append(1, '\'');
}

/// What a line ends with.
enum class Ending { HeldKeys, Text };

/// A line that has been taken apart, while it is carried out. A reader that fails says so in `fault`.
class Line
{
public:
    Line(Words words, std::string_view text, Ending ending, ScriptStage& stage)
        : m_words(std::move(words)), m_text(text), m_stage(stage)
    {
        while (ending == Ending::HeldKeys && takeModifier(m_words.back())) // the command is none
            m_words.pop_back();
    }

    Session& session() { return m_stage.session; }
    ScriptStage& stage() { return m_stage; }
    Modifiers held() const { return m_held; }
    const std::string& fault() const { return m_fault; }
    void fail(std::string fault)
    {
        if (m_fault.empty())
            m_fault = std::move(fault);
    }

    std::size_t left() const { return m_words.size() - m_next; }
    std::string_view word()
    {
        if (left() > 0)
            return m_words[m_next++];
        fail("something is missing at the end");
        return {};
    }
    double number() { return numberOf(word(), std::nullopt); }
    CPoint place()
    {
        const double x = numberOf(word(), session().width()), y = numberOf(word(), session().height());
        return {static_cast<int>(std::lround(x)), static_cast<int>(std::lround(y))};
    }
    /// One of the names of a table.
    template <typename Row, std::size_t N>
    auto oneOf(const std::array<Row, N>& rows)
    {
        const std::string_view name = word();
        for (const Row& row : rows)
            if (row.name == name)
                return row.value;
        fail("there is no " + quoted(name));
        return rows[0].value;
    }
    /// From the present word to the end of the line, which must not be empty.
    std::string text()
    {
        if (left() == 0)
            fail("something is missing at the end");
        return rest();
    }
    /// The same, and may be empty.
    std::string rest() const
    {
        if (left() == 0)
            return {};
        const auto begin = static_cast<std::size_t>(m_words[m_next].data() - m_text.data());
        const auto end = static_cast<std::size_t>(m_words.back().data() - m_text.data()) + m_words.back().size();
        return std::string(m_text.substr(begin, end - begin));
    }

private:
    static constexpr double kLargest = 1e9;

    bool takeModifier(std::string_view word)
    {
        m_held.control |= word == "ctrl";
        m_held.shift |= word == "shift";
        return word == "ctrl" || word == "shift";
    }
    double numberOf(std::string_view word, std::optional<int> whole)
    {
        const bool isPart = whole && word.ends_with('%');
        const std::string_view digits = isPart ? word.substr(0, word.size() - 1) : word;
        double number = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
        if (isPart)
            number = number / 100 * *whole;
        if (error != std::errc() || end != digits.data() + digits.size() || !(std::abs(number) <= kLargest))
            fail(quoted(word) + " is no number");
        return fault().empty() ? number : 0;
    }

    Words m_words;
    std::string_view m_text;
    ScriptStage& m_stage;
    std::size_t m_next = 1; // behind the command
    Modifiers m_held;
    std::string m_fault;
};

template <typename Value>
struct Named
{
    std::string_view name;
    Value value;
};

constexpr std::array<Named<Tool>, 7> kTools{{
    {"look", Tool::Look},
    {"box", Tool::Box},
    {"circle", Tool::Circle},
    {"band", Tool::Band},
    {"lasso", Tool::Lasso},
    {"polygon", Tool::Polygon},
    {"measure", Tool::Measure},
}};
constexpr std::array<Named<Button>, 3> kButtons{{
    {"left", Button::Left},
    {"middle", Button::Middle},
    {"right", Button::Right},
}};
constexpr std::array<Named<Key>, 4> kKeys{{
    {"enter", Key::Enter},
    {"backspace", Key::Backspace},
    {"escape", Key::Escape},
    {"f12", Key::F12},
}};
constexpr std::array<Named<bool Shown::*>, 6> kShown{{
    {"faces", &Shown::faces},
    {"edges", &Shown::edges},
    {"vertices", &Shown::vertices},
    {"labels", &Shown::labels},
    {"report", &Shown::report},
    {"keys", &Shown::keys},
}};
constexpr std::array<Named<bool>, 2> kSwitch{{{"on", true}, {"off", false}}};

void size(Line& line)
{
    constexpr double kLargestSide = 16384, kLargestScale = 16;
    const double width = line.number(), height = line.number(), scale = line.left() > 0 ? line.number() : 1;
    const auto isIn = [](double value, double least, double most) { return value >= least && value <= most; };
    if (!isIn(width, 1, kLargestSide) || !isIn(height, 1, kLargestSide) || !isIn(scale, 0.25, kLargestScale))
        return line.fail("such a size is not possible");
    if (line.fault().empty() && line.stage().resize)
        line.fail(line.stage().resize(static_cast<int>(width), static_cast<int>(height), static_cast<float>(scale)));
}

void open(Line& line)
{
    const std::string path = line.text();
    if (line.fault().empty())
        line.fail(openAndWait(line.session(), pathOf(path)));
}

void save(Line& line)
{
    const std::string path = line.text();
    if (line.fault().empty() && !line.session().saveDocument(pathOf(path)))
        line.fail(line.session().notice());
}

void tool(Line& line)
{
    const Tool tool = line.oneOf(kTools);
    if (line.fault().empty())
        line.session().setTool(tool);
}

void press(Line& line)
{
    const Button button = line.oneOf(kButtons);
    const CPoint at = line.place();
    if (line.fault().empty())
        line.session().press(button, at, line.held());
}

void move(Line& line)
{
    const CPoint to = line.place();
    if (line.fault().empty())
        line.session().move(to, line.held());
}

void release(Line& line)
{
    const Button button = line.oneOf(kButtons);
    const CPoint at = line.place();
    if (line.fault().empty())
        line.session().release(button, at, line.held());
}

void dragAlong(Line& line, Button button, const std::vector<CPoint>& path)
{
    if (!line.fault().empty() || path.empty())
        return;
    line.session().press(button, path.front(), line.held());
    for (std::size_t index = 1; index < path.size(); ++index)
        line.session().move(path[index], line.held());
    line.session().release(button, path.back(), line.held());
}

void drag(Line& line)
{
    const Button button = line.oneOf(kButtons);
    std::vector<CPoint> path{line.place()};
    while (line.left() > 0 && line.fault().empty())
        path.push_back(line.place());
    dragAlong(line, button, path);
}

void ellipse(Line& line)
{
    constexpr double kMostSteps = 1e6;
    const Button button = line.oneOf(kButtons);
    const CPoint centre = line.place(), radius = line.place();
    const double steps = line.number();
    if (!(steps >= 3 && steps <= kMostSteps))
        return line.fail("an ellipse takes 3 steps or more");
    std::vector<CPoint> path;
    for (int step = 0; step < static_cast<int>(steps); ++step) {
        const double angle = 2 * std::numbers::pi * step / std::floor(steps);
        path.emplace_back(static_cast<int>(std::lround(centre.x + radius.x * std::cos(angle))),
                          static_cast<int>(std::lround(centre.y + radius.y * std::sin(angle))));
    }
    dragAlong(line, button, path);
}

void click(Line& line)
{
    dragAlong(line, Button::Left, {line.place()});
}

void wheel(Line& line)
{
    const double steps = line.number();
    const CPoint at = line.place();
    if (line.fault().empty())
        line.session().wheel(steps, at);
}

bool isLetterOrDigit(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9');
}

void key(Line& line)
{
    const std::string_view name = line.left() > 0 ? line.word() : std::string_view();
    Key key{};
    if (name.size() == 1 && isLetterOrDigit(name[0]))
        key = Key(name[0] >= 'a' && name[0] <= 'z' ? name[0] - 'a' + 'A' : name[0]);
    for (const Named<Key>& row : kKeys)
        if (row.name == name)
            key = row.value;
    if (key == Key{})
        return line.fail("there is no key " + quoted(name));
    line.session().key(key, line.held());
}

void hold(Line& line)
{
    line.session().hold(line.held());
}

void setShown(Line& line, bool shown)
{
    bool Shown::*const what = line.oneOf(kShown);
    if (line.fault().empty())
        line.session().shown().*what = shown;
}

void through(Line& line)
{
    const bool on = line.oneOf(kSwitch);
    if (line.fault().empty())
        line.session().setSelectsThrough(on);
}

void exchange(Line& line)
{
    const bool on = line.oneOf(kSwitch);
    if (line.fault().empty())
        line.session().setExchangesKeys(on);
}

void colour(Line& line)
{
    const std::string_view name = line.word();
    const int index = CVQDrawProperty::GetDPCEnumStringToEnumNo(textOf(name));
    std::array<float, 4> rgba{0, 0, 0, 1};
    const std::size_t given = line.left() > 3 ? 4 : 3;
    for (std::size_t channel = 0; channel < given; ++channel)
        rgba[channel] = static_cast<float>(line.number());
    if (std::ranges::any_of(rgba, [](float part) { return !(part >= 0 && part <= 1); }))
        line.fail("colours are from 0 to 1");
    if (index < 0)
        line.fail("there is no colour " + quoted(name));
    if (!line.fault().empty())
        return;
    CVQDrawProperty::SetColorARGB(static_cast<eDrawPropertyColor>(index), rgba.data());
    line.session().preferencesChanged();
}

void length(Line& line)
{
    const std::string_view name = line.word();
    const int index = CVQDrawProperty::GetDPSEnumStringToEnumNo(textOf(name));
    const double value = line.number();
    if (value < 0)
        line.fail("sizes are from 0 on");
    if (index < 0)
        line.fail("there is no size " + quoted(name));
    if (!line.fault().empty())
        return;
    CVQDrawProperty::SetSize(static_cast<eDrawPropertySize>(index), static_cast<float>(value));
    line.session().preferencesChanged();
}

void count(Line& line)
{
    line.stage().print("selected " + std::to_string(line.session().selectedCount()));
}

void expect(Line& line)
{
    const double expected = line.number();
    const std::size_t selected = line.session().selectedCount();
    if (expected != static_cast<double>(selected))
        line.fail("selected are " + std::to_string(selected));
}

void keep(Line& line, bool isReport)
{
    const std::string name(line.word());
    if (line.fault().empty() && !line.stage().keep(name, line.rest(), isReport))
        line.fail("the picture cannot be written");
}

void time(Line& line)
{
    constexpr double kMostFrames = 10000;
    const double frames = line.number();
    if (!(frames >= 1 && frames <= kMostFrames))
        return line.fail("from 1 frame on");
    line.session().draw(); // what is made once
    glFinish();
    const auto begin = std::chrono::steady_clock::now();
    for (int frame = 0; frame < static_cast<int>(frames); ++frame) {
        line.session().draw();
        glFinish();
    }
    const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - begin;
    line.stage().print("milliseconds a frame " + std::to_string(taken.count() / std::floor(frames)));
}

struct Command
{
    std::string_view name;
    void (*run)(Line&);
    std::size_t mostWords; // behind it
    Ending ending = Ending::HeldKeys;
    bool failureEndsScript = true; // what cannot be understood does; what was only expected does not
};

constexpr std::size_t kAny = std::numeric_limits<std::size_t>::max();
constexpr std::array<Command, 25> kCommands{{
    {"size", size, 3},
    {"open", open, kAny, Ending::Text},
    {"save", save, kAny, Ending::Text},
    {"tool", tool, 1},
    {"press", press, 3},
    {"move", move, 2},
    {"release", release, 3},
    {"drag", drag, kAny},
    {"ellipse", ellipse, 6},
    {"click", click, 2},
    {"wheel", wheel, 3},
    {"key", key, 1},
    {"hold", hold, 0},
    {"show", [](Line& line) { setShown(line, true); }, 1},
    {"hide", [](Line& line) { setShown(line, false); }, 1},
    {"through", through, 1},
    {"exchange", exchange, 1},
    {"colour", colour, 5},
    {"length", length, 2},
    {"count", count, 0},
    {"expect", expect, 1, Ending::HeldKeys, false},
    {"time", time, 1},
    {"picture", [](Line& line) { keep(line, false); }, kAny, Ending::Text},
    {"report", [](Line& line) { keep(line, true); }, kAny, Ending::Text},
    {"wait", [](Line& line) { waitForScan(line.session()); }, 0},
}};

Words wordsOf(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\r";
    Words words;
    for (std::size_t begin = text.find_first_not_of(kBlanks); begin != text.npos;) {
        const std::size_t end = std::min(text.find_first_of(kBlanks, begin), text.size());
        words.push_back(text.substr(begin, end - begin));
        begin = text.find_first_not_of(kBlanks, end);
    }
    return words;
}

/// @return whether the script goes on.
bool runLine(std::string_view text, ScriptStage& stage, std::string& fault)
{
    Words words = wordsOf(text.substr(0, text.find('#')));
    if (words.empty())
        return true;
    const std::string_view name = words.front();
    for (const Command& command : kCommands) {
        if (command.name != name)
            continue;
        Line line(std::move(words), text.substr(0, text.find('#')), command.ending, stage);
        if (line.left() > command.mostWords)
            line.fail("there is too much at the end");
        else
            command.run(line);
        fault = line.fault();
        return fault.empty() || !command.failureEndsScript;
    }
    fault = "there is no command " + quoted(name);
    return false;
}

} // namespace

std::vector<std::string> runScript(std::string_view text, ScriptStage& stage)
{
    std::vector<std::string> faults;
    bool goesOn = true;
    for (int number = 1; goesOn && !text.empty(); ++number) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string fault;
        goesOn = runLine(text.substr(0, end), stage, fault);
        if (!fault.empty())
            faults.push_back("line " + std::to_string(number) + ": " + fault);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return faults;
}

} // namespace vqview
