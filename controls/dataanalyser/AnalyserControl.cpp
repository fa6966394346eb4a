#include "controls/dataanalyser/AnalyserControl.h"

#include <array>

#include "controls/common/Version.h"
#include "platform/automation/DispatchMap.h"

namespace controls::dataanalyser {

namespace {

using platform::Method;
using platform::PropertyGet;
using platform::PropertyPut;
using platform::Variant;
using Self = AnalyserControl;

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
    PropertyGet<9, &Self::topElement>("Value9"),
    Method<10, &Self::initialise>("Initialise"),
    Method<11, &Self::copyAllData>("CopyAllData"),
    Method<12, &Self::copySelection>("CopySelection"),
    Method<13, &Self::family>("GetMode"),
    Method<14, &Self::columnsLocation>("GetEntryCountRef"),
    Method<15, &Self::setFamily>("SetMode"),
    Method<16, &Self::setColumnsLocation>("SetEntryCountRef"),
    Method<17, &Self::selectionLocation>("GetValue11"),
    Method<18, &Self::setSelection>("SetValues"),
    Method<20, &Self::setColumnWidth>("SetEntry"),
    Method<21, &Self::columnWidth>("GetEntry"),
    Method<22, &Self::copyGraph>("CopyGraph"),
    Method<23, &Self::printView>("PrintView"),
};
constexpr auto operationInfos = platform::describe(operationTable);

}  // namespace

AnalyserControl::AnalyserControl(QWidget* parent) : pane_(new AnalyserPane(parent)) {}

AnalyserControl::~AnalyserControl() { const std::unique_ptr<AnalyserPane> last(pane_.data()); }

QWidget& AnalyserControl::widget() { return *pane_; }

std::span<const platform::OperationInfo> AnalyserControl::operations() const { return operationInfos; }

std::optional<Variant> AnalyserControl::invoke(std::int32_t dispid, platform::InvokeKind kind,
                                               std::span<const Variant> arguments) {
    if (!pane_) return std::nullopt;
    return platform::dispatch(*this, operationTable, dispid, kind, arguments);
}

std::string AnalyserControl::version() const { return std::string(controls::version); }

// There is no graph, so that no other mode can be on show.
std::int16_t AnalyserControl::viewMode() const { return 0; }
void AnalyserControl::putViewMode(std::int16_t) {}
std::int16_t AnalyserControl::graphKind() const { return 0; }
void AnalyserControl::putGraphKind(std::int16_t) {}
std::int16_t AnalyserControl::copyGraph() { return 0; }
void AnalyserControl::printView() {}

std::int16_t AnalyserControl::sortColumn() const {
    return static_cast<std::int16_t>(table().elements().order().column);
}

void AnalyserControl::putSortColumn(std::int16_t code) {
    RowOrder order = table().elements().order();
    order.column = columnOfCode(code).value_or(Column::number);
    setOrder(order);
}

bool AnalyserControl::descending() const { return table().elements().order().descending; }

void AnalyserControl::putDescending(bool descending) {
    RowOrder order = table().elements().order();
    order.descending = descending;
    setOrder(order);
}

std::int16_t AnalyserControl::family() const {
    const auto& listed = table().elements().order().family;
    return static_cast<std::int16_t>(listed ? familyCode(*listed) : 0);
}

void AnalyserControl::setFamily(std::int16_t code) {
    RowOrder order = table().elements().order();
    order.family = familyOfCode(code);
    setOrder(order);
}

bool AnalyserControl::inCelsius() const { return table().elements().unit() == TemperatureUnit::celsius; }

void AnalyserControl::putInCelsius(bool celsius) {
    pane_->setUnit(celsius ? TemperatureUnit::celsius : TemperatureUnit::kelvin);
}

std::int32_t AnalyserControl::cursor() const { return table().cursor(); }

void AnalyserControl::putCursor(std::int32_t number) { table().setCursorTo(number); }

std::int32_t AnalyserControl::selectionSize() const {
    return static_cast<std::int32_t>(table().selected().size());
}

std::int16_t AnalyserControl::topElement() const { return static_cast<std::int16_t>(table().top()); }

std::int32_t AnalyserControl::selectionLocation() { return blocks_.keepSelection(table().selected()); }

void AnalyserControl::setSelection(std::int32_t size, std::int16_t topElement, std::int32_t location) {
    table().select(blocks_.selection(location, size));
    table().scrollTopTo(topElement);
}

// Every host is served, and the elements' data is the component's own.
void AnalyserControl::initialise(std::int32_t, const std::string&) {}

void AnalyserControl::copyAllData() { pane_->copyAll(); }

void AnalyserControl::copySelection() { pane_->copySelected(); }

std::int32_t AnalyserControl::columnsLocation() { return blocks_.keepColumns(); }

void AnalyserControl::setColumnsLocation(std::int32_t location) {
    takesWidths_ = blocks_.tellsOurColumns(location);
    table().setWidths({});
}

std::int32_t AnalyserControl::columnWidth(std::int16_t index) const {
    const auto column = columnOfCode(index);
    return column ? table().widths().set(*column) : ColumnWidths::automatic;
}

void AnalyserControl::setColumnWidth(std::int16_t index, std::int32_t pixels) {
    const auto column = columnOfCode(index);
    if (!column || !takesWidths_) return;
    ColumnWidths widths = table().widths();
    widths.set(*column, pixels);
    table().setWidths(widths);
}

std::unique_ptr<platform::Control> createAnalyserControl(platform::ControlSite&, QWidget* parent) {
    return std::make_unique<AnalyserControl>(parent);
}

}  // namespace controls::dataanalyser
