#pragma once

#include <QTranslator>

namespace platform {

/// Greek for the dialog in which the user chooses a printer and a file, which comes in other languages only.
/// Names of paper sizes stay.
class PrintDialogTexts : public QTranslator {
  public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* remark, int count) const override;
};

}  // namespace platform
