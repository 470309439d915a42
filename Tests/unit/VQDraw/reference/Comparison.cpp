// SPDX-License-Identifier: MIT
#include "Comparison.h"

#include "GuardedPixels.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace vq::reference {
namespace {

std::string difference(const Picture& expected, const std::vector<Word>& actual, const char* whose)
{
    std::ostringstream text;
    for (std::size_t i = 0; i < expected.pixels.size(); ++i) {
        if (actual[i] == expected.pixels[i])
            continue;
        const auto width = static_cast<std::size_t>(expected.width);
        text << "pixel (" << i % width << ", " << i / width << ") of the " << whose << " is " << std::hex << actual[i]
             << " instead of " << expected.pixels[i];
        break;
    }
    return text.str();
}

std::string difference(const Results& expected, const Results& actual)
{
    if (expected == actual)
        return {};
    std::ostringstream text;
    text << "told";
    for (const Number value : actual)
        text << ' ' << value;
    text << " instead of";
    for (const Number value : expected)
        text << ' ' << value;
    return text.str();
}

std::string difference(const GuardedPixels& memory, const Picture& expected, const char* whose)
{
    if (!memory.areInPlace())
        return std::string("other memory holds the pixels of the ") + whose;
    if (!memory.guardsAreIntact())
        return std::string("memory beside the pixels was written: of the ") + whose;
    return difference(expected, memory.pixels(), whose);
}

std::string firstOf(const std::initializer_list<std::string>& faults)
{
    for (const std::string& each : faults)
        if (!each.empty())
            return each;
    return {};
}

std::string faultWithItself(const Operation& operation, const Trial& trial)
{
    Picture expected = picture(trial.width, trial.height, trial.content, trial.seed);
    CVQDIB image(trial.width, trial.height);
    const GuardedPixels memory(image, expected.pixels, trial.seed);

    Results told;
    Results toBeTold;
    Call call{image, image, trial.arguments, told};
    Model model{expected, expected, trial.arguments, toBeTold};
    std::srand(trial.seed);
    operation.ways[trial.way].run(call);
    std::srand(trial.seed);
    operation.reference(model);
    return firstOf({difference(memory, expected, "image"), difference(toBeTold, told)});
}

std::string faultWithSource(const Operation& operation, const Trial& trial)
{
    Picture expected = picture(trial.width, trial.height, trial.content, trial.seed);
    const Picture source = picture(trial.sourceWidth, trial.sourceHeight, trial.sourceContent, trial.seed + 1);
    CVQDIB image(trial.width, trial.height);
    CVQDIB other(trial.sourceWidth, trial.sourceHeight);
    const GuardedPixels memory(image, expected.pixels, trial.seed);
    const GuardedPixels otherMemory(other, source.pixels, trial.seed / 4);

    Results told;
    Results toBeTold;
    Call call{image, other, trial.arguments, told};
    Model model{expected, source, trial.arguments, toBeTold};
    operation.ways[trial.way].run(call);
    operation.reference(model);
    return firstOf(
        {difference(memory, expected, "image"), difference(otherMemory, source, "source"), difference(toBeTold, told)});
}

/// Sizes of a source: mostly the image's, else smaller, larger or of another shape.
void chooseSource(Dice& dice, Trial& trial)
{
    trial.sourceWidth = trial.width;
    trial.sourceHeight = trial.height;
    switch (dice.below(8)) {
    case 0:
        trial.sourceIsImage = true;
        break;
    case 1: // the same number of pixels
        std::swap(trial.sourceWidth, trial.sourceHeight);
        break;
    case 2:
        trial.sourceWidth += dice.below(20);
        trial.sourceHeight += dice.below(3);
        break;
    case 3:
        trial.sourceWidth = dice.between(1, trial.width);
        trial.sourceHeight = dice.between(1, trial.height);
        break;
    case 4:
        trial.sourceWidth = dice.between(1, 2 * trial.width);
        trial.sourceHeight = dice.between(1, 2 * trial.height);
        break;
    default:
        break;
    }
}

/// Trials one step smaller than this one.
std::vector<Trial> smallerTrials(const Trial& trial)
{
    std::vector<Trial> result;
    const auto add = [&](auto change) {
        Trial smaller = trial;
        change(smaller);
        result.push_back(smaller);
    };
    for (const auto side : {&Trial::width, &Trial::height, &Trial::sourceWidth, &Trial::sourceHeight})
        for (const Number size : {trial.*side / 2, trial.*side - 1})
            if (size >= 1)
                add([&](Trial& smaller) { smaller.*side = size; });
    for (const Number size : {trial.width / 2, trial.width - 1})
        if (size >= 1 && trial.width == trial.sourceWidth)
            add([&](Trial& smaller) { smaller.width = smaller.sourceWidth = size; });
    for (const Number size : {trial.height / 2, trial.height - 1})
        if (size >= 1 && trial.height == trial.sourceHeight)
            add([&](Trial& smaller) { smaller.height = smaller.sourceHeight = size; });
    for (std::size_t i = 0; i < trial.arguments.size(); ++i)
        for (const Number value : {0, trial.arguments[i] / 2})
            if (value != trial.arguments[i])
                add([&](Trial& smaller) { smaller.arguments[i] = value; });
    return result;
}

} // namespace

Trial randomTrial(const Operation& operation, std::uint32_t seed, Number width, Number height)
{
    Dice dice(seed);
    const auto anyContent = [&] {
        return operation.contents[static_cast<std::size_t>(dice.below(static_cast<Number>(operation.contents.size())))];
    };
    Trial trial;
    trial.seed = seed;
    trial.width = width;
    trial.height = height;
    trial.simd = dice.oneIn(2);
    trial.way = static_cast<std::size_t>(dice.below(static_cast<Number>(operation.ways.size())));
    trial.content = anyContent();
    trial.sourceContent = anyContent();
    if (operation.readsSource)
        chooseSource(dice, trial);
    for (std::size_t i = 0; i < operation.arguments.size(); ++i)
        trial.arguments[i] = operation.arguments[i](dice, trial);
    return trial;
}

std::string fault(const Operation& operation, const Trial& trial)
{
    if (trial.simd)
        CVQDIB::EnableSIMD();
    else
        CVQDIB::DisableSIMD();
    const bool alone = trial.sourceIsImage || !operation.readsSource;
    const std::string found = alone ? faultWithItself(operation, trial) : faultWithSource(operation, trial);
    return found.empty() ? found : operation.ways[trial.way].name + ": " + found;
}

Trial shrunk(const Operation& operation, Trial trial)
{
    for (bool progress = true; progress;) {
        progress = false;
        for (const Trial& smaller : smallerTrials(trial)) {
            if (fault(operation, smaller).empty())
                continue;
            trial = smaller;
            progress = true;
            break;
        }
    }
    return trial;
}

testing::AssertionResult agrees(const Operation& operation, const Trial& trial)
{
    const std::string found = fault(operation, trial);
    if (found.empty())
        return testing::AssertionSuccess();
    const Trial smallest = shrunk(operation, trial);
    return testing::AssertionFailure() << found << "\n  with " << trial << "\nsmallest: " << fault(operation, smallest)
                                       << "\n  with " << smallest;
}

Number rounds()
{
    constexpr Number kDefault = 200;
    const char* text = std::getenv("VQDRAW_TEST_ROUNDS");
    const long value = text == nullptr ? 0 : std::strtol(text, nullptr, 10);
    return value > 0 ? static_cast<Number>(std::min(value, 100'000'000L)) : kDefault;
}

} // namespace vq::reference
