#include "platform/dialogs/DataExchange.h"

#include "platform/dialogs/MessageBox.h"
#include "platform/text/GreekLiteral.h"
#include "platform/widgets/Edit.h"
#include "platform/windows/ControlLink.h"

namespace platform {

using namespace literals;

namespace {

/// Calls `use` with the edit of the last exchanged text: with the object that is bound to it, or with a
/// temporary one.
template <class Use>
void withEdit(const CDataExchange& exchange, Use use) {
    ControlLink* const link = ControlLink::of(exchange.Dialog().GetDlgItem(exchange.LastText()));
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
    valid_ = false;
    dialog_.GotoDlgCtrl(lastText_);
    withEdit(*this, [](CEdit& edit) { edit.SetSel(0, -1); });
}

void DDX_Control(CDataExchange& exchange, int id, CControl& control) {
    ControlLink* const link = ControlLink::of(exchange.Dialog().GetDlgItem(id));
    if (link && !control.Bound()) link->bind(control);
}

void DDX_Text(CDataExchange& exchange, int id, std::string& text) {
    if (!exchange.Valid()) return;
    exchange.SetLastText(id);
    if (exchange.Saving()) {
        text = exchange.Dialog().GetDlgItemText(id);
    } else {
        exchange.Dialog().SetDlgItemText(id, text);
    }
}

void DDV_MaxChars(CDataExchange& exchange, const std::string& text, int length) {
    if (!exchange.Valid()) return;
    if (!exchange.Saving()) return withEdit(exchange, [=](CEdit& edit) { edit.LimitText(length); });
    if (text.size() <= static_cast<std::size_t>(length)) return;
    AfxMessageBox(std::string("Πληκτρολογήστε το πολύ "_gr) + std::to_string(length) +
                  std::string(" χαρακτήρες."_gr));
    exchange.Fail();
}

}  // namespace platform
