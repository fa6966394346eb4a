#pragma once

#include <QApplication>
#include <string>
#include <string_view>
#include <vector>

#include "controls/select/FilterField.h"
#include "controls/select/SelectComponent.h"
#include "controls/select/SelectPane.h"
#include "controls/select/TopicModel.h"
#include "controls/select/TopicView.h"
#include "formats/BrowseIndex.h"
#include "platform/files/FileSystem.h"
#include "tests/controls/select/SampleIndex.h"
#include "tests/support/TestFolder.h"

/// The host of a browse selection. It records events as "page 1 2" and "item 3".
class SelectHost : public platform::ComponentSite {
  public:
    SelectHost() : SelectHost(*formats::encodeBrowseIndex(sample::index())) {}
    /// The index file has this content; there is none when it is empty.
    explicit SelectHost(std::string_view indexFile) {
        if (!indexFile.empty()) data.write("select.ndx", indexFile);
        files_.setDrives({{'D', platform::DriveType::cdrom, data.path()}});
        component = controls::select::createSelectComponent(*this, nullptr);
    }

    void initialise() {
        call(3, std::int16_t{1102}, std::string("D:\\"), std::int32_t{77});
        call(5, sample::elements);
    }

    /// Calls a method. The result is empty also when the component refuses the call.
    template <class... Arguments>
    platform::Variant call(std::int32_t dispid, Arguments... given) {
        const std::vector<platform::Variant> arguments{platform::Variant(given)...};
        return component->invoke(dispid, platform::InvokeKind::method, arguments)
            .value_or(platform::Variant());
    }

    std::string text(std::int32_t dispid, std::int32_t argument) {
        return *call(dispid, argument).get<std::string>();
    }

    /// The events since the last call.
    std::vector<std::string> takeEvents() { return std::exchange(events_, {}); }

    controls::select::SelectPane& pane() {
        return static_cast<controls::select::SelectPane&>(component->widget());
    }

    void raiseEvent(std::int32_t dispid, std::span<platform::Variant> arguments) override {
        std::string line = dispid == 1 ? "page" : "item";
        for (const auto& argument : arguments) line += ' ' + std::to_string(*argument.get<std::int32_t>());
        events_.push_back(line);
    }
    platform::HWND registerWindow(QWidget&, std::string, platform::MessageProc proc) override {
        procs_.push_back(std::move(proc));
        return static_cast<platform::HWND>(procs_.size());
    }
    platform::LRESULT sendMessage(platform::HWND window, platform::UINT message, platform::WPARAM wParam,
                                  platform::LPARAM lParam) override {
        return procs_.at(static_cast<std::size_t>(window) - 1)(message, wParam, lParam);
    }
    const platform::FileSystem& files() const override { return files_; }

    TestFolder data;  ///< drive D:
    std::unique_ptr<platform::Component> component;

  private:
    platform::FileSystem files_;
    std::vector<platform::MessageProc> procs_;
    std::vector<std::string> events_;
};
