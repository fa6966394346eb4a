#include "src/bookmarks/FolderNameDlg.h"

#include <utility>

#include "platform/base/Resources.h"
#include "platform/dialogs/DataExchange.h"
#include "src/resources/ResourceIds.h"

namespace kalyxo {

using namespace platform;

namespace {

constexpr int kMaxFolderName = 60;

std::string_view captionOf(NameFor mode) {
    if (mode == NameFor::newFolder) return LoadString(IDS_FOLDER_NEW);
    return LoadString(mode == NameFor::folder ? IDS_FOLDER_RENAME : IDS_BOOKMARK_RENAME);
}

}  // namespace

const CRuntimeClass CFolderNameDlg::runtimeClass{"CFolderNameDlg"};

CFolderNameDlg::CFolderNameDlg(NameFor mode, std::string text)
    : CDialog(IDD_FOLDER_NAME), m_mode(mode), m_text(std::move(text)) {}

std::string CFolderNameDlg::Text() const {
    constexpr std::string_view kWhite = " \t\r\n\v\f";
    const std::size_t first = m_text.find_first_not_of(kWhite);
    if (first == m_text.npos) return {};
    return m_text.substr(first, m_text.find_last_not_of(kWhite) - first + 1);
}

void CFolderNameDlg::DoDataExchange(CDataExchange& exchange) {
    DDX_Control(exchange, IDC_BOOKMARK_NAME, m_edit);
    DDX_Text(exchange, IDC_BOOKMARK_NAME, m_text);
    DDV_MaxChars(exchange, m_text, kMaxFolderName);
}

bool CFolderNameDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    SetWindowText(captionOf(m_mode));
    GotoDlgCtrl(IDC_BOOKMARK_NAME);
    m_edit.SetSel(0, -1);
    return false;
}

}  // namespace kalyxo
