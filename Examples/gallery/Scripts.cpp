// SPDX-License-Identifier: MIT
#include "gallery/Sheet.h"
#include "gallery/Sheets.h"

namespace {

using namespace Gdiplus;

struct Script
{
    std::wstring name;
    std::wstring text;
};
const Script kScripts[] = {{L"Latin", L"Prüfmaß Ø 12,5 µm"},
                           {L"Greek", L"Μέτρηση απόστασης"},
                           {L"Cyrillic", L"Измерение расстояния"},
                           {L"Armenian", L"Հեռավորություն"},
                           {L"Georgian", L"მანძილი"},
                           {L"Hebrew", L"מדידת מרחק"},
                           {L"Arabic", L"قياس المسافة"},
                           {L"both directions", L"Abstand (מרחק) 12.5 mm"},
                           {L"Devanagari", L"दूरी का मापन"},
                           {L"Tamil", L"தூரம்"},
                           {L"Thai", L"ระยะทาง"},
                           {L"Chinese", L"测量距离"},
                           {L"Japanese", L"距離を測る"},
                           {L"Korean", L"거리 측정"},
                           {L"symbols", L"⌀ ∠ ⊥ ∥ ± ≤ √2 → ▲"},
                           {L"emoji", L"📏 📐"}};

void drawScript(const Cell& cell, const Script& script)
{
    const SolidBrush brush(Color(20, 20, 20));
    cell.graphics.SetTextRenderingHint(TextRenderingHintAntiAlias);
    drawText(cell.graphics, script.text, *makeFont({18}), static_cast<float>(cell.left), static_cast<float>(cell.top),
             brush);
}

} // namespace

bool addScripts(Gallery& gallery)
{
    return addSheet(gallery,
                    {"66-scripts", "Scripts: what the font lacks is taken from other installed ones", 4, 270, 66},
                    kScripts, drawScript);
}
