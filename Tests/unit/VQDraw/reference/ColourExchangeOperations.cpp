// SPDX-License-Identifier: MIT
#include "ColourExchangeReference.h"
#include "Operations.h"

#include <cstdlib>

namespace vq::reference {
namespace {

/// Pairs of colours, drawn from a seed. Entries of `from` often match and often occur twice.
struct Exchange
{
    std::vector<Word> from, to;

    Exchange(Number seed, Number sizeOfTo)
    {
        Dice dice(static_cast<std::uint32_t>(seed));
        const Number size = dice.below(6);
        for (Number i = 0; i < size; ++i)
            from.push_back(kFewColours[static_cast<std::size_t>(dice.below(4))] &
                           (dice.oneIn(2) ? ~Word{0} : 0xFFFFFF));
        for (Number i = 0; i < (sizeOfTo == 0 ? dice.below(6) : size); ++i)
            to.push_back(dice.word() & (dice.oneIn(2) ? ~Word{0} : 0xFFFFFF));
    }
};

void fill(CArray<ULONG, const ULONG&>& list, const std::vector<Word>& colours)
{
    for (const Word colour : colours)
        list.Add(colour);
}

void exchangeLists(Call& c)
{
    const Exchange exchange(c.argument[0], c.argument[2]);
    CArray<ULONG, const ULONG&> from;
    CArray<ULONG, const ULONG&> to;
    fill(from, exchange.from);
    fill(to, exchange.to);
    c.results = {c.image.ExchangeColors(from, to, c.argument[1])};
}

void exchangeLists(Model& m)
{
    const Exchange exchange(m.argument[0], m.argument[2]);
    m.results = {exchangeColors(m.image, exchange.from, exchange.to, m.argument[1])};
}

/// 0: lists of sizes drawn apart from each other. Otherwise of one size.
Number sizesAgree(Dice& dice, const Trial&)
{
    return dice.below(5);
}

void exchangeOne(Call& c)
{
    const auto from = static_cast<ULONG>(c.argument[0]);
    const auto to = static_cast<ULONG>(c.argument[1]);
    c.results = {c.image.ExchangeColor(from, to, c.argument[2])};
}

/// The number that comes after the last draw tells whether there were as many as there should be.
void fractalMap(Call& c)
{
    c.image.BuildFractalMap(c.argument[0], c.argument[1], c.argument[2], c.argument[3]);
    c.results = {std::rand()};
}

void fractalMap(Model& m)
{
    buildFractalMap(m.image, m.argument[0], m.argument[1], m.argument[2], m.argument[3], std::rand);
    m.results = {std::rand()};
}

} // namespace

std::vector<Operation> colourExchangeOperations()
{
    const std::vector<Content> few{Content::FewColours, Content::FewColours, Content::AllEqual, Content::Random};
    return {
        {"ExchangeColor",
         [](Model& m) {
             m.results = {exchangeColor(m.image, static_cast<Word>(m.argument[0]), static_cast<Word>(m.argument[1]),
                                        m.argument[2])};
         },
         {{"ExchangeColor(from, to, alpha)", exchangeOne}},
         {choose::colourWithTopByte, choose::colourWithTopByte, choose::level},
         false,
         few},
        {"ExchangeColors",
         [](Model& m) { exchangeLists(m); },
         {{"ExchangeColors(from, to, alpha)", [](Call& c) { exchangeLists(c); }}},
         {choose::any, choose::level, sizesAgree},
         false,
         few},
        {"BuildFractalMap",
         [](Model& m) { fractalMap(m); },
         {{"BuildFractalMap(r, g, b, alpha)", [](Call& c) { fractalMap(c); }}},
         {choose::byte, choose::byte, choose::byte, choose::modestLevel}},
    };
}

} // namespace vq::reference
