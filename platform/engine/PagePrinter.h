#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
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
    /// `isFormer` says whether the view still shows a page that another one is about to replace.
    PagePrinter(QWebEngineView& view, std::function<bool()> isFormer);
    ~PagePrinter() override;

    /// Starts to print, once the page that is being loaded has begun: the engine ends the program when the
    /// process of a page ends that it prints. Nothing happens while another page is being printed or when
    /// there is no printer.
    void print();
    bool busy() const { return printing_ || later_.isActive(); }

  private:
    /// To the next free file when none is chosen.
    void printWithoutPrinter(bool ask);
    void printToFile(const std::string& chosen, const QPageLayout& layout, const QPageRanges& ranges);
    void printOnPaper(std::unique_ptr<QPrinter> printer);
    /// The page will never come into the file.
    void giveUp();

    QWebEngineView& view_;
    std::function<bool()> isFormer_;
    QTimer later_;                       // runs until the page is looked at again
    std::unique_ptr<QPrinter> printer_;  // the engine prints on it for a while
    std::string file_;                   // into which it prints, empty for the next free one
    bool printing_ = false;
};

}  // namespace platform
