#include "controls/dataanalyser/AnalyserComponent.h"

#include <array>

#include "controls/common/Version.h"
#include "controls/dataanalyser/ClipboardCopy.h"
#include "platform/components/DispatchMap.h"

namespace controls::dataanalyser {

namespace {

using platform::Method;
using platform::PropertyGet;
using platform::PropertyPut;
using platform::Variant;
using Self = AnalyserComponent;

constexpr std::string_view documentName = "Kalyxo";
// The margin on each side of a printed graph is this part of the page's width.
constexpr int marginPart = 16;
constexpr int pixelsPerInch = 110;

constexpr auto operationTable = std::array{
    PropertyGet<1, &Self::version>("Version"),
    PropertyGet<2, &Self::viewMode>("ViewMode"),
    PropertyPut<2, &Self::putViewMode>("ViewMode"),
    PropertyGet<3, &Self::sortColumn>("Option3"),
    PropertyPut<3, &Self::putSortColumn>("Option3"),
    PropertyGet<4, &Self::cursor>("Option4"),
    PropertyPut<4, &Self::putCursor>("Option4"),
    PropertyGet<5, &Self::descending>("Flag5"),
    PropertyPut<5, &Self::putDescending>("Flag5"),
    PropertyGet<6, &Self::inCelsius>("Flag6"),
    PropertyPut<6, &Self::putInCelsius>("Flag6"),
    PropertyGet<7, &Self::graphKind>("Option7"),
    PropertyPut<7, &Self::putGraphKind>("Option7"),
    PropertyGet<8, &Self::selectionSize>("Value8"),
    PropertyGet<9, &Self::topRow>("Value9"),
    Method<10, &Self::initialise>("Initialise"),
    Method<11, &Self::copyAllData>("CopyAllData"),
    Method<12, &Self::copySelection>("CopySelection"),
    Method<13, &Self::dataSet>("GetMode"),
    Method<14, &Self::entriesLocation>("GetEntryCountRef"),
    Method<15, &Self::setDataSet>("SetMode"),
    Method<16, &Self::setEntriesLocation>("SetEntryCountRef"),
    Method<17, &Self::selectionLocation>("GetValue11"),
    Method<18, &Self::setSelection>("SetValues"),
    Method<20, &Self::setEntry>("SetEntry"),
    Method<21, &Self::entry>("GetEntry"),
    Method<22, &Self::copyGraph>("CopyGraph"),
    Method<23, &Self::printView>("PrintView"),
};
constexpr auto operationInfos = platform::describe(operationTable);

}  // namespace

AnalyserComponent::AnalyserComponent(platform::ComponentSite& site, QWidget* parent, GraphPartsSource graphs)
    : site_(site),
      analyser_(
          [this] { return dataFolder_.empty() ? DataLibrary() : DataLibrary(site_.files(), dataFolder_); }),
      pane_(new AnalyserPane(analyser_, graphs, parent)) {}

AnalyserComponent::~AnalyserComponent() { const std::unique_ptr<AnalyserPane> last(pane_.data()); }

std::span<const platform::OperationInfo> AnalyserComponent::operations() const { return operationInfos; }

std::optional<Variant> AnalyserComponent::invoke(std::int32_t dispid, platform::InvokeKind kind,
                                                 std::span<const Variant> arguments) {
    if (!pane_) return std::nullopt;
    return platform::dispatch(*this, operationTable, dispid, kind, arguments);
}

std::string AnalyserComponent::version() const { return std::string(controls::version); }

std::int16_t AnalyserComponent::viewMode() const { return analyser_.graphShown() ? 1 : 0; }
void AnalyserComponent::putViewMode(std::int16_t mode) { analyser_.setGraphShown(mode != 0); }

std::int16_t AnalyserComponent::sortColumn() const {
    const auto column = analyser_.order().column;
    return column ? static_cast<std::int16_t>(*column) : std::int16_t{-1};
}
void AnalyserComponent::putSortColumn(std::int16_t column) { analyser_.setSortColumn(column); }

std::int32_t AnalyserComponent::cursor() const { return analyser_.cursor(); }
void AnalyserComponent::putCursor(std::int32_t id) { analyser_.setCursor(id); }

bool AnalyserComponent::descending() const { return analyser_.order().descending; }
void AnalyserComponent::putDescending(bool descending) { analyser_.setDescending(descending); }

bool AnalyserComponent::inCelsius() const { return analyser_.unit() == TemperatureUnit::celsius; }
void AnalyserComponent::putInCelsius(bool celsius) {
    analyser_.setUnit(celsius ? TemperatureUnit::celsius : TemperatureUnit::kelvin);
}

std::int16_t AnalyserComponent::graphKind() const { return static_cast<std::int16_t>(analyser_.plan().kind); }
void AnalyserComponent::putGraphKind(std::int16_t kind) { analyser_.setGraphKind(kind); }

std::int32_t AnalyserComponent::selectionSize() const {
    return static_cast<std::int32_t>(analyser_.selected().size() * sizeof(std::int16_t));
}

std::int16_t AnalyserComponent::topRow() const { return analyser_.top(); }

// Any host code is accepted. The files are read when they are first needed.
void AnalyserComponent::initialise(std::int32_t, const std::string& dataFolder) { dataFolder_ = dataFolder; }

void AnalyserComponent::copyAllData() { copyAllRows(analyser_); }

void AnalyserComponent::copySelection() { copySelectedRows(analyser_); }

std::int16_t AnalyserComponent::dataSet() const { return analyser_.dataSet().number; }
void AnalyserComponent::setDataSet(std::int16_t number) { analyser_.setDataSet(number); }

std::int32_t AnalyserComponent::entriesLocation() { return blocks_.keepEntries(analyser_.entryWords()); }

void AnalyserComponent::setEntriesLocation(std::int32_t location) {
    hostsWords_ = blocks_.entries(location);
    analyser_.clearEntries();
}

std::int32_t AnalyserComponent::selectionLocation() { return blocks_.keepSelection(analyser_.selected()); }

void AnalyserComponent::setSelection(std::int32_t size, std::int16_t topRow, std::int32_t location) {
    analyser_.setSelected(blocks_.selection(location, size));
    analyser_.setTop(topRow);
}

std::int32_t AnalyserComponent::entry(std::int16_t index) const {
    const auto words = analyser_.entryWords();
    const bool known = index >= 0 && static_cast<std::size_t>(index) < words.size();
    return known ? analyser_.entry(words[static_cast<std::size_t>(index)]) : 0;
}

void AnalyserComponent::setEntry(std::int16_t index, std::int32_t value) {
    const auto words = hostsWords_ ? *hostsWords_ : analyser_.entryWords();
    if (index < 0 || static_cast<std::size_t>(index) >= words.size()) return;
    analyser_.setEntry(words[static_cast<std::size_t>(index)], value);
}

std::int16_t AnalyserComponent::copyGraph() { return pane_->copyGraph() ? 1 : 0; }

void AnalyserComponent::printView() {
    const GraphParts* graphs = analyser_.graphShown() ? pane_->graphs() : nullptr;
    if (!graphs) return;
    site_.print(documentName, [this, graphs](QPainter& painter, const QRect& page, int dotsPerInch) {
        const int margin = page.width() / marginPart;
        QRectF area = page.adjusted(margin, margin, -margin, -margin);
        area.setHeight(std::min(area.height(), area.width() * 0.75));
        graphs->paint(analyser_, painter, area, static_cast<double>(dotsPerInch) / pixelsPerInch);
    });
}

std::unique_ptr<platform::Component> createAnalyserComponent(platform::ComponentSite& site, QWidget* parent) {
    return std::make_unique<AnalyserComponent>(site, parent, loadGraphParts);
}

}  // namespace controls::dataanalyser
