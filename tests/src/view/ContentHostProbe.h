#pragma once

#include <string>
#include <vector>

#include "src/view/Navigator.h"

namespace kalyxo {

/// Writes down what it is asked to show. Like the browse selection, it answers when it is asked for a topic.
class ContentHostProbe final : public ContentHost {
  public:
    bool EnterPageMode(std::int16_t sectionCode) override {
        note("section " + std::to_string(sectionCode));
        return !std::exchange(pageMode_, true);
    }
    void LayOutPage() override { note("panes"); }
    void ShowPage(std::int32_t pageNumber, double) override { note("page " + std::to_string(pageNumber)); }
    double Scrolled() const override { return 0; }
    void ShowItem(std::int32_t pageId, std::int32_t itemCode) override {
        note("item " + std::to_string(pageId) + "/" + std::to_string(itemCode));
        navigator.OnPageChosen(pageId, pageId);
        if (itemCode != 0) navigator.OnItemChosen(itemCode);
    }
    void ShowPeriodicTable() override { showComponent("table", kPeriodicTableCode); }
    void ShowDataAnalyser(const CBMDataAn* bookmark) override {
        showComponent(bookmark == nullptr ? "analyser" : "analyser's state", kDataAnalyserCode);
    }

    /// What it was asked since the last call.
    std::vector<std::string> takeCalls() { return std::exchange(calls_, {}); }

    Navigator navigator{*this};

  private:
    void note(std::string call) { calls_.push_back(std::move(call)); }
    void showComponent(std::string name, std::int16_t code) {
        note(std::move(name));
        navigator.RecordHistory({code, 0, 0});
        pageMode_ = false;
    }

    std::vector<std::string> calls_;
    bool pageMode_ = false;
};

}  // namespace kalyxo
