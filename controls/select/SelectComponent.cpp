#include "controls/select/SelectComponent.h"

#include <array>
#include <memory>
#include <utility>

#include "controls/common/Version.h"
#include "controls/contract/HostMessages.h"
#include "controls/select/FilterField.h"
#include "controls/select/SelectPane.h"
#include "controls/select/TopicView.h"
#include "platform/components/DispatchMap.h"

namespace controls::select {

namespace {

using platform::TypeCode;
using platform::Variant;

constexpr std::int32_t pageChosenId = 1;
constexpr std::int32_t itemChosenId = 2;

constexpr auto operationTable = std::array{
    platform::PropertyGet<1, &SelectComponent::version>("Version"),
    platform::Method<2, &SelectComponent::getPageTitle>("GetPageTitle"),
    platform::Method<3, &SelectComponent::initialise>("Initialise"),
    platform::Method<4, &SelectComponent::getItemTitle>("GetItemTitle"),
    platform::Method<5, &SelectComponent::setSection>("SetSection"),
    platform::Method<6, &SelectComponent::showItem>("ShowItem"),
    platform::Method<7, &SelectComponent::getAuxHandle>("GetAuxHandle"),
    platform::Method<8, &SelectComponent::getEditWindow>("GetEditWindow"),
};
constexpr auto operationInfos = platform::describe(operationTable);

constexpr std::array pageChosenTypes{TypeCode::i4, TypeCode::i4};
constexpr std::array itemChosenTypes{TypeCode::i4};
constexpr std::array eventInfos{platform::EventInfo{pageChosenId, "PageChosen", pageChosenTypes},
                                platform::EventInfo{itemChosenId, "ItemChosen", itemChosenTypes}};

}  // namespace

SelectComponent::SelectComponent(platform::ComponentSite& site, QWidget* parent)
    : site_(site),
      pane_(new SelectPane(selection_,
                           {[this](const ChoiceEvents& events) { raise(events); },
                            [this](std::int16_t code) {
                                sendHost(static_cast<platform::WPARAM>(code), controls::openSection);
                            },
                            [this](const std::string& text) {
                                sendHost(reinterpret_cast<platform::WPARAM>(&text), controls::searchWord);
                            }},
                           parent)) {
    FilterField& field = pane_->field();
    editWindow_ = site.registerWindow(field, "Edit",
                                      [&field](platform::UINT message, platform::WPARAM, platform::LPARAM) {
                                          return field.receive(message);
                                      });
    auxWindow_ = site.registerWindow(pane_->view(), "KzSelectList",
                                     [this](platform::UINT message, platform::WPARAM, platform::LPARAM) {
                                         if (message == enterInSelectEdit && pane_) pane_->openFirst();
                                         return platform::LRESULT{0};
                                     });
}

SelectComponent::~SelectComponent() {
    const std::unique_ptr<SelectPane> last(pane_.data());
    pane_.clear();
}

QWidget& SelectComponent::widget() { return *pane_; }

std::span<const platform::OperationInfo> SelectComponent::operations() const { return operationInfos; }

std::span<const platform::EventInfo> SelectComponent::events() const { return eventInfos; }

std::optional<Variant> SelectComponent::invoke(std::int32_t dispid, platform::InvokeKind kind,
                                               std::span<const Variant> arguments) {
    if (!pane_) return std::nullopt;
    return platform::dispatch(*this, operationTable, dispid, kind, arguments);
}

std::string SelectComponent::version() const { return std::string(controls::version); }

std::string SelectComponent::getPageTitle(std::int32_t pageId) const {
    std::string title = selection_.pageTitle(pageId);
    if (title.empty() && folder_) title = folder_->pageTitle(selection_.section(), pageId);
    return title;
}

// Any host code is accepted.
void SelectComponent::initialise(std::int16_t, std::string dataFolder, std::int32_t viewWindow) {
    hostWindow_ = viewWindow;
    folder_.emplace(site_.files(), std::move(dataFolder));
    pane_->setIndex(folder_->readIndex());
}

std::string SelectComponent::getItemTitle(std::int32_t itemCode) const {
    if (itemCode == 0) return getPageTitle(selection_.shown().pageId);
    std::string title = selection_.itemTitle(itemCode);
    if (title.empty() && folder_) title = folder_->entryTitle(itemCode);
    return title;
}

void SelectComponent::setSection(std::int16_t code) { pane_->setSection(code); }

void SelectComponent::showItem(std::int32_t pageId, std::int32_t itemCode, bool) {
    raise(pane_->showPlace({pageId, itemCode}));
}

std::int32_t SelectComponent::getAuxHandle() const { return auxWindow_; }

std::int32_t SelectComponent::getEditWindow() const { return editWindow_; }

void SelectComponent::sendHost(platform::WPARAM first, platform::LPARAM message) {
    if (hostWindow_ != 0) site_.sendMessage(hostWindow_, platform::WM_COMMAND, first, message);
}

void SelectComponent::raise(const ChoiceEvents& events) {
    for (const ChoiceEvent& event : events) {
        if (const auto* page = std::get_if<PageChosen>(&event)) {
            std::array arguments{Variant(page->pageNumber), Variant(page->pageId)};
            site_.raiseEvent(pageChosenId, arguments);
        } else if (const auto* item = std::get_if<ItemChosen>(&event)) {
            std::array arguments{Variant(item->itemCode)};
            site_.raiseEvent(itemChosenId, arguments);
        }
    }
}

std::unique_ptr<platform::Component> createSelectComponent(platform::ComponentSite& site, QWidget* parent) {
    return std::make_unique<SelectComponent>(site, parent);
}

}  // namespace controls::select
