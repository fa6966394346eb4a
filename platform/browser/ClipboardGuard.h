#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <memory>

class QEvent;
class QMimeData;

namespace platform {

/// Keeps pages from writing the clipboard. The engine lets a page write it for some seconds after a press in
/// the page, and a script cannot take that from all of a page's frames. So what the clipboard held at the
/// press is put back when the engine writes it and the user has not asked to copy or cut. One for the
/// process.
class ClipboardGuard : public QObject {
  public:
    static ClipboardGuard& instance();

    /// Looks at an event of the widget that takes a page's input, before the page gets it.
    void see(const QEvent& event);

    /// Lets the next write pass, which the program asks a page for.
    void expectCopy();

  private:
    ClipboardGuard();
    ~ClipboardGuard() override;

    void keepContent();
    void putBack();
    void changed();
    bool isPagesWrite() const;

    QDeadlineTimer pageMayWrite_{0};
    QDeadlineTimer userCopies_{0};
    bool told_ = false;
    std::unique_ptr<QMimeData> kept_;  ///< null when the clipboard has changed since
};

}  // namespace platform
