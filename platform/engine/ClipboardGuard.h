#pragma once

#include <QClipboard>
#include <QDeadlineTimer>
#include <QMimeData>
#include <QObject>
#include <QPointF>
#include <memory>

class QEvent;

namespace platform {

/// Keeps pages from writing the clipboard, and the text that a host keeps of the last selection. The engine
/// lets a page write them for some seconds after a press in the page, and a script cannot take that from all
/// of a page's frames. So what they held at the press is put back when the engine writes them and the user
/// has not copied, cut or selected. One for the process.
class ClipboardGuard : public QObject {
  public:
    static ClipboardGuard& instance();

    /// Looks at an event of the widget that takes a page's input, before the page gets it.
    void see(const QEvent& event);

    /// Lets the next write to the clipboard pass, which the program asks a page for.
    void expectCopy() { copied_.expectWrite(); }

  private:
    struct Guarded {
        explicit Guarded(QClipboard::Mode clipboardMode) : mode(clipboardMode) {}
        void expectWrite();
        void keepContent();
        void putBack();

        QClipboard::Mode mode;
        QDeadlineTimer userWrites{0};
        std::unique_ptr<QMimeData> kept;  ///< null when it has changed since
    };

    ClipboardGuard();
    ~ClipboardGuard() override;

    bool selects(const QEvent& event);
    void changed(Guarded& one);
    bool isPagesWrite(const Guarded& one) const;

    QDeadlineTimer pageMayWrite_{0};
    QPointF pressed_;
    bool told_ = false;
    Guarded copied_{QClipboard::Clipboard};
    Guarded selected_{QClipboard::Selection};
};

}  // namespace platform
