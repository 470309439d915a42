// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/text/FaceNames.h"

#include <algorithm>
#include <array>

namespace vq::gdiplus {
namespace {

using Families = std::span<const char* const>;

// Liberation, Arimo, Tinos, Cousine, Carlito, Caladea and Gelasio have the widths of the faces they stand in for. The
// others are chosen by look; of those DejaVu comes first for small sizes, being hinted for two-level rendering too.
constexpr const char* kInterface[] = {"Microsoft Sans Serif", "Tahoma",   "Arial", "Liberation Sans", "Arimo",
                                      "DejaVu Sans",          "Noto Sans"};
constexpr const char* kTahoma[] = {"Tahoma",      "Verdana",         "DejaVu Sans Condensed",
                                   "DejaVu Sans", "Liberation Sans", "Noto Sans"};
constexpr const char* kVerdana[] = {"Verdana", "DejaVu Sans", "Bitstream Vera Sans", "Noto Sans"};
constexpr const char* kSegoe[] = {"Segoe UI",    "Selawik",  "Open Sans", "DejaVu Sans Condensed",
                                  "DejaVu Sans", "Noto Sans"};
constexpr const char* kArial[] = {"Arial", "Liberation Sans", "Arimo", "Nimbus Sans", "DejaVu Sans", "Noto Sans"};
constexpr const char* kTimes[] = {"Times New Roman", "Liberation Serif", "Tinos",
                                  "Nimbus Roman",    "DejaVu Serif",     "Noto Serif"};
constexpr const char* kCourier[] = {"Courier New",    "Liberation Mono",  "Cousine",
                                    "Nimbus Mono PS", "DejaVu Sans Mono", "Noto Sans Mono"};
constexpr const char* kConsole[] = {"Consolas", "Lucida Console", "DejaVu Sans Mono", "Liberation Mono",
                                    "Noto Sans Mono"};
constexpr const char* kCalibri[] = {"Calibri", "Carlito", "DejaVu Sans Condensed", "DejaVu Sans", "Noto Sans"};
constexpr const char* kCambria[] = {"Cambria", "Caladea", "DejaVu Serif", "Noto Serif"};
constexpr const char* kGeorgia[] = {"Georgia", "Gelasio", "DejaVu Serif", "Noto Serif"};
constexpr const char* kSymbols[] = {"Segoe UI Symbol", "DejaVu Sans", "Noto Sans Symbols", "Noto Sans Symbols2"};
constexpr const char* kEmoji[] = {"Segoe UI Emoji", "Noto Color Emoji", "Noto Emoji"};
constexpr const char* kKorean[] = {"Malgun Gothic", "Noto Sans CJK KR", "Noto Sans KR", "NanumGothic"};
constexpr const char* kKoreanSerif[] = {"Batang", "Noto Serif CJK KR", "Noto Serif KR", "NanumMyeongjo"};
constexpr const char* kJapanese[] = {"Meiryo", "Noto Sans CJK JP", "Noto Sans JP", "IPAGothic"};
constexpr const char* kJapaneseSerif[] = {"MS Mincho", "Noto Serif CJK JP", "Noto Serif JP", "IPAMincho"};
constexpr const char* kSimplified[] = {"Microsoft YaHei", "Noto Sans CJK SC", "Noto Sans SC", "WenQuanYi Zen Hei"};
constexpr const char* kSimplifiedSerif[] = {"SimSun", "Noto Serif CJK SC", "Noto Serif SC"};
constexpr const char* kTraditional[] = {"Microsoft JhengHei", "Noto Sans CJK TC", "Noto Sans TC"};
constexpr const char* kTraditionalSerif[] = {"MingLiU", "Noto Serif CJK TC", "Noto Serif TC"};

struct Substitution
{
    std::u16string_view face;
    Families families;
    FontClass fontClass;
};

constexpr auto kSans = FontClass::SansSerif;
constexpr auto kSerif = FontClass::Serif;
constexpr auto kMono = FontClass::Monospace;

constexpr std::array kSubstitutions{
    Substitution{u"", kInterface, kSans},
    Substitution{u"MS Shell Dlg", kInterface, kSans},
    Substitution{u"MS Shell Dlg 2", kTahoma, kSans},
    Substitution{u"Microsoft Sans Serif", kInterface, kSans},
    Substitution{u"MS Sans Serif", kInterface, kSans},
    Substitution{u"System", kInterface, kSans},
    Substitution{u"Small Fonts", kInterface, kSans},
    Substitution{u"Tahoma", kTahoma, kSans},
    Substitution{u"Verdana", kVerdana, kSans},
    Substitution{u"Segoe UI", kSegoe, kSans},
    Substitution{u"Arial", kArial, kSans},
    Substitution{u"Helvetica", kArial, kSans},
    Substitution{u"Calibri", kCalibri, kSans},
    Substitution{u"Times New Roman", kTimes, kSerif},
    Substitution{u"Times", kTimes, kSerif},
    Substitution{u"MS Serif", kTimes, kSerif},
    Substitution{u"Cambria", kCambria, kSerif},
    Substitution{u"Georgia", kGeorgia, kSerif},
    Substitution{u"Courier New", kCourier, kMono},
    Substitution{u"Courier", kCourier, kMono},
    Substitution{u"Fixedsys", kCourier, kMono},
    Substitution{u"Terminal", kCourier, kMono},
    Substitution{u"Consolas", kConsole, kMono},
    Substitution{u"Lucida Console", kConsole, kMono},
    Substitution{u"Segoe UI Symbol", kSymbols, kSans},
    Substitution{u"Segoe UI Emoji", kEmoji, kSans},
    Substitution{u"Malgun Gothic", kKorean, kSans},
    Substitution{u"Gulim", kKorean, kSans},
    Substitution{u"GulimChe", kKorean, kSans},
    Substitution{u"Dotum", kKorean, kSans},
    Substitution{u"DotumChe", kKorean, kSans},
    Substitution{u"\uB9D1\uC740 \uACE0\uB515", kKorean, kSans}, // Malgun Gothic
    Substitution{u"\uAD74\uB9BC", kKorean, kSans},              // Gulim
    Substitution{u"\uAD74\uB9BC\uCCB4", kKorean, kSans},        // GulimChe
    Substitution{u"\uB3CB\uC6C0", kKorean, kSans},              // Dotum
    Substitution{u"\uB3CB\uC6C0\uCCB4", kKorean, kSans},        // DotumChe
    Substitution{u"Batang", kKoreanSerif, kSerif},
    Substitution{u"Gungsuh", kKoreanSerif, kSerif},
    Substitution{u"\uBC14\uD0D5", kKoreanSerif, kSerif}, // Batang
    Substitution{u"\uAD81\uC11C", kKoreanSerif, kSerif}, // Gungsuh
    Substitution{u"MS UI Gothic", kJapanese, kSans},
    Substitution{u"MS Gothic", kJapanese, kSans},
    Substitution{u"MS PGothic", kJapanese, kSans},
    Substitution{u"Meiryo", kJapanese, kSans},
    Substitution{u"Meiryo UI", kJapanese, kSans},
    Substitution{u"Yu Gothic", kJapanese, kSans},
    Substitution{u"Yu Gothic UI", kJapanese, kSans},
    Substitution{u"\uFF2D\uFF33 \u30B4\u30B7\u30C3\u30AF", kJapanese, kSans},       // MS Gothic
    Substitution{u"\uFF2D\uFF33 \uFF30\u30B4\u30B7\u30C3\u30AF", kJapanese, kSans}, // MS PGothic
    Substitution{u"MS Mincho", kJapaneseSerif, kSerif},
    Substitution{u"MS PMincho", kJapaneseSerif, kSerif},
    Substitution{u"Yu Mincho", kJapaneseSerif, kSerif},
    Substitution{u"Microsoft YaHei", kSimplified, kSans},
    Substitution{u"Microsoft YaHei UI", kSimplified, kSans},
    Substitution{u"SimHei", kSimplified, kSans},
    Substitution{u"\u5FAE\u8F6F\u96C5\u9ED1", kSimplified, kSans}, // Microsoft YaHei
    Substitution{u"\u9ED1\u4F53", kSimplified, kSans},             // SimHei
    Substitution{u"SimSun", kSimplifiedSerif, kSerif},
    Substitution{u"NSimSun", kSimplifiedSerif, kSerif},
    Substitution{u"\u5B8B\u4F53", kSimplifiedSerif, kSerif}, // SimSun
    Substitution{u"Microsoft JhengHei", kTraditional, kSans},
    Substitution{u"Microsoft JhengHei UI", kTraditional, kSans},
    Substitution{u"\u5FAE\u8EDF\u6B63\u9ED1\u9AD4", kTraditional, kSans}, // Microsoft JhengHei
    Substitution{u"MingLiU", kTraditionalSerif, kSerif},
    Substitution{u"PMingLiU", kTraditionalSerif, kSerif},
    Substitution{u"\u7D30\u660E\u9AD4", kTraditionalSerif, kSerif}, // MingLiU
};

char16_t folded(char16_t unit)
{
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + (u'a' - u'A')) : unit;
}

const Substitution* find(std::u16string_view face)
{
    const auto row =
        std::ranges::find_if(kSubstitutions, [face](const Substitution& s) { return sameFace(s.face, face); });
    return row == kSubstitutions.end() ? nullptr : &*row;
}

} // namespace

bool sameFace(std::u16string_view first, std::u16string_view second)
{
    return std::ranges::equal(first, second, {}, folded, folded);
}

std::span<const char* const> substitutesFor(std::u16string_view face)
{
    const Substitution* row = find(face);
    return row ? row->families : Families{};
}

const char* genericFamily(std::u16string_view face, FontClass fontClass)
{
    const Substitution* row = find(face);
    switch (row ? row->fontClass : fontClass) {
    case FontClass::Serif:
        return "serif";
    case FontClass::Monospace:
        return "monospace";
    case FontClass::SansSerif:
        break;
    }
    return "sans-serif";
}

} // namespace vq::gdiplus
