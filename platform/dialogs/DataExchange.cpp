#include "platform/dialogs/DataExchange.h"

#include "platform/dialogs/MessageBox.h"
#include "platform/text/GreekLiteral.h"
#include "platform/widgets/Edit.h"
#include "platform/windows/ControlLink.h"

namespace platform {

using namespace literals;

namespace {

/// An edit of the dialog while a value is looked at, without taking it from an object that is bound to it.
template <class Use>
void withEdit(const CDataExchange& exchange, Use use) {
    ControlLink* const link = ControlLink::of(exchange.dialog().GetDlgItem(exchange.m_nLastText));
    if (!link) return;
    if (auto* const bound = dynamic_cast<CEdit*>(link->object())) return use(*bound);
    if (link->object()) return;
    CEdit edit;
    link->bind(edit);
    use(edit);
    link->unbind();
}

}  // namespace

void CDataExchange::Fail() {
    m_bValid = false;
    m_dialog.GotoDlgCtrl(m_nLastText);
    withEdit(*this, [](CEdit& edit) { edit.SetSel(0, -1); });
}

void DDX_Control(CDataExchange& exchange, int id, CControl& control) {
    ControlLink* const link = ControlLink::of(exchange.dialog().GetDlgItem(id));
    if (link && !control.bound()) link->bind(control);
}

void DDX_Text(CDataExchange& exchange, int id, std::string& text) {
    if (!exchange.valid()) return;
    exchange.m_nLastText = id;
    if (exchange.saving()) {
        text = exchange.dialog().GetDlgItemText(id);
    } else {
        exchange.dialog().SetDlgItemText(id, text);
    }
}

void DDV_MaxChars(CDataExchange& exchange, const std::string& text, int length) {
    if (!exchange.valid()) return;
    if (!exchange.saving()) return withEdit(exchange, [=](CEdit& edit) { edit.LimitText(length); });
    if (text.size() <= static_cast<std::size_t>(length)) return;
    AfxMessageBox(std::string("Πληκτρολογήστε το πολύ "_gr) + std::to_string(length) +
                  std::string(" χαρακτήρες."_gr));
    exchange.Fail();
}

}  // namespace platform
