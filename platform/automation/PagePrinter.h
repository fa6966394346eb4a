#pragma once

#include <QObject>
#include <memory>

class QByteArray;
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
    void printToFile();
    void printOnPaper();

    QWebEngineView& view_;
    std::unique_ptr<QPrinter> printer_;  // the engine prints on it for a while
    bool printing_ = false;
};

}  // namespace platform
