#pragma once

#include <QObject>
#include <memory>
#include <string>

class QPageLayout;
class QPageRanges;
class QPrinter;
class QWebEngineView;

namespace platform {

/// Prints the page that a view shows, in the engine's own way: to a PDF file, or on a printer that the user
/// chooses in a dialog.
class PagePrinter : public QObject {
  public:
    explicit PagePrinter(QWebEngineView& view);
    ~PagePrinter() override;

    /// Starts to print; nothing happens while another page is being printed or when there is no printer.
    void print();
    bool busy() const { return printing_; }

  private:
    /// To the next free file when none is chosen.
    void printWithoutPrinter(bool ask);
    void printToFile(const std::string& chosen, const QPageLayout& layout, const QPageRanges& ranges);
    void printOnPaper(std::unique_ptr<QPrinter> printer);

    QWebEngineView& view_;
    std::unique_ptr<QPrinter> printer_;  // the engine prints on it for a while
    bool printing_ = false;
};

}  // namespace platform
