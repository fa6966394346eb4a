#include "src/search/SearchDlg.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "platform/base/Resources.h"
#include "platform/dialogs/DataExchange.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/dialogs/Progress.h"
#include "platform/framework/WinApp.h"
#include "platform/input/KeyboardFocus.h"
#include "platform/windows/Cursor.h"
#include "platform/windows/MessageMap.h"
#include "src/resources/ResourceIds.h"

namespace kalyxo {

using namespace platform;

namespace {

/// Columns of the result list.
enum Column { NameColumn, TopicColumn, SubgroupColumn };

/// The number of words that are added to the list before progress is told.
constexpr std::size_t kWordsPerStep = 1024;

}  // namespace

const CRuntimeClass CSearchDlg::runtimeClass{"CSearchDlg"};

CSearchDlg::CSearchDlg(const FileSystem& files, const std::string& dataFolder, SearchState state)
    : CDialog(IDD_SEARCH),
      m_files(files),
      m_dataFolder(dataFolder),
      m_index(files, dataFolder),
      m_state(std::move(state)) {}

const MessageMap* CSearchDlg::GetMessageMap() const {
    static constexpr MessageMapEntry kEntries[] = {
        OnControl<&CSearchDlg::OnWordEdited>(IDC_SEARCH_WORD, EN_UPDATE),
        OnControl<&CSearchDlg::OnWordPicked>(IDC_WORD_LIST, LBN_SELCHANGE),
        OnControl<&CSearchDlg::RunSearch>(IDC_WORD_LIST, LBN_DBLCLK),
        OnCommandId<&CSearchDlg::RunSearch>(IDC_SEARCH_RUN),
        OnCommandId<&CSearchDlg::OnAlternatives>(IDC_ALTERNATIVES),
        OnNotify<&CSearchDlg::OnResultClicked>(IDC_RESULTS, NM_CLICK),
        OnNotify<&CSearchDlg::OnResultActivated>(IDC_RESULTS, NM_DBLCLK),
        OnNotify<&CSearchDlg::OnResultsLeft>(IDC_RESULTS, NM_KILLFOCUS),
        OnNotify<&CSearchDlg::OnHeaderClicked>(IDC_RESULTS, LVN_COLUMNCLICK),
    };
    static const MessageMap map{CDialog::GetMessageMap(), kEntries};
    return &map;
}

void CSearchDlg::DoDataExchange(CDataExchange& exchange) {
    DDX_Control(exchange, IDC_SEARCH_WORD, m_word);
    DDX_Control(exchange, IDC_WORD_LIST, m_words);
    DDX_Control(exchange, IDC_ALTERNATIVES, m_alternatives);
    DDX_Control(exchange, IDC_RESULTS, m_results);
    DDX_Control(exchange, IDC_SEARCH_WORDS, m_searchWords);
}

bool CSearchDlg::OnInitDialog() {
    const CWaitCursor wait;
    CDialog::OnInitDialog();
    if (m_state.size != CSize{}) growAroundMiddle(m_state.size);
    m_alternatives.SetCheck(m_state.alternatives != 0);
    insertColumns();
    if (loadIndex()) {
        restoreSearch();
    } else {
        EndDialog(IDCANCEL);
    }
    return false;
}

void CSearchDlg::growAroundMiddle(CSize size) {
    const CRect small = GetWindowRect();
    // The caption stays on the screen.
    MoveWindow(CRect::at(std::max(small.left - (size.cx - small.Width()) / 2, std::min(small.left, 0)),
                         std::max(small.top - (size.cy - small.Height()) / 2, std::min(small.top, 0)),
                         size.cx, size.cy));
}

/// False when the user has cancelled.
bool CSearchDlg::loadIndex() {
    CProgress progress(LoadString(IDS_READING_WORDS));
    const ProgressStep step = progress.Step();
    const std::vector<std::string> words = m_index.LoadWordIndex(step);
    std::size_t added = 0;
    for (const std::string& word : words) {
        ++added;
        if (added % kWordsPerStep == 0 && !step(added, words.size())) break;
        m_words.AddString(word);
    }
    m_index.LoadAlternatives(step);
    if (progress.Cancelled()) return false;
    if (!m_index.LoadFirstLetterTable()) AfxMessageBox(LoadString(IDS_TOO_MANY_FIRST_LETTERS));
    return true;
}

void CSearchDlg::insertColumns() {
    m_results.InsertColumn(LoadString(IDS_COLUMN_NAME), m_state.nameWidth);
    m_results.InsertColumn(LoadString(IDS_COLUMN_TOPIC), m_state.topicWidth);
    m_results.InsertColumn(LoadString(IDS_COLUMN_SUBGROUP), m_state.subgroupWidth);
}

void CSearchDlg::restoreSearch() {
    m_word.SetWindowText(m_state.word);
    OnWordEdited();
    RunSearch();
    if (m_state.row < 0 || m_state.row >= m_results.GetItemCount()) return GotoDlgCtrl(IDC_SEARCH_WORD);
    m_results.SelectItem(m_state.row);
    EnableDlgItem(IDOK, true);
    GotoDlgCtrl(IDC_RESULTS);
}

void CSearchDlg::OnWordEdited() {
    if (m_ignoreWordEdits) return;
    const std::string text = m_word.GetWindowText();
    std::string withoutSpaces = text;
    std::erase(withoutSpaces, ' ');
    if (withoutSpaces != text) {
        // The change of text calls this function again, with nothing left to remove.
        m_word.SetWindowText(withoutSpaces);
        const int end = static_cast<int>(withoutSpaces.size());
        m_word.SetSel(end, end);
        return;
    }
    m_words.SetCurSel(m_words.FindString(0, text));
    UpdateSearchButton();
}

void CSearchDlg::OnWordPicked() {
    m_ignoreWordEdits = true;
    m_word.SetWindowText(m_words.GetText(m_words.GetCurSel()));
    m_ignoreWordEdits = false;
    UpdateSearchButton();
}

void CSearchDlg::UpdateSearchButton() {
    const int selected = m_words.GetCurSel();
    EnableDlgItem(IDC_SEARCH_RUN, selected >= 0 && m_words.GetText(selected) == m_word.GetWindowText());
}

void CSearchDlg::OnAlternatives() {
    m_searchWords.ResetContent();
    RunSearch();
}

void CSearchDlg::RunSearch() {
    if (!IsDlgItemEnabled(IDC_SEARCH_RUN)) return;
    const CWaitCursor wait;
    m_results.DeleteAllItems();
    EnableDlgItem(IDOK, false);
    HitTitles titles(m_files, m_dataFolder);
    CProgress progress(LoadString(IDS_SEARCHING_WORD));
    listSearchWords();
    for (const ResultRow& row : FindRows(m_index, m_searched, titles, progress.Step())) AddResultRow(row);
}

void CSearchDlg::listSearchWords() {
    m_searched = m_index.ExpandAlternatives(m_words.GetText(m_words.GetCurSel()), m_alternatives.GetCheck());
    m_searchWords.ResetContent();
    for (const std::string& word : m_searched) m_searchWords.AddString(word);
}

void CSearchDlg::AddResultRow(const ResultRow& row) {
    const int at = m_results.InsertItem(row.texts.name);
    m_results.SetItemText(at, TopicColumn, row.texts.topic);
    m_results.SetItemData(at, static_cast<LPARAM>(row.hit));
    m_results.SetItemText(at, SubgroupColumn, row.texts.subgroup);
}

LRESULT CSearchDlg::OnResultClicked(NMHDR&) {
    EnableDlgItem(IDOK, m_results.GetSelectedItem() >= 0);
    return 0;
}

LRESULT CSearchDlg::OnResultActivated(NMHDR&) {
    OnOK();
    return 0;
}

LRESULT CSearchDlg::OnResultsLeft(NMHDR&) {
    if (GetFocus() != GetDlgItem(IDOK)) EnableDlgItem(IDOK, false);
    return 0;
}

LRESULT CSearchDlg::OnHeaderClicked(NMLISTVIEW& notification) {
    SortResults(notification.iSubItem);
    return 0;
}

void CSearchDlg::SortResults(int column) {
    const CWaitCursor wait;
    std::unordered_map<LPARAM, std::string> cells;
    for (int row = 0; row < m_results.GetItemCount(); ++row)
        cells.try_emplace(m_results.GetItemData(row), m_results.GetItemText(row, column));
    m_results.SortItems(
        [&cells](LPARAM first, LPARAM second) { return CompareCells(cells[first], cells[second]); });
}

void CSearchDlg::OnOK() {
    const int row = m_results.GetSelectedItem();
    if (row < 0) return;
    m_chosen = m_index.HitAt(static_cast<std::size_t>(m_results.GetItemData(row)));
    m_state = {.alternatives = m_alternatives.GetCheck() ? 1 : 0,
               .nameWidth = m_results.GetColumnWidth(NameColumn),
               .topicWidth = m_results.GetColumnWidth(TopicColumn),
               .subgroupWidth = m_results.GetColumnWidth(SubgroupColumn),
               .size = {GetWindowRect().Width(), GetWindowRect().Height()},
               .row = row,
               .word = m_word.GetWindowText()};
    EndDialog(IDOK);
}

}  // namespace kalyxo
