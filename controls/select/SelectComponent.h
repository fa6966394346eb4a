#pragma once

#include <QPointer>
#include <cstdint>
#include <optional>
#include <string>

#include "controls/select/model/BrowseFolder.h"
#include "controls/select/model/BrowseSelection.h"
#include "platform/components/Component.h"

namespace controls::select {

class SelectPane;

/// The browse selection with the operations that its host calls.
class SelectComponent : public platform::Component {
  public:
    SelectComponent(platform::ComponentSite& site, QWidget* parent);
    ~SelectComponent() override;
    SelectComponent(const SelectComponent&) = delete;
    SelectComponent& operator=(const SelectComponent&) = delete;

    QWidget& widget() override;
    std::span<const platform::OperationInfo> operations() const override;
    std::span<const platform::EventInfo> events() const override;
    std::optional<platform::Variant> invoke(std::int32_t dispid, platform::InvokeKind kind,
                                            std::span<const platform::Variant> arguments) override;

    /// @name Operations, called through `invoke`.
    /// @{
    std::string version() const;
    std::string getPageTitle(std::int32_t pageId) const;
    void initialise(std::int16_t hostCode, std::string dataFolder, std::int32_t viewWindow);
    std::string getItemTitle(std::int32_t itemCode) const;
    void setSection(std::int16_t code);
    void showItem(std::int32_t pageId, std::int32_t itemCode, bool reserved);
    std::int32_t getAuxHandle() const;
    std::int32_t getEditWindow() const;
    /// @}

  private:
    void raise(const ChoiceEvents& events);
    void sendHost(platform::WPARAM first, platform::LPARAM message);

    platform::ComponentSite& site_;
    BrowseSelection selection_;
    std::optional<BrowseFolder> folder_;
    // Its Qt parent, which belongs to the host, may destroy it first.
    QPointer<SelectPane> pane_;
    platform::HWND editWindow_ = 0;
    platform::HWND auxWindow_ = 0;
    platform::HWND hostWindow_ = 0;
};

/// Creates the component of the module.
std::unique_ptr<platform::Component> createSelectComponent(platform::ComponentSite& site, QWidget* parent);

}  // namespace controls::select
