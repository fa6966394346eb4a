#pragma once

#include <QTranslator>

namespace platform {

/// Greek texts for Qt's dialog in which the user chooses a printer or a file; Qt has none. Names of paper
/// sizes are not translated.
class PrintDialogTexts : public QTranslator {
  public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* remark, int count) const override;
};

}  // namespace platform
