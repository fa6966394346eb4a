#pragma once

#include <string>

#include "platform/dialogs/Dialog.h"
#include "platform/widgets/Button.h"
#include "platform/widgets/Edit.h"
#include "platform/widgets/ListBox.h"
#include "platform/widgets/ListCtrl.h"
#include "src/search/ResultRows.h"
#include "src/search/SearchState.h"

namespace kalyxo {

/// The dialog of the word search. The user types or picks a word of the vocabulary, which is looked up with
/// or without its other forms, and chooses one of the places found.
class CSearchDlg : public platform::CDialog {
  public:
    /// Searches the data folder, which ends with a backslash; `files` must outlive the dialog.
    CSearchDlg(const platform::FileSystem& files, const std::string& dataFolder, SearchState state);

    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
    const platform::MessageMap* GetMessageMap() const override;

    /// The place that was chosen, and what to remember of the search. Valid when the dialog has ended with
    /// OK.
    const SearchHit& Chosen() const { return m_chosen; }
    const SearchState& State() const { return m_state; }
    /// The words of that search.
    const std::vector<std::string>& SearchedWords() const { return m_searched; }

  protected:
    bool OnInitDialog() override;
    void OnOK() override;
    void DoDataExchange(platform::CDataExchange& exchange) override;

  private:
    void OnWordEdited();
    void OnWordPicked();
    void OnAlternatives();
    void RunSearch();
    platform::LRESULT OnResultClicked(platform::NMHDR& notification);
    platform::LRESULT OnResultActivated(platform::NMHDR& notification);
    platform::LRESULT OnResultsLeft(platform::NMHDR& notification);
    platform::LRESULT OnHeaderClicked(platform::NMLISTVIEW& notification);

    void growAroundMiddle(platform::CSize size);
    bool loadIndex();
    void insertColumns();
    void restoreSearch();
    void UpdateSearchButton();
    void listSearchWords();
    void AddResultRow(const ResultRow& row);
    void SortResults(int column);

    const platform::FileSystem& m_files;
    std::string m_dataFolder;
    SearchIndex m_index;
    SearchState m_state;
    SearchHit m_chosen;
    std::vector<std::string> m_searched;
    /// True while the dialog itself writes into the word field.
    bool m_ignoreWordEdits = false;

    platform::CEdit m_word;
    platform::CListBox m_words;
    platform::CButton m_alternatives;
    platform::CListCtrl m_results;
    platform::CListBox m_searchWords;
};

}  // namespace kalyxo
