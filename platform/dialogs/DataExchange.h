#pragma once

#include <string>

#include "platform/dialogs/Dialog.h"
#include "platform/widgets/Control.h"

namespace platform {

/// One run of a dialog's DoDataExchange. After the first value that is not valid the others are left alone.
class CDataExchange {
  public:
    CDataExchange(CDialog& dialog, bool save) : m_dialog(dialog), m_bSave(save) {}

    CDialog& dialog() const { return m_dialog; }
    /// From the controls to the members; false is the other way.
    bool saving() const { return m_bSave; }
    bool valid() const { return m_bValid; }

    /// The control of the last text exchanged.
    int m_nLastText = 0;
    /// Gives that control the focus, its text selected, and ends the run.
    void Fail();

  private:
    CDialog& m_dialog;
    bool m_bSave;
    bool m_bValid = true;
};

/// Makes `control` the object of the dialog's control of this id, at the first exchange.
void DDX_Control(CDataExchange& exchange, int id, CControl& control);
void DDX_Text(CDataExchange& exchange, int id, std::string& text);
/// Keeps the text just exchanged to so many characters: typing stops there, and a longer text is not valid,
/// about which the user is told.
void DDV_MaxChars(CDataExchange& exchange, const std::string& text, int length);

}  // namespace platform
