// SPDX-License-Identifier: MIT
#include "CompositingReference.h"
#include "Operations.h"
#include "RoutineAccess.h"

namespace vq::reference {
namespace {

using Routines = VQTestAccess::PixelRoutines<CVQDIB>;
using TwoPictures = void (*)(Picture&, const Picture&);
using TwoPicturesAndALevel = void (*)(Picture&, const Picture&, Number);
using OnePicture = void (*)(Picture&);

Operation twoImages(std::string name, TwoPictures reference, std::vector<Way> ways)
{
    return {std::move(name), [reference](Model& m) { reference(m.image, m.source); }, std::move(ways), {}, true};
}

Operation twoImagesAndALevel(std::string name, TwoPicturesAndALevel reference, std::vector<Way> ways)
{
    return {std::move(name),
            [reference](Model& m) { reference(m.image, m.source, m.argument[0]); },
            std::move(ways),
            {choose::level},
            true};
}

Operation withItself(std::string name, TwoPictures reference, std::vector<Way> ways)
{
    return {std::move(name), [reference](Model& m) { reference(m.image, m.image); }, std::move(ways), {}};
}

Operation oneImage(std::string name, OnePicture reference, std::vector<Way> ways)
{
    return {std::move(name), [reference](Model& m) { reference(m.image); }, std::move(ways), {}};
}

Operation darkenByALevel()
{
    return {"DarkenByALevel",
            [](Model& m) { darkenBy(m.image, m.argument[0]); },
            {{"Darken(level)", [](Call& c) { c.image.Darken(LONG{c.argument[0]}); }}},
            {choose::modestLevel}};
}

Operation greyRectangle()
{
    return {"ConvertToGrayOfARectangle",
            [](Model& m) {
                const auto& a = m.argument;
                convertToGray(m.image, {a[0], a[1], a[2], a[3]});
            },
            {{"ConvertToGray(CRect)",
              [](Call& c) {
                  const auto& a = c.argument;
                  c.image.ConvertToGray(CRect(a[0], a[1], a[2], a[3]));
              }}},
            {choose::column, choose::row, choose::column, choose::row}};
}

Operation quantizeBits()
{
    return {"Quantize",
            [](Model& m) { quantize(m.image, m.argument[0]); },
            {{"Quantize(n)", [](Call& c) { c.image.Quantize(c.argument[0]); }},
             {"pfQuantize", [](Call& c) { CVQDIB::pfQuantize(c.image, c.argument[0]); }},
             {"QuantizeDefault", [](Call& c) { Routines::quantizeDefault()(c.image, c.argument[0]); }},
             {"QuantizeSSE2", [](Call& c) { Routines::quantizeSse2()(c.image, c.argument[0]); }}},
            {choose::level}};
}

} // namespace

std::vector<Operation> twoImageOperations()
{
    return {
        twoImages("Add", add,
                  {{"Add(CVQDIB&)", [](Call& c) { c.image.Add(c.source); }},
                   {"Add(CVQDIB*)", [](Call& c) { c.image.Add(&c.source); }},
                   {"pfAdd", [](Call& c) { CVQDIB::pfAdd(c.image, c.source); }},
                   {"AddDefault", [](Call& c) { Routines::addDefault()(c.image, c.source); }},
                   {"AddSSE2", [](Call& c) { Routines::addSse2()(c.image, c.source); }}}),
        twoImages("Subtract", subtract,
                  {{"Subtract(CVQDIB&)", [](Call& c) { c.image.Subtract(c.source); }},
                   {"Subtract(CVQDIB*)", [](Call& c) { c.image.Subtract(&c.source); }},
                   {"pfSubtract", [](Call& c) { CVQDIB::pfSubtract(c.image, c.source); }},
                   {"SubtractDefault", [](Call& c) { Routines::subtractDefault()(c.image, c.source); }},
                   {"SubtractSSE2", [](Call& c) { Routines::subtractSse2()(c.image, c.source); }}}),
        twoImages("Multiply", multiply,
                  {{"Multiply(CVQDIB&)", [](Call& c) { c.image.Multiply(c.source); }},
                   {"Multiply(CVQDIB*)", [](Call& c) { c.image.Multiply(&c.source); }},
                   {"pfMultiply", [](Call& c) { CVQDIB::pfMultiply(c.image, c.source); }},
                   {"MultiplyDefault", [](Call& c) { Routines::multiplyDefault()(c.image, c.source); }},
                   {"MultiplySSE2", [](Call& c) { Routines::multiplySse2()(c.image, c.source); }}}),
        twoImages("Screen", screen,
                  {{"Screen(CVQDIB&)", [](Call& c) { c.image.Screen(c.source); }},
                   {"Screen(CVQDIB*)", [](Call& c) { c.image.Screen(&c.source); }},
                   {"pfScreen", [](Call& c) { CVQDIB::pfScreen(c.image, c.source); }},
                   {"ScreenDefault", [](Call& c) { Routines::screenDefault()(c.image, c.source); }},
                   {"ScreenSSE2", [](Call& c) { Routines::screenSse2()(c.image, c.source); }}}),
        twoImages("Difference", differenceOf,
                  {{"Difference(CVQDIB&)", [](Call& c) { c.image.Difference(c.source); }},
                   {"Difference(CVQDIB*)", [](Call& c) { c.image.Difference(&c.source); }},
                   {"pfDifference", [](Call& c) { CVQDIB::pfDifference(c.image, c.source); }},
                   {"DifferenceDefault", [](Call& c) { Routines::differenceDefault()(c.image, c.source); }},
                   {"DifferenceSSE2", [](Call& c) { Routines::differenceSse2()(c.image, c.source); }}}),
        twoImagesAndALevel(
            "Lighten", lighten,
            {{"Lighten(CVQDIB&, n)", [](Call& c) { c.image.Lighten(c.source, c.argument[0]); }},
             {"Lighten(CVQDIB*, n)", [](Call& c) { c.image.Lighten(&c.source, c.argument[0]); }},
             {"pfLighten", [](Call& c) { CVQDIB::pfLighten(c.image, c.source, c.argument[0]); }},
             {"LightenDefault", [](Call& c) { Routines::lightenDefault()(c.image, c.source, c.argument[0]); }},
             {"LightenSSE2", [](Call& c) { Routines::lightenSse2()(c.image, c.source, c.argument[0]); }}}),
        twoImagesAndALevel(
            "Darken", darken,
            {{"Darken(CVQDIB&, n)", [](Call& c) { c.image.Darken(c.source, c.argument[0]); }},
             {"Darken(CVQDIB*, n)", [](Call& c) { c.image.Darken(&c.source, c.argument[0]); }},
             {"pfDarken", [](Call& c) { CVQDIB::pfDarken(c.image, c.source, c.argument[0]); }},
             {"DarkenDefault", [](Call& c) { Routines::darkenDefault()(c.image, c.source, c.argument[0]); }},
             {"DarkenSSE2", [](Call& c) { Routines::darkenSse2()(c.image, c.source, c.argument[0]); }}}),
        withItself("AddToItself", add, {{"Add()", [](Call& c) { c.image.Add(); }}}),
        withItself("MultiplyByItself", multiply, {{"Multiply()", [](Call& c) { c.image.Multiply(); }}}),
    };
}

std::vector<Operation> toneOperations()
{
    return {
        darkenByALevel(),
        oneImage("Invert", invert,
                 {{"Invert()", [](Call& c) { c.image.Invert(); }},
                  {"pfInvert", [](Call& c) { CVQDIB::pfInvert(c.image); }},
                  {"InvertDefault", [](Call& c) { Routines::invertDefault()(c.image); }},
                  {"InvertSSE2", [](Call& c) { Routines::invertSse2()(c.image); }}}),
        oneImage("ConvertToGray", convertToGray,
                 {{"ConvertToGray()", [](Call& c) { c.image.ConvertToGray(); }},
                  {"pfConvertToGray", [](Call& c) { CVQDIB::pfConvertToGray(c.image); }},
                  {"ConvertToGrayDefault", [](Call& c) { Routines::convertToGrayDefault()(c.image); }},
                  {"ConvertToGraySSE2", [](Call& c) { Routines::convertToGraySse2()(c.image); }},
                  {"ConvertToGraySSSE3", [](Call& c) { Routines::convertToGraySsse3()(c.image); }}}),
        greyRectangle(),
        quantizeBits(),
        oneImage("Equalize", equalize,
                 {{"Equalize()", [](Call& c) { c.image.Equalize(); }},
                  {"pfEqualize", [](Call& c) { CVQDIB::pfEqualize(c.image); }},
                  {"EqualizeDefault", [](Call& c) { Routines::equalizeDefault()(c.image); }},
                  {"EqualizeSSE2", [](Call& c) { Routines::equalizeSse2()(c.image); }}}),
    };
}

} // namespace vq::reference
