// SPDX-License-Identifier: MIT
#include "vqview/model/Model.h"
#include "vqview/overlay/ReportLayout.h"
#include "vqview/text/Text.h"

#include <algorithm>
#include <cmath>

namespace vqview {

namespace {

CString countText(std::size_t count)
{
    return CVQUnit::GetDeciPointedString(static_cast<double>(count), false, VQ_UNIT_END, true, false, false, 0);
}

CString headingOf(const ReportContent& content, int exponent)
{
    CString heading = textOf(content.valueName);
    CString unit = textOf(content.unit);
    if (exponent != 0) {
        CString power;
        power.Format(L"10^%d", exponent);
        unit = unit.IsEmpty() ? power : power + L" " + unit;
    }
    return unit.IsEmpty() ? heading : heading + L" (" + unit + L")";
}

ReportTexts::Row factOf(const std::string& line)
{
    const std::size_t tab = line.find('\t');
    if (tab == std::string::npos)
        return {textOf(line), CString()};
    return {textOf(line.substr(0, tab)), textOf(line.substr(tab + 1))};
}

std::string fact(std::string label, const CString& text)
{
    label += '\t';
    label += utf8Of(std::wstring_view(text));
    return label;
}

std::string sizeFact(const char* label, float least, float most)
{
    return fact(label, CVQUnit::GetDeciPointedString(double{most} - least, true, VQ_UNIT_LENGTH, true, true, true, -1));
}

/// A number as those of the axis, with one more decimal.
CString meanText(double mean, const Ticks& ticks, const std::string& unit)
{
    Ticks finer = ticks;
    ++finer.decimals;
    const CString text = tickText(mean, finer);
    return ticks.exponent == 0 && !unit.empty() ? text + L" " + textOf(unit) : text;
}

} // namespace

std::vector<std::string> factsOf(const Model& model, std::size_t selectedCount)
{
    std::vector<std::string> facts;
    const auto count = [&facts](const char* label, std::size_t number) {
        facts.push_back(fact(label, countText(number)));
    };
    count("Points", model.positions.size());
    if (!model.isCloud()) {
        count("Triangles", model.triangles.size());
        count("Edges", model.edges.size());
    }
    count("Selected", selectedCount);
    if (model.bounds.isEmpty())
        return facts;
    facts.push_back(sizeFact("Width (x)", model.bounds.least.x, model.bounds.most.x));
    facts.push_back(sizeFact("Height (y)", model.bounds.least.y, model.bounds.most.y));
    facts.push_back(sizeFact("Depth (z)", model.bounds.least.z, model.bounds.most.z));
    return facts;
}

CString tickText(double value, const Ticks& ticks)
{
    return CVQUnit::GetDeciPointedString(value / std::pow(10.0, ticks.exponent), false, VQ_UNIT_END, true, false, true,
                                         ticks.decimals);
}

ReportTexts reportTexts(const ReportContent& content, const Statistics& statistics, std::size_t selectedCount,
                        float scale)
{
    const COLORREF factColour = CVQDrawProperty::GetReportColor(DPC_REPORT_TEXT_COLOR).GetCOLORREF();
    const COLORREF axisColour = CVQDrawProperty::GetVQColor(DPC_COLORBAR_TEXT).GetCOLORREF();
    ReportTexts texts{styleOf(DPF_WIDGET_FONT, scale),
                      styleOf(DPF_UI_CTRL_FONT, scale),
                      styleOf(DPF_COLORBAR_FONT, scale),
                      styleOf(DPF_COLORBAR_FONT, scale),
                      textOf(content.title),
                      {},
                      {},
                      {}};
    texts.factStyle.colour = factColour;
    texts.headingStyle.colour = axisColour;
    texts.headingStyle.font.lfWeight = FW_BOLD;
    texts.axisStyle.colour = axisColour;
    for (const std::string& line : content.lines)
        texts.facts.push_back(factOf(line));
    constexpr int kTicks = 6; // as many as tell how long numbers are
    const Ticks ticks = ticksOf(statistics.least, statistics.most, kTicks);
    texts.heading = headingOf(content, ticks.exponent);
    texts.legend = {{L"All", countText(statistics.count)},
                    {L"Selected", countText(selectedCount)},
                    {L"Mean", meanText(statistics.mean, ticks, content.unit)}};
    return texts;
}

} // namespace vqview
