#pragma once

#include <QPointer>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "controls/dataanalyser/AnalyserPane.h"
#include "controls/dataanalyser/model/Analyser.h"
#include "controls/dataanalyser/model/StateBlocks.h"
#include "platform/components/Component.h"

namespace controls::dataanalyser {

/// The data analyser with the operations that its host calls. README.md describes the values of its state.
class AnalyserComponent : public platform::Component {
  public:
    AnalyserComponent(platform::ComponentSite& site, QWidget* parent, GraphPartsSource graphs);
    ~AnalyserComponent() override;
    AnalyserComponent(const AnalyserComponent&) = delete;
    AnalyserComponent& operator=(const AnalyserComponent&) = delete;

    QWidget& widget() override { return *pane_; }
    std::span<const platform::OperationInfo> operations() const override;
    std::span<const platform::EventInfo> events() const override { return {}; }
    std::optional<platform::Variant> invoke(std::int32_t dispid, platform::InvokeKind kind,
                                            std::span<const platform::Variant> arguments) override;

    std::span<const std::byte> block(std::int32_t location) const override { return blocks_.at(location); }
    std::int32_t keepBlock(std::span<const std::byte> bytes) override { return blocks_.keepHosts(bytes); }

    /// @name Operations, called through `invoke`.
    /// @{
    std::string version() const;
    std::int16_t viewMode() const;
    void putViewMode(std::int16_t mode);
    std::int16_t sortColumn() const;
    void putSortColumn(std::int16_t column);
    std::int32_t cursor() const;
    void putCursor(std::int32_t id);
    bool descending() const;
    void putDescending(bool descending);
    bool inCelsius() const;
    void putInCelsius(bool celsius);
    std::int16_t graphKind() const;
    void putGraphKind(std::int16_t kind);
    std::int32_t selectionSize() const;
    std::int16_t topRow() const;
    void initialise(std::int32_t hostCode, const std::string& dataFolder);
    void copyAllData();
    void copySelection();
    std::int16_t dataSet() const;
    void setDataSet(std::int16_t number);
    std::int32_t entriesLocation();
    void setEntriesLocation(std::int32_t location);
    std::int32_t selectionLocation();
    void setSelection(std::int32_t size, std::int16_t topRow, std::int32_t location);
    std::int32_t entry(std::int16_t index) const;
    void setEntry(std::int16_t index, std::int32_t value);
    std::int16_t copyGraph();
    void printView();
    /// @}

  private:
    platform::ComponentSite& site_;
    std::string dataFolder_;
    Analyser analyser_;
    // Its Qt parent, which belongs to the host, may destroy it first.
    QPointer<AnalyserPane> pane_;
    StateBlocks blocks_;
    // The words of the entries that the host is about to set. Without them, the analyser's own order of
    // entries counts.
    std::optional<std::vector<std::int32_t>> hostsWords_;
};

/// Creates the component of the module.
std::unique_ptr<platform::Component> createAnalyserComponent(platform::ComponentSite& site, QWidget* parent);

}  // namespace controls::dataanalyser
