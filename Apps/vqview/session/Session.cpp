// SPDX-License-Identifier: MIT
#include "vqview/session/Session.h"

#include "vqview/session/PictureFile.h"
#include "vqview/session/State.h"
#include "vqview/text/Text.h"

#include <array>

namespace vqview {

namespace {

constexpr std::chrono::seconds kNoticeTime{6};

struct ToolRow
{
    Tool tool;
    char key;
    const char* name;
};
constexpr std::array<ToolRow, static_cast<std::size_t>(Tool::End)> kTools{{
    {Tool::Look, 'V', "Look"},
    {Tool::Box, 'B', "Box"},
    {Tool::Circle, 'C', "Circle"},
    {Tool::Band, 'L', "Band"},
    {Tool::Lasso, 'A', "Lasso"},
    {Tool::Polygon, 'P', "Polygon"},
    {Tool::Measure, 'M', "Measure"},
}};

constexpr bool areInOrder()
{
    for (std::size_t index = 0; index < kTools.size(); ++index)
        if (kTools[index].tool != static_cast<Tool>(index))
            return false;
    return true;
}
static_assert(areInOrder());

/// What a held key makes of the next selection.
const char* effectOf(EVQSelectionMode mode)
{
    switch (mode) {
    case VQ_SELECT_ADD:
        return "adds to the selection";
    case VQ_SELECT_SUBTRACT:
        return "takes from the selection";
    case VQ_SELECT_TOGGLE:
        return "turns the selection over";
    default:
        return "selects anew";
    }
}

} // namespace

Session::Session() : m_state(std::make_unique<State>())
{
    CVQDrawingAPI::UpdateSelectionColor();
}

Session::~Session() = default;

void Session::setSize(int width, int height, float scale)
{
    if (width == m_state->width && height == m_state->height && scale == m_state->scale)
        return;
    if (scale != m_state->scale)
        CVQDisplayAPI::SetScaleFactor(scale); // by which the library's shapes draw their lines
    m_state->width = std::max(width, 1);
    m_state->height = std::max(height, 1);
    m_state->scale = scale;
    m_state->camera.setSize(m_state->width, m_state->height);
    m_state->selecting.setScale(scale);
    m_state->lookedElsewhere();
}

int Session::width() const
{
    return m_state->width;
}
int Session::height() const
{
    return m_state->height;
}
SVQGLVariables Session::variables() const
{
    return m_state->camera.variables();
}
bool Session::wantsFrame() const
{
    return m_state->wantsFrame || m_state->loader.isLoading();
}

void Session::poll()
{
    poll(Clock::now());
}

void Session::poll(Clock::time_point now)
{
    if (std::exchange(m_state->isNoticeNew, false))
        m_state->noticeEnd = now + kNoticeTime;
    if (m_state->noticeEnd && now >= *m_state->noticeEnd) {
        m_state->notice.clear();
        m_state->noticeEnd.reset();
        m_state->changed();
    }
    std::optional<ReadOutcome> outcome = m_state->loader.poll();
    if (!outcome)
        return;
    if (!outcome->message.empty())
        say(outcome->message);
    if (!outcome->model) // a document goes on waiting for its scan, which may be elsewhere
        return;
    m_state->modelPath = m_state->pathOfLoader;
    m_state->showModel(std::move(outcome->model));
    const auto document = std::exchange(m_state->documentToCome, nullptr);
    if (document && pathOf(document->scan).filename() == m_state->modelPath.filename())
        m_state->takeOver(*document);
}

void Session::open(const std::filesystem::path& path)
{
    if (isDocument(path))
        openDocument(path);
    else
        read(path);
}

void Session::read(const std::filesystem::path& path)
{
    std::error_code error; // a document is opened from any folder
    const std::filesystem::path whole = std::filesystem::absolute(path, error);
    m_state->pathOfLoader = error ? path : whole;
    m_state->loader.start(path);
    m_state->changed();
}

void Session::show(std::shared_ptr<const Model> model)
{
    m_state->modelPath.clear();
    m_state->showModel(std::move(model));
}

std::shared_ptr<const Model> Session::model() const
{
    return m_state->model;
}
bool Session::isLoading() const
{
    return m_state->loader.isLoading();
}
double Session::progress() const
{
    return m_state->loader.progress();
}
void Session::cancelLoading()
{
    m_state->loader.cancel();
}

Tool Session::tool() const
{
    return m_state->selecting.tool();
}

void Session::setTool(Tool tool)
{
    m_state->selecting.setTool(tool);
    m_state->changed();
}

bool Session::selectsThrough() const
{
    return m_state->throughAll;
}

void Session::setSelectsThrough(bool through)
{
    m_state->throughAll = through;
    m_state->changed();
}

bool Session::exchangesKeys() const
{
    return m_state->selecting.exchangesKeys();
}

void Session::setExchangesKeys(bool exchanged)
{
    m_state->selecting.setExchangesKeys(exchanged);
    m_state->changed();
}

std::size_t Session::selectedCount() const
{
    return m_state->selecting.indices().size();
}
const std::vector<std::uint32_t>& Session::selected() const
{
    return m_state->selecting.indices();
}
const std::vector<std::uint32_t>& Session::picked() const
{
    return m_state->picked;
}
bool Session::canUndo() const
{
    return m_state->selecting.canUndo();
}
bool Session::canRedo() const
{
    return m_state->selecting.canRedo();
}

void Session::undo()
{
    m_state->selecting.undo();
    m_state->changed();
}

void Session::redo()
{
    m_state->selecting.redo();
    m_state->changed();
}

void Session::selectAll()
{
    m_state->selecting.selectAll();
    m_state->changed();
}

void Session::selectNone()
{
    m_state->selecting.selectNone();
    m_state->changed();
}

void Session::invertSelection()
{
    m_state->selecting.invert();
    m_state->changed();
}

Shown& Session::shown()
{
    m_state->lookedElsewhere(); // the caller is about to change what is drawn
    return m_state->shown;
}

void Session::fit()
{
    if (m_state->model)
        m_state->camera.fit(m_state->model->bounds);
    m_state->lookedElsewhere();
}

bool Session::isOrthographic() const
{
    return m_state->camera.isOrthographic();
}

void Session::setOrthographic(bool orthographic)
{
    m_state->camera.setOrthographic(orthographic);
    m_state->lookedElsewhere();
}

void Session::lookAlong(Side side)
{
    m_state->camera.lookAlong(side);
    m_state->lookedElsewhere();
}

VertexValue Session::value() const
{
    return m_state->value;
}

void Session::setValue(VertexValue value)
{
    m_state->value = value;
    m_state->areValuesKnown = false;
    m_state->isSceneOfModel = false; // its colours
    m_state->changed();
}

void Session::hold(Modifiers held)
{
    if (held != m_state->held)
        m_state->changed();
    m_state->held = held;
}

std::string Session::statusLine() const
{
    const State& state = *m_state;
    std::string line = kTools[static_cast<std::size_t>(tool())].name;
    if (!state.model)
        return line + "   no scan yet: drop one here";
    line += "   " + counted(selectedCount()) + " of " + counted(state.model->positions.size()) + " points selected   ";
    line += state.throughAll ? "through" : "visible";
    if (const std::size_t corners = state.selecting.cornerCount(); corners > 0)
        line += "   " + std::to_string(corners) + (corners == 1 ? " corner" : " corners") +
                (corners < 3 ? "" : ", Enter closes");
    const EVQSelectionMode mode = modeOf(state.held, state.selecting.exchangesKeys());
    if (tool() != Tool::Look && tool() != Tool::Measure)
        return line + "   " + effectOf(mode);
    return line;
}

std::string Session::notice() const
{
    return m_state->notice;
}
void Session::say(const std::string& notice)
{
    m_state->say(notice);
}

void Session::preferencesChanged()
{
    CVQDrawingAPI::UpdateSelectionColor();
    m_state->lookedElsewhere();
}

bool Session::keepPicture(CVQDIB& picture, const std::filesystem::path& path)
{
    const std::filesystem::path written = writePicture(picture, path);
    say(written.empty() ? utf8Of(path) + " cannot be written" : "Saved " + utf8Of(written));
    return !written.empty();
}

bool Session::savePicture(const std::filesystem::path& path)
{
    CVQDIB picture(1, 1);
    drawTo(picture);
    return keepPicture(picture, path);
}

bool Session::saveReport(const std::filesystem::path& path)
{
    CVQDIB report(1, 1);
    drawReportTo(report);
    const bool isSaved = keepPicture(report, path);
    if (isSaved)
        m_state->report = report;
    return isSaved;
}

bool Session::saveDocument(const std::filesystem::path& path)
{
    State& state = *m_state;
    const std::filesystem::path named = path.has_extension() ? path : std::filesystem::path(path) += ".vqd";
    Document document;
    drawReportTo(document.report);
    document.scan = utf8Of(state.modelPath);
    document.texture = state.texture;
    document.selection = state.selecting.set();
    const std::string failure = writeDocument(named, document);
    if (failure.empty())
        state.report = document.report;
    say(failure.empty() ? "Saved " + utf8Of(named) : failure);
    return failure.empty();
}

bool Session::openDocument(const std::filesystem::path& path)
{
    State& state = *m_state;
    auto document = std::make_unique<Document>();
    if (const std::string failure = readDocument(path, *document); !failure.empty()) {
        say(failure);
        return false;
    }
    say("Opened " + utf8Of(path));
    preferencesChanged();
    if (document->scan.empty()) {
        state.report = document->report;
        state.texture = document->texture;
        return true;
    }
    std::filesystem::path scan = pathOf(document->scan);
    std::error_code error; // one that has moved along with the document is found beside it
    if (const auto beside = path.parent_path() / scan.filename();
        !std::filesystem::exists(scan, error) && std::filesystem::exists(beside, error))
        scan = beside;
    read(scan);
    state.documentToCome = std::move(document);
    return true;
}

CVQDIB& Session::reportImage()
{
    return m_state->report;
}
CVQTexture& Session::texture()
{
    return m_state->texture;
}

} // namespace vqview
