#pragma once

#include <string>

#include "platform/dialogs/Dialog.h"
#include "platform/widgets/Control.h"

namespace platform {

/// One exchange of values between a dialog and its members, by DoDataExchange. After the first invalid value
/// the others are left alone.
class CDataExchange {
  public:
    CDataExchange(CDialog& dialog, bool save) : dialog_(dialog), saving_(save) {}

    CDialog& Dialog() const { return dialog_; }
    /// Whether values go from the controls to the members; otherwise they go from the members to the
    /// controls.
    bool Saving() const { return saving_; }
    bool Valid() const { return valid_; }

    /// The control of the text that is exchanged last.
    void SetLastText(int id) { lastText_ = id; }
    int LastText() const { return lastText_; }
    /// Ends the exchange: that control gets the focus, with its text selected.
    void Fail();

  private:
    CDialog& dialog_;
    bool saving_;
    bool valid_ = true;
    int lastText_ = 0;
};

/// Makes `control` the object of the dialog's control with this id, in the first exchange.
void DDX_Control(CDataExchange& exchange, int id, CControl& control);
/// Exchanges the text of the dialog's control with this id; code page 1253.
void DDX_Text(CDataExchange& exchange, int id, std::string& text);
/// Limits the text that was just exchanged to `length` characters: typing stops there, and a longer text is
/// invalid, which the user is told.
void DDV_MaxChars(CDataExchange& exchange, const std::string& text, int length);

}  // namespace platform
