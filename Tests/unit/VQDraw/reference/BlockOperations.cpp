// SPDX-License-Identifier: MIT
#include "BlockReference.h"
#include "Operations.h"
#include "RoutineAccess.h"

namespace vq::reference {
namespace {

using Routines = VQTestAccess::PixelRoutines<CVQDIB>;

const std::vector<Chooser> kBlock{choose::column, choose::row,    choose::column,
                                  choose::row,    choose::column, choose::row};

Block blockOf(const Arguments& a)
{
    return {a[0], a[1], a[2], a[3], a[4], a[5]};
}

Block wholeAt(const Picture& source, Number x, Number y)
{
    return {x, y, 0, 0, source.width, source.height};
}

Operation copyBlock()
{
    return {"CopyOfABlock",
            [](Model& m) { copy(m.image, m.source, blockOf(m.argument)); },
            {{"Copy(CVQDIB&, dx, dy, sx, sy, w, h)",
              [](Call& c) {
                  const auto& a = c.argument;
                  c.image.Copy(c.source, a[0], a[1], a[2], a[3], a[4], a[5]);
              }},
             {"Copy(CVQDIB*, dx, dy, sx, sy, w, h)",
              [](Call& c) {
                  const auto& a = c.argument;
                  c.image.Copy(&c.source, a[0], a[1], a[2], a[3], a[4], a[5]);
              }},
             {"pfCopy",
              [](Call& c) {
                  const auto& a = c.argument;
                  CVQDIB::pfCopy(c.image, c.source, a[0], a[1], a[2], a[3], a[4], a[5]);
              }},
             {"CopyDefault",
              [](Call& c) {
                  const auto& a = c.argument;
                  Routines::copyDefault()(c.image, c.source, a[0], a[1], a[2], a[3], a[4], a[5]);
              }},
             {"CopySSE2",
              [](Call& c) {
                  const auto& a = c.argument;
                  Routines::copySse2()(c.image, c.source, a[0], a[1], a[2], a[3], a[4], a[5]);
              }}},
            kBlock,
            true};
}

Operation pasteBlock()
{
    return {"PasteOfABlock",
            [](Model& m) { paste(m.image, m.source, blockOf(m.argument)); },
            {{"Paste(CVQDIB&, dx, dy, sx, sy, w, h)",
              [](Call& c) {
                  const auto& a = c.argument;
                  c.image.Paste(c.source, a[0], a[1], a[2], a[3], a[4], a[5]);
              }},
             {"Paste(CVQDIB*, dx, dy, sx, sy, w, h)",
              [](Call& c) {
                  const auto& a = c.argument;
                  c.image.Paste(&c.source, a[0], a[1], a[2], a[3], a[4], a[5]);
              }},
             {"pfPaste",
              [](Call& c) {
                  const auto& a = c.argument;
                  CVQDIB::pfPaste(&c.image, &c.source, a[0], a[1], a[2], a[3], a[4], a[5]);
              }},
             {"PasteDefault",
              [](Call& c) {
                  const auto& a = c.argument;
                  Routines::pasteDefault()(&c.image, &c.source, a[0], a[1], a[2], a[3], a[4], a[5]);
              }},
             {"PasteSSE2",
              [](Call& c) {
                  const auto& a = c.argument;
                  Routines::pasteSse2()(&c.image, &c.source, a[0], a[1], a[2], a[3], a[4], a[5]);
              }}},
            kBlock,
            true};
}

} // namespace

std::vector<Operation> blockOperations()
{
    return {copyBlock(),
            pasteBlock(),
            {"CopyAtAPlace",
             [](Model& m) { copy(m.image, m.source, wholeAt(m.source, m.argument[0], m.argument[1])); },
             {{"Copy(CVQDIB&, x, y)", [](Call& c) { c.image.Copy(c.source, c.argument[0], c.argument[1]); }},
              {"Copy(CVQDIB*, x, y)", [](Call& c) { c.image.Copy(&c.source, c.argument[0], c.argument[1]); }}},
             {choose::column, choose::row},
             true},
            {"PasteAtAPlace",
             [](Model& m) { paste(m.image, m.source, wholeAt(m.source, m.argument[0], m.argument[1])); },
             {{"Paste(CVQDIB&, x, y)", [](Call& c) { c.image.Paste(c.source, c.argument[0], c.argument[1]); }},
              {"Paste(CVQDIB*, x, y)", [](Call& c) { c.image.Paste(&c.source, c.argument[0], c.argument[1]); }}},
             {choose::column, choose::row},
             true},
            {"CopyOfTheWhole",
             [](Model& m) { copy(m.image, m.source, wholeAt(m.source, 0, 0)); },
             {{"Copy(CVQDIB&)", [](Call& c) { c.image.Copy(c.source); }},
              {"Copy(CVQDIB*)", [](Call& c) { c.image.Copy(&c.source); }}},
             {},
             true},
            {"PasteOfTheWhole",
             [](Model& m) { paste(m.image, m.source, wholeAt(m.source, 0, 0)); },
             {{"Paste(CVQDIB&)", [](Call& c) { c.image.Paste(c.source); }},
              {"Paste(CVQDIB*)", [](Call& c) { c.image.Paste(&c.source); }}},
             {},
             true}};
}

std::vector<Operation> blendOperations()
{
    return {
        {"Blend",
         [](Model& m) { blend(m.image, m.source); },
         {{"Blend(const CVQDIB&)", [](Call& c) { c.image.Blend(std::as_const(c.source)); }},
          {"Blend(const CVQDIB*)", [](Call& c) { c.image.Blend(&std::as_const(c.source)); }}},
         {},
         true},
        {"BlendByAWeight",
         [](Model& m) { blend(m.image, m.source, m.argument[0]); },
         {{"Blend(const CVQDIB&, a)", [](Call& c) { c.image.Blend(std::as_const(c.source), LONG{c.argument[0]}); }},
          {"Blend(const CVQDIB*, a)", [](Call& c) { c.image.Blend(&std::as_const(c.source), LONG{c.argument[0]}); }}},
         {choose::modestLevel},
         true},
        {"BlendWithAColour",
         [](Model& m) { blendColour(m.image, m.argument[0], m.argument[1], m.argument[2], m.argument[3]); },
         {{"Blend(r, g, b, a)",
           [](Call& c) { c.image.Blend(c.argument[0], c.argument[1], c.argument[2], c.argument[3]); }}},
         {choose::byte, choose::byte, choose::byte, choose::modestLevel}},
        {"BlendWithAColorRef",
         [](Model& m) { blendColorRef(m.image, static_cast<Word>(m.argument[0]), m.argument[1]); },
         {{"Blend(colour, a)",
           [](Call& c) { c.image.Blend(static_cast<COLORREF>(c.argument[0]), LONG{c.argument[1]}); }}},
         {choose::colourWithTopByte, choose::level}},
    };
}

} // namespace vq::reference
