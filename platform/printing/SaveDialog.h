#pragma once

#include <QString>
#include <string>

class QWidget;

namespace platform {

/// The name of a file for a document with this title: without the characters that file systems do not take in
/// names.
QString fileNameFor(const QString& title);

/// Asks in a dialog over the window where to save the document as a PDF file, in the printer's folder at
/// first and under a name made of the title. The path in UTF-8, empty when the user cancels.
std::string askWhereToSave(QWidget& window, const QString& title);

}  // namespace platform
