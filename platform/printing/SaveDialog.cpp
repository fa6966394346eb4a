#include "platform/printing/SaveDialog.h"

#include <QFileDialog>
#include <QRegularExpression>

#include "platform/drawing/LightPalette.h"
#include "platform/printing/PrintFile.h"

namespace platform {

namespace {

constexpr int maxNameLength = 80;

}  // namespace

QString fileNameFor(const QString& title) {
    static const QRegularExpression refused(QStringLiteral(R"([\\/:*?"<>|\x00-\x1f]+)"));
    QString name = title;
    name.replace(refused, QStringLiteral(" "));
    name = name.simplified().left(maxNameLength).trimmed();
    while (name.startsWith(u'.') || name.startsWith(u' ')) name.remove(0, 1);
    return (name.isEmpty() ? QStringLiteral("Kalyxo") : name) + QStringLiteral(".pdf");
}

std::string askWhereToSave(QWidget& window, const QString& title) {
    const PrinterConfig* const printer = pdfPrinter();
    QFileDialog dialog(&window, QStringLiteral("Αποθήκευση ως PDF"),
                       printer ? QString::fromStdString(printer->folder) : QString(),
                       QStringLiteral("PDF (*.pdf)"));
    dialog.setPalette(lightPalette());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    dialog.selectFile(fileNameFor(title));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return dialog.selectedFiles().constFirst().toStdString();
}

}  // namespace platform
